#include "VelaWidgetCatalog.h"

#include "QComboLabelButton.h"
#include "QDialEx.h"
#include "QIntegerSliderWithRenameButton.h"
#include "QSbsImageWidget.h"

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
        list.append({ QStringLiteral("QComboLabelButton"),
                      [] { return new QComboLabelButton(QStringLiteral("Brow_L")); } });
        list.append({ QStringLiteral("QIntegerSliderWithRenameButton"),
                      [] { return new QIntegerSliderWithRenameButton; } });
        list.append({ QStringLiteral("QSbsImageWidget"), [] {
                         auto *slot = new QSbsImageWidget;
                         Vela::CMap<Vela::ESubstanceUiChannel, QString> channels;
                         channels[Vela::ESubstanceUiChannel(0)] = QStringLiteral("Base color");
                         slot->Initialize(1, QStringLiteral("Slot"), channels, {}, true);
                         slot->SetFileTypeFilter(QStringLiteral("png;jpg"));
                         return slot;
                     } });
        return list;
    }();
    return entries;
}

} // namespace VelaCatalog
