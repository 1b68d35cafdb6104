#include "QComboSpinBox.h"

#include "VelaComboEditorPrivate.h"

#include <QSignalBlocker>

using namespace Vela;

namespace {
int Identity(int nValue)
{
    return nValue;
}
} // namespace

QComboSpinBox::QComboSpinBox(QWidget *parent)
    : QWidget(parent)
    , m_fnSpinToSlider(Identity)
    , m_fnSliderToSpin(Identity)
{
    ComboEditor::SetUpForm(this, m_kUi, m_eLabelOrientation);

    QSpinBoxEx *spinBox = m_kUi.qtSpinBox;
    QSliderEx *slider = m_kUi.qtHorizontalSlider;
    connect(spinBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &QComboSpinBox::OnSpinBoxValueChanged);
    connect(spinBox, &QSpinBoxEx::EditingValueStarted, this, &QComboSpinBox::OnSpinBoxEditStarted);
    connect(spinBox, &QSpinBoxEx::RecordEditingValue, this, &QComboSpinBox::OnSpinBoxEditFinished);
    connect(slider, &QSlider::valueChanged, this, &QComboSpinBox::OnSliderValueChanged);
    connect(slider, &QSlider::sliderPressed, this, &QComboSpinBox::OnSliderMousePress);
    connect(slider, &QSliderEx::RecordEditingValue, this, &QComboSpinBox::OnSliderMouseRelease);

    UpdateMaxMinIndicator();
}

QComboSpinBox::~QComboSpinBox() = default;

int QComboSpinBox::Value()
{
    return m_kUi.qtSpinBox->value();
}

void QComboSpinBox::SetValue(int nValue)
{
    ComboEditor::SetSliderQuietly(m_kUi.qtHorizontalSlider, m_fnSpinToSlider(nValue));
    {
        const QSignalBlocker blocker(m_kUi.qtSpinBox);
        m_kUi.qtSpinBox->setValue(nValue);
    }
    MarkUsedSlider();
    emit ValueChanged(nValue);
}

int QComboSpinBox::Minimum()
{
    return m_bIndependentSpin ? m_kUi.qtHorizontalSlider->minimum() : m_kUi.qtSpinBox->minimum();
}

void QComboSpinBox::SetMinimum(int nValue)
{
    {
        const QSignalBlocker spinBlocker(m_kUi.qtSpinBox);
        const QSignalBlocker sliderBlocker(m_kUi.qtHorizontalSlider);
        if (m_bIndependentSpin) {
            m_kUi.qtHorizontalSlider->setMinimum(nValue);
        } else {
            m_kUi.qtSpinBox->setMinimum(nValue);
            m_kUi.qtHorizontalSlider->setMinimum(m_fnSpinToSlider(nValue));
        }
    }
    UpdateMaxMinIndicator();
}

int QComboSpinBox::Maximum()
{
    return m_bIndependentSpin ? m_kUi.qtHorizontalSlider->maximum() : m_kUi.qtSpinBox->maximum();
}

void QComboSpinBox::SetMaximum(int nValue)
{
    {
        const QSignalBlocker spinBlocker(m_kUi.qtSpinBox);
        const QSignalBlocker sliderBlocker(m_kUi.qtHorizontalSlider);
        if (m_bIndependentSpin) {
            m_kUi.qtHorizontalSlider->setMaximum(nValue);
        } else {
            m_kUi.qtSpinBox->setMaximum(nValue);
            m_kUi.qtHorizontalSlider->setMaximum(m_fnSpinToSlider(nValue));
        }
    }
    UpdateMaxMinIndicator();
}

int QComboSpinBox::SpinMinimum() const
{
    return m_kUi.qtSpinBox->minimum();
}

void QComboSpinBox::SetSpinMinimum(int nValue)
{
    {
        const QSignalBlocker spinBlocker(m_kUi.qtSpinBox);
        const QSignalBlocker sliderBlocker(m_kUi.qtHorizontalSlider);
        m_kUi.qtSpinBox->setMinimum(nValue);
        if (!m_bIndependentSpin)
            m_kUi.qtHorizontalSlider->setMinimum(m_fnSpinToSlider(nValue));
    }
    UpdateMaxMinIndicator();
}

int QComboSpinBox::SpinMaximum() const
{
    return m_kUi.qtSpinBox->maximum();
}

