#include "QStartEndIndicatorWidget.h"
#include "VelaTest.h"

#include <QPixmap>
#include <QSignalSpy>
#include <QtTest>

namespace {

// The test markers (markers.qrc): start and end 10 × 16, preview 8 × 12, each a solid colour.
const QColor kStart(0x00, 0xc0, 0x00);
const QColor kStartDisabled(0x80, 0x80, 0x80);
const QColor kEnd(0x00, 0x00, 0xff);
const QColor kEndDisabled(0x40, 0x40, 0x40);
const QColor kPreviewStart(0xff, 0x80, 0x00);
const QColor kPreviewEnd(0xff, 0x00, 0xff);
constexpr int kMarkerWidth = 10;
constexpr int kPreviewWidth = 8;

// The slider's place inside the indicator: childrenRect() = (20, 30) – (219, 49).
const QRect kSlider(20, 30, 200, 20);
constexpr int kBelow = 49 + 8; // a row through the start and end markers
constexpr int kAbove = 30 + 6; // a row through the preview markers

// Leftmost and rightmost column of colour in row y, or -1.
int firstColumn(const QImage &image, int y, const QColor &color)
{
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) == color)
            return x;
    }
    return -1;
}

int lastColumn(const QImage &image, int y, const QColor &color)
{
    for (int x = image.width() - 1; x >= 0; --x) {
        if (image.pixelColor(x, y) == color)
            return x;
    }
    return -1;
}

// A mouse move with the given buttons held (QTest::mouseMove on a widget only moves the cursor).
void moveMouse(QWidget *widget, const QPoint &pos, Qt::MouseButtons buttons = Qt::LeftButton)
{
    QMouseEvent event(QEvent::MouseMove, pos, widget->mapToGlobal(pos), Qt::NoButton, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

// The ratios a ratio signal reported, in order.
QList<float> ratios(const QSignalSpy &spy)
{
    QList<float> list;
    for (const QList<QVariant> &arguments : spy)
        list << arguments.at(0).toFloat();
    return list;
}

} // namespace

class tst_QStartEndIndicatorWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void construction();
    void ratioGeometry_data();
    void ratioGeometry();
    void updateRatioPlacesAllMarkers();
    void dragStartMarker();
    void dragEndMarker();
    void dragHiddenPreviewMarkers();
    void rightPressDoesNothing();
    void releaseEndsDrag();
    void enabledImages();
    void hostImages();
    void resizeKeepsMarkers();

private:
    QImage shot() const { return m_indicator->grab().toImage(); }

    QStartEndIndicatorWidget *m_indicator = nullptr;
    QWidget *m_slider = nullptr;
};

void tst_QStartEndIndicatorWidget::init()
{
    m_indicator = new QStartEndIndicatorWidget;
    m_indicator->resize(300, 100);
    // A child that paints nothing, so that markers drawn under it stay visible in shots.
    m_slider = new QWidget(m_indicator);
    m_slider->setGeometry(kSlider);
    m_indicator->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_indicator));
    QCOMPARE(m_indicator->childrenRect(), kSlider);
}

void tst_QStartEndIndicatorWidget::cleanup()
{
    delete m_indicator;
    m_indicator = nullptr;
}

void tst_QStartEndIndicatorWidget::construction()
{
    QCOMPARE(m_indicator->accessibleName(), QStringLiteral("QStartEndIndicatorWidget"));
    // All markers start at x 0, the end marker drawn over the start marker; the preview markers
    // are hidden.
    const QImage image = shot();
    QCOMPARE(firstColumn(image, kBelow, kEnd), 0);
    QCOMPARE(firstColumn(image, kBelow, kStart), -1);
    QCOMPARE(firstColumn(image, kAbove, kPreviewStart), -1);
    QCOMPARE(firstColumn(image, kAbove, kPreviewEnd), -1);
}

void tst_QStartEndIndicatorWidget::ratioGeometry_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<float>("startRatio");
    QTest::addColumn<float>("endRatio");
    QTest::addColumn<int>("startX");
    QTest::addColumn<int>("endX");

    // Track T = 200 - 2·offset; a start marker ends on the track position, an end marker
    // begins on it.
    QTest::newRow("full range") << 0 << 0.0f << 1.0f << 10 << 220;
    QTest::newRow("middle") << 0 << 0.25f << 0.75f << 60 << 170;
    QTest::newRow("full range, offset 5") << 5 << 0.0f << 1.0f << 15 << 215;
    QTest::newRow("thirds, offset 5") << 5 << 0.333f << 0.667f << 78 << 151;
}

