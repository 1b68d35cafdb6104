#include "QComboDoubleSpinBox.h"

#include "VelaComboEditorPrivate.h"

#include <QSignalBlocker>

using namespace Vela;

QComboDoubleSpinBox::QComboDoubleSpinBox(QWidget *parent)
    : QWidget(parent)
{
    ComboEditor::SetUpForm(this, m_kUi, m_eLabelOrientation);

    // Bring the slider's own range and steps into fixed point: with 2 decimals the default
    // range 0 to 99 becomes 0 to 9900, the single step 100 and the page step 1000.
    QSliderEx *slider = m_kUi.qtHorizontalSlider;
    const int decimals = Decimals();
    slider->setMinimum(ComboEditor::ScaledPosition(slider->minimum(), decimals));
    slider->setMaximum(ComboEditor::ScaledPosition(slider->maximum(), decimals));
    slider->SetValue(ComboEditor::ScaledPosition(slider->value(), decimals));
    slider->setSingleStep(ComboEditor::ScaledPosition(slider->singleStep(), decimals));
    slider->setPageStep(ComboEditor::ScaledPosition(slider->pageStep(), decimals));

    QDoubleSpinBoxEx *spinBox = m_kUi.qtDoubleSpinBox;
    connect(spinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &QComboDoubleSpinBox::OnSpinBoxValueChanged);
    connect(spinBox, &QDoubleSpinBoxEx::RecordEditingValue, this,
            &QComboDoubleSpinBox::EditFinished);
    connect(slider, &QSlider::valueChanged, this, &QComboDoubleSpinBox::OnSliderValueChanged);
    connect(slider, &QSliderEx::RecordEditingValue, this, &QComboDoubleSpinBox::EditFinished);

    UpdateMaxMinIndicator();
}

QComboDoubleSpinBox::~QComboDoubleSpinBox() = default;

double QComboDoubleSpinBox::Value()
{
    return m_kUi.qtDoubleSpinBox->value();
}

void QComboDoubleSpinBox::SetValue(double dValue)
{
    ComboEditor::SetSliderQuietly(m_kUi.qtHorizontalSlider,
                                  ComboEditor::ScaledPosition(dValue, Decimals()));
    {
        const QSignalBlocker blocker(m_kUi.qtDoubleSpinBox);
        m_kUi.qtDoubleSpinBox->setValue(dValue);
    }
    MarkUsedSlider();
    emit ValueChanged(dValue);
}

double QComboDoubleSpinBox::Minimum()
{
    if (m_bIndependentSpin)
        return m_kUi.qtHorizontalSlider->minimum() / ComboEditor::DecimalScale(Decimals());
    return m_kUi.qtDoubleSpinBox->minimum();
}

void QComboDoubleSpinBox::SetMinimum(double dValue)
{
    if (!m_bIndependentSpin)
        m_kUi.qtDoubleSpinBox->setMinimum(dValue);
    m_kUi.qtHorizontalSlider->setMinimum(ComboEditor::ScaledPosition(dValue, Decimals()));
    UpdateMaxMinIndicator();
}

double QComboDoubleSpinBox::Maximum()
{
    if (m_bIndependentSpin)
        return m_kUi.qtHorizontalSlider->maximum() / ComboEditor::DecimalScale(Decimals());
    return m_kUi.qtDoubleSpinBox->maximum();
}

void QComboDoubleSpinBox::SetMaximum(double dValue)
{
    if (!m_bIndependentSpin)
        m_kUi.qtDoubleSpinBox->setMaximum(dValue);
    m_kUi.qtHorizontalSlider->setMaximum(ComboEditor::ScaledPosition(dValue, Decimals()));
    UpdateMaxMinIndicator();
}

double QComboDoubleSpinBox::SpinMinimum() const
{
    return m_kUi.qtDoubleSpinBox->minimum();
}

void QComboDoubleSpinBox::SetSpinMinimum(double dValue)
{
    m_kUi.qtDoubleSpinBox->setMinimum(dValue);
    UpdateMaxMinIndicator();
}

