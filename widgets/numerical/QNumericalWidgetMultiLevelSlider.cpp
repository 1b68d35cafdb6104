#include "QNumericalWidgetMultiLevelSlider.h"

#include "QMultiLevelSlider.h"
#include "VelaNumericalRowPrivate.h"
#include "VelaNumericalSliderPrivate.h"

#include <QColor>
#include <QLabel>
#include <QLayout>
#include <QSignalBlocker>

#include <algorithm>

using namespace Vela;

QNumericalWidgetMultiLevelSlider::QNumericalWidgetMultiLevelSlider(QWidget *parent)
    : QNumericalWidgetBase(parent)
{ }

QNumericalWidgetMultiLevelSlider::~QNumericalWidgetMultiLevelSlider()
{
    // The slider reports through callbacks rather than connections, which the base does not cut.
    if (m_pMultiLevelSlider) {
        m_pMultiLevelSlider->SetIndicatorMoveSignalInterface(nullptr);
        m_pMultiLevelSlider->SetIndicatorMoveDoneSignalInterface(nullptr);
    }
}

void QNumericalWidgetMultiLevelSlider::SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                                               const Lu::CDynamicWidgetDescBase &desc)
{
    const unsigned int uPreviousCount = SliderCount(GetInputType());
    QNumericalWidgetBase::SetDesc(var, desc);
    if (m_pLabel)
        m_pLabel->setText(GetName());
    if (!m_pMultiLevelSlider || SliderCount(GetInputType()) != uPreviousCount) {
        CreateUi(var, desc);
        return;
    }
    SetComboSpinValue(desc);
}

Vela::CVector4<float> QNumericalWidgetMultiLevelSlider::GetValue()
{
    if (!m_pMultiLevelSlider)
        return Vela::CVector4f();
    const QMultiLevelSlider *pSlider = m_pMultiLevelSlider;
    return NumericalSlider::PackComponents(int(pSlider->GetCount()), [pSlider](int i) {
        return NumericalSlider::ValueFromLevel(pSlider->GetIndicatorValue(i));
    });
}

QMultiLevelSlider *QNumericalWidgetMultiLevelSlider::GetMultiLevelSlider()
{
    return m_pMultiLevelSlider;
}

void QNumericalWidgetMultiLevelSlider::SetDecimals(unsigned int n)
{
    Q_UNUSED(n);
}

unsigned int QNumericalWidgetMultiLevelSlider::SliderCount(Vela::EDynamicWidgetVariableType eType)
{
    return static_cast<unsigned int>(DynamicVariableComponentCount(eType));
}

bool QNumericalWidgetMultiLevelSlider::IsFloatType(Vela::EDynamicWidgetVariableType eType)
{
    return IsFloatVariableType(eType);
}

void QNumericalWidgetMultiLevelSlider::CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                                                const Lu::CDynamicWidgetDescBase &desc)
{
    m_pLabel = nullptr;
    m_pGroupWidget = nullptr;

    const unsigned int uCount = SliderCount(var.eType);
    CArrayList<QMultiLevelSlider::IndicatorDesc> kIndicators;
    for (unsigned int i = 0; i < uCount; ++i) {
        QMultiLevelSlider::IndicatorDesc kIndicator;
        kIndicator.nValue = NumericalSlider::LevelFromValue(desc.afValue[i]);
        kIndicator.bSelectable = true;
        kIndicators.push_back(kIndicator);
    }
    const bool bMiddle = uCount == 3;
    if (bMiddle)
        kIndicators[1].bPlaceUpper = true;

    // All indicators share the first component's range. Levels given in falling order are let
    // pass one another.
    const bool bFreeOrder = uCount >= 2 && desc.afValue[0] >= desc.afValue[1];
    m_pMultiLevelSlider = new QMultiLevelSlider(nullptr);
    m_pMultiLevelSlider->InitUi(NumericalSlider::LevelFromValue(desc.afMinimum[0]),
                                NumericalSlider::LevelFromValue(desc.afMaximum[0]), bFreeOrder,
                                kIndicators, bMiddle, nullptr, nullptr, false, nullptr, nullptr,
                                QColor(200, 200, 200, 255));

    m_pLabel = NumericalSlider::MakeCaption(this, GetName());
    QLayout *pMainLayout = NumericalMainLayout(this);
    pMainLayout->addWidget(m_pLabel);
    pMainLayout->addWidget(m_pMultiLevelSlider);

    MakeConnections();
}

void QNumericalWidgetMultiLevelSlider::UpdateUi(const Vela::CVector4<float> &v)
{
    if (!m_pMultiLevelSlider)
        return;
    const QSignalBlocker blocker(m_pMultiLevelSlider);
    const unsigned int uCount = std::min(m_pMultiLevelSlider->GetCount(), 4u);
    // The slider keeps each level within its range.
    for (unsigned int i = 0; i < uCount; ++i)
        m_pMultiLevelSlider->SetIndicatorValue(i, NumericalSlider::LevelFromValue(v[int(i)]),
                                               false);
    m_pMultiLevelSlider->UpdateMiddleIndicatorRatio();
    m_pMultiLevelSlider->update();
}

bool QNumericalWidgetMultiLevelSlider::eventFilter(QObject *watched, QEvent *event)
{
    Q_UNUSED(watched);
    Q_UNUSED(event);
    return false;
}

void QNumericalWidgetMultiLevelSlider::OnComboSpinValueChanged()
{
    emit ValueChanged(GetValue());
}

void QNumericalWidgetMultiLevelSlider::MakeConnections()
{
    m_pMultiLevelSlider->SetIndicatorMoveSignalInterface(
        [this](unsigned long long) { OnComboSpinValueChanged(); });
    m_pMultiLevelSlider->SetIndicatorMoveDoneSignalInterface(
        [this](unsigned long long) { emit EditFinished(GetValue()); });
}

void QNumericalWidgetMultiLevelSlider::SetComboSpinValue(const Lu::CDynamicWidgetDescBase &desc)
{
    QMultiLevelSlider *pSlider = m_pMultiLevelSlider;
    const unsigned int uCount = std::min(pSlider->GetCount(), 4u);
    // The levels are clamped to the range the slider has now; the new range of the description
    // only applies after them.
    for (unsigned int i = 0; i < uCount; ++i)
        pSlider->SetIndicatorValue(i, NumericalSlider::LevelFromValue(desc.afValue[i]), false);
    if (uCount == 3)
        pSlider->SetIndicatorPlaceUpper(1, true);
    pSlider->SetMin(NumericalSlider::LevelFromValue(desc.afMinimum[0]));
    pSlider->SetMax(NumericalSlider::LevelFromValue(desc.afMaximum[0]));
    pSlider->UpdateMiddleIndicatorRatio();
    pSlider->update();
}
