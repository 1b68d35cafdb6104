#ifndef VELANUMERICALSLIDERPRIVATE_H
#define VELANUMERICALSLIDERPRIVATE_H

// What the numeric material-input widgets (QNumericalWidgetSlider,
// QNumericalWidgetMultiLevelSlider and QNumericalMouseSpinbox) do alike: reading the component
// count and kind of a variable type, placing their parts in the widget's main layout, the caption
// label that the slider widgets watch for double-clicks, component captions from the label map,
// the fixed-point levels of the multi-level slider and packing editor values into the vector.

#include "LuDynamicWidgetRecords.h"
#include "VelaVector.h"

#include <QString>

#include <algorithm>
#include <string>

class QLabel;
class QLayout;
class QWidget;

namespace Vela {
namespace NumericalSlider {

// Number of numeric components of a variable type: 1 to 4 for the types 0 to 7, else 0.
unsigned int ComponentCount(EDynamicWidgetVariableType eType);
// True exactly for the floating-point types 0 to 3.
bool IsFloat(EDynamicWidgetVariableType eType);

// The layout the widget's parts go into. Initialize always provides one; a widget re-described
// before it was initialised gets the same margin-free vertical layout.
QLayout *MainLayout(QWidget *widget);
// Adds pLayout below what the main layout already holds; a main layout that cannot take nested
// layouts gets it inside a plain container widget.
void AddToMainLayout(QWidget *widget, QLayout *pLayout);

// A label showing strName, child of widget, with widget installed as its event filter; the caller
// places it.
QLabel *MakeCaption(QWidget *widget, const QString &strName);

// The caption of component nIndex from the caller's working copy of the label map: a missing key
// reads as an empty text and is added to the copy.
QString TakeComponentLabel(CMap<int, std::string> &kLabels, int nIndex);

// The multi-level slider works in integer levels of 1/10000: a value becomes its level truncated
// toward zero (0.33335 gives 3333), saturating at the ends of int; NaN gives the smallest level.
int LevelFromValue(float fValue);
float ValueFromLevel(int nLevel);

// Packs the values of the first four of nCount editors into a vector, the rest of it zero.
template<typename ValueAt>
CVector4f PackComponents(int nCount, ValueAt valueAt)
{
    CVector4f vValue;
    const int nPacked = std::min(nCount, 4);
    for (int i = 0; i < nPacked; ++i)
        vValue.Set(i, float(valueAt(i)));
    return vValue;
}

} // namespace NumericalSlider
} // namespace Vela

#endif // VELANUMERICALSLIDERPRIVATE_H
