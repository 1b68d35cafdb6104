#include "BasicTestSupport.h"
#include "QComboBoxEx.h"
#include "VelaTest.h"

#include <QtTest>

class tst_QComboBoxEx : public QObject
{
    Q_OBJECT

private slots:
    void ignoreWheelEventProperty();
    void ignoredWheelNeverChangesSelection_data();
    void ignoredWheelNeverChangesSelection();
};

void tst_QComboBoxEx::ignoreWheelEventProperty()
{
    QComboBoxEx combo;
    QCOMPARE(combo.IgnoreWheelEvent(), false);
    QVERIFY(combo.setProperty("ignoreWheelEvent", true));
    QCOMPARE(combo.IgnoreWheelEvent(), true);
}

void tst_QComboBoxEx::ignoredWheelNeverChangesSelection_data()
{
    QTest::addColumn<bool>("focused");
    QTest::newRow("unfocused") << false;
    QTest::newRow("focused") << true;
}

// With the switch on, the wheel never changes the selection, focused or not.
void tst_QComboBoxEx::ignoredWheelNeverChangesSelection()
{
    QFETCH(bool, focused);
    BasicTest::FocusWindow window;
    auto *combo = window.add(new QComboBoxEx);
    combo->addItems({ "Linear", "Smooth", "Step" });
    combo->setCurrentIndex(1);
    combo->SetIgnoreWheelEvent(true);
    QVERIFY(window.showWithFocusElsewhere());
    if (focused)
        QVERIFY(window.focus(combo));

    QSignalSpy changes(combo, qOverload<int>(&QComboBox::currentIndexChanged));
    VelaTest::wheel(combo, 1);
    VelaTest::wheel(combo, -1);
    QCOMPARE(combo->currentIndex(), 1);
    QCOMPARE(changes.count(), 0);
}

VELA_TEST_CLASS(tst_QComboBoxEx)
#include "tst_QComboBoxEx.moc"
