#include "QTransToolBtn.h"
#include "VelaTest.h"

#include <QPainter>
#include <QtTest>

namespace {

// An ellipse filling size, with transparent surroundings.
QPixmap ellipsePixmap(const QSize &size, const QColor &color)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QRect(QPoint(0, 0), size));
    return pixmap;
}

QPixmap solidPixmap(const QSize &size, const QColor &color)
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    return pixmap;
}

// Exposes the protected hit tests.
class ProbeButton : public QTransToolBtn
{
public:
    using QTransToolBtn::hitButton;
    using QTransToolBtn::IsInTransArea;
    using QTransToolBtn::QTransToolBtn;
};

// A parent that records the mouse events reaching it.
class EventSink : public QWidget
{
public:
    QList<QEvent::Type> received;

protected:
    bool event(QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
            received.append(event->type());
            return true;
        default:
            return QWidget::event(event);
        }
    }
};

// A shown 100 x 100 parent holding one 60 x 60 checkable button named "jaw" at (10, 10), showing
// a 40 x 40 ellipse.
template<class Parent = QWidget, class Button = QTransToolBtn>
struct IconButtonWindow
{
    Parent parent;
    Button button { &parent };

    IconButtonWindow()
    {
        parent.resize(100, 100);
        button.setObjectName(QStringLiteral("jaw"));
        button.setCheckable(true);
        button.setGeometry(10, 10, 60, 60);
        button.setIconSize(QSize(40, 40));
        button.setIcon(QIcon(ellipsePixmap(QSize(40, 40), Qt::red)));
    }
    bool show()
    {
        parent.show();
        return QTest::qWaitForWindowExposed(&parent);
    }
};

const QColor kStateColors[6] = { Qt::red, Qt::green, Qt::blue, Qt::cyan, Qt::magenta, Qt::yellow };

} // namespace

class tst_QTransToolBtn : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void defaults();
    void transparentArea_data();
    void transparentArea();
    void multiStateMaskFollowsState();
    void imageWithoutAlphaIsOpaque();
    void forwardedClicks_data();
    void forwardedClicks();
    void rightClickDoesNotToggle();
    void setCurrState();
    void mouseEventsGoToParent();
    void disabledButtonKeepsEvents();
    void doubleClickSignals();
    void multiStatePainting_data();
    void multiStatePainting();
    void iconPainting_data();
    void iconPainting();
    void sharedAndOwnedPixmaps();
};

void tst_QTransToolBtn::init()
{
    QCursor::setPos(-1000, -1000);
}

void tst_QTransToolBtn::defaults()
{
    QTransToolBtn button;
    QCOMPARE(button.GetCurrState(), 0);
    QVERIFY(!button.isChecked());
    QVERIFY(!button.SetCurrState(0)); // no states yet
}

void tst_QTransToolBtn::transparentArea_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<bool>("transparent");
    QTest::newRow("centre of the ellipse") << QPoint(20, 20) << false;
    QTest::newRow("corner of the image") << QPoint(1, 1) << true;
    QTest::newRow("edge of the image, outside the ellipse") << QPoint(39, 2) << true;
    QTest::newRow("beyond the image, inside the button") << QPoint(50, 50) << false;
    QTest::newRow("outside the button") << QPoint(-1, 20) << true;
    QTest::newRow("past the button's right edge") << QPoint(60, 20) << true;
}

void tst_QTransToolBtn::transparentArea()
{
    QFETCH(QPoint, point);
    QFETCH(bool, transparent);
    IconButtonWindow<QWidget, ProbeButton> window;
    ProbeButton &button = window.button;
    QCOMPARE(button.IsInTransArea(point), transparent);
    QCOMPARE(button.hitButton(point), !transparent);
}

void tst_QTransToolBtn::multiStateMaskFollowsState()
{
    ProbeButton button;
    button.resize(40, 40);
    // Only the mask of pixmap 0 counts; a short set is allowed (nothing is drawn for it).
    button.AddStatusPixmap(
        QVector<QPixmap *> { new QPixmap(ellipsePixmap(QSize(40, 40), Qt::red)) });
    QVERIFY(!button.grab().isNull());
    QVector<std::shared_ptr<QPixmap>> square;
    for (int i = 0; i < 6; ++i)
        square.append(std::make_shared<QPixmap>(solidPixmap(QSize(40, 40), Qt::blue)));
    button.AddStatusPixmap(square);

    QVERIFY(button.IsInTransArea(QPoint(1, 1)));
    QVERIFY(!button.IsInTransArea(QPoint(20, 20)));
    QVERIFY(button.SetCurrState(1));
    QVERIFY(!button.IsInTransArea(QPoint(1, 1)));
}

void tst_QTransToolBtn::imageWithoutAlphaIsOpaque()
{
    ProbeButton button;
    button.resize(30, 30);
    button.setIconSize(QSize(30, 30));
    button.setIcon(QIcon(solidPixmap(QSize(30, 30), Qt::darkGreen)));
    QVERIFY(!button.IsInTransArea(QPoint(0, 0)));
    QVERIFY(!button.IsInTransArea(QPoint(29, 29)));

    ProbeButton empty; // no icon at all: every point inside the button counts
    empty.resize(30, 30);
    QVERIFY(!empty.IsInTransArea(QPoint(3, 3)));
}

