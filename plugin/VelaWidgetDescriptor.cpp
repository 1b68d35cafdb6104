#include "VelaWidgetDescriptor.h"

#include <QIcon>

VelaWidgetDescriptor::VelaWidgetDescriptor(const Row &row, QObject *parent)
    : QObject(parent)
    , m_row(row)
{ }

VelaWidgetDescriptor::~VelaWidgetDescriptor() = default;

QString VelaWidgetDescriptor::name() const
{
    return QLatin1String(m_row.name);
}

QString VelaWidgetDescriptor::group() const
{
    return QStringLiteral("Vela Plugins");
}

QString VelaWidgetDescriptor::toolTip() const
{
    return QString();
}

QString VelaWidgetDescriptor::whatsThis() const
{
    return QString();
}

QString VelaWidgetDescriptor::includeFile() const
{
    return QLatin1String(m_row.includeFile);
}

QIcon VelaWidgetDescriptor::icon() const
{
    return QIcon();
}

bool VelaWidgetDescriptor::isContainer() const
{
    return m_row.container;
}

QWidget *VelaWidgetDescriptor::createWidget(QWidget *parent)
{
    return m_row.create(parent);
}

bool VelaWidgetDescriptor::isInitialized() const
{
    return m_initialized;
}

void VelaWidgetDescriptor::initialize(QDesignerFormEditorInterface *)
{
    if (!m_initialized)
        m_initialized = true;
}

QString VelaWidgetDescriptor::domXml() const
{
    return QLatin1String(m_row.domXml);
}

QString VelaWidgetDescriptor::codeTemplate() const
{
    return QString();
}
