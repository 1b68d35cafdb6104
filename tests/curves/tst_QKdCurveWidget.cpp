#include "QKdCurveWidget.h"
#include "VelaTest.h"

#include <QtTest>

namespace {

bool isBlue(QRgb pixel)
{
    return qBlue(pixel) - qRed(pixel) > 60 && qBlue(pixel) - qGreen(pixel) > 60;
}

int bluePixels(const QImage &image, QRect area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            count += isBlue(image.pixel(x, y));
    return count;
}

} // namespace

class tst_QKdCurveWidget : public QObject
{
    Q_OBJECT

private slots:
    void drawsNinetyPercentOfTheSequence();
};

void tst_QKdCurveWidget::drawsNinetyPercentOfTheSequence()
{
    QKdCurveWidget widget;
    widget.resize(200, 100);
    const auto blueInWidget = [&widget] {
        return bluePixels(widget.grab().toImage(), widget.rect());
    };
    // Nothing drawn before a sequence is set, nor for a single point.
    QCOMPARE(blueInWidget(), 0);
    widget.SetCurveSeq({ { 0.5f, 0.5f, 0.0f } });
    QCOMPARE(blueInWidget(), 0);

    // (1, 1) lands at (0.9 W, 0.9 H) = (180, 90): y grows downwards.
    widget.SetCurveSeq({ { 0.5f, 0.5f, 0.0f }, { 1.0f, 1.0f, 7.0f } });
    const QImage image = widget.grab().toImage();
    QVERIFY(isBlue(image.pixel(140, 70)));
    QVERIFY(bluePixels(image, QRect(176, 86, 3, 3)) > 0);
    QCOMPARE(bluePixels(image, QRect(183, 0, 17, 100)), 0);
    QCOMPARE(bluePixels(image, QRect(0, 93, 200, 7)), 0);
    QCOMPARE(bluePixels(image, QRect(0, 0, 87, 100)), 0);

    // An empty sequence clears a drawn line.
    widget.SetCurveSeq({});
    QCOMPARE(blueInWidget(), 0);
}

VELA_TEST_CLASS(tst_QKdCurveWidget)
#include "tst_QKdCurveWidget.moc"
