#include "VelaNumericalSliderPrivate.h"

#include "VelaComboEditorPrivate.h"

#include <QBoxLayout>
#include <QLabel>
#include <QWidget>

namespace Vela {
namespace NumericalSlider {

unsigned int ComponentCount(EDynamicWidgetVariableType eType)
{
    return static_cast<unsigned int>(DynamicVariableComponentCount(eType));
}

bool IsFloat(EDynamicWidgetVariableType eType)
{
    return IsFloatVariableType(eType);
}

QLayout *MainLayout(QWidget *widget)
{
    if (QLayout *pLayout = widget->layout())
        return pLayout;
    auto *pLayout = new QVBoxLayout(widget);
    pLayout->setSpacing(0);
    pLayout->setContentsMargins(0, 0, 0, 0);
    return pLayout;
}

void AddToMainLayout(QWidget *widget, QLayout *pLayout)
{
    QLayout *pMain = MainLayout(widget);
    if (auto *pBox = qobject_cast<QBoxLayout *>(pMain)) {
        pBox->addLayout(pLayout);
        return;
    }
    auto *pHolder = new QWidget(widget);
    pHolder->setLayout(pLayout);
    pMain->addWidget(pHolder);
}

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
