#include "BasicTestSupport.h"
#include "QDoubleSpinBoxEx.h"
#include "QSpinBoxEx.h"
#include "VelaTest.h"

#include <QtTest>

class tst_QDoubleSpinBoxEx : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void hasNoStartSignal();
    void editingRangeWhileFocused_data();
    void editingRangeWhileFocused();
    void typedNumberSettlesOnEnter_data();
    void typedNumberSettlesOnEnter();
    void steppingUsesTheRoundedStep();
    void steppingStopsAtTheRealEnds();
    void steppingFlagOutlivesFocus();

private:
    BasicTest::FocusWindow *m_window = nullptr;
    QDoubleSpinBoxEx *m_spin = nullptr;
    QLineEdit *m_other = nullptr;
    QStringList m_records;
};

void tst_QDoubleSpinBoxEx::init()
{
    m_window = new BasicTest::FocusWindow;
    m_other = m_window->other;
    m_spin = m_window->add(new QDoubleSpinBoxEx);
    m_records.clear();
    connect(m_spin, &QDoubleSpinBoxEx::RecordEditingValue, this,
            [this] { m_records << QString::number(m_spin->value()); });
    QVERIFY(m_window->showWithFocusElsewhere());
}

void tst_QDoubleSpinBoxEx::cleanup()
{
    delete m_window;
}

void tst_QDoubleSpinBoxEx::hasNoStartSignal()
{
    QCOMPARE(m_spin->metaObject()->indexOfSignal("EditingValueStarted()"), -1);
    QVERIFY(m_spin->metaObject()->indexOfSignal("RecordEditingValue()") >= 0);
    QVERIFY(!m_spin->keyboardTracking());
}

void tst_QDoubleSpinBoxEx::editingRangeWhileFocused_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("editingMaximum");

    QTest::newRow("0..1, 2 decimals") << 0.0 << 1.0 << 2 << 9.99;
    QTest::newRow("0..150, 2 decimals") << 0.0 << 150.0 << 2 << 999.99;
    QTest::newRow("-20..0.5, 3 decimals") << -20.0 << 0.5 << 3 << 99.999;
    QTest::newRow("2..30, 1 decimal") << 2.0 << 30.0 << 1 << 99.9;
}

void tst_QDoubleSpinBoxEx::editingRangeWhileFocused()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(int, decimals);
    QFETCH(double, editingMaximum);
    m_spin->setDecimals(decimals);
    m_spin->setRange(minimum, maximum);
    QVERIFY(m_window->focus(m_spin));
    QCOMPARE(m_spin->maximum(), editingMaximum);
    QCOMPARE(m_spin->minimum(), -editingMaximum);
    QVERIFY(BasicTest::FocusWindow::focus(m_other));
    QCOMPARE(m_spin->minimum(), minimum);
    QCOMPARE(m_spin->maximum(), maximum);
    QVERIFY(m_records.isEmpty());
}

void tst_QDoubleSpinBoxEx::typedNumberSettlesOnEnter_data()
{
    QTest::addColumn<bool>("wrapping");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("expected");

    QTest::newRow("inside") << false << "7.25" << 7.25;
    QTest::newRow("above") << false << "99.5" << 10.0;
    QTest::newRow("below") << false << "-4" << 0.0;
    QTest::newRow("wraps above") << true << "13" << 2.0;
    QTest::newRow("wraps below") << true << "-3" << 8.0;
}

void tst_QDoubleSpinBoxEx::typedNumberSettlesOnEnter()
{
    QFETCH(bool, wrapping);
    QFETCH(QString, typed);
    QFETCH(double, expected);
    m_spin->setRange(0, 10);
    m_spin->setWrapping(wrapping);
    m_spin->setValue(5);
    QVERIFY(m_window->focus(m_spin));
    m_spin->selectAll();
    QTest::keyClicks(m_spin, typed);
    QTest::keyClick(m_spin, Qt::Key_Return);
    QCOMPARE(m_spin->value(), expected);
    QCOMPARE(m_records, QStringList({ QString::number(expected) }));
    QVERIFY(!m_spin->hasFocus());
    QCOMPARE(m_spin->maximum(), 10.0);
}

void tst_QDoubleSpinBoxEx::steppingUsesTheRoundedStep()
{
    m_spin->setRange(0, 1);
    m_spin->setSingleStep(0.1);
    m_spin->setValue(0.29);
    QVERIFY(m_window->focus(m_spin));
    QTest::keyClick(m_spin, Qt::Key_Up);
    QCOMPARE(m_spin->value(), 0.39);
}

void tst_QDoubleSpinBoxEx::steppingStopsAtTheRealEnds()
{
    m_spin->setRange(0, 1);
    m_spin->setSingleStep(0.1);
    m_spin->setValue(0.95);
    QVERIFY(m_window->focus(m_spin));
    QVERIFY(VelaTest::wheel(m_spin, 1));
    QCOMPARE(m_spin->value(), 1.0);
    QVERIFY(VelaTest::wheel(m_spin, 1));
    QCOMPARE(m_spin->value(), 1.0);
    m_spin->setValue(0.05);
    QTest::keyClick(m_spin, Qt::Key_Down);
    QCOMPARE(m_spin->value(), 0.0);
}

// Unlike the integer box, the double box keeps its stepping flag across focus-out: the next mouse
// release records again.
void tst_QDoubleSpinBoxEx::steppingFlagOutlivesFocus()
{
    auto *intSpin = m_window->add(new QSpinBoxEx);
    QSignalSpy intRecords(intSpin, &QSpinBoxEx::RecordEditingValue);

    for (QAbstractSpinBox *spin :
         { static_cast<QAbstractSpinBox *>(m_spin), static_cast<QAbstractSpinBox *>(intSpin) }) {
        QVERIFY(m_window->focus(spin));
        QTest::keyClick(spin, Qt::Key_Up);
        QVERIFY(m_window->focus(m_other));
    }
    QCOMPARE(m_records.size(), 1);
    QCOMPARE(intRecords.count(), 1);

    const QPoint textPoint(4, m_spin->height() / 2);
    QTest::mouseClick(m_spin, Qt::LeftButton, Qt::NoModifier, textPoint);
    QTest::mouseClick(intSpin, Qt::LeftButton, Qt::NoModifier, textPoint);
    QCOMPARE(m_records.size(), 2);
    QCOMPARE(intRecords.count(), 1);
}

VELA_TEST_CLASS(tst_QDoubleSpinBoxEx)
#include "tst_QDoubleSpinBoxEx.moc"
