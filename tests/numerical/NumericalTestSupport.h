#ifndef NUMERICALTESTSUPPORT_H
#define NUMERICALTESTSUPPORT_H

// What the tests of the numeric material-input widgets share: the host's records, a log of the
// widget's signals in the order they arrived and the window the widget is shown in.

#include "QNumericalWidgetBase.h"

#include <QLineEdit>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVBoxLayout>
#include <QtTest>

#include <initializer_list>
#include <memory>

namespace NumericalTest {

inline Lu::CDynamicWidgetVariableBase variable(int type)
{
    Lu::CDynamicWidgetVariableBase var;
    var.eType = static_cast<Vela::EDynamicWidgetVariableType>(type);
    return var;
}

// A description with the same range for every component and these values.
inline Lu::CDynamicWidgetDescBase description(const wchar_t *name, float minimum, float maximum,
                                              std::initializer_list<float> values)
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

inline QString toText(const Vela::CVector4f &v)
{
    return QStringLiteral("(%1, %2, %3, %4)").arg(v.x).arg(v.y).arg(v.z).arg(v.w);
}

// Records every signal of a numerical widget in the order raised, with the packed value of
// ValueChanged / EditFinished: "ValueChanged(x, y, z, w)".
class EditLog : public QObject
{
public:
    explicit EditLog(QNumericalWidgetBase *widget)
    {
        connect(widget, &QNumericalWidgetBase::ValueChanged, this,
                [this](Vela::CVector4f v) { add(QStringLiteral("ValueChanged"), &v); });
        connect(widget, &QNumericalWidgetBase::EditFinished, this,
                [this](Vela::CVector4f v) { add(QStringLiteral("EditFinished"), &v); });
        connect(widget, &QNumericalWidgetBase::Clicked, this,
                [this]() { add(QStringLiteral("Clicked")); });
        connect(widget, &QNumericalWidgetBase::ClickedButton, this,
                [this](int n) { add(QStringLiteral("ClickedButton %1").arg(n)); });
    }

    void clear() { entries.clear(); }

    QStringList entries;

private:
    void add(const QString &name, const Vela::CVector4f *value = nullptr)
    {
        entries << (value ? name + toText(*value) : name);
    }
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

    bool show()
    {
        window->show();
        if (!QTest::qWaitForWindowActive(window.get()))
            return false;
        other->setFocus();
        return true;
    }

    // Builds the widget from the records, then shows the window.
    bool build(QNumericalWidgetBase *widget, int type, const Lu::CDynamicWidgetDescBase &desc)
    {
        return widget->Initialize(variable(type), desc).succeeded() && show();
    }

    std::unique_ptr<QWidget> window;
    QLineEdit *other;
};

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

} // namespace NumericalTest

// QCOMPARE for packed values, printing both on failure.
#define NUMERICAL_COMPARE_VECTOR(actual, expected)                                                 \
    do {                                                                                           \
        const Vela::CVector4f vActual_ = (actual);                                                 \
        const Vela::CVector4f vExpected_ = (expected);                                             \
        QVERIFY2(vActual_ == vExpected_,                                                           \
                 qPrintable(NumericalTest::toText(vActual_) + QStringLiteral(" != ")               \
                            + NumericalTest::toText(vExpected_)));                                 \
    } while (false)

#endif // NUMERICALTESTSUPPORT_H