double QComboDoubleSpinBox::SpinMaximum() const
{
    return m_kUi.qtDoubleSpinBox->maximum();
}

void QComboDoubleSpinBox::SetSpinMaximum(double dValue)
{
    m_kUi.qtDoubleSpinBox->setMaximum(dValue);
    UpdateMaxMinIndicator();
}

double QComboDoubleSpinBox::SingleStep()
{
    return m_kUi.qtDoubleSpinBox->singleStep();
}

void QComboDoubleSpinBox::SetSingleStep(double dStep)
{
    m_kUi.qtDoubleSpinBox->setSingleStep(dStep);
    m_kUi.qtHorizontalSlider->setSingleStep(ComboEditor::ScaledPosition(dStep, Decimals()));
}

double QComboDoubleSpinBox::PageStep()
{
    return m_kUi.qtHorizontalSlider->pageStep() / ComboEditor::DecimalScale(Decimals());
}

void QComboDoubleSpinBox::SetPageStep(double dStep)
{
    m_kUi.qtHorizontalSlider->setPageStep(ComboEditor::ScaledPosition(dStep, Decimals()));
}

int QComboDoubleSpinBox::Decimals() const
{
    return m_kUi.qtDoubleSpinBox->decimals();
}

void QComboDoubleSpinBox::SetDecimals(int nDecimals)
{
    m_kUi.qtDoubleSpinBox->setDecimals(nDecimals);
}

void QComboDoubleSpinBox::MarkUsedSlider()
{
    ComboEditor::MarkSlider(this, m_kUi.qtHorizontalSlider,
                            m_kUi.qtHorizontalSlider->value()
                                != ComboEditor::ScaledPosition(m_dDefaultValue, Decimals()));
}

void QComboDoubleSpinBox::UpdateMaxMinIndicator()
{
    const QDoubleSpinBoxEx *spinBox = m_kUi.qtDoubleSpinBox;
    const QSliderEx *slider = m_kUi.qtHorizontalSlider;
    const int decimals = Decimals();
    m_kUi.qtLeftArrowLabel->setVisible(ComboEditor::ScaledPosition(spinBox->minimum(), decimals)
                                       < slider->minimum());
    m_kUi.qtRightArrowLabel->setVisible(ComboEditor::ScaledPosition(spinBox->maximum(), decimals)
                                        > slider->maximum());
}

double QComboDoubleSpinBox::DefaultValue() const
{
    return m_dDefaultValue;
}

void QComboDoubleSpinBox::SetDefaultValue(double dValue)
{
    m_dDefaultValue = dValue;
}

Ui::SliderDoubleSpinbox *QComboDoubleSpinBox::UI()
{
    return &m_kUi;
}

VELA_COMBO_EDITOR_FORWARDERS(QComboDoubleSpinBox, qtDoubleSpinBox)

bool QComboDoubleSpinBox::eventFilter(QObject *watched, QEvent *event)
{
    if (ComboEditor::IsResetDoubleClick(this, m_bResetOnDoubleClick, event)) {
        SetValue(m_dDefaultValue);
        emit EditFinished();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void QComboDoubleSpinBox::OnSpinBoxValueChanged(double dValue)
{
    ComboEditor::SetSliderQuietly(m_kUi.qtHorizontalSlider,
                                  ComboEditor::ScaledPosition(dValue, Decimals()));
    MarkUsedSlider();
    emit ValueChanged(dValue);
}

void QComboDoubleSpinBox::OnSliderValueChanged(int nPosition)
{
    const double value = nPosition / ComboEditor::DecimalScale(Decimals());
    {
        const QSignalBlocker blocker(m_kUi.qtDoubleSpinBox);
        m_kUi.qtDoubleSpinBox->setValue(value);
    }
    MarkUsedSlider();
    emit ValueChanged(value);
}

void QComboDoubleSpinBox::OnSliderMouseRelease()
{
    emit EditFinished();
}

void QComboDoubleSpinBox::OnSpinBoxEditFinished()
{
    OnSliderMouseRelease();
}
