#include "QKdPickContainer.h"
#include "QTransToolBtn.h"
#include "VelaTest.h"

#include <QPainter>
#include <QtTest>

#include <memory>

namespace {

// A checkable button showing an ellipse that fills its geometry.
QTransToolBtn *addButton(QWidget *parent, const QString &name, const QRect &geometry)
{
    QPixmap pixmap(geometry.size());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::darkCyan);
    painter.drawEllipse(pixmap.rect());
    painter.end();

    auto *button = new QTransToolBtn(parent);
    button->setObjectName(name);
    button->setCheckable(true);
    button->setGeometry(geometry);
    button->setIconSize(geometry.size());
    button->setIcon(QIcon(pixmap));
    return button;
}

using Names = std::vector<QString>;

// Points in the container: A covers x 0..99, B x 60..159, both ellipses.
const QPoint kBoth(80, 50);
const QPoint kOnlyA(20, 50);
const QPoint kOnlyB(140, 50);
const QPoint kClearOfABehindB(95, 12); // A's transparent corner, B's opaque part
const QPoint kNothing(185, 50);

} // namespace

class tst_QKdPickContainer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void buttonsInChildOrder();
    void clickPicksTopmostOpaqueButton_data();
    void clickPicksTopmostOpaqueButton();
    void releaseDecides();
    void multiSelect();
    void singleSelect();
    void keepSelectedButtons();
    void programmaticPick();
    void bulkStateAndEnabling();
    void styleSheetBackground();

private:
    // The names of the checked buttons among A and B, as "AB", "A", "B" or "".
    QString checked() const
    {
        return QString(m_a->isChecked() ? "A" : "") + (m_b->isChecked() ? "B" : "");
    }
    // The checked buttons, then the last pick and whether it left its button checked: "B|A-" is
    // B checked, A picked last and unchecked.
    QString state() const
    {
        return checked() + '|' + m_container->GetPickedBtnName()
            + (m_container->GetPickedBtnState() ? '+' : '-');
    }
    // Presses and releases as a user's mouse does: on the topmost widget under the pointer, the
    // release on the widget that got the press.
    void press(const QPoint &pos, Qt::MouseButton button = Qt::LeftButton)
    {
        QWidget *child = m_container->childAt(pos);
        m_target = child ? child : m_container.get();
        QTest::mousePress(m_target, button, Qt::NoModifier,
                          m_target->mapFrom(m_container.get(), pos));
    }
    void release(const QPoint &pos, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseRelease(m_target, button, Qt::NoModifier,
                            m_target->mapFrom(m_container.get(), pos));
    }
    void click(const QPoint &pos, Qt::MouseButton button = Qt::LeftButton)
    {
        press(pos, button);
        release(pos, button);
    }

    std::unique_ptr<QKdPickContainer> m_container;
    QTransToolBtn *m_a = nullptr;
    QTransToolBtn *m_b = nullptr;
    QWidget *m_target = nullptr;
    int m_signals = 0;
};

void tst_QKdPickContainer::init()
{
    m_container.reset(new QKdPickContainer);
    m_container->resize(200, 100);
    m_a = addButton(m_container.get(), QStringLiteral("A"), QRect(0, 0, 100, 100));
    m_b = addButton(m_container.get(), QStringLiteral("B"), QRect(60, 0, 100, 100));
    m_signals = 0;
    connect(m_container.get(), &QKdPickContainer::UpdateToolBtnState, [this] { ++m_signals; });
    m_container->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_container.get()));
}

void tst_QKdPickContainer::buttonsInChildOrder()
{
    new QWidget(m_container.get()); // not a shaped button: ignored
    QTransToolBtn *c = addButton(m_container.get(), QStringLiteral("C"), QRect(150, 0, 40, 40));
    QList<QTransToolBtn *> buttons { c }; // replaced, not appended to
    m_container->GetQTransToolBtns(buttons);
    QCOMPARE(buttons, QList<QTransToolBtn *>({ m_a, m_b, c }));

    m_b->raise(); // moves B to the end of the child list
    QCOMPARE(m_container->GetAllBtnNames(), Names({ "A", "C", "B" }));
}

void tst_QKdPickContainer::clickPicksTopmostOpaqueButton_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<bool>("aHidden");
    QTest::addColumn<QString>("picked"); // empty: no pick

    // B lies on top of A and gets the events, but the first child under the pointer wins.
    QTest::newRow("overlap") << kBoth << false << QStringLiteral("A");
    QTest::newRow("A transparent there") << kClearOfABehindB << false << QStringLiteral("B");
    QTest::newRow("A hidden") << kBoth << true << QStringLiteral("B");
    QTest::newRow("nothing there") << kNothing << false << QString();
}

void tst_QKdPickContainer::clickPicksTopmostOpaqueButton()
{
    QFETCH(QPoint, pos);
    QFETCH(bool, aHidden);
    QFETCH(QString, picked);
    m_a->setHidden(aHidden);

    click(pos);
    QCOMPARE(state(), picked + '|' + picked + (picked.isEmpty() ? '-' : '+'));
    QCOMPARE(m_signals, picked.isEmpty() ? 0 : 1);
}

void tst_QKdPickContainer::releaseDecides()
{
    click(kOnlyB, Qt::MiddleButton); // any mouse button picks
    click(QPoint(3, 3)); // inside A's rectangle, transparent
    press(kOnlyA);
    release(kNothing);
    QCOMPARE(m_signals, 1);
    QCOMPARE(state(), QStringLiteral("B|B+"));

    press(kNothing);
    release(kOnlyA);
    QCOMPARE(checked(), QStringLiteral("AB"));
    // Presses, double-clicks and moves pick nothing.
    press(kOnlyA);
    QTest::mouseDClick(m_a, Qt::LeftButton, Qt::NoModifier, kOnlyA);
    QTest::mouseMove(m_a, kOnlyA);
    QCOMPARE(m_signals, 2);
    QCOMPARE(checked(), QStringLiteral("AB"));
}

