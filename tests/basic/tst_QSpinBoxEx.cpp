#include "BasicTestSupport.h"
#include "QSpinBoxEx.h"
#include "VelaTest.h"

#include <QStyleOptionSpinBox>
#include <QtTest>

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
    void enterCommitsOnPress();
    void steppingUsesTheRealRange();
    void arrowClickIsOneSession();
    void noContextMenu();

private:
    BasicTest::FocusWindow *m_window = nullptr;
    ClickableSpinBox *m_spin = nullptr;
    QStringList m_events;
};

void tst_QSpinBoxEx::init()
{
    m_window = new BasicTest::FocusWindow;
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

// Enter commits on the press, without keyboard tracking before it; with the text unchanged it
// records nothing, and the release then gives the focus away.
void tst_QSpinBoxEx::enterCommitsOnPress()
{
    m_spin->setRange(0, 150);
    m_spin->setValue(7);
    QSignalSpy valueSpy(m_spin, qOverload<int>(&QSpinBox::valueChanged));
    QVERIFY(m_window->focus(m_spin));
    QTest::keyPress(m_spin, Qt::Key_Return);
    QVERIFY(m_spin->hasFocus());
    QTest::keyRelease(m_spin, Qt::Key_Return);
    QCOMPARE(m_events, QStringList());

    QVERIFY(m_window->focus(m_spin));
    m_spin->selectAll();
    QTest::keyClicks(m_spin, "42");
    QVERIFY(valueSpy.isEmpty());
    QTest::keyPress(m_spin, Qt::Key_Return);
    QCOMPARE(m_spin->value(), 42);
    QCOMPARE(m_events, QStringList({ "started", "record 42" }));
    QTest::keyRelease(m_spin, Qt::Key_Return);
    QCOMPARE(m_events.size(), 2);
    QCOMPARE(valueSpy.count(), 1);
}

// Steps stop at (or wrap around) the real range, although the editing range is wider; one session
// lasts until the focus leaves.
void tst_QSpinBoxEx::steppingUsesTheRealRange()
{
    m_spin->setRange(0, 10);
    m_spin->setSingleStep(4);
    m_spin->setValue(8);
    QVERIFY(m_window->focus(m_spin));
    QTest::keyClick(m_spin, Qt::Key_Up);
    QCOMPARE(m_spin->value(), 10);
    QTest::keyClick(m_spin, Qt::Key_Down);
    QCOMPARE(m_spin->value(), 6);
    QCOMPARE(m_events, QStringList({ "started" }));
    QVERIFY(m_window->focus(m_window->other));
    QCOMPARE(m_events, QStringList({ "started", "record 6" }));

    m_spin->setWrapping(true);
    m_spin->setSingleStep(1);
    m_spin->setValue(10);
    QVERIFY(m_window->focus(m_spin));
    QVERIFY(VelaTest::wheel(m_spin, 1));
    QCOMPARE(m_spin->value(), 0);
    QTest::keyClick(m_spin, Qt::Key_Down);
    QCOMPARE(m_spin->value(), 10);
    QCOMPARE(m_events.count("started"), 2);
}

// A click on an arrow starts a session on press and records it on release.
void tst_QSpinBoxEx::arrowClickIsOneSession()
{
    m_spin->setRange(0, 100);
    m_spin->setValue(50);
    QTest::mouseClick(m_spin, Qt::LeftButton, Qt::NoModifier, m_spin->upArrow());
    QCOMPARE(m_spin->value(), 51);
    QCOMPARE(m_events.filter(QStringLiteral("record")), QStringList({ "record 51" }));
    QCOMPARE(m_events.first(), QStringLiteral("started"));
    QCOMPARE(m_events.last(), QStringLiteral("record 51"));

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
