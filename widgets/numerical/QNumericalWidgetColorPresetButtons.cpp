#include "QNumericalWidgetColorPresetButtons.h"

#include "VelaNumericalRowPrivate.h"

#include <QColor>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPixmap>
#include <QSpacerItem>
#include <QToolButton>

// Makes one swatch: a tool button showing its colour as a 20 x 20 icon.
static QToolButton *createSwatch(QWidget *pParent, const QColor &kColor)
{
    auto *pButton = new QToolButton(pParent);
    pButton->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    QPixmap kPixmap(20, 20);
    kPixmap.fill(kColor);
    pButton->setIcon(QIcon(kPixmap));
    return pButton;
}

QNumericalWidgetColorPresetButtons::QNumericalWidgetColorPresetButtons(QWidget *parent)
    : QNumericalWidgetBase(parent)
{ }

QNumericalWidgetColorPresetButtons::~QNumericalWidgetColorPresetButtons() = default;

void QNumericalWidgetColorPresetButtons::SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                                                 const Lu::CDynamicWidgetDescBase &desc)
{
    QNumericalWidgetBase::SetDesc(var, desc);
    // The caption loses the " :" that CreateUi gave it; hosts rely on this.
    if (m_pLabel)
        m_pLabel->setText(GetName());
}

Vela::CVector4<float> QNumericalWidgetColorPresetButtons::GetValue()
{
    const float fPreset = float(m_nPreset);
    return Vela::CVector4<float>(fPreset, fPreset, fPreset, fPreset);
}

void QNumericalWidgetColorPresetButtons::CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                                                  const Lu::CDynamicWidgetDescBase &desc)
{
    Q_UNUSED(var);
    Q_UNUSED(desc);
    m_pLabel = new QLabel(GetName() + QStringLiteral(" :"), this);
    auto *pSpacer = new QSpacerItem(5, 5, QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_pButton1 = createSwatch(this, QColor(238, 238, 238));
    m_pButton2 = createSwatch(this, QColor(246, 178, 107));
    m_pButton3 = createSwatch(this, QColor(234, 153, 153));
    m_pButton4 = createSwatch(this, QColor(41, 41, 41));
    connect(m_pButton1, &QToolButton::clicked, this,
            &QNumericalWidgetColorPresetButtons::OnClicked1);
    connect(m_pButton2, &QToolButton::clicked, this,
            &QNumericalWidgetColorPresetButtons::OnClicked2);
    connect(m_pButton3, &QToolButton::clicked, this,
            &QNumericalWidgetColorPresetButtons::OnClicked3);
    connect(m_pButton4, &QToolButton::clicked, this,
            &QNumericalWidgetColorPresetButtons::OnClicked4);

    auto *pRow = new QHBoxLayout;
    pRow->setSpacing(10);
    pRow->setContentsMargins(0, 10, 0, 0);
    pRow->addWidget(m_pLabel);
    pRow->addItem(pSpacer);
    pRow->addWidget(m_pButton1);
    pRow->addWidget(m_pButton2);
    pRow->addWidget(m_pButton3);
    pRow->addWidget(m_pButton4);
    Vela::AddNumericalRow(this, pRow);
}

void QNumericalWidgetColorPresetButtons::UpdateUi(const Vela::CVector4<float> &v)
{
    Q_UNUSED(v);
}

void QNumericalWidgetColorPresetButtons::OnClicked1()
{
    ChoosePreset(1);
}

void QNumericalWidgetColorPresetButtons::OnClicked2()
{
    ChoosePreset(2);
}

void QNumericalWidgetColorPresetButtons::OnClicked3()
{
    ChoosePreset(3);
}

void QNumericalWidgetColorPresetButtons::OnClicked4()
{
    ChoosePreset(4);
}

void QNumericalWidgetColorPresetButtons::ChoosePreset(int nPreset)
{
    m_nPreset = nPreset;
    emit ClickedButton(m_nPreset);
}
