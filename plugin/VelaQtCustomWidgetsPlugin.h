#ifndef VELAQTCUSTOMWIDGETSPLUGIN_H
#define VELAQTCUSTOMWIDGETSPLUGIN_H

#include "VelaExport.h"

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

// The collection that Qt Designer loads from this library: it owns one descriptor per widget that
// forms can place, in a fixed order, all in the group "Vela Plugins".
class VELA_WIDGETS_EXPORT VelaQtCustomWidgetsPlugin
    : public QObject,
      public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit VelaQtCustomWidgetsPlugin(QObject *parent = nullptr);
    ~VelaQtCustomWidgetsPlugin() override;

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    QList<QDesignerCustomWidgetInterface *> m_widgets;
};

#endif // VELAQTCUSTOMWIDGETSPLUGIN_H
