#include "QNumericalWidgetColorWithToolButton.h"

#include "QColorButton.h"
#include "QColorButtonIconPrivate.h"
#include "VelaNumericalColorPrivate.h"
#include "VelaNumericalRowPrivate.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSpacerItem>
#include <QToolButton>

static const QSize kColorIconSize(60, 25);

// The caption and the tool button's text carried by the name: "Caption_Button" splits in two, any
// other name is the caption as a whole next to the default action.
static void splitName(const QString &strName, QString &strCaption, QString &strButtonText)
{
    const QStringList parts = strName.split(QLatin1Char('_'), Qt::KeepEmptyParts);
    if (parts.size() == 2) {
        strCaption = parts.at(0);
        strButtonText = parts.at(1);
    } else {
        strCaption = strName;
        strButtonText = QStringLiteral("Auto Color");
    }
}

QNumericalWidgetColorWithToolButton::QNumericalWidgetColorWithToolButton(QWidget *parent)
    : QNumericalWidgetBase(parent)
{ }

QNumericalWidgetColorWithToolButton::~QNumericalWidgetColorWithToolButton() = default;

void QNumericalWidgetColorWithToolButton::SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                                                  const Lu::CDynamicWidgetDescBase &desc)
{
    QNumericalWidgetBase::SetDesc(var, desc);
    QString strCaption;
    QString strButtonText;
    splitName(GetName(), strCaption, strButtonText);
    // The caption loses the " :" that CreateUi gave it; hosts rely on this.
    if (m_pLabel)
        m_pLabel->setText(strCaption);
    if (m_pToolButton)
        m_pToolButton->setText(strButtonText);
    UpdateUi(var.vValue);
}

Vela::CVector4<float> QNumericalWidgetColorWithToolButton::GetValue()
{
    return Vela::ColorValueOfButton(m_pColorButton);
}

void QNumericalWidgetColorWithToolButton::SetUndoRedoFunctions(std::function<void()> kBegin,
                                                               std::function<void()> kEnd,
                                                               std::function<void()> kAccepted,
                                                               std::function<void()> kReverted)
{
    Vela::SetColorButtonUndoRedo(m_pColorButton, std::move(kBegin), std::move(kEnd),
                                 std::move(kAccepted), std::move(kReverted));
}

void QNumericalWidgetColorWithToolButton::CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                                                   const Lu::CDynamicWidgetDescBase &desc)
{
    Q_UNUSED(desc);
    QString strCaption;
    QString strButtonText;
    splitName(GetName(), strCaption, strButtonText);

    m_pLabel = new QLabel(strCaption + QStringLiteral(" :"), this);
    auto *pSpacer = new QSpacerItem(5, 5, QSizePolicy::Preferred, QSizePolicy::Preferred);

    m_pColorButton = new QColorButton(this);
    m_pColorButton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_pColorButton->setIconSize(kColorIconSize);
    m_pColorButton->setIcon(Vela::ColorButtonIcon(kColorIconSize, m_pColorButton->GetColor()));

    m_pToolButton = new QToolButton(this);
    m_pToolButton->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    m_pToolButton->setText(strButtonText);
    m_pToolButton->setFixedWidth(80);

    auto *pRow = new QHBoxLayout;
    pRow->setSpacing(10);
    pRow->setContentsMargins(0, 10, 0, 0);
    pRow->addWidget(m_pLabel);
    pRow->addItem(pSpacer);
    pRow->addWidget(m_pColorButton);
    pRow->addWidget(m_pToolButton);
    Vela::AddNumericalRow(this, pRow);

    UpdateUi(var.vValue);
    connect(m_pColorButton, &QColorButton::ColorChanged, this,
            &QNumericalWidgetColorWithToolButton::OnColorChanged);
    connect(m_pToolButton, &QToolButton::clicked, this,
            &QNumericalWidgetColorWithToolButton::OnClicked);
}

void QNumericalWidgetColorWithToolButton::UpdateUi(const Vela::CVector4<float> &v)
{
    Vela::ShowColorOnButton(m_pColorButton, v);
}

void QNumericalWidgetColorWithToolButton::OnColorChanged()
{
    const Vela::CVector4f vValue = GetValue();
    emit ValueChanged(vValue);
    emit EditFinished(vValue);
}

void QNumericalWidgetColorWithToolButton::OnClicked()
{
    emit Clicked();
}
