#ifndef VELANUMERICALROWPRIVATE_H
#define VELANUMERICALROWPRIVATE_H

#include <QBoxLayout>
#include <QLayout>
#include <QWidget>

#include <climits>
#include <cmath>

namespace Vela {

// The layout a numerical widget's editors go into. Initialize always provides one; a widget
// re-described before it was initialised gets the same margin-free vertical layout.
inline QLayout *NumericalMainLayout(QWidget *pOwner)
{
    if (QLayout *pLayout = pOwner->layout())
        return pLayout;
    auto *pLayout = new QVBoxLayout(pOwner);
    pLayout->setSpacing(0);
    pLayout->setContentsMargins(0, 0, 0, 0);
    return pLayout;
}

// Adds one row of editors below what the widget's layout already holds. A host that installed
// some other layout than a box layout beforehand gets the row wrapped in a plain widget, so that
// nothing is lost.
inline void AddNumericalRow(QWidget *pOwner, QLayout *pRow)
{
    QLayout *pLayout = NumericalMainLayout(pOwner);
    if (auto *pBox = qobject_cast<QBoxLayout *>(pLayout)) {
        pBox->addLayout(pRow);
        return;
    }
    auto *pHolder = new QWidget(pOwner);
    pHolder->setLayout(pRow);
    pLayout->addWidget(pHolder);
}

// Truncates toward zero like a plain conversion; values beyond the int range are clamped to it
// and NaN reads as 0.
inline int TruncateToInt(float fValue)
{
    if (std::isnan(fValue))
        return 0;
    if (fValue >= float(INT_MAX))
        return INT_MAX;
    if (fValue <= float(INT_MIN))
        return INT_MIN;
    return int(fValue);
}

} // namespace Vela

#endif // VELANUMERICALROWPRIVATE_H
