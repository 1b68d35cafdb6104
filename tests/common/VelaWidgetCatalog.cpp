#include "VelaWidgetCatalog.h"

#include "CKdFKModifyCellWidget.h"
#include "QComboLabelButton.h"
#include "QDialEx.h"
#include "QIntegerSliderWithRenameButton.h"
#include "QSbsImageWidget.h"

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QApplication>
#include <QDialog>
#include <QTimer>

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
        list.append(
            { QStringLiteral("CKdFKModifyCellWidget"), [] { return new CKdFKModifyCellWidget; } });
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

void RejectModalDialogs()
{
    auto *timer = new QTimer(qApp);
    timer->setInterval(20);
    QObject::connect(timer, &QTimer::timeout, [] {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            dialog->reject();
    });
    timer->start();
}

} // namespace VelaCatalog
