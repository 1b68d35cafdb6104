#include "QSliderEx.h"

#include "VelaEditRulesPrivate.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

using namespace Vela;

namespace {

// The interval at which Qt's styles draw tick marks: the tick interval when one is set, else the
// single step, or the page step when single steps would be less than three pixels apart.
qint64 StyleTickInterval(const QStyleOptionSlider &option, const QStyle *style,
                         const QWidget *widget)
{
    qint64 interval = option.tickInterval;
    if (interval <= 0) {
        const int available = style->pixelMetric(QStyle::PM_SliderSpaceAvailable, &option, widget);
        interval = option.singleStep;
        if (QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.singleStep,
                                            available)
                - QStyle::sliderPositionFromValue(option.minimum, option.maximum, 0, available)
            < 3)
            interval = option.pageStep;
    }
    return qMax<qint64>(interval, 1);
}

} // namespace

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
    // slider without them then.
    QStyleOptionSlider option;
    initStyleOption(&option);
    const qint64 length = orientation() == Qt::Horizontal ? width() : height();
    if (tickPosition() == NoTicks
        || (qint64(maximum()) - qint64(minimum())) / StyleTickInterval(option, style(), this)
            <= 4 * qMax<qint64>(length, 1)) {
        QSlider::paintEvent(event);
        return;
    }
    QPainter painter(this);
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    if (isSliderDown()) {
        option.activeSubControls = QStyle::SC_SliderHandle;
        option.state |= QStyle::State_Sunken;
    }
    style()->drawComplexControl(QStyle::CC_Slider, &option, &painter, this);
}
