// Random host records through every material-parameter widget: types, ranges, NaN, infinities,
// huge decimals and label maps given to Initialize, then SetDesc and pushed values.
#include "FuzzSupport.h"

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

#include <functional>
#include <memory>

using namespace VelaFuzz;

namespace {

float component(Input &in)
{
    return float(in.real());
}

Vela::CVector4f vector(Input &in)
{
    const float x = component(in);
    const float y = component(in);
    const float z = component(in);
    return Vela::CVector4f(x, y, z, component(in));
}

Lu::CDynamicWidgetVariableBase variable(Input &in)
{
    Lu::CDynamicWidgetVariableBase var;
    var.eType = Vela::EDynamicWidgetVariableType(in.integer());
    var.vValue = vector(in);
    return var;
}

Lu::CDynamicWidgetDescBase description(Input &in)
{
    Lu::CDynamicWidgetDescBase desc;
    desc.strName = in.text(24).toStdWString();
    desc.eBehaviorType = Vela::EDynamicWidgetBehaviorType(in.integer());
    for (float *values :
         { desc.afMinimum, desc.afMaximum, desc.afValue, desc.afSpinMinimum, desc.afSpinMaximum }) {
        for (int i = 0; i < 4; ++i)
            values[i] = component(in);
    }
    const int labels = in.index(6);
    for (int i = 0; i < labels; ++i)
        desc.mapLabels[in.integer()] = in.bytes(12).toStdString();
    desc.bIndependentSpin = in.boolean();
    desc.bTriggerBake = in.boolean();
    desc.uDecimals = in.byte();
    return desc;
}

const std::function<QNumericalWidgetBase *()> kWidgets[] = {
    [] { return new QNumericalWidgetSlider; },
    [] { return new QNumericalWidgetMultiLevelSlider; },
    [] { return new QNumericalMouseSpinbox; },
    [] { return new QNumericalWidgetColor; },
    [] { return new QNumericalWidgetColorWithToolButton; },
    [] { return new QNumericalWidgetColorPresetButtons; },
    [] { return new QNumericalWidgetCombobox; },
    [] { return new QNumericalWidgetOutputSize; },
    [] { return new QNumericalWidgetToggleButton; },
    [] { return new QNumericalWidgetImage; },
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const RunScope scope;
    Input in(data, size);
    const int count = int(sizeof(kWidgets) / sizeof(kWidgets[0]));
    std::unique_ptr<QNumericalWidgetBase> widget(kWidgets[in.index(count)]());
    const Lu::CDynamicWidgetVariableBase var = variable(in);
    widget->Initialize(var, description(in));
    widget->resize(360, 120);
    widget->show();
    while (!in.atEnd()) {
        switch (in.index(4)) {
        case 0:
            widget->SetDesc(variable(in), description(in));
            break;
        case 1:
            widget->SetValue(vector(in));
            break;
        case 2:
            widget->UpdateInputValue(vector(in));
            break;
        default:
            widget->GetValue();
            break;
        }
    }
    widget->grab();
    return 0;
}
