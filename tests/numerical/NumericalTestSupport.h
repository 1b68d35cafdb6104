#ifndef NUMERICALTESTSUPPORT_H
#define NUMERICALTESTSUPPORT_H

// What the tests of the numeric material-input widgets share: the host's records, a log of the
// widget's signals in the order they arrived and the window the widget is shown in.

#include "QNumericalWidgetBase.h"
#include "VelaTest.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

#include <initializer_list>
#include <memory>

namespace NumericalTest {

inline QString toText(const Vela::CVector4f &v)
{
    return QStringLiteral("(%1, %2, %3, %4)").arg(v.x).arg(v.y).arg(v.z).arg(v.w);
}

inline Lu::CDynamicWidgetVariableBase variable(int type, const Vela::CVector4f &value = {})
{
    Lu::CDynamicWidgetVariableBase var;
    var.eType = static_cast<Vela::EDynamicWidgetVariableType>(type);
    var.vValue = value;
    return var;
}

// A description with the same range for every component and these values.
inline Lu::CDynamicWidgetDescBase description(const wchar_t *name, float minimum = 0.0f,
                                              float maximum = 1.0f,
                                              std::initializer_list<float> values = {})
{
    Lu::CDynamicWidgetDescBase desc;
    desc.strName = name;
    for (int i = 0; i < 4; ++i) {
        desc.afMinimum[i] = minimum;
        desc.afMaximum[i] = maximum;
    }
    int i = 0;
    for (float value : values)
        desc.afValue[i++] = value;
    return desc;
}

inline QString valueChanged(float x, float y = 0, float z = 0, float w = 0)
{
    return QStringLiteral("ValueChanged") + toText(Vela::CVector4f(x, y, z, w));
}

inline QString editFinished(float x, float y = 0, float z = 0, float w = 0)
{
    return QStringLiteral("EditFinished") + toText(Vela::CVector4f(x, y, z, w));
}

// The entries of one user edit ending at this value.
inline QStringList oneEdit(float x, float y = 0, float z = 0, float w = 0)
{
    return { valueChanged(x, y, z, w), editFinished(x, y, z, w) };
}

// Records every signal of a numerical widget in the order raised, with the packed value of
// ValueChanged / EditFinished: "ValueChanged(x, y, z, w)".
class EditLog : public QObject
{
public:
    explicit EditLog(QNumericalWidgetBase *widget)
    {
        connect(widget, &QNumericalWidgetBase::ValueChanged, this,
                [this](Vela::CVector4f v) { entries << valueChanged(v.x, v.y, v.z, v.w); });
        connect(widget, &QNumericalWidgetBase::EditFinished, this,
                [this](Vela::CVector4f v) { entries << editFinished(v.x, v.y, v.z, v.w); });
        connect(widget, &QNumericalWidgetBase::Clicked, this,
                [this]() { entries << QStringLiteral("Clicked"); });
        connect(widget, &QNumericalWidgetBase::ClickedButton, this,
                [this](int n) { entries << QStringLiteral("ClickedButton %1").arg(n); });
    }

    void clear() { entries.clear(); }

    QStringList entries;
};

// The window a widget is tested in: a line edit above it holds the focus, as when the user has
// not touched the widget yet.
class Panel
{
public:
    explicit Panel(QWidget *widget)
        : window(new QWidget)
        , other(new QLineEdit)
    {
        auto *layout = new QVBoxLayout(window.get());
        layout->addWidget(other);
        layout->addWidget(widget);
    }

    // Builds the widget from the records, then shows the window.
    bool build(QNumericalWidgetBase *widget, const Lu::CDynamicWidgetVariableBase &var,
               const Lu::CDynamicWidgetDescBase &desc)
    {
        if (widget->Initialize(var, desc).code() != 0u)
            return false;
        window->show();
        if (!QTest::qWaitForWindowActive(window.get()))
            return false;
        other->setFocus();
        return true;
    }

    std::unique_ptr<QWidget> window;
    QLineEdit *other;
};

} // namespace NumericalTest

namespace Vela {

// Lets QCOMPARE print packed values.
inline char *toString(const CVector4f &v)
{
    return qstrdup(qPrintable(NumericalTest::toText(v)));
}

} // namespace Vela

#endif // NUMERICALTESTSUPPORT_H
