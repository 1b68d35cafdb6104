// Mouse events go through the window system, as a user's do (press, moves, release and double
// clicks reach the slider the way Qt delivers them).
#define QTEST_QPA_MOUSE_HANDLING

#include "QMultiLevelSlider.h"
#include "VelaTest.h"

#include <QLabel>
#include <QLayout>
#include <QtTest>

#include <limits>
#include <memory>

using Indicators = Vela::CArrayList<QMultiLevelSlider::IndicatorDesc>;

namespace {

// Exposes the slider's geometry helpers to the test.
class Slider : public QMultiLevelSlider
{
public:
    using QMultiLevelSlider::DetermineIndicatorImage;
    using QMultiLevelSlider::GetIndicatorImagePosX;
    using QMultiLevelSlider::GetIndicatorImagePosY;
    using QMultiLevelSlider::GetIndicatorPosX;
    using QMultiLevelSlider::GetTrackEndPosX;
    using QMultiLevelSlider::GetTrackLength;
    using QMultiLevelSlider::GetTrackStartPosX;
    using QMultiLevelSlider::QMultiLevelSlider;
};

QPixmap filled(const QColor &color, const QSize &size = QSize(16, 10))
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    return pixmap;
}

// Selectable indicators at these values.
Indicators indicators(const QList<int> &values)
{
    Indicators list;
    for (int value : values) {
        QMultiLevelSlider::IndicatorDesc desc;
        desc.nValue = value;
        desc.bSelectable = true;
        list.push_back(desc);
    }
    return list;
}

} // namespace

class tst_QMultiLevelSlider : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void uninitialised();
    void initUiValidation_data();
    void initUiValidation();
    void middleModeNeedsThreeOrderedIndicators();
    void geometry();
    void setIndicatorValue();
    void extremeMinimumStillPaints();
    void dragging_data();
    void dragging();
    void callbacks();
    void stackedEndsPickFirst();
    void upperMiddleRaisesTrack();
    void painting();
    void labelsBesideIndicators();

private:
    // Initialises the slider with the red test image as its normal image and blue when disabled.
    bool init(int minimum, int maximum, const Indicators &list, bool freeOrder, bool middleMode);
    // Shows the slider at a fixed width, so that track positions are known.
    void show(int width);
    QPoint centreOf(unsigned long long index) const
    {
        return QPoint(m_slider->GetIndicatorPosX(index),
                      m_slider->GetIndicatorImagePosY(index) + 3);
    }
    void drag(unsigned long long index, int toX);
    QImage paint() { return m_slider->grab().toImage(); }

    std::unique_ptr<Slider> m_slider;
    QPixmap m_normal = filled(Qt::red);
    QPixmap m_disabled = filled(Qt::blue);
    QPixmap m_selected = filled(Qt::green);
    QPixmap m_hover = filled(Qt::yellow);
};

void tst_QMultiLevelSlider::init()
{
    m_slider.reset(new Slider(nullptr));
}

void tst_QMultiLevelSlider::cleanup()
{
    m_slider.reset();
}

bool tst_QMultiLevelSlider::init(int minimum, int maximum, const Indicators &list, bool freeOrder,
                                 bool middleMode)
{
    return m_slider
        ->InitUi(minimum, maximum, freeOrder, list, middleMode, &m_normal, &m_disabled, false,
                 nullptr, nullptr, QColor(200, 200, 200))
        .succeeded();
}

void tst_QMultiLevelSlider::show(int width)
{
    m_slider->setFixedSize(width, 40);
    m_slider->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_slider.get()));
}

void tst_QMultiLevelSlider::drag(unsigned long long index, int toX)
{
    const QPoint from = centreOf(index);
    QTest::mousePress(m_slider.get(), Qt::LeftButton, Qt::NoModifier, from);
    // Through a point half-way, as a hand does: a move to exactly where the previous drag ended
    // would be dropped as no move at all.
    QTest::mouseMove(m_slider.get(), QPoint((from.x() + toX) / 2, from.y()));
    QTest::mouseMove(m_slider.get(), QPoint(toX, from.y()));
    QTest::mouseRelease(m_slider.get(), Qt::LeftButton, Qt::NoModifier, QPoint(toX, from.y()));
}

