#include "QSpinBoxEx.h"

#include "VelaEditRulesPrivate.h"

#include <QKeyEvent>

using namespace Vela;

QSpinBoxEx::QSpinBoxEx(QWidget *parent)
    : QSpinBox(parent)
    , m_nRecordValue(value())
    , m_nRealMax(maximum())
    , m_nRealMin(minimum())
{
    setFocusPolicy(Qt::StrongFocus);
    setKeyboardTracking(false);
}

QSpinBoxEx::~QSpinBoxEx() = default;

// While unfocused the range in force is the real one; while focused it was saved at focus-in.
int QSpinBoxEx::RealMaximum() const
{
    return m_bRangeSaved ? m_nRealMax : maximum();
}

int QSpinBoxEx::RealMinimum() const
{
    return m_bRangeSaved ? m_nRealMin : minimum();
}

void QSpinBoxEx::EmitRecordEditingValue()
{
    m_nRecordValue = value();
    emit RecordEditingValue();
}

void QSpinBoxEx::EmitEditingValueStarted()
{
    emit EditingValueStarted();
}

int QSpinBoxEx::NewValueFromText(const QString &text) const
{
    if (text.isEmpty()) {
        if (correctionMode() == QAbstractSpinBox::CorrectToNearestValue)
            return RealMinimum();
        if (correctionMode() == QAbstractSpinBox::CorrectToPreviousValue)
            return value();
    }
    return valueFromText(text);
}

int QSpinBoxEx::CheckLimitValue() const
{
    const auto remainder = [](long long a, long long b) { return b == 0 ? 0 : a % b; };
    const long long limited = EditRules::LimitValue<long long>(
        NewValueFromText(cleanText()), m_nRecordValue, RealMinimum(), RealMaximum(), singleStep(),
        wrapping(), remainder);
    return EditRules::ClampToInt(double(limited));
}

int QSpinBoxEx::GetNumberIntDecimals(int value) const
{
    return EditRules::IntegerDigits(value);
}

int QSpinBoxEx::GetSpinBoxMaxNumber(int maximum) const
{
    if (maximum < 0)
        return maximum;
    if (maximum == 0)
        return -9;
    return EditRules::ClampToInt(EditRules::AllNines(GetNumberIntDecimals(maximum), 0));
}

int QSpinBoxEx::GetSpinBoxMinNumber(int minimum) const
{
    if (minimum > 0)
        return minimum;
    return EditRules::ClampToInt(-EditRules::AllNines(GetNumberIntDecimals(minimum), 0));
}

void QSpinBoxEx::SetupEditingMinMaxNumber()
{
    const long long top = std::llabs(static_cast<long long>(GetSpinBoxMaxNumber(m_nRealMax)));
    const long long bottom = std::llabs(static_cast<long long>(GetSpinBoxMinNumber(m_nRealMin)));
    const int magnitude = EditRules::ClampToInt(double(std::max(top, bottom)));
    setRange(-magnitude, magnitude);
}

void QSpinBoxEx::stepBy(int steps)
{
    if (!m_bStepping)
        EmitEditingValueStarted();
    m_bStepping = true;

    // Stepping stays inside the real range even while the wider editing range is in force.
    const int current = NewValueFromText(cleanText());
    const long long target =
        static_cast<long long>(current) + static_cast<long long>(singleStep()) * steps;
    const std::optional<long long> confined = EditRules::ConfinedStep<long long>(
        current, target, RealMinimum(), RealMaximum(), steps, wrapping());
    if (confined)
        setValue(int(*confined));
    else
        QSpinBox::stepBy(steps);
}

QValidator::State QSpinBoxEx::validate(QString &input, int &pos) const
{
    return QSpinBox::validate(input, pos);
}

void QSpinBoxEx::contextMenuEvent(QContextMenuEvent *) { }

void QSpinBoxEx::wheelEvent(QWheelEvent *event)
{
    if (EditRules::AcceptsWheel(this, event))
        QSpinBox::wheelEvent(event);
}

void QSpinBoxEx::focusInEvent(QFocusEvent *event)
{
    if (!m_bRangeSaved) {
        m_nRealMax = maximum();
        m_nRealMin = minimum();
    }
    SetupEditingMinMaxNumber();
    EditRules::FocusGained(this);
    m_bRangeSaved = true;
    m_nRecordValue = value();
    QSpinBox::focusInEvent(event);
}

void QSpinBoxEx::focusOutEvent(QFocusEvent *event)
{
    const int limited = CheckLimitValue();
    if (limited != value()) {
        EmitEditingValueStarted();
        setValue(limited);
    }
    setRange(m_nRealMin, m_nRealMax);
    EditRules::FocusLost(this);
    if (value() != m_nRecordValue)
        EmitRecordEditingValue();
    m_bStepping = false;
    m_bRangeSaved = false;
    QSpinBox::focusOutEvent(event);
}

void QSpinBoxEx::keyPressEvent(QKeyEvent *event)
{
    if (!EditRules::IsEnterKey(event)) {
        QSpinBox::keyPressEvent(event);
        return;
    }
    // Enter commits a number inside the real range at once; anything else settles on release.
    const int typed = NewValueFromText(cleanText());
    if (typed != value() && typed >= RealMinimum() && typed <= RealMaximum()) {
        EmitEditingValueStarted();
        setValue(typed);
        EmitRecordEditingValue();
    }
    event->ignore();
}

void QSpinBoxEx::keyReleaseEvent(QKeyEvent *event)
{
    if (EditRules::IsEnterKey(event)) {
        const int limited = CheckLimitValue();
        if (limited != value()) {
            EmitEditingValueStarted();
            setValue(limited);
        }
        if (value() != m_nRecordValue)
            EmitRecordEditingValue();
        if (hasFocus())
            clearFocus();
    }
    QSpinBox::keyReleaseEvent(event);
}

void QSpinBoxEx::mousePressEvent(QMouseEvent *event)
{
    EmitEditingValueStarted();
    QSpinBox::mousePressEvent(event);
}

void QSpinBoxEx::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_bStepping) {
        m_bStepping = false;
        EmitRecordEditingValue();
    }
    QSpinBox::mouseReleaseEvent(event);
}
