#include "QNumericalMouseSpinbox.h"

#include "QMouseSpinBox.h"
#include "VelaNumericalRowPrivate.h"
#include "VelaNumericalSliderPrivate.h"

#include <QBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSizePolicy>

#include <algorithm>
#include <limits>

using namespace Vela;

QNumericalMouseSpinbox::QNumericalMouseSpinbox(QWidget *parent)
    : QNumericalWidgetBase(parent)
{ }

// The base cuts the editors' connections before they are torn down.
QNumericalMouseSpinbox::~QNumericalMouseSpinbox() = default;

Vela::CVector4<float> QNumericalMouseSpinbox::GetValue()
{
    return NumericalSlider::PackComponents(
        m_listMouseSpinBoxes.size(), [this](int i) { return m_listMouseSpinBoxes.at(i)->value(); });
}

unsigned int QNumericalMouseSpinbox::GetSliderCount(Vela::EDynamicWidgetVariableType eType)
{
    return static_cast<unsigned int>(DynamicVariableComponentCount(eType));
}

bool QNumericalMouseSpinbox::IsFloatType(Vela::EDynamicWidgetVariableType eType)
{
    return IsFloatVariableType(eType);
}

void QNumericalMouseSpinbox::CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                                      const Lu::CDynamicWidgetDescBase &desc)
{
    const unsigned int uCount = GetSliderCount(var.eType);
    for (unsigned int i = 0; i < uCount; ++i) {
        auto *pSpinBox = new QMouseSpinBox(nullptr);
        // Rounded to three decimals the smallest positive double is 0: the spin boxes take no
        // negative values.
        pSpinBox->setMaximum(std::numeric_limits<double>::max());
        pSpinBox->setMinimum(std::numeric_limits<double>::min());
        pSpinBox->setDecimals(3);
        m_listMouseSpinBoxes.append(pSpinBox);
    }

    auto *pRowLayout = new QHBoxLayout;
    pRowLayout->setSpacing(15);
    pRowLayout->setContentsMargins(0, 15, 0, 15);
    pRowLayout->addWidget(new QLabel(GetName()));
    AddNumericalRow(this, pRowLayout);

    CMap<int, std::string> kLabels = desc.mapLabels;
    for (int i = 0; i < m_listMouseSpinBoxes.size(); ++i) {
        QMouseSpinBox *pSpinBox = m_listMouseSpinBoxes.at(i);
        pSpinBox->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        auto *pItemLayout = new QBoxLayout(QBoxLayout::LeftToRight);
        const QString strCaption = NumericalSlider::TakeComponentLabel(kLabels, i);
        if (!strCaption.isEmpty()) {
            pItemLayout->addWidget(new QLabel(strCaption));
            pItemLayout->setSpacing(10);
        }
        pItemLayout->addWidget(pSpinBox);
        pRowLayout->addLayout(pItemLayout);
    }

    MakeConnections();
}

void QNumericalMouseSpinbox::UpdateUi(const Vela::CVector4<float> &v)
{
    const int nCount = std::min(m_listMouseSpinBoxes.size(), 4);
    for (int i = 0; i < nCount; ++i) {
        QMouseSpinBox *pSpinBox = m_listMouseSpinBoxes.at(i);
        const QSignalBlocker blocker(pSpinBox);
        pSpinBox->setValue(double(v[i]));
    }
}

void QNumericalMouseSpinbox::OnMouseSpinBoxValueChanged(double dValue)
{
    Q_UNUSED(dValue);
    const Vela::CVector4f vValue = GetValue();
    emit ValueChanged(vValue);
    emit EditFinished(vValue);
}

void QNumericalMouseSpinbox::MakeConnections()
{
    // Spin boxes of an earlier build are connected anew rather than twice.
    for (QMouseSpinBox *pSpinBox : qAsConst(m_listMouseSpinBoxes)) {
        disconnect(pSpinBox, nullptr, this, nullptr);
        connect(pSpinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                &QNumericalMouseSpinbox::OnMouseSpinBoxValueChanged);
    }
}
