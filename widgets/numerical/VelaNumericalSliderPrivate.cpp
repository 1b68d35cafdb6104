#include "VelaNumericalSliderPrivate.h"

#include "VelaComboEditorPrivate.h"

#include <QLabel>
#include <QWidget>

namespace Vela {
namespace NumericalSlider {

QLabel *MakeCaption(QWidget *widget, const QString &strName)
{
    auto *pLabel = new QLabel(strName, widget);
    pLabel->installEventFilter(widget);
    return pLabel;
}

QString TakeComponentLabel(CMap<int, std::string> &kLabels, int nIndex)
{
    return QString::fromStdString(kLabels[nIndex]);
}

int LevelFromValue(float fValue)
{
    // The product is formed in single precision, as the values themselves are.
    return ComboEditor::TruncateToPosition(double(fValue * 10000));
}

float ValueFromLevel(int nLevel)
{
    return float(nLevel / 10000.0);
}

} // namespace NumericalSlider
} // namespace Vela