// Painting and mouse handling before initialisation are harmless.
void tst_QMultiLevelSlider::uninitialised()
{
    show(100);
    QTest::mouseClick(m_slider.get(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 20));
    QTest::mouseMove(m_slider.get(), QPoint(10, 10));
    QVERIFY(!paint().isNull());
}

void tst_QMultiLevelSlider::initUiValidation_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<bool>("freeOrder");
    QTest::addColumn<QList<int>>("values");
    QTest::addColumn<QSize>("selectedSize");
    QTest::addColumn<QSize>("hoverSize");
    QTest::addColumn<quint32>("code");

    const quint32 bad = 0x80000003u;
    const auto row = [&](const char *name, int minimum, int maximum, bool freeOrder,
                         QList<int> values, quint32 code, QSize selected = QSize(16, 10),
                         QSize hover = QSize(16, 10)) {
        QTest::newRow(name) << minimum << maximum << freeOrder << values << selected << hover
                            << code;
    };
    row("valid", 0, 100, false, { 10, 20 }, 0u);
    row("equal bounds", 5, 5, false, { 5 }, bad);
    row("range wider than int", std::numeric_limits<int>::min(), 1, false, { 0 }, bad);
    row("below minimum", 0, 100, false, { -1, 20 }, bad);
    row("above maximum", 0, 100, false, { 10, 101 }, bad);
    row("equal values", 0, 100, false, { 10, 10 }, bad);
    row("falling values, free order", 0, 100, true, { 20, 10 }, 0u);
    row("selected image of another size", 0, 100, false, { 10 }, bad, QSize(17, 10));
    row("hover image of another size", 0, 100, false, { 10 }, bad, QSize(16, 10), QSize(16, 9));
}

void tst_QMultiLevelSlider::initUiValidation()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(bool, freeOrder);
    QFETCH(QList<int>, values);
    QFETCH(QSize, selectedSize);
    QFETCH(QSize, hoverSize);
    QFETCH(quint32, code);

    const Indicators list = indicators(values);
    QPixmap selected = filled(Qt::green, selectedSize);
    QPixmap hover = filled(Qt::yellow, hoverSize);
    QCOMPARE(
        m_slider->CheckInputData(minimum, maximum, freeOrder, list, &m_normal, &selected, &hover)
            .code(),
        code);
    const Vela::Result result =
        m_slider->InitUi(minimum, maximum, freeOrder, list, false, &m_normal, &m_disabled, false,
                         &selected, &hover, QColor(200, 200, 200));
    QCOMPARE(result.code(), code);
    if (code == 0) {
        QCOMPARE(m_slider->GetCount(), unsigned(values.size()));
        QVERIFY(m_slider->layout());
        for (int i = 0; i < values.size(); ++i)
            QCOMPARE(m_slider->GetIndicatorValue(i), values.at(i));
    } else {
        // A rejected call changes nothing.
        QCOMPARE(m_slider->GetCount(), 0u);
        QVERIFY(!m_slider->layout());
        QCOMPARE(m_slider->GetIndicatorValue(0), 0);
    }
}

void tst_QMultiLevelSlider::middleModeNeedsThreeOrderedIndicators()
{
    QVERIFY(!init(10, 90, indicators({ 20, 30 }), false, true));
    // The bounds of the rejected call stay stored, the list is not taken.
    QCOMPARE(m_slider->GetCount(), 0u);
    QCOMPARE(m_slider->GetIndicatorValue(0), 10);
    QVERIFY(!init(0, 90, indicators({ 20, 30, 40 }), true, true));
    QVERIFY(init(0, 90, indicators({ 20, 30, 40 }), false, true));
}

