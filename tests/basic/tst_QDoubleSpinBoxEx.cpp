#include "BasicTestSupport.h"
#include "QDoubleSpinBoxEx.h"
#include "VelaTest.h"

#include <QtTest>

class tst_QDoubleSpinBoxEx : public QObject
{
    Q_OBJECT

private slots:
    void stepping();
};

// A step from an off-grid value adds the rounded step. Unlike the integer box, the double box keeps
// its stepping flag across focus-out: the next mouse release records again.
void tst_QDoubleSpinBoxEx::stepping()
{
    BasicTest::FocusWindow window;
    auto *spin = window.add(new QDoubleSpinBoxEx);
    spin->setRange(0, 1);
    spin->setSingleStep(0.1);
    spin->setValue(0.29);
    QSignalSpy records(spin, &QDoubleSpinBoxEx::RecordEditingValue);
    QVERIFY(window.showWithFocusElsewhere());
    QVERIFY(window.focus(spin));
    QTest::keyClick(spin, Qt::Key_Up);
    QCOMPARE(spin->value(), 0.39);
    QVERIFY(window.focus(window.other));
    QCOMPARE(records.count(), 1);
    QTest::mouseClick(spin, Qt::LeftButton, Qt::NoModifier, QPoint(4, spin->height() / 2));
    QCOMPARE(records.count(), 2);
}

VELA_TEST_CLASS(tst_QDoubleSpinBoxEx)
#include "tst_QDoubleSpinBoxEx.moc"
