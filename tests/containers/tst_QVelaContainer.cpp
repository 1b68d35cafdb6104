#include "QTransToolBtn.h"
#include "QVelaContainer.h"
#include "VelaTest.h"

#include <QPainter>
#include <QtTest>

namespace {

// A press at `at` and a release at `to` (default: the same place), delivered as a user's mouse
// does: to the topmost widget under the press.
void click(QWidget *container, const QPoint &at, Qt::MouseButton button = Qt::LeftButton,
           QPoint to = QPoint(-1, -1))
{
    QWidget *target = container->childAt(at) ? container->childAt(at) : container;
    QTest::mousePress(target, button, Qt::NoModifier, target->mapFrom(container, at));
    if (to.x() < 0)
        to = at;
    QTest::mouseRelease(target, button, Qt::NoModifier, target->mapFrom(container, to));
}

// A checkable button showing an ellipse that fills its geometry.
QTransToolBtn *addButton(QWidget *parent, const QString &name, const QRect &geometry)
{
    QPixmap pixmap(geometry.size());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::darkMagenta);
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

// Counts the presses that reach QWidget's own handlers.
class CountingContainer : public QVelaContainer
{
public:
    using QVelaContainer::QVelaContainer;
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        ++presses;
        QVelaContainer::mousePressEvent(event);
    }
};

// "b" is the first child and lies under "a"; the overlap is x 60..99.
const QPoint kBoth(80, 50);
const QPoint kOnlyB(20, 50);
const QPoint kOnlyA(140, 50);
const QPoint kBehindTransparentA(62, 4); // b's opaque part, a's transparent corner
const QPoint kNothing(185, 50);

} // namespace

class tst_QVelaContainer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { delete m_container; }
    void buttonMap();
    void clicks();
    void exclusiveMode();
    void passOnFlag();
    void deletedButtonsLeaveTheMap();

private:
    CountingContainer *m_container = nullptr;
    QTransToolBtn *m_a = nullptr;
    QTransToolBtn *m_b = nullptr;
    QStringList m_events;
};

void tst_QVelaContainer::init()
{
    m_container = new CountingContainer;
    m_container->resize(200, 100);
    m_b = addButton(m_container, QStringLiteral("b"), QRect(0, 0, 100, 100));
    m_a = addButton(m_container, QStringLiteral("a"), QRect(60, 0, 100, 100));
    m_container->InitBtnMap(false);
    m_events.clear();
    connect(m_container, &QVelaContainer::BtnClicked,
            [this](QAbstractButton *button) { m_events << "BtnClicked:" + button->objectName(); });
    connect(m_container, &QVelaContainer::BtnRightClicked, [this](QAbstractButton *button) {
        m_events << "BtnRightClicked:" + button->objectName();
    });
    connect(m_container, &QVelaContainer::ChangeToolBtnState,
            [this](const QList<QString> &names, const QList<bool> &states) {
                QStringList changes;
                for (int i = 0; i < names.size(); ++i)
                    changes << names.at(i) + (states.value(i) ? "=on" : "=off");
                m_events << "ChangeToolBtnState:" + changes.join(',');
            });
    connect(m_container, &QVelaContainer::NoBtnClicked, [this] { m_events << "NoBtnClicked"; });
    m_container->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_container));
}

void tst_QVelaContainer::buttonMap()
{
    QList<QTransToolBtn *> buttons { m_b, m_b, m_b };
    m_container->GetQTransToolBtns(buttons);
    QCOMPARE(buttons, QList<QTransToolBtn *>({ m_a, m_b }));

    // A later child with the same name replaces the earlier one.
    QTransToolBtn *second = addButton(m_container, QStringLiteral("a"), QRect(150, 60, 20, 20));
    m_container->InitBtnMap(false);
    m_container->GetQTransToolBtns(buttons);
    QCOMPARE(buttons, QList<QTransToolBtn *>({ second, m_b }));

    // The container paints its style sheet's background.
    m_container->setStyleSheet(QStringLiteral("QVelaContainer { background: #1c1c1c; }"));
    QCOMPARE(m_container->grab().toImage().pixelColor(kNothing), QColor(0x1c, 0x1c, 0x1c));
}

