#include "QComboNonlinearDoubleSpinBox.h"

#include "VelaComboEditorPrivate.h"

#include <QSignalBlocker>

#include <cmath>

using namespace Vela;

QComboNonlinearDoubleSpinBox::QComboNonlinearDoubleSpinBox(QWidget *parent)
    : QWidget(parent)
{
    ComboEditor::SetUpForm(this, m_kUi, m_eLabelOrientation);

    // Turn the slider's own range and value into logarithmic positions. The form's minimum 0 has
    // no logarithm and becomes the smallest integer until the host sets a positive minimum.
    QSliderEx *slider = m_kUi.qtHorizontalSlider;
    const int decimals = Decimals();
    slider->setMinimum(ComboEditor::LogPosition(slider->minimum(), decimals));
    slider->setMaximum(ComboEditor::LogPosition(slider->maximum(), decimals));
    slider->SetValue(ComboEditor::LogPosition(slider->value(), decimals));
    slider->setSingleStep(1);
    slider->setPageStep(1);

    QDoubleSpinBoxEx *spinBox = m_kUi.qtDoubleSpinBox;
    connect(spinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &QComboNonlinearDoubleSpinBox::OnSpinBoxValueChanged);
    connect(spinBox, &QDoubleSpinBoxEx::RecordEditingValue, this,
            &QComboNonlinearDoubleSpinBox::EditFinished);
    connect(slider, &QSlider::valueChanged, this,
            &QComboNonlinearDoubleSpinBox::OnSliderValueChanged);
    connect(slider, &QSliderEx::RecordEditingValue, this,
            &QComboNonlinearDoubleSpinBox::EditFinished);

    UpdateMaxMinIndicator();
}

QComboNonlinearDoubleSpinBox::~QComboNonlinearDoubleSpinBox() = default;

double QComboNonlinearDoubleSpinBox::Value()
{
    return m_kUi.qtDoubleSpinBox->value();
}

void QComboNonlinearDoubleSpinBox::SetValue(double dValue)
{
    ComboEditor::SetSliderQuietly(m_kUi.qtHorizontalSlider,
                                  ComboEditor::LogPosition(dValue, Decimals()));
    {
        const QSignalBlocker blocker(m_kUi.qtDoubleSpinBox);
        m_kUi.qtDoubleSpinBox->setValue(dValue);
    }
    MarkUsedSlider();
    emit ValueChanged(dValue);
}

double QComboNonlinearDoubleSpinBox::Minimum()
{
    if (m_bIndependentSpin)
        return m_kUi.qtHorizontalSlider->minimum() / ComboEditor::DecimalScale(Decimals());
    return m_kUi.qtDoubleSpinBox->minimum();
}

void QComboNonlinearDoubleSpinBox::SetMinimum(double dValue)
{
    if (!m_bIndependentSpin)
        m_kUi.qtDoubleSpinBox->setMinimum(dValue);
    m_kUi.qtHorizontalSlider->setMinimum(ComboEditor::LogPosition(dValue, Decimals()));
    UpdateMaxMinIndicator();
}

double QComboNonlinearDoubleSpinBox::Maximum()
{
    if (m_bIndependentSpin)
        return m_kUi.qtHorizontalSlider->maximum() / ComboEditor::DecimalScale(Decimals());
    return m_kUi.qtDoubleSpinBox->maximum();
}

void QComboNonlinearDoubleSpinBox::SetMaximum(double dValue)
{
    if (!m_bIndependentSpin)
        m_kUi.qtDoubleSpinBox->setMaximum(dValue);
    m_kUi.qtHorizontalSlider->setMaximum(ComboEditor::LogPosition(dValue, Decimals()));
    UpdateMaxMinIndicator();
}

double QComboNonlinearDoubleSpinBox::SpinMinimum() const
{
    return m_kUi.qtDoubleSpinBox->minimum();
}

void QComboNonlinearDoubleSpinBox::SetSpinMinimum(double dValue)
{
    m_kUi.qtDoubleSpinBox->setMinimum(dValue);
    UpdateMaxMinIndicator();
}

double QComboNonlinearDoubleSpinBox::SpinMaximum() const
{
    return m_kUi.qtDoubleSpinBox->maximum();
}

