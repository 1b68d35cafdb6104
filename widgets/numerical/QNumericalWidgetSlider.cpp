#include "QNumericalWidgetSlider.h"

#include "QComboDoubleSpinBox.h"
#include "QGroupWidget.h"
#include "VelaNumericalRowPrivate.h"
#include "VelaNumericalSliderPrivate.h"

#include <QLabel>
#include <QLayout>
#include <QMouseEvent>
#include <QSignalBlocker>

#include <algorithm>

using namespace Vela;

namespace {

// How the editors of an input step: float inputs by 0.01 at the description's decimals, integer
// inputs by 1 without decimals. A one-component float input presented as a unit slider spans 0
// to 1.
struct StepRule
{
    double dStep = 0.01;
    int nDecimals = 0;
    bool bUnitRange = false;
};

StepRule StepRuleFor(EDynamicWidgetVariableType eInputType, EDynamicWidgetBehaviorType eWidgetType,
                     const Lu::CDynamicWidgetDescBase &desc)
{
    StepRule kRule;
    if (IsFloatVariableType(eInputType)) {
        kRule.dStep = 0.01;
        kRule.nDecimals = desc.uDecimals;
    } else {
        kRule.dStep = 1.0;
        kRule.nDecimals = 0;
    }
    kRule.bUnitRange =
        eWidgetType == DynamicBehavior_UnitSlider && eInputType == DynamicVariable_Float1;
    return kRule;
}

} // namespace

QNumericalWidgetSlider::QNumericalWidgetSlider(QWidget *parent)
    : QNumericalWidgetBase(parent)
{ }

// The base cuts the editors' connections before they are torn down.
QNumericalWidgetSlider::~QNumericalWidgetSlider() = default;

void QNumericalWidgetSlider::SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                                     const Lu::CDynamicWidgetDescBase &desc)
{
    QNumericalWidgetBase::SetDesc(var, desc);
    if (SliderCount(GetInputType()) != static_cast<unsigned int>(m_listComboSpins.size())) {
        CreateUi(var, desc);
        return;
    }
    if (m_pGroupWidget)
        m_pGroupWidget->setText(GetName());
    else if (m_pLabel)
        m_pLabel->setText(GetName());

    const StepRule kRule = StepRuleFor(GetInputType(), GetWidgetType(), desc);
    for (int i = 0; i < m_listComboSpins.size(); ++i) {
        SetComboSpinValue(static_cast<unsigned int>(i), m_listComboSpins.at(i), kRule.dStep,
                          kRule.nDecimals, kRule.bUnitRange, desc);
    }
}

Vela::CVector4<float> QNumericalWidgetSlider::GetValue()
{
    return NumericalSlider::PackComponents(
        m_listComboSpins.size(), [this](int i) { return m_listComboSpins.at(i)->Value(); });
}

QList<QComboDoubleSpinBox *> &QNumericalWidgetSlider::GetComboSpins()
{
    return m_listComboSpins;
}

void QNumericalWidgetSlider::SetDecimals(unsigned int n)
{
    if (!IsFloatType(GetInputType()))
        return;
    for (QComboDoubleSpinBox *pComboSpin : qAsConst(m_listComboSpins)) {
        const float fMinimum = float(pComboSpin->Minimum());
        const float fMaximum = float(pComboSpin->Maximum());
        pComboSpin->SetDecimals(static_cast<int>(n));
        pComboSpin->SetMinimum(fMinimum);
        pComboSpin->SetMaximum(fMaximum);
        if (pComboSpin->IndependentSpin()) {
            pComboSpin->SetSpinMaximum(float(pComboSpin->SpinMaximum()));
            pComboSpin->SetSpinMinimum(float(pComboSpin->SpinMinimum()));
        }
    }
}

unsigned int QNumericalWidgetSlider::SliderCount(Vela::EDynamicWidgetVariableType eType)
{
    return static_cast<unsigned int>(DynamicVariableComponentCount(eType));
}

bool QNumericalWidgetSlider::IsFloatType(Vela::EDynamicWidgetVariableType eType)
{
    return IsFloatVariableType(eType);
}

