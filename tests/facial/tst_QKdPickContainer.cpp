#include "QKdPickContainer.h"
#include "QTransToolBtn.h"
#include "VelaTest.h"

#include <QPainter>
#include <QPointer>
#include <QtTest>

namespace {

// Delivers presses and releases as a user's mouse does: to the topmost widget under the pointer,
// the release to the widget that got the press.
class Mouse
{
public:
    explicit Mouse(QWidget *container)
        : m_container(container)
    { }

    void press(const QPoint &pos, Qt::MouseButton button = Qt::LeftButton)
    {
        QWidget *child = m_container->childAt(pos);
        m_target = child ? child : m_container;
        QTest::mousePress(m_target, button, Qt::NoModifier, m_target->mapFrom(m_container, pos));
    }
    void release(const QPoint &pos, Qt::MouseButton button = Qt::LeftButton)
    {
        QWidget *target = m_target ? m_target.data() : m_container;
        QTest::mouseRelease(target, button, Qt::NoModifier, target->mapFrom(m_container, pos));
        m_target = nullptr;
    }
    void click(const QPoint &pos, Qt::MouseButton button = Qt::LeftButton)
    {
        press(pos, button);
        release(pos, button);
    }

private:
    QWidget *m_container;
    QPointer<QWidget> m_target;
};

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
    void cleanup();
    void defaults();
    void buttonsInChildOrder();
    void overlappingButtonsFirstChildWins();
    void transparentPartPassesToNext();
    void hiddenOrDisabledButtonsAreSkipped_data();
    void hiddenOrDisabledButtonsAreSkipped();
    void releaseOverNothing();
    void anyMouseButtonPicks();
    void multiSelectKeepsLastOne();
    void multiSelectWithoutKeepLastOne();
    void singleSelect();
    void keepSelectedButtons();
    void programmaticPick();
    void programmaticPickWithoutButtons();
    void bulkStateChanges();
    void enabling();
    void cursor();
    void styleSheetBackground();

private:
    QKdPickContainer *m_container = nullptr;
    QTransToolBtn *m_a = nullptr;
    QTransToolBtn *m_b = nullptr;
    int m_signals = 0;
};

void tst_QKdPickContainer::init()
{
    m_container = new QKdPickContainer;
    m_container->resize(200, 100);
    m_a = addButton(m_container, QStringLiteral("A"), QRect(0, 0, 100, 100));
    m_b = addButton(m_container, QStringLiteral("B"), QRect(60, 0, 100, 100));
    m_signals = 0;
    connect(m_container, &QKdPickContainer::UpdateToolBtnState, [this] { ++m_signals; });
    m_container->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_container));
}

void tst_QKdPickContainer::cleanup()
{
    delete m_container;
    m_container = nullptr;
}

void tst_QKdPickContainer::defaults()
{
    QKdPickContainer container;
    QVERIFY(!container.IsSingleSelect());
    QVERIFY(!container.GetPickedBtnState());
    QVERIFY(container.GetPickedBtnName().isEmpty());
    QVERIFY(container.GetAllBtnNames().empty());
    QVERIFY(container.GetSelectedBtnNames().empty());
    container.SetSingleSelect(true);
    QVERIFY(container.IsSingleSelect());
}

void tst_QKdPickContainer::buttonsInChildOrder()
{
    new QWidget(m_container); // not a shaped button: ignored
    QTransToolBtn *c = addButton(m_container, QStringLiteral("C"), QRect(150, 0, 40, 40));
    QList<QTransToolBtn *> buttons { c }; // replaced, not appended to
    m_container->GetQTransToolBtns(buttons);
    QCOMPARE(buttons, QList<QTransToolBtn *>({ m_a, m_b, c }));
    QCOMPARE(m_container->GetAllBtnNames(), Names({ "A", "B", "C" }));

    m_b->raise(); // moves B to the end of the child list
    QCOMPARE(m_container->GetAllBtnNames(), Names({ "A", "C", "B" }));
}

void tst_QKdPickContainer::overlappingButtonsFirstChildWins()
{
    QCOMPARE(m_container->childAt(kBoth), m_b); // B is on top and gets the events
    Mouse(m_container).click(kBoth);
    QVERIFY(m_a->isChecked());
    QVERIFY(!m_b->isChecked());
    QCOMPARE(m_container->GetPickedBtnName(), QStringLiteral("A"));
    QVERIFY(m_container->GetPickedBtnState());
    QCOMPARE(m_signals, 1);
}

void tst_QKdPickContainer::transparentPartPassesToNext()
{
    Mouse(m_container).click(kClearOfABehindB);
    QVERIFY(!m_a->isChecked());
    QVERIFY(m_b->isChecked());
    QCOMPARE(m_container->GetPickedBtnName(), QStringLiteral("B"));
    QCOMPARE(m_signals, 1);
}

