#include "QDialEx.h"

#include "VelaEditRulesPrivate.h"

using namespace Vela;

QDialEx::QDialEx(QWidget *parent)
    : QDial(parent)
    , m_nRecordValue(value())
{
    setFocusPolicy(Qt::StrongFocus);
}

QDialEx::~QDialEx() = default;

void QDialEx::EmitRecordEditingValue()
{
    m_nRecordValue = value();
    emit RecordEditingValue();
}

void QDialEx::wheelEvent(QWheelEvent *event)
{
    if (EditRules::AcceptsWheel(this, event))
        QDial::wheelEvent(event);
}

void QDialEx::mousePressEvent(QMouseEvent *event)
{
    m_bPressed = true;
    QDial::mousePressEvent(event);
}

void QDialEx::mouseMoveEvent(QMouseEvent *event)
{
    if (m_bPressed)
        m_bDragged = isSliderDown();
    QDial::mouseMoveEvent(event);
}

void QDialEx::mouseReleaseEvent(QMouseEvent *event)
{
    m_bPressed = false;
    // Unlike the slider, the dial reports a release only when the value really changed.
    const SliderAction action = repeatAction();
    if ((m_bDragged || action == SliderPageStepAdd || action == SliderPageStepSub)
        && value() != m_nRecordValue) {
        EmitRecordEditingValue();
    }
    QDial::mouseReleaseEvent(event);
}

void QDialEx::focusInEvent(QFocusEvent *event)
{
    EditRules::FocusGained(this);
    m_nRecordValue = value();
    QWidget::focusInEvent(event);
}

void QDialEx::focusOutEvent(QFocusEvent *event)
{
    EditRules::FocusLost(this);
    if (value() != m_nRecordValue)
        EmitRecordEditingValue();
    QWidget::focusOutEvent(event);
}

void QDialEx::keyPressEvent(QKeyEvent *event)
{
    QAbstractSlider::keyPressEvent(event);
}

void QDialEx::keyReleaseEvent(QKeyEvent *event)
{
    QWidget::keyReleaseEvent(event);
}

void QDialEx::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
}

void QDialEx::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
}
