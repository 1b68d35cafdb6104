#include "QKdPickContainer.h"
#include "QTransToolBtn.h"
#include "VelaTest.h"

#include <QPainter>
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
        QTest::mouseRelease(m_target, button, Qt::NoModifier, m_target->mapFrom(m_container, pos));
    }
    void click(const QPoint &pos, Qt::MouseButton button = Qt::LeftButton)
    {
        press(pos, button);
        release(pos, button);
    }

private:
    QWidget *m_container;
    QWidget *m_target = nullptr;
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

// The names of the checked buttons among A and B, as "AB", "A", "B" or "".
QString checked(const QTransToolBtn *a, const QTransToolBtn *b)
{
    return QString(a->isChecked() ? "A" : "") + (b->isChecked() ? "B" : "");
}

} // namespace

class tst_QKdPickContainer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void buttonsInChildOrder();
    void clickPicksTopmostOpaqueButton_data();
    void clickPicksTopmostOpaqueButton();
    void releaseDecides();
    void multiSelect();
    void multiSelectWithoutKeepLastOne();
    void singleSelect();
    void keepSelectedButtons();
    void programmaticPick();
    void bulkStateChanges();
    void enabling();
    void styleSheetBackground();

private:
    QString checked() const { return ::checked(m_a, m_b); }

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

void tst_QKdPickContainer::buttonsInChildOrder()
{
    new QWidget(m_container); // not a shaped button: ignored
    QTransToolBtn *c = addButton(m_container, QStringLiteral("C"), QRect(150, 0, 40, 40));
    QList<QTransToolBtn *> buttons { c }; // replaced, not appended to
    m_container->GetQTransToolBtns(buttons);
    QCOMPARE(buttons, QList<QTransToolBtn *>({ m_a, m_b, c }));

    m_b->raise(); // moves B to the end of the child list
    QCOMPARE(m_container->GetAllBtnNames(), Names({ "A", "C", "B" }));
}

void tst_QKdPickContainer::clickPicksTopmostOpaqueButton_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<QString>("aState");
    QTest::addColumn<QString>("picked"); // empty: no pick

    // B lies on top of A and gets the events, but the first child under the pointer wins.
    QTest::newRow("overlap") << kBoth << QString() << QStringLiteral("A");
    QTest::newRow("A transparent there") << kClearOfABehindB << QString() << QStringLiteral("B");
    QTest::newRow("A hidden") << kBoth << QStringLiteral("hidden") << QStringLiteral("B");
    QTest::newRow("A disabled") << kBoth << QStringLiteral("disabled") << QStringLiteral("B");
    QTest::newRow("nothing there") << kNothing << QString() << QString();
}

void tst_QKdPickContainer::clickPicksTopmostOpaqueButton()
{
    QFETCH(QPoint, pos);
    QFETCH(QString, aState);
    QFETCH(QString, picked);
    m_a->setHidden(aState == QLatin1String("hidden"));
    m_a->setEnabled(aState != QLatin1String("disabled"));

    Mouse(m_container).click(pos);
    QCOMPARE(checked(), picked);
    QCOMPARE(m_container->GetPickedBtnName(), picked);
    QCOMPARE(m_container->GetPickedBtnState(), !picked.isEmpty());
    QCOMPARE(m_signals, picked.isEmpty() ? 0 : 1);
}

void tst_QKdPickContainer::releaseDecides()
{
    Mouse mouse(m_container);
    mouse.click(kOnlyB, Qt::MiddleButton); // any mouse button picks
    mouse.click(QPoint(3, 3)); // inside A's rectangle, transparent
    mouse.press(kOnlyA);
    mouse.release(kNothing);
    QCOMPARE(m_signals, 1);
    QCOMPARE(m_container->GetPickedBtnName(), QStringLiteral("B"));
    QCOMPARE(checked(), QStringLiteral("B"));

    mouse.press(kNothing);
    mouse.release(kOnlyA);
    QCOMPARE(checked(), QStringLiteral("AB"));
    // Presses, double-clicks and moves pick nothing.
    mouse.press(kOnlyA);
    QTest::mouseDClick(m_a, Qt::LeftButton, Qt::NoModifier, kOnlyA);
    QTest::mouseMove(m_a, kOnlyA);
    QCOMPARE(m_signals, 2);
    QCOMPARE(checked(), QStringLiteral("AB"));
}