void tst_QTransToolBtn::forwardedClicks_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("opaque") << QPoint(20, 20) << true << true << true;
    QTest::newRow("transparent") << QPoint(2, 2) << true << true << false;
    QTest::newRow("outside") << QPoint(80, 20) << true << true << false;
    QTest::newRow("hidden") << QPoint(20, 20) << false << true << false;
    QTest::newRow("disabled") << QPoint(20, 20) << true << false << false;
}

void tst_QTransToolBtn::forwardedClicks()
{
    QFETCH(QPoint, point);
    QFETCH(bool, visible);
    QFETCH(bool, enabled);
    QFETCH(bool, accepted);

    IconButtonWindow<> window;
    QTransToolBtn &button = window.button;
    button.setVisible(visible);
    button.setEnabled(enabled);
    QVERIFY(window.show());
    QSignalSpy toggled(&button, &QAbstractButton::toggled);

    QCOMPARE(button.IsMouseClickAction(point), accepted);
    const QString name = button.DoMouseClickAction(button.mapToGlobal(point));
    QCOMPARE(name, accepted ? QStringLiteral("jaw") : QString());
    QCOMPARE(button.isChecked(), accepted);
    QCOMPARE(toggled.count(), accepted ? 1 : 0);

    // A second click toggles back.
    button.DoMouseClickAction(button.mapToGlobal(point));
    QVERIFY(!button.isChecked());
}

void tst_QTransToolBtn::rightClickDoesNotToggle()
{
    IconButtonWindow<> window;
    QTransToolBtn &button = window.button;
    QVERIFY(window.show());

    QCOMPARE(button.DoMouseRightClickAction(button.mapToGlobal(QPoint(20, 20))),
             QStringLiteral("jaw"));
    QVERIFY(!button.isChecked());
    QCOMPARE(button.DoMouseRightClickAction(button.mapToGlobal(QPoint(2, 2))), QString());
    button.DoMouseMoveAction(QPoint()); // only repaints
    QVERIFY(!button.isChecked());
}

void tst_QTransToolBtn::setCurrState()
{
    QTransToolBtn button;
    button.resize(30, 30);
    for (int i = 0; i < 2; ++i) {
        QVector<std::shared_ptr<QPixmap>> state;
        for (int j = 0; j < 6; ++j)
            state.append(std::make_shared<QPixmap>(solidPixmap(QSize(30, 30), kStateColors[j])));
        button.AddStatusPixmap(state);
    }
    QVERIFY(!button.SetCurrState(2));
    QCOMPARE(button.GetCurrState(), 0);
    QVERIFY(button.SetCurrState(1));
    QCOMPARE(button.GetCurrState(), 1);

    // Negative states are accepted; the button then has nothing to draw and counts as opaque.
    QVERIFY(button.SetCurrState(-1));
    QCOMPARE(button.GetCurrState(), -1);
    QVERIFY(!button.grab().isNull());
    QVERIFY(button.IsMouseClickAction(QPoint(5, 5)) == button.isVisible());
}

void tst_QTransToolBtn::mouseEventsGoToParent()
{
    IconButtonWindow<EventSink> window;
    QTransToolBtn &button = window.button;
    QVERIFY(window.show());
    QSignalSpy clicked(&button, &QAbstractButton::clicked);
    QSignalSpy doubleClicked(&button, &QTransToolBtn::doubleClicked);

    const QPoint opaque(20, 20);
    QTest::mousePress(&button, Qt::LeftButton, Qt::NoModifier, opaque);
    QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, opaque);
    QTest::mouseDClick(&button, Qt::LeftButton, Qt::NoModifier, opaque);
    QMouseEvent move(QEvent::MouseMove, opaque, button.mapToGlobal(opaque), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&button, &move);

    QCOMPARE(window.parent.received,
             QList<QEvent::Type>({ QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                   QEvent::MouseButtonDblClick, QEvent::MouseMove }));
    QVERIFY(!button.isChecked());
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(doubleClicked.count(), 0);
}

void tst_QTransToolBtn::disabledButtonKeepsEvents()
{
    IconButtonWindow<EventSink> window;
    QTransToolBtn &button = window.button;
    button.setEnabled(false);
    QSignalSpy clicked(&button, &QAbstractButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    QVERIFY(!button.isChecked());
    QCOMPARE(clicked.count(), 0);
}

void tst_QTransToolBtn::doubleClickSignals()
{
    QTransToolBtn button;
    button.resize(40, 40);
    QStringList events;
    connect(&button, &QTransToolBtn::doubleClicked, [&] { events << QStringLiteral("left"); });
    connect(&button, &QTransToolBtn::doubleRightClicked,
            [&] { events << QStringLiteral("right"); });

    for (Qt::MouseButton which : { Qt::LeftButton, Qt::RightButton, Qt::MiddleButton }) {
        QMouseEvent event(QEvent::MouseButtonDblClick, QPoint(5, 5),
                          button.mapToGlobal(QPoint(5, 5)), which, which, Qt::NoModifier);
        button.mouseDoubleClickEvent(&event);
    }
    QCOMPARE(events, QStringList({ "left", "right" }));
}

void tst_QTransToolBtn::multiStatePainting_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("pressed");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("expected");
    QTest::newRow("idle") << false << false << false << true << 0;
    QTest::newRow("hovered") << false << false << true << true << 1;
    QTest::newRow("pressed") << false << true << true << true << 2;
    QTest::newRow("checked") << true << false << false << true << 3;
    QTest::newRow("checked hovered") << true << false << true << true << 4;
    QTest::newRow("checked pressed") << true << true << true << true << 5;
    QTest::newRow("checked pressed, not hovered") << true << true << false << true << 5;
    QTest::newRow("disabled under the cursor") << false << false << true << false << 0;
    QTest::newRow("checked, disabled under the cursor") << true << false << true << false << 3;
}