void tst_QMultiLevelSlider::geometry()
{
    Indicators list = indicators({ 0, 2500, 5000, 10000 });
    list[1].bPlaceUpper = true;
    list[1].nUpperOffset = 8;
    QVERIFY(init(0, 10000, list, false, false));
    // No upper middle: the minimum height is the floor of 12.
    QCOMPARE(m_slider->minimumHeight(), 12);
    show(200);
    QCOMPARE(m_slider->GetTrackStartPosX(), 8);
    QCOMPARE(m_slider->GetTrackEndPosX(), 191);
    QCOMPARE(m_slider->GetTrackLength(), 183);
    QCOMPARE(m_slider->GetIndicatorImagePosX(0), 0);
    // 183 * 0.25 = 45.75 and 183 * 0.5 = 91.5, rounded half away from zero.
    QCOMPARE(m_slider->GetIndicatorImagePosX(1), 46);
    QCOMPARE(m_slider->GetIndicatorPosX(1), 54);
    QCOMPARE(m_slider->GetIndicatorImagePosX(2), 92);
    QCOMPARE(m_slider->GetIndicatorImagePosX(3), 183);
    // Below the track: gap 2 + pen 1 + track y 8. Above: max(0, 8 - 10 - 2 - 1 + 8).
    QCOMPARE(m_slider->GetIndicatorImagePosY(0), 11);
    QCOMPARE(m_slider->GetIndicatorImagePosY(1), 3);

    m_slider->SetTrackPosY(4);
    QCOMPARE(m_slider->GetIndicatorImagePosY(0), 7);
    QCOMPARE(m_slider->GetIndicatorImagePosY(1), 0);
}

void tst_QMultiLevelSlider::setIndicatorValue()
{
    QVERIFY(init(100, 200, indicators({ 120, 150, 180 }), false, false));
    int calls = 0;
    m_slider->SetIndicatorMoveSignalInterface([&](unsigned long long) { ++calls; });
    QCOMPARE(m_slider->SetIndicatorValue(3, 130, true).code(), 0x80000004u);
    QCOMPARE(m_slider->SetIndicatorValue(1, 130, true).code(), 0u);
    QCOMPARE(m_slider->SetIndicatorValue(2, 500, false).code(), 0u);
    QCOMPARE(m_slider->GetIndicatorValue(2), 200);
    QCOMPARE(m_slider->SetIndicatorValue(0, -7, false).code(), 0u);
    QCOMPARE(m_slider->GetIndicatorValue(0), 100);
    QCOMPARE(m_slider->GetIndicatorValue(3), 100);
    QCOMPARE(calls, 0);

    // The bounds can be moved without touching the stored range.
    m_slider->SetMax(150);
    QCOMPARE(m_slider->SetIndicatorValue(2, 190, false).code(), 0u);
    QCOMPARE(m_slider->GetIndicatorValue(2), 150);
}

void tst_QMultiLevelSlider::extremeMinimumStillPaints()
{
    // SetMin does not re-derive the range: positions must still be computable (and paintable)
    // when the minimum lies as far from the values as an int allows.
    QVERIFY(init(0, 10000, indicators({ 9252 }), false, false));
    m_slider->SetMin(std::numeric_limits<int>::min());
    show(200);
    QVERIFY(!paint().isNull());
    QCOMPARE(m_slider->GetIndicatorValue(0), 9252);
}

