#include "BasicTestSupport.h"
#include "QSpinBoxEx.h"
#include "VelaTest.h"

#include <QStyleOptionSpinBox>
#include <QtTest>

#include <climits>

// Exposes the arrow geometry that a user clicks on.
class ClickableSpinBox : public QSpinBoxEx
{
public:
    using QSpinBoxEx::QSpinBoxEx;
    QPoint upArrow() const
    {
        QStyleOptionSpinBox option;
        initStyleOption(&option);
        return style()
            ->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, this)
            .center();
    }
};

class tst_QSpinBoxEx : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void editingRangeWhileFocused_data();
    void editingRangeWhileFocused();
    void typedNumberSettlesOnEnter_data();
    void typedNumberSettlesOnEnter();
    void typedNumberSettlesOnFocusOut();
    void enterInsideRangeCommitsAtOnce();
    void enterWithUnchangedTextDoesNothing();
    void steppingStaysInRealRange();
    void steppingWrapsAtTheEnds();
    void arrowClickIsOneSession();
    void noContextMenu();

private:
    void typeAndPress(const QString &text, Qt::Key key = Qt::Key_Return);

    BasicTest::FocusWindow *m_window = nullptr;
    ClickableSpinBox *m_spin = nullptr;
    QLineEdit *m_other = nullptr;
    QStringList m_events;
};

void tst_QSpinBoxEx::init()
{
    m_window = new BasicTest::FocusWindow;
    m_other = m_window->other;
    m_spin = m_window->add(new ClickableSpinBox);
    m_events.clear();
    connect(m_spin, &QSpinBoxEx::EditingValueStarted, this, [this] { m_events << "started"; });
    connect(m_spin, &QSpinBoxEx::RecordEditingValue, this,
            [this] { m_events << QStringLiteral("record %1").arg(m_spin->value()); });
    QVERIFY(m_window->showWithFocusElsewhere());
}

void tst_QSpinBoxEx::cleanup()
{
    delete m_window;
}

void tst_QSpinBoxEx::typeAndPress(const QString &text, Qt::Key key)
{
    m_spin->selectAll();
    QTest::keyClicks(m_spin, text);
    QTest::keyClick(m_spin, key);
}

void tst_QSpinBoxEx::editingRangeWhileFocused_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("editingMaximum");

    QTest::newRow("0..150") << 0 << 150 << 999;
    QTest::newRow("0..0") << 0 << 0 << 9;
    QTest::newRow("-5..5") << -5 << 5 << 9;
    QTest::newRow("-120..3") << -120 << 3 << 999;
    QTest::newRow("5..20") << 5 << 20 << 99;
    QTest::newRow("-300..-50") << -300 << -50 << 999;
    QTest::newRow("int extremes") << INT_MIN << INT_MAX << INT_MAX;
}

// While focused, any number of the range's digit count can be typed; focus-out restores the range.
void tst_QSpinBoxEx::editingRangeWhileFocused()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, editingMaximum);
    m_spin->setRange(minimum, maximum);
    QVERIFY(m_window->focus(m_spin));
    QCOMPARE(m_spin->maximum(), editingMaximum);
    QCOMPARE(m_spin->minimum(), -editingMaximum);
    QVERIFY(BasicTest::FocusWindow::focus(m_other));
    QCOMPARE(m_spin->minimum(), minimum);
    QCOMPARE(m_spin->maximum(), maximum);
    QVERIFY(m_events.isEmpty());
}

void tst_QSpinBoxEx::typedNumberSettlesOnEnter_data()
{
    QTest::addColumn<int>("maximum");
    QTest::addColumn<bool>("wrapping");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("expected");

    QTest::newRow("above range") << 150 << false << "999" << 150;
    QTest::newRow("below range") << 150 << false << "-20" << 0;
    QTest::newRow("wraps above") << 10 << true << "13" << 2;
    QTest::newRow("wraps below") << 10 << true << "-3" << 8;
    QTest::newRow("wraps far above") << 10 << true << "99" << 0;
}

void tst_QSpinBoxEx::typedNumberSettlesOnEnter()
{
    QFETCH(int, maximum);
    QFETCH(bool, wrapping);
    QFETCH(QString, typed);
    QFETCH(int, expected);
    m_spin->setRange(0, maximum);
    m_spin->setWrapping(wrapping);
    m_spin->setValue(5);
    QVERIFY(m_window->focus(m_spin));

    typeAndPress(typed, Qt::Key_Enter);
    QCOMPARE(m_spin->value(), expected);
    QCOMPARE(m_events, QStringList({ "started", QStringLiteral("record %1").arg(expected) }));
    QVERIFY(!m_spin->hasFocus());
    QCOMPARE(m_spin->maximum(), maximum);
    QCOMPARE(m_spin->minimum(), 0);
}

