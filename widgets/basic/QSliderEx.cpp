#include "QSliderEx.h"

#include "VelaEditRulesPrivate.h"

#include <QPainter>
#include <QStyleOptionSlider>

using namespace Vela;

QSliderEx::QSliderEx(QWidget *parent)
    : QSlider(parent)
    , m_nRecordValue(value())
{ }

QSliderEx::QSliderEx(Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
    , m_nRecordValue(value())
{ }

QSliderEx::~QSliderEx() = default;

void QSliderEx::SetValue(int value)
{
    QSlider::setValue(value);
    m_nRecordValue = this->value();
}

void QSliderEx::setValue(int) { }

void QSliderEx::EmitRecordEditingValue()
{
    m_nRecordValue = value();
    emit RecordEditingValue();
}

void QSliderEx::wheelEvent(QWheelEvent *event)
{
    if (EditRules::AcceptsWheel(this, event))
        QSlider::wheelEvent(event);
}

void QSliderEx::mousePressEvent(QMouseEvent *event)
{
    m_bPressed = true;
    QSlider::mousePressEvent(event);
}

void QSliderEx::mouseMoveEvent(QMouseEvent *event)
{
    if (m_bPressed)
        m_bDragged = isSliderDown();
    QSlider::mouseMoveEvent(event);
}

void QSliderEx::mouseReleaseEvent(QMouseEvent *event)
{
    m_bPressed = false;
    // The dragged flag stays set until the next move while pressed.
    const SliderAction action = repeatAction();
    if (m_bDragged || action == SliderPageStepAdd || action == SliderPageStepSub)
        EmitRecordEditingValue();
    QSlider::mouseReleaseEvent(event);
}

void QSliderEx::focusInEvent(QFocusEvent *event)
{
    EditRules::FocusGained(this);
    m_nRecordValue = value();
    QWidget::focusInEvent(event);
}

void QSliderEx::focusOutEvent(QFocusEvent *event)
{
    EditRules::FocusLost(this);
    if (value() != m_nRecordValue)
        EmitRecordEditingValue();
    QWidget::focusOutEvent(event);
}

void QSliderEx::keyPressEvent(QKeyEvent *event)
{
    QAbstractSlider::keyPressEvent(event);
}

void QSliderEx::keyReleaseEvent(QKeyEvent *event)
{
    QWidget::keyReleaseEvent(event);
}

void QSliderEx::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
}

void QSliderEx::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
}

void QSliderEx::sliderChange(SliderChange change)
{
    // Qt's styles divide by twice the span when painting; a span of exactly 2^31 (such as
    // INT_MIN to 0, which a logarithmic editor reaches for a minimum of 0) makes that zero.
    if (change == SliderRangeChange && qint64(maximum()) - qint64(minimum()) == (qint64(1) << 31)) {
        setMinimum(minimum() + 1);
        return;
    }
    QSlider::sliderChange(change);
}

void QSliderEx::paintEvent(QPaintEvent *event)
{
    // The styles draw one tick mark per interval. Over a huge range (a logarithmic editor reaches
    // down to the smallest integer) that is billions of marks, all closer than a pixel: paint the
    // slider without them then. Without a tick interval the styles tick every single step, or
    // every page step when they find single steps too close (a test that overflows for odd
    // ranges): count with the smaller of the two.
    const qint64 interval =
        tickInterval() > 0 ? tickInterval() : qMax(1, qMin(singleStep(), pageStep()));
    const qint64 length = orientation() == Qt::Horizontal ? width() : height();
    if (tickPosition() == NoTicks
        || (qint64(maximum()) - qint64(minimum())) / interval <= 4 * qMax<qint64>(length, 1)) {
        QSlider::paintEvent(event);
        return;
    }
    QPainter painter(this);
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    if (isSliderDown()) {
        option.activeSubControls = QStyle::SC_SliderHandle;
        option.state |= QStyle::State_Sunken;
    }
    style()->drawComplexControl(QStyle::CC_Slider, &option, &painter, this);
}