void tst_QTransToolBtn::multiStatePainting()
{
    QFETCH(bool, checked);
    QFETCH(bool, pressed);
    QFETCH(bool, hovered);
    QFETCH(bool, enabled);
    QFETCH(int, expected);

    EventSink parent;
    parent.resize(100, 100);
    QTransToolBtn button(&parent);
    button.setGeometry(10, 10, 30, 30);
    button.setCheckable(true);
    QVector<QPixmap *> state;
    for (const QColor &color : kStateColors)
        state.append(new QPixmap(solidPixmap(QSize(30, 30), color)));
    button.AddStatusPixmap(state);
    button.setChecked(checked);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));

    if (pressed)
        QTest::mousePress(&button, Qt::LeftButton, Qt::NoModifier, QPoint(15, 15));
    QCursor::setPos(button.mapToGlobal(hovered ? QPoint(15, 15) : QPoint(80, 80)));
    button.setEnabled(enabled);
    QCOMPARE(button.grab().toImage().pixelColor(15, 15), kStateColors[expected]);

    if (pressed) {
        QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, QPoint(15, 15));
        QCOMPARE(button.grab().toImage().pixelColor(15, 15),
                 kStateColors[expected - 2 + (hovered ? 1 : 0)]);
    }
}

void tst_QTransToolBtn::iconPainting_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("overOpaque");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("normal off") << false << false << true << QColor(Qt::red);
    QTest::newRow("normal on") << true << false << true << QColor(Qt::green);
    QTest::newRow("selected off") << false << true << true << QColor(Qt::blue);
    QTest::newRow("selected on") << true << true << true << QColor(Qt::yellow);
    QTest::newRow("disabled off") << false << true << false << QColor(Qt::gray);
    QTest::newRow("disabled on") << true << false << false << QColor(Qt::darkGray);
}

void tst_QTransToolBtn::iconPainting()
{
    QFETCH(bool, checked);
    QFETCH(bool, overOpaque);
    QFETCH(bool, enabled);
    QFETCH(QColor, expected);

    IconButtonWindow<> window;
    QTransToolBtn &button = window.button;
    QIcon icon;
    const QSize size(40, 40);
    icon.addPixmap(ellipsePixmap(size, Qt::red), QIcon::Normal, QIcon::Off);
    icon.addPixmap(ellipsePixmap(size, Qt::green), QIcon::Normal, QIcon::On);
    icon.addPixmap(ellipsePixmap(size, Qt::blue), QIcon::Selected, QIcon::Off);
    icon.addPixmap(ellipsePixmap(size, Qt::yellow), QIcon::Selected, QIcon::On);
    icon.addPixmap(ellipsePixmap(size, Qt::gray), QIcon::Disabled, QIcon::Off);
    icon.addPixmap(ellipsePixmap(size, Qt::darkGray), QIcon::Disabled, QIcon::On);
    button.setIcon(icon);
    button.setChecked(checked);
    button.setEnabled(enabled);
    QVERIFY(window.show());

    // A point in the button but in the image's transparent corner does not count as hovering.
    QCursor::setPos(button.mapToGlobal(overOpaque ? QPoint(20, 20) : QPoint(2, 2)));
    const QImage shot = button.grab().toImage();
    QCOMPARE(shot.pixelColor(20, 20), expected);
    // No frame or background of its own: the parent's background shows around the image.
    const QColor background = window.parent.palette().color(QPalette::Window);
    QCOMPARE(shot.pixelColor(1, 1), background);
    QCOMPARE(shot.pixelColor(55, 55), background);
    QCOMPARE(shot.pixelColor(0, 59), background);
}

void tst_QTransToolBtn::sharedAndOwnedPixmaps()
{
    auto shared = std::make_shared<QPixmap>(solidPixmap(QSize(20, 20), Qt::red));
    {
        QTransToolBtn button;
        button.AddStatusPixmap(QVector<std::shared_ptr<QPixmap>>(6, shared));
        QCOMPARE(shared.use_count(), 7L);
        QVERIFY(button.SetCurrState(0));
    }
    QCOMPARE(shared.use_count(), 1L);
}

VELA_TEST_CLASS(tst_QTransToolBtn)
#include "tst_QTransToolBtn.moc"