void tst_QStartEndIndicatorWidget::ratioGeometry()
{
    QFETCH(int, offset);
    QFETCH(float, startRatio);
    QFETCH(float, endRatio);
    QFETCH(int, startX);
    QFETCH(int, endX);

    m_indicator->SetStartEndIndicatorCSSOffset(offset);
    m_indicator->SetStartRatio(startRatio);
    m_indicator->SetEndRatio(endRatio);
    const QImage image = shot();
    QCOMPARE(firstColumn(image, kBelow, kStart), startX);
    QCOMPARE(lastColumn(image, kBelow, kStart), startX + kMarkerWidth - 1);
    QCOMPARE(firstColumn(image, kBelow, kEnd), endX);
    // Both sit right below the slider, from its last row down.
    QVERIFY(image.pixelColor(startX + 1, 48) != kStart);
    QCOMPARE(image.pixelColor(startX + 1, 49), kStart);
    QCOMPARE(image.pixelColor(startX + 1, 64), kStart);
    QVERIFY(image.pixelColor(startX + 1, 65) != kStart);
}

void tst_QStartEndIndicatorWidget::updateRatioPlacesAllMarkers()
{
    m_indicator->SetDrawPrevewIndicatorFlag(true);
    m_indicator->UpdateRatio(0.1f, 0.9f, 0.2f, 0.8f);
    const QImage image = shot();
    QCOMPARE(firstColumn(image, kBelow, kStart), 10 + 20);
    QCOMPARE(firstColumn(image, kBelow, kEnd), 20 + 180);
    // Preview markers are measured with the preview start image (8 wide): base 12.
    QCOMPARE(firstColumn(image, kAbove, kPreviewStart), 12 + 40);
    QCOMPARE(firstColumn(image, kAbove, kPreviewEnd), 20 + 160);
    QCOMPARE(image.pixelColor(52, 30), kPreviewStart);
    QCOMPARE(image.pixelColor(52, 41), kPreviewStart);

    m_indicator->SetDrawPrevewIndicatorFlag(false);
    m_indicator->update();
    QCOMPARE(firstColumn(shot(), kAbove, kPreviewStart), -1);
}

void tst_QStartEndIndicatorWidget::dragStartMarker()
{
    QSignalSpy startSpy(m_indicator, &QStartEndIndicatorWidget::SetPlaySliderStartRatio);
    QSignalSpy endSpy(m_indicator, &QStartEndIndicatorWidget::SetPlaySliderEndRatio);
    m_indicator->SetStartRatio(0.0f); // x 10
    m_indicator->SetEndRatio(0.5f); // x 120

    QTest::mousePress(m_indicator, Qt::LeftButton, Qt::NoModifier, QPoint(13, kBelow));
    moveMouse(m_indicator, QPoint(53, kBelow));
    moveMouse(m_indicator, QPoint(250, kBelow)); // past the end marker
    moveMouse(m_indicator, QPoint(-40, kBelow)); // before the track
    QTest::mouseRelease(m_indicator, Qt::LeftButton, Qt::NoModifier, QPoint(-40, kBelow));

    // The second stopped with its right edge on the end marker's left edge.
    QCOMPARE(ratios(startSpy), QList<float>({ 0.2f, 0.5f, 0.0f }));
    QCOMPARE(endSpy.count(), 0);
    QCOMPARE(firstColumn(shot(), kBelow, kStart), 10);
}

void tst_QStartEndIndicatorWidget::dragEndMarker()
{
    QSignalSpy endSpy(m_indicator, &QStartEndIndicatorWidget::SetPlaySliderEndRatio);
    m_indicator->SetStartRatio(0.25f); // x 60
    m_indicator->SetEndRatio(0.75f); // x 170

    QTest::mousePress(m_indicator, Qt::LeftButton, Qt::NoModifier, QPoint(173, kBelow));
    moveMouse(m_indicator, QPoint(3, kBelow)); // before the start marker
    QCOMPARE(firstColumn(shot(), kBelow, kEnd), 60 + kMarkerWidth);
    moveMouse(m_indicator, QPoint(400, kBelow)); // past the track end
    QCOMPARE(firstColumn(shot(), kBelow, kEnd), 220);
    moveMouse(m_indicator, QPoint(123, kBelow));
    QTest::mouseRelease(m_indicator, Qt::LeftButton, Qt::NoModifier, QPoint(123, kBelow));

    QCOMPARE(ratios(endSpy), QList<float>({ 0.25f, 1.0f, 0.5f }));
}

void tst_QStartEndIndicatorWidget::dragHiddenPreviewMarkers()
{
    QSignalSpy startSpy(m_indicator, &QStartEndIndicatorWidget::SetPlaySliderPreviewStartRatio);
    QSignalSpy endSpy(m_indicator, &QStartEndIndicatorWidget::SetPlaySliderPreviewEndRatio);
    m_indicator->SetPreviewStartRatio(0.0f); // x 12
    m_indicator->SetPreviewEndRatio(1.0f); // x 220

    QTest::mousePress(m_indicator, Qt::LeftButton, Qt::NoModifier, QPoint(15, kAbove));
    moveMouse(m_indicator, QPoint(65, kAbove));
    QTest::mouseRelease(m_indicator, Qt::LeftButton, Qt::NoModifier, QPoint(65, kAbove));
    QCOMPARE(ratios(startSpy), QList<float>({ 0.25f }));

    QTest::mousePress(m_indicator, Qt::LeftButton, Qt::NoModifier, QPoint(222, kAbove));
    moveMouse(m_indicator, QPoint(0, kAbove)); // stops at preview start x + 8
    QTest::mouseRelease(m_indicator, Qt::LeftButton, Qt::NoModifier, QPoint(0, kAbove));
    QCOMPARE(ratios(endSpy), QList<float>({ 0.25f }));
    QCOMPARE(startSpy.count(), 1);
}

