#include "QStartEndIndicatorWidget.h"
#include "VelaTest.h"

#include <QtTest>

namespace {

// The test markers (markers.qrc): start and end 10 × 16, preview 8 × 12, each a solid colour.
const QColor kStart(0x00, 0xc0, 0x00);
const QColor kEnd(0x00, 0x00, 0xff);
const QColor kPreviewStart(0xff, 0x80, 0x00);
const QColor kPreviewEnd(0xff, 0x00, 0xff);

// The slider's place inside the indicator: childrenRect() = (20, 30) – (219, 49).
const QRect kSlider(20, 30, 200, 20);
constexpr int kBelow = 49 + 8; // a row through the start and end markers
constexpr int kAbove = 30 + 6; // a row through the preview markers

// Leftmost column of colour in row y, or -1.
int column(const QImage &image, int y, const QColor &color)
{
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) == color)
            return x;
    }
    return -1;
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
    void cleanup() { delete m_indicator; }

    void ratioGeometry_data();
    void ratioGeometry();
    void previewMarkers();
    void dragPlayRangeMarkers();
    void images();

private:
    QImage shot() const { return m_indicator->grab().toImage(); }
    void drag(const QPoint &from, const QList<QPoint> &moves)
    {
        QTest::mousePress(m_indicator, Qt::LeftButton, Qt::NoModifier, from);
        for (const QPoint &pos : moves)
            VelaTest::mouseMove(m_indicator, pos);
        QTest::mouseRelease(m_indicator, Qt::LeftButton, Qt::NoModifier, moves.last());
    }

    QStartEndIndicatorWidget *m_indicator = nullptr;
};

void tst_QStartEndIndicatorWidget::init()
{
    m_indicator = new QStartEndIndicatorWidget;
    m_indicator->resize(300, 100);
    // A child that paints nothing, so that markers drawn under it stay visible in shots.
    auto *slider = new QWidget(m_indicator);
    slider->setGeometry(kSlider);
    m_indicator->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_indicator));
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
    QTest::newRow("thirds, offset 5") << 5 << 0.333f << 0.667f << 78 << 151;
}

void tst_QStartEndIndicatorWidget::ratioGeometry()
{
    QFETCH(int, offset);
    QFETCH(float, startRatio);
    QFETCH(float, endRatio);
    QFETCH(int, startX);

    m_indicator->SetStartEndIndicatorCSSOffset(offset);
    m_indicator->SetStartRatio(startRatio);
    m_indicator->SetEndRatio(endRatio);
    const QImage image = shot();
    QCOMPARE(column(image, kBelow, kStart), startX);
    QTEST(column(image, kBelow, kEnd), "endX");
    // Both sit right below the slider, from its last row down.
    QVERIFY(image.pixelColor(startX + 1, 48) != kStart);
    QCOMPARE(image.pixelColor(startX + 1, 49), kStart);
}

void tst_QStartEndIndicatorWidget::previewMarkers()
{
    // Hidden until the host asks, yet a press on them still drags them.
    QSignalSpy startSpy(m_indicator, &QStartEndIndicatorWidget::SetPlaySliderPreviewStartRatio);
    QSignalSpy endSpy(m_indicator, &QStartEndIndicatorWidget::SetPlaySliderPreviewEndRatio);
    m_indicator->SetPreviewStartRatio(0.0f); // x 12
    m_indicator->SetPreviewEndRatio(1.0f); // x 220
    QCOMPARE(column(shot(), kAbove, kPreviewStart), -1);
    drag(QPoint(15, kAbove), { QPoint(65, kAbove) });
    QCOMPARE(ratios(startSpy), QList<float>({ 0.25f }));
    drag(QPoint(222, kAbove), { QPoint(0, kAbove) }); // stops at preview start x + 8
    QCOMPARE(ratios(endSpy), QList<float>({ 0.25f }));
    QCOMPARE(startSpy.count(), 1);

    m_indicator->UpdateRatio(0.1f, 0.9f, 0.2f, 0.8f);
    m_indicator->SetDrawPrevewIndicatorFlag(true);
    m_indicator->update();
    const QImage image = shot();
    QCOMPARE(column(image, kBelow, kStart), 10 + 20);
    QCOMPARE(column(image, kBelow, kEnd), 20 + 180);
    // Preview markers are measured with the preview start image (8 wide): base 12.
    QCOMPARE(column(image, kAbove, kPreviewStart), 12 + 40);
    QCOMPARE(column(image, kAbove, kPreviewEnd), 20 + 160);
    QCOMPARE(image.pixelColor(52, 30), kPreviewStart);
    QCOMPARE(image.pixelColor(52, 41), kPreviewStart);
}

