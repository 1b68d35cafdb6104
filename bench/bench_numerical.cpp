// What a material panel costs a host: building one from records, and following a slider drag
// through to the packed value, against the same editors laid out and connected by hand.
#include "VelaBench.h"

#include "QNumericalWidgetSlider.h"

#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr int kPanelInputs = 100;

Lu::CDynamicWidgetVariableBase fourComponentVariable()
{
    Lu::CDynamicWidgetVariableBase var;
    var.eType = Vela::DynamicVariable_Float4;
    return var;
}

Lu::CDynamicWidgetDescBase fourComponentDescription(int index)
{
    Lu::CDynamicWidgetDescBase desc;
    desc.strName = L"Input " + std::to_wstring(index);
    for (int i = 0; i < 4; ++i) {
        desc.afMinimum[i] = 0.0f;
        desc.afMaximum[i] = 10.0f;
        desc.afValue[i] = 2.5f;
    }
    desc.mapLabels[0] = "R";
    desc.mapLabels[1] = "G";
    desc.mapLabels[2] = "B";
    desc.mapLabels[3] = "A";
    return desc;
}

void showAndSettle(QWidget *panel)
{
    panel->show();
    QCoreApplication::processEvents();
}

void numericalPanel(benchmark::State &state)
{
    const Lu::CDynamicWidgetVariableBase var = fourComponentVariable();
    for (auto _ : state) {
        auto panel = std::make_unique<QWidget>();
        auto *column = new QVBoxLayout(panel.get());
        for (int i = 0; i < kPanelInputs; ++i) {
            auto *input = new QNumericalWidgetSlider;
            input->Initialize(var, fourComponentDescription(i));
            column->addWidget(input);
        }
        showAndSettle(panel.get());
    }
}

// The same 400 rows a host would otherwise write: caption, slider and spin box per component.
void handBuiltPanel(benchmark::State &state)
{
    for (auto _ : state) {
        auto panel = std::make_unique<QWidget>();
        auto *column = new QVBoxLayout(panel.get());
        for (int i = 0; i < kPanelInputs; ++i) {
            column->addWidget(new QLabel(QStringLiteral("Input %1").arg(i)));
            for (const char *caption : { "R", "G", "B", "A" }) {
                auto *row = new QHBoxLayout;
                row->addWidget(new QLabel(QLatin1String(caption)));
                auto *slider = new QSlider(Qt::Horizontal);
                slider->setRange(0, 1000);
                slider->setValue(250);
                row->addWidget(slider);
                auto *spin = new QDoubleSpinBox;
                spin->setRange(0.0, 10.0);
                spin->setValue(2.5);
                row->addWidget(spin);
                column->addLayout(row);
            }
        }
        showAndSettle(panel.get());
    }
}

// Drag steps: the slider is held down and its position moves by one, back and forth, each step
// reaching the host's slot (which stores the packed value in `received`).
void dragSteps(benchmark::State &state, QSlider *slider, const Vela::CVector4f &received)
{
    slider->setSliderDown(true);
    bool forward = true;
    for (auto _ : state) {
        slider->setSliderPosition(slider->sliderPosition() + (forward ? 1 : -1));
        forward = !forward;
        benchmark::DoNotOptimize(received);
    }
    slider->setSliderDown(false);
}

void numericalSliderStep(benchmark::State &state)
{
    QNumericalWidgetSlider input;
    input.Initialize(fourComponentVariable(), fourComponentDescription(0));
    input.show();
    Vela::CVector4f received;
    QObject::connect(&input, &QNumericalWidgetBase::ValueChanged,
                     [&received](Vela::CVector4f value) { received = value; });
    dragSteps(state, input.findChild<QSlider *>(), received);
}

void handBuiltSliderStep(benchmark::State &state)
{
    QWidget row;
    auto *layout = new QHBoxLayout(&row);
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setRange(0, 1000);
    layout->addWidget(slider);
    QDoubleSpinBox *spins[4];
    for (QDoubleSpinBox *&spin : spins) {
        spin = new QDoubleSpinBox;
        spin->setRange(0.0, 10.0);
        layout->addWidget(spin);
    }
    row.show();
    Vela::CVector4f received;
    QObject::connect(slider, &QSlider::valueChanged, [&](int value) {
        spins[0]->setValue(value / 100.0);
        received = Vela::CVector4f(float(spins[0]->value()), float(spins[1]->value()),
                                   float(spins[2]->value()), float(spins[3]->value()));
    });
    dragSteps(state, slider, received);
}

} // namespace

VELA_BENCH_CASE({ "panel of 100 four-component QNumericalWidgetSlider: build + show + destroy",
                  numericalPanel, 1, handBuiltPanel, 1, 1.3 })
VELA_BENCH_CASE({ "QNumericalWidgetSlider: one drag step to ValueChanged", numericalSliderStep, 1,
                  handBuiltSliderStep, 1, 1.5 })
