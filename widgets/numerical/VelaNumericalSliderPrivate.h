#ifndef VELANUMERICALSLIDERPRIVATE_H
#define VELANUMERICALSLIDERPRIVATE_H

// What the numeric material-input widgets (QNumericalWidgetSlider,
// QNumericalWidgetMultiLevelSlider and QNumericalMouseSpinbox) do alike: the caption label that
// the slider widgets watch for double-clicks, component captions from the label map, the
// fixed-point levels of the multi-level slider and packing editor values into the vector.

#include "LuDynamicWidgetRecords.h"
#include "VelaVector.h"

#include <QString>

#include <algorithm>
#include <string>

class QLabel;
class QWidget;

namespace Vela {
namespace NumericalSlider {

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
