#include "VelaWidgetCatalog.h"

#include "QDialEx.h"

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

extern "C" QObject *qt_plugin_instance();

namespace VelaCatalog {

const QVector<Entry> &Widgets()
{
    static const QVector<Entry> entries = [] {
        QVector<Entry> list;
        auto *collection =
            qobject_cast<QDesignerCustomWidgetCollectionInterface *>(qt_plugin_instance());
        for (QDesignerCustomWidgetInterface *descriptor : collection->customWidgets()) {
            list.append(
                { descriptor->name(), [descriptor] { return descriptor->createWidget(nullptr); } });
        }
        // Host-only widgets.
        list.append({ QStringLiteral("QDialEx"), [] { return new QDialEx; } });
        return list;
    }();
    return entries;
}

} // namespace VelaCatalog
