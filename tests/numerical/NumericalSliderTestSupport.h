#ifndef NUMERICALSLIDERTESTSUPPORT_H
#define NUMERICALSLIDERTESTSUPPORT_H

// What the tests of the numeric material-input widgets share: building the host's records and a
// log of the widget's ValueChanged / EditFinished emissions, each with its packed vector, in the
// order they arrived.

#include "QNumericalWidgetBase.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <initializer_list>

namespace NumericalSliderTest {

inline Lu::CDynamicWidgetVariableBase variable(int type)
{
    Lu::CDynamicWidgetVariableBase var;
    var.eType = static_cast<Vela::EDynamicWidgetVariableType>(type);
    return var;
}

// A description with the same range and value for every component.
inline Lu::CDynamicWidgetDescBase description(const wchar_t *name, float minimum, float maximum,
                                              std::initializer_list<float> values)
{
    Lu::CDynamicWidgetDescBase desc;
    desc.strName = name;
    int i = 0;
    for (float value : values) {
        desc.afMinimum[i] = minimum;
        desc.afMaximum[i] = maximum;
        desc.afValue[i] = value;
        ++i;
    }
    for (; i < 4; ++i) {
        desc.afMinimum[i] = minimum;
        desc.afMaximum[i] = maximum;
    }
    return desc;
}

inline QString format(const Vela::CVector4f &v)
{
    return QStringLiteral("(%1, %2, %3, %4)").arg(v.x).arg(v.y).arg(v.z).arg(v.w);
}

// Records "ValueChanged(x, y, z, w)" and "EditFinished(x, y, z, w)" as the widget emits them.
class SignalLog : public QObject
{
public:
    explicit SignalLog(QNumericalWidgetBase *widget)
    {
        connect(widget, &QNumericalWidgetBase::ValueChanged, this, [this](Vela::CVector4f v) {
            entries << QStringLiteral("ValueChanged") + format(v);
        });
        connect(widget, &QNumericalWidgetBase::EditFinished, this, [this](Vela::CVector4f v) {
            entries << QStringLiteral("EditFinished") + format(v);
        });
    }

    QStringList entries;
};

inline QString valueChanged(float x, float y = 0, float z = 0, float w = 0)
{
    return QStringLiteral("ValueChanged") + format(Vela::CVector4f(x, y, z, w));
}

inline QString editFinished(float x, float y = 0, float z = 0, float w = 0)
{
    return QStringLiteral("EditFinished") + format(Vela::CVector4f(x, y, z, w));
}

} // namespace NumericalSliderTest

#endif // NUMERICALSLIDERTESTSUPPORT_H
