#include "QIntegerSliderWithRenameButton.h"

QIntegerSliderWithRenameButton::QIntegerSliderWithRenameButton(QWidget *parent)
    : QWidget(parent)
{
    m_kUi.setupUi(this);
}

QIntegerSliderWithRenameButton::~QIntegerSliderWithRenameButton() = default;

QLabel *QIntegerSliderWithRenameButton::GetNameLabel()
{
    return m_kUi.qtNameLabel;
}

QToolButton *QIntegerSliderWithRenameButton::GetRenameButton()
{
    return m_kUi.qtRenameButton;
}

QComboSpinBox *QIntegerSliderWithRenameButton::GetSlider()
{
    return m_kUi.qtCombospinbox;
}

int QIntegerSliderWithRenameButton::Spacing()
{
    return layout()->spacing();
}

void QIntegerSliderWithRenameButton::SetSpacing(int nSpacing)
{
    layout()->setSpacing(nSpacing);
}

Ui::IntegerSliderWithRenameButtonWidget *QIntegerSliderWithRenameButton::UI()
{
    return &m_kUi;
}