void tst_QMultiLevelSlider::dragging_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<QList<int>>("initial");
    QTest::addColumn<int>("mode"); // 0 ordered, 1 free order, 2 middle mode
    QTest::addColumn<QString>("flags"); // per indicator: u unconstrained, f fixed, n not selectable
    QTest::addColumn<int>("middleValue"); // set with the ratio update before dragging, or 0
    QTest::addColumn<QList<QPoint>>("drags"); // (index, x to drag to)
    QTest::addColumn<QList<int>>("expected");

    // The track runs from x = 8 over 200 pixels of 50 each; the minimum gap between ordered
    // neighbours is round(9 / 200 * 10000) = 450, and one in middle mode.
    const auto row = [](const char *name, QList<int> initial, int mode, QList<QPoint> drags,
                        QList<int> expected, const char *flags = "", int minimum = 0,
                        int middleValue = 0) {
        QTest::newRow(name) << minimum << initial << mode << QString(flags) << middleValue << drags
                            << expected;
    };
    row("stops a gap below the next", { 0, 5000 }, 0, { { 0, 216 } }, { 4550, 5000 });
    row("stops a gap above the previous", { 4000, 5000 }, 0, { { 1, 0 } }, { 4000, 4450 });
    row("measured from zero, not the minimum", { 5000 }, 0, { { 0, 0 } }, { 0 }, "", 100);
    row("passes an unconstrained one", { 0, 5000, 9000 }, 0, { { 0, 216 } }, { 8550, 5000, 9000 },
        ".u");
    row("a fixed one stays", { 1000, 5000, 9000 }, 0, { { 0, 150 } }, { 1000, 5000, 9000 }, "f");
    row("an unselectable one stays", { 1000, 5000, 9000 }, 0, { { 2, 20 } }, { 1000, 5000, 9000 },
        "..n");
    row("free order passes neighbours", { 6000, 2000 }, 1, { { 1, 8 + 190 } }, { 6000, 9500 });
    row("middle pushes the first back", { 0, 4000, 8000 }, 2, { { 0, 8 + 40 }, { 0, 216 } },
        { 7998, 7999, 8000 });
    row("middle follows the last at one half", { 2000, 3000, 6000 }, 2, { { 2, 8 + 200 } },
        { 2000, 6000, 10000 });
    row("dragged middle keeps its ratio", { 0, 4000, 8000 }, 2, { { 1, 8 + 120 }, { 0, 8 + 40 } },
        { 2000, 6500, 8000 });
    row("middle stays between the ends", { 0, 4000, 8000 }, 2, { { 0, 8 + 40 }, { 1, 0 } },
        { 2000, 2000, 8000 });
    row("ratio from SetIndicatorValue", { 2000, 3000, 8000 }, 2, { { 2, 8 + 180 } },
        { 2000, 3750, 9000 }, "", 0, 3500);
}

void tst_QMultiLevelSlider::dragging()
{
    QFETCH(int, minimum);
    QFETCH(QList<int>, initial);
    QFETCH(int, mode);
    QFETCH(QString, flags);
    QFETCH(int, middleValue);
    QFETCH(QList<QPoint>, drags);
    QFETCH(QList<int>, expected);

    Indicators list = indicators(initial);
    for (int i = 0; i < flags.size(); ++i) {
        list[i].bUnconstrained = flags.at(i) == QLatin1Char('u');
        list[i].bFixed = flags.at(i) == QLatin1Char('f');
        list[i].bSelectable = flags.at(i) != QLatin1Char('n');
    }
    QVERIFY(init(minimum, minimum + 10000, list, mode == 1, mode == 2));
    if (middleValue)
        QVERIFY(m_slider->SetIndicatorValue(1, middleValue, true).succeeded());
    show(217);
    for (const QPoint &d : drags)
        drag(d.x(), d.y());
    QList<int> values;
    for (int i = 0; i < initial.size(); ++i)
        values << m_slider->GetIndicatorValue(i);
    QCOMPARE(values, expected);
    const int last = drags.last().x();
    const bool selectable = last >= flags.size() || flags.at(last) != QLatin1Char('n');
    QCOMPARE(m_slider->GetSelectedIndicator(), selectable ? unsigned(last) : 0ull);
}