void QComboSpinBox::SetSpinMaximum(int nValue)
{
    {
        const QSignalBlocker spinBlocker(m_kUi.qtSpinBox);
        const QSignalBlocker sliderBlocker(m_kUi.qtHorizontalSlider);
        m_kUi.qtSpinBox->setMaximum(nValue);
        if (!m_bIndependentSpin)
            m_kUi.qtHorizontalSlider->setMaximum(m_fnSpinToSlider(nValue));
    }
    UpdateMaxMinIndicator();
}

int QComboSpinBox::SingleStep()
{
    return m_kUi.qtSpinBox->singleStep();
}

void QComboSpinBox::SetSingleStep(int nStep)
{
    m_kUi.qtSpinBox->setSingleStep(nStep);
    m_kUi.qtHorizontalSlider->setSingleStep(nStep);
}

int QComboSpinBox::PageStep()
{
    return m_kUi.qtHorizontalSlider->pageStep();
}

void QComboSpinBox::SetPageStep(int nStep)
{
    m_kUi.qtHorizontalSlider->setPageStep(nStep);
}

void QComboSpinBox::SetSpinToSlider(std::function<int(int)> fnSpinToSlider)
{
    m_fnSpinToSlider = std::move(fnSpinToSlider);
    QSliderEx *slider = m_kUi.qtHorizontalSlider;
    const QSignalBlocker blocker(slider);
    if (!m_bIndependentSpin) {
        slider->setMaximum(m_fnSpinToSlider(m_kUi.qtSpinBox->maximum()));
        slider->setMinimum(m_fnSpinToSlider(m_kUi.qtSpinBox->minimum()));
    }
    slider->SetValue(m_fnSpinToSlider(m_kUi.qtSpinBox->value()));
}

void QComboSpinBox::SetSliderToSpin(std::function<int(int)> fnSliderToSpin)
{
    m_fnSliderToSpin = std::move(fnSliderToSpin);
}

void QComboSpinBox::MarkUsedSlider()
{
    ComboEditor::MarkSlider(this, m_kUi.qtHorizontalSlider,
                            m_kUi.qtSpinBox->value() != m_nDefaultValue);
}

void QComboSpinBox::UpdateMaxMinIndicator()
{
    const QSpinBoxEx *spinBox = m_kUi.qtSpinBox;
    const QSliderEx *slider = m_kUi.qtHorizontalSlider;
    m_kUi.qtLeftArrowLabel->setVisible(spinBox->minimum() < slider->minimum());
    m_kUi.qtRightArrowLabel->setVisible(spinBox->maximum() > slider->maximum());
}

int QComboSpinBox::DefaultValue() const
{
    return m_nDefaultValue;
}

void QComboSpinBox::SetDefaultValue(int nValue)
{
    m_nDefaultValue = nValue;
}

Ui::SliderSpinbox *QComboSpinBox::UI()
{
    return &m_kUi;
}

VELA_COMBO_EDITOR_FORWARDERS(QComboSpinBox, qtSpinBox)

bool QComboSpinBox::eventFilter(QObject *watched, QEvent *event)
{
    if (ComboEditor::IsResetDoubleClick(this, m_bResetOnDoubleClick, event)) {
        SetValue(m_nDefaultValue);
        emit EditFinished();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void QComboSpinBox::OnSpinBoxValueChanged(int nValue)
{
    ComboEditor::SetSliderQuietly(m_kUi.qtHorizontalSlider, m_fnSpinToSlider(nValue));
    MarkUsedSlider();
    emit ValueChanged(nValue);
}

void QComboSpinBox::OnSliderValueChanged(int nPosition)
{
    {
        const QSignalBlocker blocker(m_kUi.qtSpinBox);
        m_kUi.qtSpinBox->setValue(m_fnSliderToSpin(nPosition));
    }
    MarkUsedSlider();
    // The position as it came, not the mapped spin value: they agree for the identity mappings.
    emit ValueChanged(nPosition);
}

void QComboSpinBox::OnSliderMousePress()
{
    if (isEnabled())
        emit EditStarted();
}

void QComboSpinBox::OnSpinBoxEditStarted()
{
    OnSliderMousePress();
}

void QComboSpinBox::OnSliderMouseRelease()
{
    if (isEnabled())
        emit EditFinished();
}

void QComboSpinBox::OnSpinBoxEditFinished()
{
    OnSliderMouseRelease();
}
