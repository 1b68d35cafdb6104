// A host that uses the installed library: it places the widgets through uic-generated forms (one
// of them holding every Designer widget) and drives some of them directly.
#include "ui_allwidgets.h"
#include "ui_controls.h"

#include <QApplication>
#include <QGridLayout>
#include <QSpinBoxEx.h>
#include <VelaResult.h>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QWidget form;
    Ui::ControlsForm ui;
    ui.setupUi(&form);

    int records = 0;
    QObject::connect(ui.countSpin, &QSpinBoxEx::RecordEditingValue, [&records] { ++records; });
    ui.volumeSlider->SetValue(7);
    const Vela::Result ok;
    const bool controlsOk = ui.countSpin->maximum() == 150 && ui.volumeSlider->value() == 7
        && ui.modeCombo->IgnoreWheelEvent() && ok.code() == 0 && records == 0;

    QWidget everything;
    Ui::AllWidgetsForm all;
    all.setupUi(&everything);
    everything.show();
    const bool everythingOk = everything.layout()->count() == 31
        && all.qGroupWidget31->parentWidget() == &everything
        && all.qComboSpinBox18->parentWidget() == &everything;

    return controlsOk && everythingOk ? 0 : 1;
}