void tst_QMultiLevelSlider::callbacks()
{
    QVERIFY(init(0, 10000, indicators({ 0, 5000, 10000 }), false, false));
    show(217);
    QStringList calls;
    m_slider->SetIndicatorMoveSignalInterface(
        [&](unsigned long long i) { calls << QStringLiteral("move %1").arg(i); });
    m_slider->SetIndicatorMoveDoneSignalInterface(
        [&](unsigned long long i) { calls << QStringLiteral("done %1").arg(i); });
    m_slider->SetIndicatorSelecteChangeSignalInterface(
        [&](unsigned long long i) { calls << QStringLiteral("select %1").arg(i); });
    m_slider->SetIndicatorDoubleClickSignalInterface(
        [&](unsigned long long i) { calls << QStringLiteral("double %1").arg(i); });

    const QPoint middle = centreOf(1);
    QTest::mousePress(m_slider.get(), Qt::LeftButton, Qt::NoModifier, middle);
    QCOMPARE(calls, QStringList { QStringLiteral("select 1") });
    QTest::mouseMove(m_slider.get(), middle + QPoint(10, 0));
    QTest::mouseMove(m_slider.get(), middle + QPoint(20, 0));
    QTest::mouseRelease(m_slider.get(), Qt::LeftButton, Qt::NoModifier, middle + QPoint(20, 0));
    QCOMPARE(calls,
             (QStringList { QStringLiteral("select 1"), QStringLiteral("move 1"),
                            QStringLiteral("move 1"), QStringLiteral("done 1") }));
    QCOMPARE(m_slider->GetIndicatorValue(1), 6000);

    // Pressing the selected indicator again and a double click report no selection change; the
    // double-click callback is never called.
    calls.clear();
    QTest::mouseDClick(m_slider.get(), Qt::LeftButton, Qt::NoModifier, centreOf(1));
    QTest::mouseClick(m_slider.get(), Qt::LeftButton, Qt::NoModifier, centreOf(1));
    QVERIFY(!calls.isEmpty());
    for (const QString &call : qAsConst(calls))
        QCOMPARE(call, QStringLiteral("done 1"));

    // Pressing beside every indicator, or with another button, changes nothing.
    calls.clear();
    QTest::mousePress(m_slider.get(), Qt::LeftButton, Qt::NoModifier, QPoint(60, 2));
    QTest::mouseMove(m_slider.get(), QPoint(150, 2));
    QTest::mouseRelease(m_slider.get(), Qt::LeftButton, Qt::NoModifier, QPoint(150, 2));
    QTest::mousePress(m_slider.get(), Qt::RightButton, Qt::NoModifier, centreOf(0));
    QTest::mouseRelease(m_slider.get(), Qt::RightButton, Qt::NoModifier, centreOf(0));
    QVERIFY(calls.isEmpty());
    QCOMPARE(m_slider->GetSelectedIndicator(), 1ull);
    QCOMPARE(m_slider->GetIndicatorValue(1), 6000);
}

void tst_QMultiLevelSlider::stackedEndsPickFirst()
{
    QVERIFY(init(0, 10000, indicators({ 0, 5000, 9000 }), false, true));
    show(217);
    QVERIFY(m_slider->SetIndicatorValue(2, 10000, false).succeeded());
    QVERIFY(m_slider->SetIndicatorValue(1, 10000, false).succeeded());
    QVERIFY(m_slider->SetIndicatorValue(0, 10000, true).succeeded());
    // All three sit at the end of the track; the press picks the first one, not the last.
    drag(0, 8 + 100);
    QCOMPARE(m_slider->GetSelectedIndicator(), 0ull);
    QCOMPARE(m_slider->GetIndicatorValue(0), 5000);
    QCOMPARE(m_slider->GetIndicatorValue(2), 10000);

    // Away from the end, the last indicator under the point wins.
    QVERIFY(m_slider->SetIndicatorValue(2, 5000, false).succeeded());
    QTest::mouseClick(m_slider.get(), Qt::LeftButton, Qt::NoModifier, centreOf(0));
    QCOMPARE(m_slider->GetSelectedIndicator(), 2ull);
}

