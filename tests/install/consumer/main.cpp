// A host that uses the installed library: it places the widgets through a uic-generated form and
// drives one of them directly.
#include "ui_controls.h"

#include <QApplication>
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
    return (ui.countSpin->maximum() == 150 && ui.volumeSlider->value() == 7
            && ui.modeCombo->IgnoreWheelEvent() && ok.code() == 0
            && records == 0)
        ? 0
        : 1;
}
