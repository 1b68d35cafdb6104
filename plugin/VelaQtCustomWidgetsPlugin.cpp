#include "VelaQtCustomWidgetsPlugin.h"

#include "VelaWidgetDescriptor.h"

VelaQtCustomWidgetsPlugin::VelaQtCustomWidgetsPlugin(QObject *parent)
    : QObject(parent)
    , m_widgets(CreateVelaDescriptors(this))
{ }

// The descriptors are children of the collection and go with it.
VelaQtCustomWidgetsPlugin::~VelaQtCustomWidgetsPlugin() = default;

QList<QDesignerCustomWidgetInterface *> VelaQtCustomWidgetsPlugin::customWidgets() const
{
    return m_widgets;
}
