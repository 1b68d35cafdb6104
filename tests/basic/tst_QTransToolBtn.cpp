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

// Exposes the protected hit test.
class ProbeButton : public QTransToolBtn
{
public:
    using QTransToolBtn::IsInTransArea;
    using QTransToolBtn::QTransToolBtn;
};

// A parent that records the mouse events reaching it.
class EventSink : public QWidget
{
public:
    QList<QEvent::Type> received;

protected:
    // Press, release, double-click and move are consecutive event types.
    bool event(QEvent *event) override
    {
        if (event->type() < QEvent::MouseButtonPress || event->type() > QEvent::MouseMove)
            return QWidget::event(event);
        received.append(event->type());
        return true;
    }
};

// A 100 x 100 parent holding one 60 x 60 checkable button named "jaw" at (10, 10), showing a
// 40 x 40 ellipse.
struct IconButtonWindow
{
    EventSink parent;
    QTransToolBtn button { &parent };

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
    void clicks_data();
    void clicks();
    void statePixmaps();
    void mouseEventsGoToParent();
    void doubleClickSignals();
    void painting_data();
    void painting();
};

void tst_QTransToolBtn::init()
{
    QCursor::setPos(-1000, -1000);
}

// The clickable area is the opaque part of the image, or the whole button without a mask; a
// click there names and toggles the button, a right click only names it.
void tst_QTransToolBtn::clicks_data()
{
    QTest::addColumn<QPixmap>("image");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("accepted");
    const QPixmap ellipse = ellipsePixmap(QSize(40, 40), Qt::red);
    QTest::newRow("centre of the ellipse") << ellipse << QPoint(20, 20) << true << true << true;
    QTest::newRow("corner of the image") << ellipse << QPoint(1, 1) << true << true << false;
    QTest::newRow("beyond the image") << ellipse << QPoint(50, 50) << true << true << true;
    QTest::newRow("past the right edge") << ellipse << QPoint(60, 20) << true << true << false;
    QTest::newRow("image without alpha")
        << solidPixmap(QSize(40, 40), Qt::darkGreen) << QPoint(1, 1) << true << true << true;
    QTest::newRow("no icon") << QPixmap() << QPoint(3, 3) << true << true << true;
    QTest::newRow("hidden") << ellipse << QPoint(20, 20) << false << true << false;
    QTest::newRow("disabled") << ellipse << QPoint(20, 20) << true << false << false;
}

void tst_QTransToolBtn::clicks()
{
    QFETCH(QPixmap, image);
    QFETCH(QPoint, point);
    QFETCH(bool, visible);
    QFETCH(bool, enabled);
    QFETCH(bool, accepted);

    IconButtonWindow window;
    QTransToolBtn &button = window.button;
    button.setIcon(QIcon(image));
    button.setVisible(visible);
    button.setEnabled(enabled);
    QVERIFY(window.show());
    QSignalSpy toggled(&button, &QAbstractButton::toggled);
    const QString name = accepted ? QStringLiteral("jaw") : QString();

    QCOMPARE(button.IsMouseClickAction(point), accepted);
    QCOMPARE(button.DoMouseRightClickAction(button.mapToGlobal(point)), name);
    QCOMPARE(button.DoMouseClickAction(button.mapToGlobal(point)), name);
    QCOMPARE(button.isChecked(), accepted);
    QCOMPARE(toggled.count(), accepted ? 1 : 0);
    button.DoMouseClickAction(button.mapToGlobal(point));
    QVERIFY(!button.isChecked());
}

// Pixmap sets are owned (raw) or shared; the current state picks the set, whose first pixmap
// gives the mask. A short set is allowed, and so is a negative state (nothing drawn, all opaque).
void tst_QTransToolBtn::statePixmaps()
{
    auto shared = std::make_shared<QPixmap>(solidPixmap(QSize(40, 40), Qt::blue));
    {
        ProbeButton button;
        button.resize(40, 40);
        QVERIFY(!button.SetCurrState(0));
        button.AddStatusPixmap(
            QVector<QPixmap *> { new QPixmap(ellipsePixmap(QSize(40, 40), Qt::red)) });
        button.grab();
        button.AddStatusPixmap(QVector<std::shared_ptr<QPixmap>>(6, shared));
        QCOMPARE(shared.use_count(), 7L);

        QVERIFY(button.IsInTransArea(QPoint(1, 1)));
        QVERIFY(!button.IsInTransArea(QPoint(20, 20)));
        QVERIFY(!button.SetCurrState(2));
        QCOMPARE(button.GetCurrState(), 0);
        QVERIFY(button.SetCurrState(1));
        QVERIFY(!button.IsInTransArea(QPoint(1, 1)));
        QVERIFY(button.SetCurrState(-1));
        button.grab();
        QVERIFY(!button.IsInTransArea(QPoint(1, 1)));
    }
    QCOMPARE(shared.use_count(), 1L);
}

