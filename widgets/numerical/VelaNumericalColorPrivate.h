#ifndef VELANUMERICALCOLORPRIVATE_H
#define VELANUMERICALCOLORPRIVATE_H

#include "LuDynamicWidgetRecords.h"
#include "QColorButton.h"
#include "VelaNumericalRowPrivate.h"

#include <QColor>
#include <QSignalBlocker>

#include <algorithm>
#include <functional>
#include <utility>

namespace Vela {

// One colour channel from 0 to 1, truncated to 0 to 255.
inline int ColorChannelFromUnit(float fValue)
{
    return std::clamp(TruncateToInt(fValue * 255.0f), 0, 255);
}

// Shows (x, y, z) as the button's opaque colour without letting the button report it.
inline void ShowColorOnButton(QColorButton *pButton, const CVector4<float> &v)
{
    if (!pButton)
        return;
    const QSignalBlocker blocker(pButton);
    pButton->SetColor(
        QColor(ColorChannelFromUnit(v.x), ColorChannelFromUnit(v.y), ColorChannelFromUnit(v.z)));
}

// (red, green, blue) of the button's colour from 0 to 1, alpha always 1.
inline CVector4<float> ColorValueOfButton(const QColorButton *pButton)
{
    const QColor kColor = pButton ? pButton->GetColor() : QColor();
    if (!kColor.isValid())
        return CVector4<float>(0.0f, 0.0f, 0.0f, 1.0f);
    return CVector4<float>(float(kColor.red()) / 255.0f, float(kColor.green()) / 255.0f,
                           float(kColor.blue()) / 255.0f, 1.0f);
}

// Hands the host's undo/redo callbacks to the colour button, once the button exists.
inline void SetColorButtonUndoRedo(QColorButton *pButton, std::function<void()> kBegin,
                                   std::function<void()> kEnd, std::function<void()> kAccepted,
                                   std::function<void()> kReverted)
{
    if (!pButton)
        return;
    pButton->SetUndoRedoFunctions(std::move(kBegin), std::move(kEnd), std::move(kAccepted),
                                  std::move(kReverted));
}

} // namespace Vela

#endif // VELANUMERICALCOLORPRIVATE_H