void tst_QVelaContainer::clicks()
{
    // A click on a transparent part of the top button passes on to the one below.
    QCOMPARE(m_container->childAt(kBehindTransparentA), m_a);
    click(m_container, kBehindTransparentA);
    // Where both are opaque, whichever lies on top, "a" comes first by name.
    m_a->stackUnder(m_b);
    QCOMPARE(m_container->childAt(kBoth), m_b);
    click(m_container, kBoth);
    click(m_container, kOnlyA);
    // Press and release on different buttons, or a release after a press over nothing: no click.
    click(m_container, kOnlyA, Qt::LeftButton, kOnlyB);
    click(m_container, kNothing, Qt::LeftButton, kOnlyA);
    QCOMPARE(m_events,
             QStringList({ "BtnClicked:b", "ChangeToolBtnState:b=on", "BtnClicked:a",
                           "ChangeToolBtnState:a=on", "BtnClicked:a", "ChangeToolBtnState:a=off",
                           "NoBtnClicked", "NoBtnClicked" }));

    m_events.clear();
    click(m_container, kOnlyA, Qt::RightButton);
    click(m_container, kOnlyA, Qt::RightButton, kOnlyB);
    QCOMPARE(m_events, QStringList({ "BtnRightClicked:a", "NoBtnClicked" }));

    // A double click goes to the button hit, through a transparent part too.
    m_events.clear();
    QStringList doubles;
    connect(m_a, &QTransToolBtn::doubleClicked, [&] { doubles << "a"; });
    connect(m_b, &QTransToolBtn::doubleClicked, [&] { doubles << "b"; });
    QTest::mouseDClick(m_a, Qt::LeftButton, Qt::NoModifier,
                       m_a->mapFrom(m_container, kBehindTransparentA));
    QTest::mouseDClick(m_container, Qt::LeftButton, Qt::NoModifier, kNothing);
    QCOMPARE(doubles, QStringList({ "b" }));
    QVERIFY(m_events.isEmpty());
}

void tst_QVelaContainer::exclusiveMode()
{
    m_container->InitBtnMap(true);
    click(m_container, kOnlyA);
    click(m_container, kOnlyB);
    click(m_container, kOnlyB); // the current button unchecks itself
    click(m_container, kOnlyA); // with no current button, nothing else is unchecked
    QCOMPARE(
        m_events,
        QStringList({ "BtnClicked:a", "ChangeToolBtnState:a=on", "BtnClicked:b",
                      "ChangeToolBtnState:b=on,a=off", "BtnClicked:b", "ChangeToolBtnState:b=off",
                      "BtnClicked:a", "ChangeToolBtnState:a=on" }));

    // Set by the host: no signal, and "a" stays the current button, so clicking "b" off
    // unchecks "a" as well.
    m_events.clear();
    QVERIFY(m_container->setTransToolBtnState(QStringLiteral("b"), true));
    QVERIFY(!m_container->setTransToolBtnState(QStringLiteral("nose"), true));
    QVERIFY(!m_container->setTransToolBtnState(QString(), true));
    QVERIFY(!QVelaContainer().setTransToolBtnState(QStringLiteral("a"), true));
    QVERIFY(m_events.isEmpty());
    click(m_container, kOnlyB);
    QCOMPARE(m_events, QStringList({ "BtnClicked:b", "ChangeToolBtnState:b=off,a=off" }));
}

void tst_QVelaContainer::passOnFlag()
{
    QTest::mousePress(m_container, Qt::LeftButton, Qt::NoModifier, kNothing);
    QTest::mousePress(m_a, Qt::LeftButton, Qt::NoModifier, QPoint(80, 50));
    QCOMPARE(m_container->presses, 0);

    m_container->setMessageToChildState(true);
    QTest::mousePress(m_container, Qt::LeftButton, Qt::NoModifier, kNothing);
    QTest::mousePress(m_a, Qt::LeftButton, Qt::NoModifier, QPoint(80, 50));
    QCOMPARE(m_container->presses, 2);
    QTest::mouseRelease(m_a, Qt::LeftButton, Qt::NoModifier, QPoint(80, 50));
    QVERIFY(m_a->isChecked()); // still handled first
}

void tst_QVelaContainer::deletedButtonsLeaveTheMap()
{
    m_container->InitBtnMap(true);
    click(m_container, kOnlyA); // "a" is current
    delete m_a;
    m_a = nullptr;

    QList<QTransToolBtn *> buttons;
    m_container->GetQTransToolBtns(buttons);
    QCOMPARE(buttons, QList<QTransToolBtn *>({ m_b }));

    m_events.clear();
    click(m_container, kOnlyA);
    click(m_container, kOnlyB);
    QCOMPARE(m_events, QStringList({ "NoBtnClicked", "BtnClicked:b", "ChangeToolBtnState:b=on" }));
    VelaTest::mouseMove(m_container, kOnlyA, Qt::NoButton);
}

VELA_TEST_CLASS(tst_QVelaContainer)
#include "tst_QVelaContainer.moc"