void tst_QKdPickContainer::hiddenOrDisabledButtonsAreSkipped_data()
{
    QTest::addColumn<bool>("hide");
    QTest::newRow("hidden") << true;
    QTest::newRow("disabled") << false;
}

void tst_QKdPickContainer::hiddenOrDisabledButtonsAreSkipped()
{
    QFETCH(bool, hide);
    if (hide)
        m_a->hide();
    else
        m_a->setEnabled(false);

    Mouse mouse(m_container);
    mouse.click(kBoth);
    QVERIFY(!m_a->isChecked());
    QVERIFY(m_b->isChecked());
    QCOMPARE(m_container->GetPickedBtnName(), QStringLiteral("B"));

    mouse.click(kOnlyA); // nothing else there
    QCOMPARE(m_signals, 1);
    QVERIFY(!m_a->isChecked());
}

void tst_QKdPickContainer::releaseOverNothing()
{
    Mouse mouse(m_container);
    mouse.click(kOnlyB);
    QCOMPARE(m_signals, 1);

    mouse.click(kNothing);
    mouse.click(QPoint(3, 3)); // inside A's rectangle, transparent
    mouse.press(kOnlyA);
    mouse.release(kNothing); // the release decides
    QCOMPARE(m_signals, 1);
    QCOMPARE(m_container->GetPickedBtnName(), QStringLiteral("B"));
    QVERIFY(m_b->isChecked());
    QVERIFY(!m_a->isChecked());

    mouse.press(kNothing);
    mouse.release(kOnlyA);
    QCOMPARE(m_signals, 2);
    QVERIFY(m_a->isChecked());
}

void tst_QKdPickContainer::anyMouseButtonPicks()
{
    Mouse mouse(m_container);
    mouse.click(kOnlyA, Qt::RightButton);
    QVERIFY(m_a->isChecked());
    mouse.click(kOnlyB, Qt::MiddleButton);
    QVERIFY(m_b->isChecked());
    QCOMPARE(m_signals, 2);
    // Presses, double-clicks and moves pick nothing.
    mouse.press(kOnlyA);
    QTest::mouseDClick(m_a, Qt::LeftButton, Qt::NoModifier, kOnlyA);
    QTest::mouseMove(m_a, kOnlyA);
    QCOMPARE(m_signals, 2);
    QVERIFY(m_a->isChecked());
}

void tst_QKdPickContainer::multiSelectKeepsLastOne()
{
    Mouse mouse(m_container);
    mouse.click(kOnlyA);
    QVERIFY(m_a->isChecked());

    mouse.click(kOnlyA); // the only selected button stays selected
    QVERIFY(m_a->isChecked());
    QCOMPARE(m_container->GetPickedBtnName(), QStringLiteral("A"));
    QCOMPARE(m_signals, 2);

    mouse.click(kOnlyB);
    QCOMPARE(m_container->GetSelectedBtnNames(), Names({ "A", "B" }));
    mouse.click(kOnlyA); // another one is still selected: A may go
    QVERIFY(!m_a->isChecked());
    QVERIFY(!m_container->GetPickedBtnState());
    QCOMPARE(m_container->GetSelectedBtnNames(), Names({ "B" }));
    mouse.click(kOnlyB);
    QVERIFY(m_b->isChecked());
    QCOMPARE(m_container->GetSelectedBtnNames(), Names({ "B" }));
    QCOMPARE(m_signals, 5);
}

void tst_QKdPickContainer::multiSelectWithoutKeepLastOne()
{
    m_container->SetKeepLastOneBtn(false);
    Mouse mouse(m_container);
    mouse.click(kOnlyA);
    mouse.click(kOnlyA);
    QVERIFY(!m_a->isChecked());
    QVERIFY(m_container->GetSelectedBtnNames().empty());
    QCOMPARE(m_container->GetPickedBtnName(), QStringLiteral("A"));
    QVERIFY(!m_container->GetPickedBtnState());
    QCOMPARE(m_signals, 2);
}

void tst_QKdPickContainer::singleSelect()
{
    m_container->SetSingleSelect(true);
    Mouse mouse(m_container);
    mouse.click(kOnlyA);
    mouse.click(kOnlyB);
    QVERIFY(!m_a->isChecked());
    QVERIFY(m_b->isChecked());
    QCOMPARE(m_container->GetPickedBtnName(), QStringLiteral("B"));

    mouse.click(kOnlyB); // a click never unchecks
    QVERIFY(m_b->isChecked());
    QVERIFY(m_container->GetPickedBtnState());
    QCOMPARE(m_container->GetSelectedBtnNames(), Names({ "B" }));

    // Buttons checked by other means are unchecked by the next pick.
    m_a->setChecked(true);
    mouse.click(kOnlyB);
    QVERIFY(!m_a->isChecked());
    QCOMPARE(m_signals, 4);
}

