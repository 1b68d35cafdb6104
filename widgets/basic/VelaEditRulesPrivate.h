#ifndef VELAEDITRULESPRIVATE_H
#define VELAEDITRULESPRIVATE_H

// Rules shared by the edit-tracking controls: wheel only while focused, the focus policy that
// follows focus, and the spin boxes' editing range and limit arithmetic.

#include <QKeyEvent>
#include <QWheelEvent>
#include <QWidget>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>

namespace Vela {
namespace EditRules {

// A control acts on the wheel only while it has focus; otherwise the event is left ignored so
// that the scroll area behind it scrolls. Returns true when the base class should handle it.
inline bool AcceptsWheel(QWidget *control, QWheelEvent *event)
{
    if (control->hasFocus())
        return true;
    event->ignore();
    return false;
}

// Focused controls also take wheel focus; at rest they only take focus by tab and click.
inline void FocusGained(QWidget *control)
{
    control->setFocusPolicy(Qt::WheelFocus);
}

inline void FocusLost(QWidget *control)
{
    control->setFocusPolicy(Qt::StrongFocus);
}

inline bool IsEnterKey(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

// Count of decimal digits of the integer part of |value|, at least 1.
inline int IntegerDigits(int value)
{
    long long magnitude = std::llabs(static_cast<long long>(value));
    int digits = 1;
    while (magnitude >= 10) {
        magnitude /= 10;
        ++digits;
    }
    return digits;
}

inline int IntegerDigits(double value)
{
    double magnitude = std::fabs(value);
    if (!std::isfinite(magnitude))
        return std::numeric_limits<double>::max_exponent10 + 1;
    int digits = 1;
    while (magnitude >= 10.0) {
        magnitude /= 10.0;
        ++digits;
    }
    return digits;
}

// The largest magnitude with `digits` integer digits and `decimals` nines behind the point
// (digits 3, decimals 2: 999.99).
inline double AllNines(int digits, int decimals)
{
    double result = 9.0;
    for (int i = 1; i < digits; ++i)
        result += 9.0 * std::pow(10.0, i);
    for (int k = 1; k <= decimals; ++k)
        result += 9.0 * std::pow(10.0, -k);
    return result;
}

inline int ClampToInt(double value)
{
    if (value >= double(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (value <= double(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return int(value);
}

// The value a typed number settles on when editing ends: kept when it is the recorded value or
// lies in the real range, otherwise clamped to the range, or wrapped around it when wrapping is
// on. `remainder` is the truncating remainder of the value type.
template<typename T, typename Remainder>
T LimitValue(T value, T recorded, T minimum, T maximum, T step, bool wrapping, Remainder remainder)
{
    if (value == recorded)
        return value;
    if (value > maximum)
        return wrapping ? minimum + remainder(value - maximum - step, maximum - minimum + step)
                        : maximum;
    if (value < minimum)
        return wrapping ? maximum + remainder(value - minimum + step, maximum - minimum + step)
                        : minimum;
    return value;
}

// Where a step from `current` towards `target` lands, confined to the real range: no value lets
// the base class take the step; otherwise the value to set (wrapped round the ends when
// wrapping is on, else the end the step points to).
template<typename T>
std::optional<T> ConfinedStep(T current, T target, T minimum, T maximum, int steps, bool wrapping)
{
    if (wrapping && current == maximum && steps > 0)
        return minimum;
    if (wrapping && current == minimum && steps < 0)
        return maximum;
    if (target >= minimum && target <= maximum)
        return std::nullopt;
    return steps > 0 ? maximum : minimum;
}

} // namespace EditRules
} // namespace Vela

#endif // VELAEDITRULESPRIVATE_H
