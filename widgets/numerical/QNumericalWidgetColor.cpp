#include "QNumericalWidgetColor.h"

#include "QColorButton.h"
#include "QColorButtonIconPrivate.h"
#include "VelaNumericalColorPrivate.h"
#include "VelaNumericalRowPrivate.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSpacerItem>

static const QSize kColorIconSize(60, 25);

QNumericalWidgetColor::QNumericalWidgetColor(QWidget *parent)
    : QNumericalWidgetBase(parent)
{ }

QNumericalWidgetColor::~QNumericalWidgetColor() = default;

void QNumericalWidgetColor::SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                                    const Lu::CDynamicWidgetDescBase &desc)
{
    QNumericalWidgetBase::SetDesc(var, desc);
    // The caption loses the " :" that CreateUi gave it; hosts rely on this.
    if (m_pLabel)
        m_pLabel->setText(GetName());
    UpdateUi(var.vValue);
}

Vela::CVector4<float> QNumericalWidgetColor::GetValue()
{
    return Vela::ColorValueOfButton(m_pColorButton);
}

void QNumericalWidgetColor::SetUndoRedoFunctions(std::function<void()> kBegin,
                                                 std::function<void()> kEnd,
                                                 std::function<void()> kAccepted,
                                                 std::function<void()> kReverted)
{
    Vela::SetColorButtonUndoRedo(m_pColorButton, std::move(kBegin), std::move(kEnd),
                                 std::move(kAccepted), std::move(kReverted));
}

void QNumericalWidgetColor::CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                                     const Lu::CDynamicWidgetDescBase &desc)
{
    Q_UNUSED(desc);
    m_pLabel = new QLabel(GetName() + QStringLiteral(" :"), this);
    auto *pSpacer = new QSpacerItem(10, 10, QSizePolicy::Expanding, QSizePolicy::Fixed);

    m_pColorButton = new QColorButton(this);
    m_pColorButton->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    m_pColorButton->setIconSize(kColorIconSize);
    m_pColorButton->setIcon(Vela::ColorButtonIcon(kColorIconSize, m_pColorButton->GetColor()));

    auto *pRow = new QHBoxLayout;
    pRow->addWidget(m_pLabel);
    pRow->addItem(pSpacer);
    pRow->addWidget(m_pColorButton);
    Vela::AddNumericalRow(this, pRow);

    UpdateUi(var.vValue);
    connect(m_pColorButton, &QColorButton::ColorChanged, this,
            &QNumericalWidgetColor::OnColorChanged);
}

void QNumericalWidgetColor::UpdateUi(const Vela::CVector4<float> &v)
{
    Vela::ShowColorOnButton(m_pColorButton, v);
}

void QNumericalWidgetColor::OnColorChanged()
{
    const Vela::CVector4f vValue = GetValue();
    emit ValueChanged(vValue);
    emit EditFinished(vValue);
}
