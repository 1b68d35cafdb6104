#include "VelaWidgetCatalog.h"

#include "CKdFKModifyCellWidget.h"
#include "FlowLayout.h"
#include "QComboLabelButton.h"
#include "QDialEx.h"
#include "QIntegerSliderWithRenameButton.h"
#include "QMultiLevelSlider.h"
#include "QNumericalMouseSpinbox.h"
#include "QNumericalWidgetColor.h"
#include "QNumericalWidgetColorPresetButtons.h"
#include "QNumericalWidgetColorWithToolButton.h"
#include "QNumericalWidgetCombobox.h"
#include "QNumericalWidgetImage.h"
#include "QNumericalWidgetMultiLevelSlider.h"
#include "QNumericalWidgetOutputSize.h"
#include "QNumericalWidgetSlider.h"
#include "QNumericalWidgetToggleButton.h"
#include "QSbsImageWidget.h"
#include "VelaColorDialog2.h"

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QApplication>
#include <QDialog>
#include <QTimer>

extern "C" QObject *qt_plugin_instance();

namespace VelaCatalog {

// A material-parameter widget as a host makes one: from a three-component input with captions
// and choices.
template<typename Widget>
static Entry numerical(const char *name, Vela::EDynamicWidgetVariableType eType)
{
    return { QLatin1String(name), [eType]() -> QWidget * {
                Lu::CDynamicWidgetVariableBase var;
                var.eType = eType;
                var.vValue = Vela::CVector4f(0.5f, 0.25f, 1.0f, 1.0f);
                Lu::CDynamicWidgetDescBase desc;
                desc.strName = L"Input_Button";
                for (int i = 0; i < 4; ++i) {
                    desc.afMaximum[i] = 10.0f;
                    desc.afValue[i] = 2.5f;
                }
                desc.mapLabels[0] = "R";
                desc.mapLabels[2] = "B";
                auto *widget = new Widget;
                widget->Initialize(var, desc);
                return widget;
            } };
}

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
        list.append({ QStringLiteral("QMultiLevelSlider"), [] {
                         auto *slider = new QMultiLevelSlider;
                         Vela::CArrayList<QMultiLevelSlider::IndicatorDesc> indicators(3);
                         for (int i = 0; i < 3; ++i) {
                             indicators[i].nValue = i * 40;
                             indicators[i].bSelectable = true;
                         }
                         slider->InitUi(0, 100, false, indicators, true, nullptr, nullptr, true,
                                        nullptr, nullptr, QColor(80, 80, 80));
                         return slider;
                     } });
        list.append({ QStringLiteral("VelaColorDialog2"), [] { return new VelaColorDialog2; } });
        list.append({ QStringLiteral("FlowLayout"), [] {
                         auto *host = new QWidget;
                         auto *flow = new FlowLayout(host, 4, 6, 6);
                         for (int i = 0; i < 12; ++i)
                             flow->addWidget(new QWidget);
                         return host;
                     } });
        list << numerical<QNumericalWidgetSlider>("QNumericalWidgetSlider",
                                                  Vela::DynamicVariable_Float3)
             << numerical<QNumericalWidgetMultiLevelSlider>("QNumericalWidgetMultiLevelSlider",
                                                            Vela::DynamicVariable_Float3)
             << numerical<QNumericalMouseSpinbox>("QNumericalMouseSpinbox",
                                                  Vela::DynamicVariable_Integer2)
             << numerical<QNumericalWidgetColor>("QNumericalWidgetColor",
                                                 Vela::DynamicVariable_Float4)
             << numerical<QNumericalWidgetColorWithToolButton>(
                    "QNumericalWidgetColorWithToolButton", Vela::DynamicVariable_Float4)
             << numerical<QNumericalWidgetColorPresetButtons>("QNumericalWidgetColorPresetButtons",
                                                              Vela::DynamicVariable_Integer1)
             << numerical<QNumericalWidgetCombobox>("QNumericalWidgetCombobox",
                                                    Vela::DynamicVariable_Integer1)
             << numerical<QNumericalWidgetOutputSize>("QNumericalWidgetOutputSize",
                                                      Vela::DynamicVariable_Integer2)
             << numerical<QNumericalWidgetToggleButton>("QNumericalWidgetToggleButton",
                                                        Vela::DynamicVariable_Integer1)
             << numerical<QNumericalWidgetImage>("QNumericalWidgetImage",
                                                 Vela::DynamicVariable_Image);
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