// The parent decides which button a click belongs to: an enabled button passes every mouse event
// on and neither toggles nor clicks itself.
void tst_QTransToolBtn::mouseEventsGoToParent()
{
    IconButtonWindow window;
    QTransToolBtn &button = window.button;
    QVERIFY(window.show());
    QSignalSpy clicked(&button, &QAbstractButton::clicked);
    QSignalSpy doubleClicked(&button, &QTransToolBtn::doubleClicked);

    const QPoint opaque(20, 20);
    QTest::mousePress(&button, Qt::LeftButton, Qt::NoModifier, opaque);
    QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, opaque);
    QTest::mouseDClick(&button, Qt::LeftButton, Qt::NoModifier, opaque);
    VelaTest::mouseMove(&button, opaque);

    QCOMPARE(window.parent.received,
             QList<QEvent::Type>({ QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                   QEvent::MouseButtonDblClick, QEvent::MouseMove }));
    QVERIFY(!button.isChecked());
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(doubleClicked.count(), 0);

    // A disabled button keeps its events, and still does not toggle.
    button.setEnabled(false);
    QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, opaque);
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

// The cursor over the opaque part hovers (a transparent corner does not); pressed wins over
// hovered; a disabled button is neither. The index is into kStateColors: for the state pixmaps the
// pixmap of the set, for the icon Normal, Selected or Disabled (times 2) plus On.
void tst_QTransToolBtn::painting_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("pressed");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("statePixmap");
    QTest::addColumn<int>("iconPixmap");
    QTest::newRow("idle") << false << false << false << true << 0 << 0;
    QTest::newRow("hovered") << false << false << true << true << 1 << 2;
    QTest::newRow("pressed") << false << true << true << true << 2 << 2;
    QTest::newRow("checked") << true << false << false << true << 3 << 1;
    QTest::newRow("checked pressed") << true << true << true << true << 5 << 3;
    QTest::newRow("checked pressed, not hovered") << true << true << false << true << 5 << 1;
    QTest::newRow("disabled under the cursor") << false << false << true << false << 0 << 4;
}

void tst_QTransToolBtn::painting()
{
    QFETCH(bool, checked);
    QFETCH(bool, pressed);
    QFETCH(bool, hovered);
    QFETCH(bool, enabled);
    QFETCH(int, statePixmap);
    QFETCH(int, iconPixmap);

    IconButtonWindow window;
    QTransToolBtn &button = window.button;
    QIcon icon;
    QVector<QPixmap *> state;
    for (const QColor &color : kStateColors)
        state.append(new QPixmap(ellipsePixmap(QSize(40, 40), color)));
    int i = 0;
    for (QIcon::Mode mode : { QIcon::Normal, QIcon::Selected, QIcon::Disabled }) {
        for (QIcon::State on : { QIcon::Off, QIcon::On })
            icon.addPixmap(*state.at(i++), mode, on);
    }
    button.setIcon(icon);
    button.setChecked(checked);
    QVERIFY(window.show());

    const QPoint centre(20, 20);
    if (pressed)
        QTest::mousePress(&button, Qt::LeftButton, Qt::NoModifier, centre);
    QCursor::setPos(button.mapToGlobal(hovered ? centre : QPoint(2, 2)));
    button.setEnabled(enabled);
    QImage shot = button.grab().toImage();
    QCOMPARE(shot.pixelColor(centre), kStateColors[iconPixmap]);
    // No frame or background of its own: the parent's background shows around the image.
    QCOMPARE(shot.pixelColor(1, 1), window.parent.palette().color(QPalette::Window));

    button.AddStatusPixmap(state);
    QCOMPARE(button.grab().toImage().pixelColor(centre), kStateColors[statePixmap]);
    if (pressed) {
        QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, centre);
        QCOMPARE(button.grab().toImage().pixelColor(centre),
                 kStateColors[statePixmap - 2 + (hovered ? 1 : 0)]);
    }
}

VELA_TEST_CLASS(tst_QTransToolBtn)
#include "tst_QTransToolBtn.moc"