void tst_QSpinBoxEx::typedNumberSettlesOnFocusOut()
{
    m_spin->setRange(0, 150);
    QVERIFY(m_window->focus(m_spin));
    m_spin->selectAll();
    QTest::keyClicks(m_spin, "999");
    QCOMPARE(m_spin->text(), QStringLiteral("999"));
    QVERIFY(BasicTest::FocusWindow::focus(m_other));
    QCOMPARE(m_spin->value(), 150);
    QCOMPARE(m_spin->text(), QStringLiteral("150"));
    QCOMPARE(m_events, QStringList({ "started", "record 150" }));
}

void tst_QSpinBoxEx::enterInsideRangeCommitsAtOnce()
{
    m_spin->setRange(0, 150);
    QSignalSpy valueSpy(m_spin, qOverload<int>(&QSpinBox::valueChanged));
    QVERIFY(m_window->focus(m_spin));
    m_spin->selectAll();
    QTest::keyClicks(m_spin, "42");
    QVERIFY(valueSpy.isEmpty()); // no keyboard tracking
    QTest::keyPress(m_spin, Qt::Key_Return);
    QCOMPARE(m_spin->value(), 42);
    QCOMPARE(m_events, QStringList({ "started", "record 42" }));
    QTest::keyRelease(m_spin, Qt::Key_Return);
    QCOMPARE(m_events.size(), 2);
    QVERIFY(!m_spin->hasFocus());
    QCOMPARE(valueSpy.count(), 1);
}

void tst_QSpinBoxEx::enterWithUnchangedTextDoesNothing()
{
    m_spin->setRange(0, 150);
    m_spin->setValue(7);
    QVERIFY(m_window->focus(m_spin));
    QTest::keyPress(m_spin, Qt::Key_Return);
    QCOMPARE(m_events, QStringList());
    QVERIFY(m_spin->hasFocus());
    QTest::keyRelease(m_spin, Qt::Key_Return);
    // The release still ends the edit and gives focus away; nothing changed, so nothing is
    // recorded.
    QCOMPARE(m_events, QStringList());
    QCOMPARE(m_spin->value(), 7);
}

void tst_QSpinBoxEx::steppingStaysInRealRange()
{
    m_spin->setRange(0, 10);
    m_spin->setSingleStep(4);
    m_spin->setValue(8);
    QVERIFY(m_window->focus(m_spin));
    QTest::keyClick(m_spin, Qt::Key_Up);
    QCOMPARE(m_spin->value(), 10); // not 12, although the editing range allows it
    QTest::keyClick(m_spin, Qt::Key_Down);
    QCOMPARE(m_spin->value(), 6);
    QCOMPARE(m_events, QStringList({ "started" })); // one start for the whole stepping edit
    QVERIFY(BasicTest::FocusWindow::focus(m_other));
    QCOMPARE(m_events, QStringList({ "started", "record 6" }));

    // A new edit starts a new session.
    QVERIFY(m_window->focus(m_spin));
    QVERIFY(VelaTest::wheel(m_spin, 1));
    QCOMPARE(m_spin->value(), 10);
    QCOMPARE(m_events.count("started"), 2);
}

void tst_QSpinBoxEx::steppingWrapsAtTheEnds()
{
    m_spin->setRange(0, 10);
    m_spin->setWrapping(true);
    m_spin->setValue(10);
    QVERIFY(m_window->focus(m_spin));
    QTest::keyClick(m_spin, Qt::Key_Up);
    QCOMPARE(m_spin->value(), 0);
    QTest::keyClick(m_spin, Qt::Key_Down);
    QCOMPARE(m_spin->value(), 10);
}

// A click on an arrow starts a session on press and records it on release.
void tst_QSpinBoxEx::arrowClickIsOneSession()
{
    m_spin->setRange(0, 100);
    m_spin->setValue(50);
    QTest::mouseClick(m_spin, Qt::LeftButton, Qt::NoModifier, m_spin->upArrow());
    QCOMPARE(m_spin->value(), 51);
    QVERIFY(m_events.size() >= 2);
    QCOMPARE(m_events.first(), QStringLiteral("started"));
    QCOMPARE(m_events.last(), QStringLiteral("record 51"));
    QCOMPARE(m_events.count("record 51"), 1);

    // A plain click in the text starts a session but records nothing.
    m_events.clear();
    QTest::mouseClick(m_spin, Qt::LeftButton, Qt::NoModifier, QPoint(5, m_spin->height() / 2));
    QCOMPARE(m_events, QStringList({ "started" }));
}

void tst_QSpinBoxEx::noContextMenu()
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                            m_spin->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(m_spin, &event);
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activePopupWidget());
}

VELA_TEST_CLASS(tst_QSpinBoxEx)
#include "tst_QSpinBoxEx.moc"