void tst_QKdPickContainer::multiSelect()
{
    click(kOnlyA);
    click(kOnlyA); // the only selected button stays selected
    QCOMPARE(checked(), QStringLiteral("A"));

    click(kOnlyB);
    QCOMPARE(m_container->GetSelectedBtnNames(), Names({ "A", "B" }));
    click(kOnlyA); // another one is still selected: A may go
    QCOMPARE(state(), QStringLiteral("B|A-"));
    click(kOnlyB);
    QCOMPARE(m_container->GetSelectedBtnNames(), Names({ "B" }));
    QCOMPARE(m_signals, 5);

    // Without the keep-last-one rule the last selected button may go too.
    m_container->SetKeepLastOneBtn(false);
    click(kOnlyB);
    QCOMPARE(state(), QStringLiteral("|B-"));
    QCOMPARE(m_signals, 6);
}

void tst_QKdPickContainer::singleSelect()
{
    m_container->SetSingleSelect(true);
    click(kOnlyA);
    click(kOnlyB);
    click(kOnlyB); // a click never unchecks
    QCOMPARE(state(), QStringLiteral("B|B+"));

    // Buttons checked by other means are unchecked by the next pick.
    m_a->setChecked(true);
    click(kOnlyB);
    QCOMPARE(checked(), QStringLiteral("B"));
    QCOMPARE(m_signals, 4);
}

void tst_QKdPickContainer::keepSelectedButtons()
{
    m_container->SetKeepSelectedBtns({ QStringLiteral("B") });
    click(kOnlyA);
    QCOMPARE(checked(), QStringLiteral("AB")); // B re-checked by the click

    // B never counts as selected, so A is the last one and stays; a click on B keeps it too.
    click(kOnlyA);
    click(kOnlyB);
    QCOMPARE(checked(), QStringLiteral("AB"));

    m_container->SetSingleSelect(true);
    click(kOnlyA);
    QCOMPARE(checked(), QStringLiteral("AB")); // single-select leaves kept buttons alone

    m_container->ClearKeepSelectedBtns();
    click(kOnlyA);
    QCOMPARE(checked(), QStringLiteral("A"));
    QCOMPARE(m_signals, 5);
}

void tst_QKdPickContainer::programmaticPick()
{
    // The picked state is left as it was by a programmatic pick, and unchecking is no pick.
    QVERIFY(m_container->setTransToolBtnState(QStringLiteral("A"), true));
    QCOMPARE(state(), QStringLiteral("A|A-"));
    QVERIFY(m_container->setTransToolBtnState(QStringLiteral("B"), false));
    QCOMPARE(state(), QStringLiteral("A|A-"));

    m_container->SetSingleSelect(true);
    QVERIFY(m_container->setTransToolBtnState(QStringLiteral("B"), true));
    QCOMPARE(state(), QStringLiteral("B|B-"));

    // An unknown name still applies single-select to all.
    QVERIFY(m_container->setTransToolBtnState(QStringLiteral("nose"), true));
    QCOMPARE(checked(), QString());
    QVERIFY(!m_container->setTransToolBtnState(QString(), true));
    QCOMPARE(m_signals, 0);

    QKdPickContainer empty;
    QVERIFY(!empty.setTransToolBtnState(QStringLiteral("A"), true));
}

void tst_QKdPickContainer::bulkStateAndEnabling()
{
    m_container->SetAllBtnsOn();
    QCOMPARE(checked(), QStringLiteral("AB"));
    m_container->SetAllBtnsOff();
    QCOMPARE(checked(), QString());
    m_a->setChecked(true);
    m_container->SetAllBtnsInvert();
    QCOMPARE(checked(), QStringLiteral("B"));
    m_container->SetBtnsState({ QStringLiteral("A"), QStringLiteral("nose") }, true);
    m_container->SetBtnsState({ QStringLiteral("B") }, false);
    QCOMPARE(m_container->GetSelectedBtnNames(), Names({ "A" }));
    QCOMPARE(m_signals, 0);
    QVERIFY(m_container->GetPickedBtnName().isEmpty());

    m_container->SetAllBtnsOn();
    m_container->SetBtnsEnable({ QStringLiteral("A") }, false);
    QVERIFY(!m_a->isEnabled());
    QCOMPARE(m_container->GetSelectedBtnNames(), Names({ "B" })); // disabled ones do not count

    m_container->UpateBtnStateByMode(false, {});
    QVERIFY(m_a->isEnabled() && m_b->isEnabled());
    m_container->UpateBtnStateByMode(true, { QStringLiteral("B") });
    QVERIFY(!m_a->isEnabled() && m_b->isEnabled());
}

void tst_QKdPickContainer::styleSheetBackground()
{
    m_container->setStyleSheet(QStringLiteral("QKdPickContainer { background: #282828; }"));
    const QImage shot = m_container->grab().toImage();
    QCOMPARE(shot.pixelColor(kNothing), QColor(0x28, 0x28, 0x28));
    QCOMPARE(shot.pixelColor(QPoint(2, 2)), QColor(0x28, 0x28, 0x28)); // around A's ellipse
}

VELA_TEST_CLASS(tst_QKdPickContainer)
#include "tst_QKdPickContainer.moc"