void QNumericalWidgetSlider::CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                                      const Lu::CDynamicWidgetDescBase &desc)
{
    m_pLabel = nullptr;
    m_pGroupWidget = nullptr;

    // Editors of an earlier description stay in the list; the new ones follow them.
    const StepRule kRule = StepRuleFor(var.eType, desc.eBehaviorType, desc);
    const unsigned int uCount = SliderCount(var.eType);
    for (unsigned int i = 0; i < uCount; ++i) {
        auto *pComboSpin = new QComboDoubleSpinBox(this);
        SetComboSpinValue(i, pComboSpin, kRule.dStep, kRule.nDecimals, kRule.bUnitRange, desc);
        m_listComboSpins.append(pComboSpin);
    }

    QLayout *pMainLayout = NumericalMainLayout(this);
    if (m_listComboSpins.size() != 1) {
        // Object names cannot hold blanks: the group is named after the input with underscores.
        QString strGroupName = GetName();
        strGroupName.replace(QLatin1Char(' '), QLatin1Char('_'));
        m_pGroupWidget = new QGroupWidget(this, strGroupName, false);
        CMap<int, std::string> kLabels = desc.mapLabels;
        for (int i = 0; i < m_listComboSpins.size(); ++i) {
            QComboDoubleSpinBox *pComboSpin = m_listComboSpins.at(i);
            pComboSpin->SetLabelVisible(true);
            // Only indices below the label count get a caption; reading a missing key adds it,
            // so the count grows as gaps are passed.
            if (static_cast<std::size_t>(i) < kLabels.size())
                pComboSpin->setText(NumericalSlider::TakeComponentLabel(kLabels, i));
            m_pGroupWidget->GetNumericalLayout()->addWidget(pComboSpin);
        }
        pMainLayout->addWidget(m_pGroupWidget);
    } else {
        m_pLabel = NumericalSlider::MakeCaption(this, GetName());
        pMainLayout->addWidget(m_pLabel);
        pMainLayout->addWidget(m_listComboSpins.first());
    }

    MakeConnections();
}

void QNumericalWidgetSlider::UpdateUi(const Vela::CVector4<float> &v)
{
    const int nCount = std::min(m_listComboSpins.size(), 4);
    for (int i = 0; i < nCount; ++i) {
        QComboDoubleSpinBox *pComboSpin = m_listComboSpins.at(i);
        const QSignalBlocker blocker(pComboSpin);
        pComboSpin->SetValue(v[i]);
    }
}

bool QNumericalWidgetSlider::eventFilter(QObject *watched, QEvent *event)
{
    Q_UNUSED(watched);
    if (!isEnabled() || event->type() != QEvent::MouseButtonDblClick
        || static_cast<QMouseEvent *>(event)->button() != Qt::LeftButton) {
        return false;
    }
    for (QComboDoubleSpinBox *pComboSpin : qAsConst(m_listComboSpins)) {
        const QSignalBlocker blocker(pComboSpin);
        pComboSpin->SetValue(pComboSpin->DefaultValue());
    }
    emit ValueChanged(GetValue());
    emit EditFinished(GetValue());
    return true;
}

void QNumericalWidgetSlider::OnComboSpinValueChanged()
{
    emit ValueChanged(GetValue());
}

void QNumericalWidgetSlider::MakeConnections()
{
    // Editors of an earlier description are connected already: their connections are made anew
    // rather than doubled, so that each edit is reported once.
    for (QComboDoubleSpinBox *pComboSpin : qAsConst(m_listComboSpins)) {
        disconnect(pComboSpin, nullptr, this, nullptr);
        connect(pComboSpin, &QComboDoubleSpinBox::ValueChanged, this,
                &QNumericalWidgetSlider::OnComboSpinValueChanged);
        connect(pComboSpin, &QComboDoubleSpinBox::EditFinished, this,
                [this]() { emit EditFinished(GetValue()); });
    }
}

void QNumericalWidgetSlider::SetComboSpinValue(unsigned int index, QComboDoubleSpinBox *pComboSpin,
                                               double step, int decimals, bool unitRange,
                                               const Lu::CDynamicWidgetDescBase &desc)
{
    if (!pComboSpin || index > 3)
        return;
    pComboSpin->SetIndependentSpin(desc.bIndependentSpin);

    // The slider's step follows the decimals the editor has before they are set below: a fresh
    // editor scales 0.01 by its own 2 decimals, whatever the description asks for.
    pComboSpin->SetSingleStep(step);

    pComboSpin->SetDecimals(decimals);
    pComboSpin->setTickPosition(QSlider::TicksAbove);
    pComboSpin->SetResetOnDoubleClick(true);

    if (unitRange) {
        pComboSpin->SetMaximum(1.0);
        pComboSpin->SetMinimum(0.0);
    } else {
        const float fMaximum = desc.afMaximum[index];
        const float fMinimum = desc.afMinimum[index];
        pComboSpin->SetMaximum(fMaximum);
        pComboSpin->SetMinimum(fMinimum);
        pComboSpin->SetPageStep((fMaximum - fMinimum) / 10);
        if (desc.bIndependentSpin) {
            pComboSpin->SetSpinMaximum(desc.afSpinMaximum[index]);
            pComboSpin->SetSpinMinimum(desc.afSpinMinimum[index]);
        }
    }

    pComboSpin->SetValue(desc.afValue[index]);
    pComboSpin->SetDefaultValue(desc.afValue[index]);
    // The slider was marked against the previous default while the value was set.
    pComboSpin->MarkUsedSlider();
}
