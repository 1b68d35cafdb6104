#ifndef LUDYNAMICWIDGETRECORDS_H
#define LUDYNAMICWIDGETRECORDS_H

// The host's description of one material input, as the numerical widgets read it.
//
// A host builds one numerical widget per input of a material and initialises it from two records
// that it owns: a variable record (what the input is and what it holds now) and a description
// record (how to present it). The widgets read both only while being initialised or re-described
// and keep no reference to them.
//
// The widgets rely on the order and types of the leading fields below; hosts may append fields in
// derived records but must not reorder these. Neither record has virtual functions, so the first
// field of each record is at offset 0.

#include "VelaContainers.h"
#include "VelaVector.h"

#include <QMetaType>

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

namespace Vela {

// The kind of value a material input holds. Values 0 to 3 are floating-point inputs of one to four
// components, 4 to 7 integer inputs of one to four components; every other value (the named ones
// below included) is not numeric and gets no numeric editor.
enum EDynamicWidgetVariableType : std::int32_t {
    DynamicVariable_Float1 = 0,
    DynamicVariable_Float2 = 1,
    DynamicVariable_Float3 = 2,
    DynamicVariable_Float4 = 3,
    DynamicVariable_Integer1 = 4,
    DynamicVariable_Integer2 = 5,
    DynamicVariable_Integer3 = 6,
    DynamicVariable_Integer4 = 7,
    DynamicVariable_Boolean = 8,
    DynamicVariable_String = 9,
    DynamicVariable_Image = 10,
};

// Number of numeric components of a variable type: 1 to 4 for the values 0 to 7, else 0.
constexpr int DynamicVariableComponentCount(EDynamicWidgetVariableType eType)
{
    return eType >= DynamicVariable_Float1 && eType <= DynamicVariable_Integer4 ? eType % 4 + 1 : 0;
}

// True exactly for the floating-point variable types 0 to 3.
constexpr bool IsFloatVariableType(EDynamicWidgetVariableType eType)
{
    return eType >= DynamicVariable_Float1 && eType <= DynamicVariable_Float4;
}

// How the host wants an input presented. The widgets store this value and hand it back through
// GetWidgetType(); the only value they interpret is DynamicBehavior_UnitSlider, which turns a
// one-component float input into a slider over 0 to 1 whatever its description's range.
enum EDynamicWidgetBehaviorType : std::int32_t {
    DynamicBehavior_Slider = 0,
    DynamicBehavior_Color = 1,
    DynamicBehavior_ComboBox = 2,
    DynamicBehavior_UnitSlider = 3,
    DynamicBehavior_ToggleButton = 4,
    DynamicBehavior_Image = 5,
    DynamicBehavior_OutputSize = 6,
    DynamicBehavior_MultiLevelSlider = 7,
    DynamicBehavior_MouseSpinBox = 8,
    DynamicBehavior_ColorWithToolButton = 9,
    DynamicBehavior_ColorPresetButtons = 10,
    DynamicBehavior_ImageArray = 11,
};

// Where the image of a Substance image slot comes from: one of the material's channels (0 to 10),
// an external texture, a custom image file, or nothing.
enum ESubstanceUiChannel : std::int32_t {
    SubstanceChannel_BaseColor = 0,
    SubstanceChannel_Normal = 1,
    SubstanceChannel_Roughness = 2,
    SubstanceChannel_Metallic = 3,
    SubstanceChannel_Height = 4,
    SubstanceChannel_AmbientOcclusion = 5,
    SubstanceChannel_Opacity = 6,
    SubstanceChannel_Emissive = 7,
    SubstanceChannel_Specular = 8,
    SubstanceChannel_Glossiness = 9,
    SubstanceChannel_Diffuse = 10,
    SubstanceChannel_ExternTexture = 11,
    SubstanceChannel_Custom = 99998,
    SubstanceChannel_None = 99999,
};

} // namespace Vela

namespace Lu {

// One material input: its type and its current value.
struct CDynamicWidgetVariableBase
{
    // Read by every numerical widget (first field).
    Vela::EDynamicWidgetVariableType eType = Vela::DynamicVariable_Float1;
    // The current value, directly after the type; colour inputs use (r, g, b, a) in 0 to 1, choice
    // inputs the chosen value in x. Read by the colour and toggle widgets.
    Vela::CVector4f vValue;
    // The value the host resets the input to. Not read by the widgets.
    Vela::CVector4f vDefaultValue;
    // The host's identifier of the input (the key it later gives the widget). Not read by the
    // widgets.
    std::wstring strIdentifier;
};

// How one material input is presented. Arrays hold one entry per component, in the order x, y,
// z, w; entries past the input's component count are ignored.
struct CDynamicWidgetDescBase
{
    // The display name (first field): caption of the widget, and key of the image signals.
    std::wstring strName;
    // Stored by the widgets and handed back; see EDynamicWidgetBehaviorType.
    Vela::EDynamicWidgetBehaviorType eBehaviorType = Vela::DynamicBehavior_Slider;
    // Slider range per component.
    float afMinimum[4] = { 0.0f, 0.0f, 0.0f, 0.0f };
    float afMaximum[4] = { 1.0f, 1.0f, 1.0f, 1.0f };
    // Initial value per component; the slider widgets also keep it as the value to reset to.
    float afValue[4] = { 0.0f, 0.0f, 0.0f, 0.0f };
    // Spin box range per component, used when bIndependentSpin is set.
    float afSpinMinimum[4] = { 0.0f, 0.0f, 0.0f, 0.0f };
    float afSpinMaximum[4] = { 1.0f, 1.0f, 1.0f, 1.0f };
    // UTF-8 texts by integer key: the caption of each component of a slider input (key =
    // component index; a missing key shows an empty caption), or the choices of a choice input
    // (key = the value of the choice, shown in ascending key order).
    Vela::CMap<int, std::string> mapLabels;
    // The spin box has its own range (afSpinMinimum / afSpinMaximum) instead of the slider's.
    bool bIndependentSpin = false;
    // Changing this input requires the host to re-bake the material.
    bool bTriggerBake = false;
    // Number of decimals shown for float inputs.
    std::uint8_t uDecimals = 2;
    // The name of the panel section the host places the input in. Not read by the widgets.
    std::wstring strGroup;
    // A longer description the host may show as a tool tip. Not read by the widgets.
    std::wstring strToolTip;
};

} // namespace Lu

static_assert(sizeof(Vela::CVector4f) == 4 * sizeof(float), "CVector4f holds four packed floats");
static_assert(sizeof(Vela::EDynamicWidgetVariableType) == 4, "variable types are 32-bit");
static_assert(sizeof(Vela::EDynamicWidgetBehaviorType) == 4, "behaviour types are 32-bit");
static_assert(std::is_standard_layout<Lu::CDynamicWidgetVariableBase>::value,
              "the variable record has a fixed layout");
static_assert(offsetof(Lu::CDynamicWidgetVariableBase, vValue) == 4,
              "the current value follows the variable type directly");

Q_DECLARE_METATYPE(Vela::ESubstanceUiChannel)

#endif // LUDYNAMICWIDGETRECORDS_H
