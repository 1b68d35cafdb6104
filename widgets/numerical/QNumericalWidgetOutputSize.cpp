#include "QNumericalWidgetOutputSize.h"

#include "QComboBoxEx.h"
#include "VelaNumericalRowPrivate.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSpacerItem>

// Exponents of the smallest and the largest size offered.
static const int kMinimumExponent = 3;
static const int kMaximumExponent = 12;

QNumericalWidgetOutputSize::QNumericalWidgetOutputSize(QWidget *parent)
    : QNumericalWidgetCombobox(parent)
{ }

QNumericalWidgetOutputSize::~QNumericalWidgetOutputSize() = default;

void QNumericalWidgetOutputSize::SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                                         const Lu::CDynamicWidgetDescBase &desc)
{
    QNumericalWidgetBase::SetDesc(var, desc);
}

Vela::CVector4<float> QNumericalWidgetOutputSize::GetValue()
{
    const float fExponent = float(m_pComboBox ? m_pComboBox->currentData().toInt() : 0);
    return Vela::CVector4<float>(fExponent, fExponent, 0.0f, 0.0f);
}

void QNumericalWidgetOutputSize::CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                                          const Lu::CDynamicWidgetDescBase &desc)
{
    Q_UNUSED(var);
    Q_UNUSED(desc);
    auto *pLabel = new QLabel(QStringLiteral("Output Size :"), this);
    pLabel->setObjectName(QStringLiteral("SbsNumericalOutputSizeLabel"));
    auto *pSpacer = new QSpacerItem(10, 10, QSizePolicy::Minimum, QSizePolicy::Fixed);

    m_pComboBox = new QComboBoxEx;
    m_pComboBox->SetIgnoreWheelEvent(false);
    m_pComboBox->setFocusPolicy(Qt::StrongFocus);
    m_pComboBox->setSizePolicy(
        QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed, QSizePolicy::ComboBox));
    for (int nExponent = kMinimumExponent; nExponent <= kMaximumExponent; ++nExponent)
        m_pComboBox->addItem(QStringLiteral("%1x%1").arg(1 << nExponent), nExponent);

    auto *pRow = new QHBoxLayout;
    pRow->addWidget(pLabel);
    pRow->addItem(pSpacer);
    pRow->addWidget(m_pComboBox);
    Vela::AddNumericalRow(this, pRow);

    connect(m_pComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &QNumericalWidgetOutputSize::OnComboBoxIndexChanged);
}

void QNumericalWidgetOutputSize::OnComboBoxIndexChanged()
{
    const Vela::CVector4f vValue = GetValue();
    emit ValueChanged(vValue);
    emit EditFinished(vValue);
}
