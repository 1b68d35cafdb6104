#include "QNumericalWidgetCombobox.h"

#include "QComboBoxEx.h"
#include "VelaNumericalRowPrivate.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

// One entry per choice, in ascending key order, the key as item data.
static void addChoices(QComboBoxEx *pComboBox, const Lu::CDynamicWidgetDescBase &desc)
{
    for (const auto &choice : desc.mapLabels)
        pComboBox->addItem(QString::fromStdString(choice.second), choice.first);
}

QNumericalWidgetCombobox::QNumericalWidgetCombobox(QWidget *parent)
    : QNumericalWidgetBase(parent)
{ }

QNumericalWidgetCombobox::~QNumericalWidgetCombobox() = default;

void QNumericalWidgetCombobox::SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                                       const Lu::CDynamicWidgetDescBase &desc)
{
    QNumericalWidgetBase::SetDesc(var, desc);
    // Nothing to refill before Initialize has built the drop-down.
    if (!m_pComboBox)
        return;
    if (int(desc.mapLabels.size()) != m_pComboBox->count()) {
        CreateUi(var, desc);
        return;
    }
    const QSignalBlocker blocker(m_pComboBox);
    m_pComboBox->clear();
    addChoices(m_pComboBox, desc);
    if (m_pLabel)
        m_pLabel->setText(GetName());
}

Vela::CVector4<float> QNumericalWidgetCombobox::GetValue()
{
    const int nValue = m_pComboBox ? m_pComboBox->currentData().toInt() : 0;
    return Vela::CVector4<float>(float(nValue), 0.0f, 0.0f, 0.0f);
}

void QNumericalWidgetCombobox::CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                                        const Lu::CDynamicWidgetDescBase &desc)
{
    Q_UNUSED(var);
    m_pComboBox = new QComboBoxEx;
    m_pComboBox->SetIgnoreWheelEvent(false);
    m_pComboBox->setFocusPolicy(Qt::StrongFocus);
    addChoices(m_pComboBox, desc);

    m_pLabel = new QLabel(GetName(), this);

    auto *pRow = new QHBoxLayout;
    pRow->addWidget(m_pLabel);
    pRow->addWidget(m_pComboBox);
    Vela::AddNumericalRow(this, pRow);

    connect(m_pComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &QNumericalWidgetCombobox::OnComboxIndexChanged);
}

void QNumericalWidgetCombobox::UpdateUi(const Vela::CVector4<float> &v)
{
    if (!m_pComboBox)
        return;
    const int nIndex = m_pComboBox->findData(Vela::TruncateToInt(v.x), Qt::UserRole,
                                             Qt::MatchExactly | Qt::MatchCaseSensitive);
    const QSignalBlocker blocker(m_pComboBox);
    m_pComboBox->setCurrentIndex(nIndex);
}

void QNumericalWidgetCombobox::OnComboxIndexChanged()
{
    const Vela::CVector4f vValue = GetValue();
    emit ValueChanged(vValue);
    emit EditFinished(vValue);
}