void tst_QStartEndIndicatorWidget::dragPlayRangeMarkers()
{
    QSignalSpy startSpy(m_indicator, &QStartEndIndicatorWidget::SetPlaySliderStartRatio);
    QSignalSpy endSpy(m_indicator, &QStartEndIndicatorWidget::SetPlaySliderEndRatio);
    m_indicator->setMouseTracking(true);
    m_indicator->SetStartRatio(0.0f); // x 10
    m_indicator->SetEndRatio(0.5f); // x 120
    // Only the left button drags.
    QTest::mousePress(m_indicator, Qt::RightButton, Qt::NoModifier, QPoint(13, kBelow));
    VelaTest::mouseMove(m_indicator, QPoint(100, kBelow), Qt::RightButton);
    QTest::mouseRelease(m_indicator, Qt::RightButton, Qt::NoModifier, QPoint(100, kBelow));
    QCOMPARE(startSpy.count(), 0);
    // To 0.2, then past the end marker (stopped with its right edge on the end marker's left
    // edge), then before the track.
    drag(QPoint(13, kBelow), { QPoint(53, kBelow), QPoint(250, kBelow), QPoint(-40, kBelow) });
    QCOMPARE(ratios(startSpy), QList<float>({ 0.2f, 0.5f, 0.0f }));
    // The release ended the drag; a press beside every marker grabs nothing.
    VelaTest::mouseMove(m_indicator, QPoint(93, kBelow), Qt::NoButton);
    QTest::mousePress(m_indicator, Qt::LeftButton, Qt::NoModifier, QPoint(150, 80));
    VelaTest::mouseMove(m_indicator, QPoint(160, 80));
    QCOMPARE(startSpy.count(), 3);
    QCOMPARE(endSpy.count(), 0);

    m_indicator->SetStartRatio(0.25f); // x 60
    m_indicator->SetEndRatio(0.75f); // x 170
    // Before the start marker, past the track end, then to 0.5.
    drag(QPoint(173, kBelow), { QPoint(3, kBelow), QPoint(400, kBelow), QPoint(123, kBelow) });
    QCOMPARE(ratios(endSpy), QList<float>({ 0.25f, 1.0f, 0.5f }));
    QCOMPARE(startSpy.count(), 3);
}

void tst_QStartEndIndicatorWidget::images()
{
    m_indicator->SetStartRatio(0.0f);
    m_indicator->SetEndRatio(1.0f);
    m_indicator->SetEnabled(false);
    QImage image = shot();
    QCOMPARE(image.pixelColor(15, kBelow), QColor(0x80, 0x80, 0x80));
    QCOMPARE(image.pixelColor(225, kBelow), QColor(0x40, 0x40, 0x40));

    // Host images are placed by their own width: base 20 - 6.
    QPixmap start(6, 16);
    start.fill(Qt::red);
    QPixmap end(6, 16);
    end.fill(Qt::cyan);
    m_indicator->SetStartEndIndicatorImage(&start, &end);
    m_indicator->SetStartRatio(0.0f);
    image = shot();
    QCOMPARE(column(image, kBelow, Qt::red), 14);
    QCOMPARE(column(image, kBelow, Qt::cyan), 220);

    // Enabling brings back the widget's own images.
    m_indicator->SetEnabled(true);
    image = shot();
    QCOMPARE(column(image, kBelow, Qt::red), -1);
    QCOMPARE(image.pixelColor(16, kBelow), kStart);
    QCOMPARE(image.pixelColor(225, kBelow), kEnd);
}

VELA_TEST_CLASS(tst_QStartEndIndicatorWidget)
#include "tst_QStartEndIndicatorWidget.moc"