void QComboNonlinearDoubleSpinBox::SetSpinMaximum(double dValue)
{
    m_kUi.qtDoubleSpinBox->setMaximum(dValue);
    UpdateMaxMinIndicator();
}

double QComboNonlinearDoubleSpinBox::SingleStep()
{
    return m_kUi.qtDoubleSpinBox->singleStep();
}

void QComboNonlinearDoubleSpinBox::SetSingleStep(double dStep)
{
    m_kUi.qtDoubleSpinBox->setSingleStep(dStep);
    // The slider always steps by one position, 1/10^decimals of a decade.
    m_kUi.qtHorizontalSlider->setSingleStep(1);
}

double QComboNonlinearDoubleSpinBox::PageStep()
{
    return m_kUi.qtHorizontalSlider->pageStep() / ComboEditor::DecimalScale(Decimals());
}

void QComboNonlinearDoubleSpinBox::SetPageStep(double)
{
    m_kUi.qtHorizontalSlider->setPageStep(1);
}

int QComboNonlinearDoubleSpinBox::Decimals() const
{
    return m_kUi.qtDoubleSpinBox->decimals();
}

void QComboNonlinearDoubleSpinBox::SetDecimals(int nDecimals)
{
    m_kUi.qtDoubleSpinBox->setDecimals(nDecimals);
}

void QComboNonlinearDoubleSpinBox::MarkUsedSlider()
{
    ComboEditor::MarkSlider(this, m_kUi.qtHorizontalSlider,
                            m_kUi.qtHorizontalSlider->value()
                                != ComboEditor::LogPosition(m_dDefaultValue, Decimals()));
}

// An independent spin range reaching down to 0 holds values below any logarithmic position: the
// left arrow shows exactly then. The right arrow is never shown.
void QComboNonlinearDoubleSpinBox::UpdateMaxMinIndicator()
{
    m_kUi.qtLeftArrowLabel->setVisible(m_bIndependentSpin
                                       && m_kUi.qtDoubleSpinBox->minimum() == 0.0);
    m_kUi.qtRightArrowLabel->setVisible(false);
}

double QComboNonlinearDoubleSpinBox::DefaultValue() const
{
    return m_dDefaultValue;
}

void QComboNonlinearDoubleSpinBox::SetDefaultValue(double dValue)
{
    m_dDefaultValue = dValue;
}

Ui::SliderDoubleSpinbox *QComboNonlinearDoubleSpinBox::UI()
{
    return &m_kUi;
}

VELA_COMBO_EDITOR_FORWARDERS(QComboNonlinearDoubleSpinBox, qtDoubleSpinBox)

bool QComboNonlinearDoubleSpinBox::eventFilter(QObject *watched, QEvent *event)
{
    if (ComboEditor::IsResetDoubleClick(this, m_bResetOnDoubleClick, event)) {
        SetValue(m_dDefaultValue);
        emit EditFinished();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void QComboNonlinearDoubleSpinBox::OnSpinBoxValueChanged(double dValue)
{
    QSliderEx *slider = m_kUi.qtHorizontalSlider;
    ComboEditor::SetSliderQuietly(
        slider, dValue <= 0.0 ? slider->minimum() : ComboEditor::LogPosition(dValue, Decimals()));
    MarkUsedSlider();
    emit ValueChanged(dValue);
}

// A change on the slider is reported with the exponent, not the value it gives the spin box.
void QComboNonlinearDoubleSpinBox::OnSliderValueChanged(int nPosition)
{
    const double exponent = nPosition / ComboEditor::DecimalScale(Decimals());
    {
        const QSignalBlocker blocker(m_kUi.qtDoubleSpinBox);
        m_kUi.qtDoubleSpinBox->setValue(std::pow(10.0, exponent));
    }
    MarkUsedSlider();
    emit ValueChanged(exponent);
}

void QComboNonlinearDoubleSpinBox::OnSliderMouseRelease()
{
    emit EditFinished();
}

void QComboNonlinearDoubleSpinBox::OnSpinBoxEditFinished()
{
    OnSliderMouseRelease();
}
