#include "QNumericalWidgetToggleButton.h"

#include "VelaNumericalRowPrivate.h"

#include <QCheckBox>
#include <QLayout>
#include <QSignalBlocker>

#include <cmath>

QNumericalWidgetToggleButton::QNumericalWidgetToggleButton(QWidget *parent)
    : QNumericalWidgetBase(parent)
{ }

QNumericalWidgetToggleButton::~QNumericalWidgetToggleButton() = default;

void QNumericalWidgetToggleButton::SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                                           const Lu::CDynamicWidgetDescBase &desc)
{
    QNumericalWidgetBase::SetDesc(var, desc);
    if (m_pCheckBox)
        m_pCheckBox->setText(GetName());
    UpdateUi(var.vValue);
}

Vela::CVector4<float> QNumericalWidgetToggleButton::GetValue()
{
    const float fValue = IsChecked() ? m_fOnValue : m_fOffValue;
    return Vela::CVector4<float>(float(Vela::TruncateToInt(fValue)), 0.0f, 0.0f, 0.0f);
}

void QNumericalWidgetToggleButton::SetCheckedValue(float onValue, float offValue)
{
    m_fOnValue = onValue;
    m_fOffValue = offValue;
}

bool QNumericalWidgetToggleButton::IsChecked() const
{
    return m_pCheckBox && m_pCheckBox->isChecked();
}

void QNumericalWidgetToggleButton::CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                                            const Lu::CDynamicWidgetDescBase &desc)
{
    Q_UNUSED(var);
    Q_UNUSED(desc);
    m_pCheckBox = new QCheckBox(GetName(), this);
    if (layout())
        layout()->addWidget(m_pCheckBox);
    connect(m_pCheckBox, &QCheckBox::stateChanged, this,
            &QNumericalWidgetToggleButton::OnCheckBoxClicked);
}

void QNumericalWidgetToggleButton::UpdateUi(const Vela::CVector4<float> &v)
{
    if (!m_pCheckBox)
        return;
    const QSignalBlocker blocker(m_pCheckBox);
    m_pCheckBox->setChecked(std::fabs(v.x - m_fOnValue) < 0.00001f);
}

void QNumericalWidgetToggleButton::OnCheckBoxClicked(int nState)
{
    Q_UNUSED(nState);
    const Vela::CVector4f vValue = GetValue();
    emit ValueChanged(vValue);
    emit EditFinished(vValue);
}
