#include "QKdPlayWidget.h"
#include "VelaTest.h"

#include <QtTest>

class tst_QKdPlayWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { delete m_window; }

    void aspectKeptAcrossResizes_data();
    void aspectKeptAcrossResizes();
    void exportSizeAndRatioLock();
    void hostViews();

private:
    QWidget *m_window = nullptr;
    QKdPlayWidget *m_play = nullptr;
    QWidget *m_view = nullptr;
};

void tst_QKdPlayWidget::init()
{
    // The play widget lives inside a window, so that its resizes are delivered at once.
    m_window = new QWidget;
    m_window->resize(1200, 900);
    m_play = new QKdPlayWidget(m_window);
    m_play->setGeometry(0, 0, 1000, 600);
    m_view = new QWidget(m_play);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
}

void tst_QKdPlayWidget::aspectKeptAcrossResizes_data()
{
    QTest::addColumn<QSize>("widgetSize");
    QTest::addColumn<QSize>("exportSize");
    QTest::addColumn<QRect>("view");
    QTest::newRow("wide, 4:3") << QSize(1000, 600) << QSize(800, 600) << QRect(100, 0, 800, 600);
    QTest::newRow("one column wide") << QSize(801, 600) << QSize(800, 600) << QRect(0, 0, 800, 600);
    QTest::newRow("1080p in 4:3") << QSize(640, 480) << QSize(1920, 1080) << QRect(0, 60, 640, 360);
    QTest::newRow("truncated") << QSize(333, 500) << QSize(800, 600) << QRect(0, 125, 333, 249);
}

void tst_QKdPlayWidget::aspectKeptAcrossResizes()
{
    QFETCH(QSize, widgetSize);
    QFETCH(QSize, exportSize);
    m_play->SetExportSize(exportSize.width(), exportSize.height());
    m_play->resize(300, 300);
    m_play->resize(widgetSize);
    QTEST(m_view->geometry(), "view");
}

void tst_QKdPlayWidget::exportSizeAndRatioLock()
{
    // Sizes below 1 are refused and change nothing: 800 × 600 until the host sets another size.
    m_view->setGeometry(1, 2, 3, 4);
    for (const QSize &bad : { QSize(0, 600), QSize(800, 0) })
        QCOMPARE(m_play->SetExportSize(bad.width(), bad.height()).code(), 0x80000003u);
    QSize size;
    QCOMPARE(m_play->GetExportSize(size.rwidth(), size.rheight()),
             Vela::Result(Vela::Result::Success));
    QCOMPARE(size, QSize(800, 600));
    QCOMPARE(m_view->geometry(), QRect(1, 2, 3, 4));

    QCOMPARE(m_play->SetExportSize(1920, 1080), Vela::Result(Vela::Result::Success));
    QCOMPARE(m_view->geometry(), QRect(0, 19, 1000, 562));
    // The same size again lays nothing out.
    m_view->setGeometry(1, 2, 3, 4);
    QCOMPARE(m_play->SetExportSize(1920, 1080), Vela::Result(Vela::Result::NothingChanged));
    QCOMPARE(m_view->geometry(), QRect(1, 2, 3, 4));
    QCOMPARE(m_play->UpdateExportSize(), Vela::Result(Vela::Result::Success));
    QCOMPARE(m_view->geometry(), QRect(0, 19, 1000, 562));

    // Unlocked, the view fills the widget whatever the export size.
    m_play->SetLockRatio(false);
    QCOMPARE(m_view->geometry(), QRect(0, 0, 1000, 600));
    m_play->resize(640, 700);
    QCOMPARE(m_view->geometry(), QRect(0, 0, 640, 700));
    m_play->SetLockRatio(true);
    QCOMPARE(m_view->geometry(), QRect(0, 170, 640, 360));
}

void tst_QKdPlayWidget::hostViews()
{
    // Without a view every layout does nothing; the window cannot be closed.
    QKdPlayWidget play;
    play.resize(1000, 600);
    play.show();
    QVERIFY(QTest::qWaitForWindowExposed(&play));
    QCOMPARE(play.UpdateExportSize(), Vela::Result(Vela::Result::Success));
    QVERIFY(!play.close());
    QVERIFY(play.isVisible());

    // A render view wrapped in a host frame: the first descendant widget is laid out, at the
    // default 800 × 600.
    QWidget frame(&play);
    QWidget inner(&frame);
    const QRect innerGeometry = inner.geometry();
    play.UpdateKdCoreWndSize();
    QCOMPARE(frame.geometry(), QRect(100, 0, 800, 600));
    QCOMPARE(inner.geometry(), innerGeometry);
}

VELA_TEST_CLASS(tst_QKdPlayWidget)
#include "tst_QKdPlayWidget.moc"
