#include "QKdCurveWidget.h"
#include "VelaTest.h"

#include <QtTest>

using Points = std::vector<Vela::CVector3<float>>;
Q_DECLARE_METATYPE(Points)

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
    void init();
    void drawsNothing_data();
    void drawsNothing();
    void usesNinetyPercent();

private:
    std::unique_ptr<QKdCurveWidget> m_widget;
};

void tst_QKdCurveWidget::init()
{
    m_widget.reset(new QKdCurveWidget);
    m_widget->resize(200, 100);
}

void tst_QKdCurveWidget::drawsNothing_data()
{
    QTest::addColumn<Points>("points");
    QTest::newRow("never set") << Points();
    QTest::newRow("single point") << Points({ { 0.5f, 0.5f, 0.0f } });
}

void tst_QKdCurveWidget::drawsNothing()
{
    QFETCH(Points, points);
    if (!points.empty())
        m_widget->SetCurveSeq(points);
    QCOMPARE(bluePixels(m_widget->grab().toImage(), m_widget->rect()), 0);

    // An empty sequence clears a drawn line.
    m_widget->SetCurveSeq({ { 0.0f, 0.0f, 0.0f }, { 1.0f, 1.0f, 0.0f } });
    QVERIFY(bluePixels(m_widget->grab().toImage(), m_widget->rect()) > 0);
    m_widget->SetCurveSeq({});
    QCOMPARE(bluePixels(m_widget->grab().toImage(), m_widget->rect()), 0);
}

void tst_QKdCurveWidget::usesNinetyPercent()
{
    // (1, 1) lands at (0.9 W, 0.9 H) = (180, 90): y grows downwards.
    m_widget->SetCurveSeq({ { 0.5f, 0.5f, 0.0f }, { 1.0f, 1.0f, 7.0f } });
    const QImage image = m_widget->grab().toImage();
    QVERIFY(isBlue(image.pixel(140, 70)));
    QVERIFY(bluePixels(image, QRect(176, 86, 3, 3)) > 0);
    QCOMPARE(bluePixels(image, QRect(183, 0, 17, 100)), 0);
    QCOMPARE(bluePixels(image, QRect(0, 93, 200, 7)), 0);
    QCOMPARE(bluePixels(image, QRect(0, 0, 87, 100)), 0);
}

VELA_TEST_CLASS(tst_QKdCurveWidget)
#include "tst_QKdCurveWidget.moc"
