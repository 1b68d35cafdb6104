#include "BasicTestSupport.h"
#include "QComboBoxEx.h"
#include "VelaTest.h"

#include <QtTest>

class tst_QComboBoxEx : public QObject
{
    Q_OBJECT

private slots:
    void ignoredWheelNeverChangesSelection();
};

// With the switch on, the wheel never changes the selection, focused or not.
void tst_QComboBoxEx::ignoredWheelNeverChangesSelection()
{
    BasicTest::FocusWindow window;
    auto *combo = window.add(new QComboBoxEx);
    combo->addItems({ "Linear", "Smooth", "Step" });
    combo->setCurrentIndex(1);
    QVERIFY(combo->setProperty("ignoreWheelEvent", true));
    QVERIFY(window.showWithFocusElsewhere());
    QSignalSpy changes(combo, qOverload<int>(&QComboBox::currentIndexChanged));

    for (bool focused : { false, true }) {
        if (focused)
            QVERIFY(window.focus(combo));
        VelaTest::wheel(combo, 1);
        VelaTest::wheel(combo, -1);
        QCOMPARE(combo->currentIndex(), 1);
        QCOMPARE(changes.count(), 0);
    }
}

VELA_TEST_CLASS(tst_QComboBoxEx)
#include "tst_QComboBoxEx.moc"
