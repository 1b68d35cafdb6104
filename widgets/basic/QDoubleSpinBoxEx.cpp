#include "QDoubleSpinBoxEx.h"

#include "VelaEditRulesPrivate.h"

#include <QKeyEvent>

#include <cmath>

using namespace Vela;

QDoubleSpinBoxEx::QDoubleSpinBoxEx(QWidget *parent)
    : QDoubleSpinBox(parent)
    , m_dRecordValue(value())
    , m_dRealMax(maximum())
    , m_dRealMin(minimum())
{
    setFocusPolicy(Qt::StrongFocus);
    setKeyboardTracking(false);
}

QDoubleSpinBoxEx::~QDoubleSpinBoxEx() = default;

double QDoubleSpinBoxEx::RealMaximum() const
{
    return m_bRangeSaved ? m_dRealMax : maximum();
}

double QDoubleSpinBoxEx::RealMinimum() const
{
    return m_bRangeSaved ? m_dRealMin : minimum();
}

void QDoubleSpinBoxEx::EmitRecordEditingValue()
{
    m_dRecordValue = value();
    emit RecordEditingValue();
}

double QDoubleSpinBoxEx::NewValueFromText(const QString &text) const
{
    if (text.isEmpty()) {
        if (correctionMode() == QAbstractSpinBox::CorrectToNearestValue)
            return RealMinimum();
        if (correctionMode() == QAbstractSpinBox::CorrectToPreviousValue)
            return value();
    }
    return valueFromText(text);
}

void QDoubleSpinBoxEx::CheckLimitValue()
{
    const double typed = NewValueFromText(cleanText());
    const double realMin = RealMinimum();
    const double realMax = RealMaximum();
    const auto remainder = [](double a, double b) { return b == 0.0 ? 0.0 : std::fmod(a, b); };
    const double limited = EditRules::LimitValue(typed, m_dRecordValue, realMin, realMax,
                                                 singleStep(), wrapping(), remainder);
    const bool outside = typed != m_dRecordValue && (typed > realMax || typed < realMin);
    if (outside || limited != value())
        setValue(limited);
}

int QDoubleSpinBoxEx::GetNumberIntDecimals(double value) const
{
    return EditRules::IntegerDigits(value);
}

double QDoubleSpinBoxEx::GetSpinBoxMaxNumber(double maximum, int decimals) const
{
    if (maximum < 0.0)
        return maximum;
    return EditRules::AllNines(GetNumberIntDecimals(maximum), decimals);
}

double QDoubleSpinBoxEx::GetSpinBoxMinNumber(double minimum, int decimals) const
{
    if (minimum > 0.0)
        return minimum;
    return -EditRules::AllNines(GetNumberIntDecimals(minimum), decimals);
}

void QDoubleSpinBoxEx::SetupEditingMinMaxNumber()
{
    const double magnitude = std::max(std::fabs(GetSpinBoxMaxNumber(m_dRealMax, decimals())),
                                      std::fabs(GetSpinBoxMinNumber(m_dRealMin, decimals())));
    setRange(-magnitude, magnitude);
}

void QDoubleSpinBoxEx::stepBy(int steps)
{
    m_bStepping = true;

    // Round the step to the shown decimals, so 0.29 + 0.1 is compared as 0.39.
    const double current = NewValueFromText(cleanText());
    const double scale = std::pow(10.0, decimals());
    const double target = current + std::round(singleStep() * steps * scale) / scale;
    const std::optional<double> confined =
        EditRules::ConfinedStep(current, target, RealMinimum(), RealMaximum(), steps, wrapping());
    if (confined)
        setValue(*confined);
    else
        QDoubleSpinBox::stepBy(steps);
}

QValidator::State QDoubleSpinBoxEx::validate(QString &input, int &pos) const
{
    return QDoubleSpinBox::validate(input, pos);
}

void QDoubleSpinBoxEx::contextMenuEvent(QContextMenuEvent *) { }

void QDoubleSpinBoxEx::wheelEvent(QWheelEvent *event)
{
    if (EditRules::AcceptsWheel(this, event))
        QDoubleSpinBox::wheelEvent(event);
}

void QDoubleSpinBoxEx::focusInEvent(QFocusEvent *event)
{
    if (!m_bRangeSaved) {
        m_dRealMax = maximum();
        m_dRealMin = minimum();
    }
    SetupEditingMinMaxNumber();
    EditRules::FocusGained(this);
    m_bRangeSaved = true;
    m_dRecordValue = value();
    QDoubleSpinBox::focusInEvent(event);
}

void QDoubleSpinBoxEx::focusOutEvent(QFocusEvent *event)
{
    CheckLimitValue();
    setRange(m_dRealMin, m_dRealMax);
    EditRules::FocusLost(this);
    if (value() != m_dRecordValue)
        EmitRecordEditingValue();
    // The stepping flag stays set until the next mouse release.
    m_bRangeSaved = false;
    QDoubleSpinBox::focusOutEvent(event);
}

void QDoubleSpinBoxEx::keyPressEvent(QKeyEvent *event)
{
    if (!EditRules::IsEnterKey(event)) {
        QDoubleSpinBox::keyPressEvent(event);
        return;
    }
    const double typed = NewValueFromText(cleanText());
    if (typed != value() && typed >= RealMinimum() && typed <= RealMaximum())
        setValue(typed);
    event->ignore();
}

void QDoubleSpinBoxEx::keyReleaseEvent(QKeyEvent *event)
{
    if (EditRules::IsEnterKey(event)) {
        CheckLimitValue();
        if (value() != m_dRecordValue)
            EmitRecordEditingValue();
        if (hasFocus())
            clearFocus();
    }
    QDoubleSpinBox::keyReleaseEvent(event);
}

void QDoubleSpinBoxEx::mousePressEvent(QMouseEvent *event)
{
    QDoubleSpinBox::mousePressEvent(event);
}

void QDoubleSpinBoxEx::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_bStepping) {
        m_bStepping = false;
        EmitRecordEditingValue();
    }
    QDoubleSpinBox::mouseReleaseEvent(event);
}