void tst_QKdPickContainer::keepSelectedButtons()
{
    m_container->SetKeepSelectedBtns({ QStringLiteral("B") });
    Mouse mouse(m_container);
    mouse.click(kOnlyA);
    QVERIFY(m_a->isChecked());
    QVERIFY(m_b->isChecked()); // re-checked by the click
    QCOMPARE(m_container->GetSelectedBtnNames(), Names({ "A", "B" }));

    // B never counts as selected, so A is the last one and stays.
    mouse.click(kOnlyA);
    QVERIFY(m_a->isChecked());
    // A click on B does not uncheck it either.
    mouse.click(kOnlyB);
    QVERIFY(m_b->isChecked());

    m_container->SetSingleSelect(true);
    mouse.click(kOnlyA);
    QVERIFY(m_b->isChecked()); // single-select leaves kept buttons alone

    m_container->ClearKeepSelectedBtns();
    mouse.click(kOnlyA);
    QVERIFY(!m_b->isChecked());
    QCOMPARE(m_signals, 5);
}

void tst_QKdPickContainer::programmaticPick()
{
    QVERIFY(m_container->setTransToolBtnState(QStringLiteral("A"), true));
    QVERIFY(m_a->isChecked());
    QCOMPARE(m_container->GetPickedBtnName(), QStringLiteral("A"));
    QVERIFY(!m_container->GetPickedBtnState()); // not changed by the programmatic pick

    QVERIFY(m_container->setTransToolBtnState(QStringLiteral("B"), false));
    QCOMPARE(m_container->GetPickedBtnName(), QStringLiteral("A")); // unchecking is no pick

    m_container->SetSingleSelect(true);
    QVERIFY(m_container->setTransToolBtnState(QStringLiteral("B"), true));
    QVERIFY(!m_a->isChecked());
    QVERIFY(m_b->isChecked());
    QCOMPARE(m_container->GetPickedBtnName(), QStringLiteral("B"));

    // An unknown name still applies single-select to all.
    m_a->setChecked(true);
    QVERIFY(m_container->setTransToolBtnState(QStringLiteral("nose"), true));
    QVERIFY(!m_a->isChecked());
    QVERIFY(!m_b->isChecked());
    QVERIFY(!m_container->setTransToolBtnState(QString(), true));
    QCOMPARE(m_signals, 0);
}

void tst_QKdPickContainer::programmaticPickWithoutButtons()
{
    QKdPickContainer empty;
    QVERIFY(!empty.setTransToolBtnState(QStringLiteral("A"), true));
    QVERIFY(empty.GetPickedBtnName().isEmpty());
    empty.SetAllBtnsOn();
    empty.SetBtnsState({ QStringLiteral("A") }, true);
    QVERIFY(empty.GetSelectedBtnNames().empty());
}

void tst_QKdPickContainer::bulkStateChanges()
{
    m_container->SetAllBtnsOn();
    QVERIFY(m_a->isChecked() && m_b->isChecked());
    m_container->SetAllBtnsOff();
    QVERIFY(!m_a->isChecked() && !m_b->isChecked());
    m_a->setChecked(true);
    m_container->SetAllBtnsInvert();
    QVERIFY(!m_a->isChecked() && m_b->isChecked());

    m_container->SetBtnsState({ QStringLiteral("A"), QStringLiteral("nose") }, true);
    QVERIFY(m_a->isChecked());
    m_container->SetBtnsState({ QStringLiteral("A"), QStringLiteral("B") }, false);
    QVERIFY(!m_a->isChecked() && !m_b->isChecked());
    QVERIFY(m_container->GetSelectedBtnNames().empty());
    QCOMPARE(m_signals, 0);
    QVERIFY(m_container->GetPickedBtnName().isEmpty());
}

void tst_QKdPickContainer::enabling()
{
    m_container->SetAllBtnsOn();
    m_container->SetBtnsEnable({ QStringLiteral("A") }, false);
    QVERIFY(!m_a->isEnabled());
    QVERIFY(m_b->isEnabled());
    QCOMPARE(m_container->GetSelectedBtnNames(), Names({ "B" })); // disabled ones do not count

    m_container->UpateBtnStateByMode(false, {});
    QVERIFY(m_a->isEnabled() && m_b->isEnabled());
    m_container->UpateBtnStateByMode(true, {});
    QVERIFY(!m_a->isEnabled() && !m_b->isEnabled());
    m_container->UpateBtnStateByMode(true, { QStringLiteral("B") });
    QVERIFY(!m_a->isEnabled() && m_b->isEnabled());
    m_container->SetBtnsEnable({ QStringLiteral("A"), QStringLiteral("B") }, true);
    QVERIFY(m_a->isEnabled() && m_b->isEnabled());
}

void tst_QKdPickContainer::cursor()
{
    m_container->SetCursor(QCursor(Qt::PointingHandCursor));
    QCOMPARE(m_a->cursor().shape(), Qt::PointingHandCursor);
    QCOMPARE(m_b->cursor().shape(), Qt::PointingHandCursor);
    QCOMPARE(m_container->cursor().shape(), Qt::ArrowCursor);
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