void tst_QKdPickContainer::multiSelect()
{
    Mouse mouse(m_container);
    mouse.click(kOnlyA);
    mouse.click(kOnlyA); // the only selected button stays selected
    QCOMPARE(checked(), QStringLiteral("A"));

    mouse.click(kOnlyB);
    QCOMPARE(m_container->GetSelectedBtnNames(), Names({ "A", "B" }));
    mouse.click(kOnlyA); // another one is still selected: A may go
    QCOMPARE(checked(), QStringLiteral("B"));
    QCOMPARE(m_container->GetPickedBtnName(), QStringLiteral("A"));
    QVERIFY(!m_container->GetPickedBtnState());
    mouse.click(kOnlyB);
    QCOMPARE(m_container->GetSelectedBtnNames(), Names({ "B" }));
    QCOMPARE(m_signals, 5);
}

void tst_QKdPickContainer::multiSelectWithoutKeepLastOne()
{
    m_container->SetKeepLastOneBtn(false);
    Mouse mouse(m_container);
    mouse.click(kOnlyA);
    mouse.click(kOnlyA);
    QCOMPARE(checked(), QString());
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
    mouse.click(kOnlyB); // a click never unchecks
    QCOMPARE(checked(), QStringLiteral("B"));
    QCOMPARE(m_container->GetPickedBtnName(), QStringLiteral("B"));
    QVERIFY(m_container->GetPickedBtnState());

    // Buttons checked by other means are unchecked by the next pick.
    m_a->setChecked(true);
    mouse.click(kOnlyB);
    QCOMPARE(checked(), QStringLiteral("B"));
    QCOMPARE(m_signals, 4);
}

void tst_QKdPickContainer::keepSelectedButtons()
{
    m_container->SetKeepSelectedBtns({ QStringLiteral("B") });
    Mouse mouse(m_container);
    mouse.click(kOnlyA);
    QCOMPARE(checked(), QStringLiteral("AB")); // B re-checked by the click
    QCOMPARE(m_container->GetSelectedBtnNames(), Names({ "A", "B" }));

    // B never counts as selected, so A is the last one and stays; a click on B keeps it too.
    mouse.click(kOnlyA);
    mouse.click(kOnlyB);
    QCOMPARE(checked(), QStringLiteral("AB"));

    m_container->SetSingleSelect(true);
    mouse.click(kOnlyA);
    QCOMPARE(checked(), QStringLiteral("AB")); // single-select leaves kept buttons alone

    m_container->ClearKeepSelectedBtns();
    mouse.click(kOnlyA);
    QCOMPARE(checked(), QStringLiteral("A"));
    QCOMPARE(m_signals, 5);
}

void tst_QKdPickContainer::programmaticPick()
{
    QVERIFY(m_container->setTransToolBtnState(QStringLiteral("A"), true));
    QCOMPARE(checked(), QStringLiteral("A"));
    QCOMPARE(m_container->GetPickedBtnName(), QStringLiteral("A"));
    QVERIFY(!m_container->GetPickedBtnState()); // not changed by the programmatic pick

    QVERIFY(m_container->setTransToolBtnState(QStringLiteral("B"), false));
    QCOMPARE(m_container->GetPickedBtnName(), QStringLiteral("A")); // unchecking is no pick

    m_container->SetSingleSelect(true);
    QVERIFY(m_container->setTransToolBtnState(QStringLiteral("B"), true));
    QCOMPARE(checked(), QStringLiteral("B"));
    QCOMPARE(m_container->GetPickedBtnName(), QStringLiteral("B"));

    // An unknown name still applies single-select to all.
    QVERIFY(m_container->setTransToolBtnState(QStringLiteral("nose"), true));
    QCOMPARE(checked(), QString());
    QVERIFY(!m_container->setTransToolBtnState(QString(), true));
    QCOMPARE(m_signals, 0);

    QKdPickContainer empty;
    QVERIFY(!empty.setTransToolBtnState(QStringLiteral("A"), true));
    QVERIFY(empty.GetPickedBtnName().isEmpty());
}

void tst_QKdPickContainer::bulkStateChanges()
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
}

void tst_QKdPickContainer::enabling()
{
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