void tst_QMultiLevelSlider::upperMiddleRaisesTrack()
{
    Indicators list = indicators({ 0, 5000, 10000 });
    list[1].bPlaceUpper = true;
    QVERIFY(init(0, 10000, list, false, true));
    // Track y rises to gap 2 + pen 1 + image height 10 = 13; the upper image then starts at 0.
    QCOMPARE(m_slider->GetIndicatorImagePosY(0), 16);
    QCOMPARE(m_slider->GetIndicatorImagePosY(1), 0);
    QCOMPARE(m_slider->minimumHeight(), 1 + 13 + 2 + 10);
    // The middle one uses the upper image set, the ends the images passed in.
    QVERIFY(m_slider->DetermineIndicatorImage(1) != &m_normal);
    QCOMPARE(m_slider->DetermineIndicatorImage(0), &m_normal);

    m_slider.reset(new Slider(nullptr));
    QVERIFY(init(0, 10000, indicators({ 0, 5000, 10000 }), false, true));
    QCOMPARE(m_slider->DetermineIndicatorImage(1), &m_normal);
    m_slider->SetIndicatorPlaceUpper(1, true);
    QVERIFY(m_slider->DetermineIndicatorImage(1) != &m_normal);
    m_slider->SetIndicatorPlaceUpper(1, false);
    // Once switched on, the upper image set stays.
    QVERIFY(m_slider->DetermineIndicatorImage(1) != &m_normal);
    m_slider->SetIndicatorPlaceUpper(7, true);
}

// The selected indicator shows the selected image, the one under the pointer (no button held)
// the hover image, the rest the normal image; disabled, the track turns grey and every indicator
// takes the disabled image, except one with an image of its own.
void tst_QMultiLevelSlider::painting()
{
    QPixmap own = filled(Qt::magenta);
    Indicators list = indicators({ 0, 5000, 10000 });
    list[2].pkImage = &own;
    QVERIFY(m_slider
                ->InitUi(0, 10000, false, list, false, &m_normal, &m_disabled, true, &m_selected,
                         &m_hover, QColor(200, 200, 200))
                .succeeded());
    show(217);
    const QPoint first = centreOf(0);
    const QPoint middle = centreOf(1);
    const QPoint last = centreOf(2);
    QImage image = paint();
    QCOMPARE(image.pixelColor(60, 8), QColor(200, 200, 200));
    QCOMPARE(image.pixelColor(first), QColor(Qt::green));
    QCOMPARE(image.pixelColor(middle), QColor(Qt::red));
    QCOMPARE(image.pixelColor(last), QColor(Qt::magenta));

    // From beside the track, as the pointer may already rest where the previous test left it.
    const QPoint beside(60, 2);
    QTest::mouseMove(m_slider.get(), beside);
    QTest::mouseMove(m_slider.get(), middle);
    QCOMPARE(paint().pixelColor(middle), QColor(Qt::yellow));
    QTest::mouseMove(m_slider.get(), beside);
    QCOMPARE(paint().pixelColor(middle), QColor(Qt::red));
    QTest::mouseClick(m_slider.get(), Qt::LeftButton, Qt::NoModifier, middle);
    QCOMPARE(paint().pixelColor(middle), QColor(Qt::green));
    QCOMPARE(paint().pixelColor(first), QColor(Qt::red));

    m_slider->setEnabled(false);
    image = paint();
    QCOMPARE(image.pixelColor(60, 8), QColor(70, 70, 70));
    QCOMPARE(image.pixelColor(first), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(last), QColor(Qt::magenta));
}

void tst_QMultiLevelSlider::labelsBesideIndicators()
{
    // The slider takes the label in, so it goes with it.
    QLabel &high = *new QLabel(QStringLiteral("high"));
    Indicators list = indicators({ 0, 5000 });
    list[1].pkLabel = &high;
    list[1].nLabelOffsetX = -8;
    list[1].nLabelOffsetY = 11;
    list[1].nLabelWidth = 32;
    list[1].nLabelHeight = 14;
    QVERIFY(init(0, 10000, list, false, false));
    show(217);
    m_slider->repaint();
    QCOMPARE(high.parentWidget(), static_cast<QWidget *>(m_slider.get()));
    QCOMPARE(high.geometry(), QRect(100 - 8, 22, 32, 14));

    drag(1, 8 + 150);
    m_slider->repaint();
    QCOMPARE(high.geometry(), QRect(150 - 8, 22, 32, 14));
}

VELA_TEST_CLASS(tst_QMultiLevelSlider)
#include "tst_QMultiLevelSlider.moc"
