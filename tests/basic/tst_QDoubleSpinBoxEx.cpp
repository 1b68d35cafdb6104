#include "BasicTestSupport.h"
#include "QDoubleSpinBoxEx.h"
#include "QSpinBoxEx.h"
#include "VelaTest.h"

#include <QtTest>

class tst_QDoubleSpinBoxEx : public QObject
{
    Q_OBJECT

private slots:
    void stepping();
    void steppingFlagOutlivesFocus();
};

// A step from an off-grid value adds the rounded step; steps stop at the real ends.
void tst_QDoubleSpinBoxEx::stepping()
{
    BasicTest::FocusWindow window;
    auto *spin = window.add(new QDoubleSpinBoxEx);
    spin->setRange(0, 1);
    spin->setSingleStep(0.1);
    spin->setValue(0.29);
    QVERIFY(window.showWithFocusElsewhere());
    QVERIFY(window.focus(spin));
    QTest::keyClick(spin, Qt::Key_Up);
    QCOMPARE(spin->value(), 0.39);

    spin->setValue(0.95);
    QVERIFY(VelaTest::wheel(spin, 1));
    QCOMPARE(spin->value(), 1.0);
    QVERIFY(VelaTest::wheel(spin, 1));
    QCOMPARE(spin->value(), 1.0);
    spin->setValue(0.05);
    QTest::keyClick(spin, Qt::Key_Down);
    QCOMPARE(spin->value(), 0.0);
}

// Unlike the integer box, the double box keeps its stepping flag across focus-out: the next mouse
// release records again.
void tst_QDoubleSpinBoxEx::steppingFlagOutlivesFocus()
{
    BasicTest::FocusWindow window;
    auto *doubleSpin = window.add(new QDoubleSpinBoxEx);
    auto *intSpin = window.add(new QSpinBoxEx);
    QSignalSpy doubleRecords(doubleSpin, &QDoubleSpinBoxEx::RecordEditingValue);
    QSignalSpy intRecords(intSpin, &QSpinBoxEx::RecordEditingValue);
    QVERIFY(window.showWithFocusElsewhere());

    for (QAbstractSpinBox *spin : { static_cast<QAbstractSpinBox *>(doubleSpin),
                                    static_cast<QAbstractSpinBox *>(intSpin) }) {
        QVERIFY(window.focus(spin));
        QTest::keyClick(spin, Qt::Key_Up);
        QVERIFY(window.focus(window.other));
    }
    QCOMPARE(doubleRecords.count(), 1);
    QCOMPARE(intRecords.count(), 1);

    const QPoint textPoint(4, doubleSpin->height() / 2);
    QTest::mouseClick(doubleSpin, Qt::LeftButton, Qt::NoModifier, textPoint);
    QTest::mouseClick(intSpin, Qt::LeftButton, Qt::NoModifier, textPoint);
    QCOMPARE(doubleRecords.count(), 2);
    QCOMPARE(intRecords.count(), 1);
}

VELA_TEST_CLASS(tst_QDoubleSpinBoxEx)
#include "tst_QDoubleSpinBoxEx.moc"
