#ifndef VELANUMERICALROWPRIVATE_H
#define VELANUMERICALROWPRIVATE_H

#include <QBoxLayout>
#include <QLayout>
#include <QWidget>

#include <climits>
#include <cmath>

namespace Vela {

// Adds one row of editors to a numerical widget's own layout. Initialize installs a vertical box
// layout; a host that installed some other layout beforehand gets the row wrapped in a plain
// widget, so that nothing is lost.
inline void AddNumericalRow(QWidget *pOwner, QLayout *pRow)
{
    QLayout *pLayout = pOwner->layout();
    if (auto *pBox = qobject_cast<QBoxLayout *>(pLayout)) {
        pBox->addLayout(pRow);
        return;
    }
    auto *pHolder = new QWidget(pOwner);
    pHolder->setLayout(pRow);
    if (pLayout)
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
