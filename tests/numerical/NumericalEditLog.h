#ifndef NUMERICALEDITLOG_H
#define NUMERICALEDITLOG_H

#include "QNumericalWidgetBase.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QtTest>

#include <cmath>

namespace NumericalTest {

// Records every signal of a numerical widget in the order raised: the signal's name in `names`,
// and for ValueChanged / EditFinished the packed value in `values`.
class EditLog : public QObject
{
public:
    explicit EditLog(QNumericalWidgetBase *widget)
    {
        connect(widget, &QNumericalWidgetBase::ValueChanged, this, [this](Vela::CVector4f v) {
            names << QStringLiteral("ValueChanged");
            values << v;
        });
        connect(widget, &QNumericalWidgetBase::EditFinished, this, [this](Vela::CVector4f v) {
            names << QStringLiteral("EditFinished");
            values << v;
        });
        connect(widget, &QNumericalWidgetBase::Clicked, this,
                [this]() { names << QStringLiteral("Clicked"); });
        connect(widget, &QNumericalWidgetBase::ClickedButton, this,
                [this](int n) { names << QStringLiteral("ClickedButton %1").arg(n); });
    }

    void clear()
    {
        names.clear();
        values.clear();
    }

    QStringList names;
    QList<Vela::CVector4f> values;
};

// The names of one user edit: a value report followed by the end of the edit.
inline QStringList oneEdit()
{
    return { QStringLiteral("ValueChanged"), QStringLiteral("EditFinished") };
}

// Component-wise comparison within eps, for values that went through 8-bit colour channels.
inline bool nearlyEqual(const Vela::CVector4f &a, const Vela::CVector4f &b, float eps = 0.001f)
{
    for (int i = 0; i < 4; ++i) {
        if (!(std::fabs(a[i] - b[i]) <= eps))
            return false;
    }
    return true;
}

inline QString toText(const Vela::CVector4f &v)
{
    return QStringLiteral("(%1, %2, %3, %4)").arg(v.x).arg(v.y).arg(v.z).arg(v.w);
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

#endif // NUMERICALEDITLOG_H