void tst_QStartEndIndicatorWidget::rightPressDoesNothing()
{
    QSignalSpy startSpy(m_indicator, &QStartEndIndicatorWidget::SetPlaySliderStartRatio);
    m_indicator->SetStartRatio(0.0f);
    QTest::mousePress(m_indicator, Qt::RightButton, Qt::NoModifier, QPoint(13, kBelow));
    moveMouse(m_indicator, QPoint(100, kBelow), Qt::RightButton);
    QTest::mouseRelease(m_indicator, Qt::RightButton, Qt::NoModifier, QPoint(100, kBelow));
    QCOMPARE(startSpy.count(), 0);
    QCOMPARE(firstColumn(shot(), kBelow, kStart), 10);
}

void tst_QStartEndIndicatorWidget::releaseEndsDrag()
{
    QSignalSpy startSpy(m_indicator, &QStartEndIndicatorWidget::SetPlaySliderStartRatio);
    m_indicator->setMouseTracking(true);
    m_indicator->SetStartRatio(0.0f);
    m_indicator->SetEndRatio(1.0f);
    QTest::mousePress(m_indicator, Qt::LeftButton, Qt::NoModifier, QPoint(13, kBelow));
    moveMouse(m_indicator, QPoint(33, kBelow));
    QTest::mouseRelease(m_indicator, Qt::LeftButton, Qt::NoModifier, QPoint(33, kBelow));
    moveMouse(m_indicator, QPoint(93, kBelow), Qt::NoButton);
    QCOMPARE(ratios(startSpy), QList<float>({ 0.1f }));

    // A press beside every marker grabs nothing.
    QTest::mousePress(m_indicator, Qt::LeftButton, Qt::NoModifier, QPoint(150, 80));
    moveMouse(m_indicator, QPoint(160, 80));
    QCOMPARE(startSpy.count(), 1);
}

void tst_QStartEndIndicatorWidget::enabledImages()
{
    m_indicator->SetStartRatio(0.0f);
    m_indicator->SetEndRatio(1.0f);
    m_indicator->SetEnabled(false);
    QVERIFY(!m_indicator->isEnabled());
    QImage image = shot();
    QCOMPARE(image.pixelColor(15, kBelow), kStartDisabled);
    QCOMPARE(image.pixelColor(225, kBelow), kEndDisabled);

    m_indicator->SetEnabled(true);
    QVERIFY(m_indicator->isEnabled());
    image = shot();
    QCOMPARE(image.pixelColor(15, kBelow), kStart);
    QCOMPARE(image.pixelColor(225, kBelow), kEnd);
}

void tst_QStartEndIndicatorWidget::hostImages()
{
    QPixmap start(6, 16);
    start.fill(Qt::red);
    QPixmap end(6, 16);
    end.fill(Qt::cyan);
    m_indicator->SetStartEndIndicatorImage(&start, &end);
    m_indicator->SetStartRatio(0.0f); // base 20 - 6
    m_indicator->SetEndRatio(1.0f);
    QImage image = shot();
    QCOMPARE(firstColumn(image, kBelow, Qt::red), 14);
    QCOMPARE(lastColumn(image, kBelow, Qt::red), 19);
    QCOMPARE(firstColumn(image, kBelow, Qt::cyan), 220);

    // Enabling brings back the widget's own images.
    m_indicator->SetEnabled(true);
    image = shot();
    QCOMPARE(firstColumn(image, kBelow, Qt::red), -1);
    QCOMPARE(image.pixelColor(16, kBelow), kStart);
}

void tst_QStartEndIndicatorWidget::resizeKeepsMarkers()
{
    m_indicator->SetStartRatio(0.5f); // x 110
    m_slider->setGeometry(20, 30, 300, 20);
    m_indicator->resize(400, 100);
    QCOMPARE(firstColumn(shot(), kBelow, kStart), 110);
    // The offset applies from the next placement on.
    m_indicator->SetStartEndIndicatorCSSOffset(10);
    QCOMPARE(firstColumn(shot(), kBelow, kStart), 110);
    m_indicator->SetStartRatio(0.5f); // base 20, track 280
    QCOMPARE(firstColumn(shot(), kBelow, kStart), 160);
}

VELA_TEST_CLASS(tst_QStartEndIndicatorWidget)
#include "tst_QStartEndIndicatorWidget.moc"
