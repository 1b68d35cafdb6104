#ifndef VELANUMERICALCOLORPRIVATE_H
#define VELANUMERICALCOLORPRIVATE_H

#include "LuDynamicWidgetRecords.h"
#include "QColorButton.h"
#include "VelaNumericalRowPrivate.h"

#include <QColor>
#include <QSignalBlocker>

#include <algorithm>

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

} // namespace Vela

#endif // VELANUMERICALCOLORPRIVATE_H
