#include "QItemLabel.h"
#include "VelaTest.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

const QColor kPicture(40, 90, 160);

QPixmap solidPixmap(const QSize &size, const QColor &color)
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    return pixmap;
}

QColor pixelAt(QWidget &widget, int x, int y)
{
    return widget.grab().toImage().pixelColor(x, y);
}

} // namespace

class tst_QItemLabel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { delete m_label; }

    void clickSelects();
    void frames();
    void doubleClick();
    void dragEnterFilter_data();
    void dragEnterFilter();
    void dropLoadsImage();

private:
    QItemLabel *m_label = nullptr;
    QTemporaryDir m_dir;
    QStringList m_events;
};

void tst_QItemLabel::init()
{
    QVERIFY(m_dir.isValid());
    m_label = new QItemLabel;
    m_label->setScaledContents(true);
    m_label->setAcceptDrops(true);
    m_label->resize(100, 80);
    m_label->setPixmap(solidPixmap(QSize(100, 80), kPicture));
    m_events.clear();
    connect(m_label, &QItemLabel::SelectedChanged, this,
            [this] { m_events << QStringLiteral("SelectedChanged"); });
    connect(m_label, &QItemLabel::clicked, this, [this] { m_events << QStringLiteral("clicked"); });
    connect(m_label, &QItemLabel::PreImageLoaded, this,
            [this](const QString &path) { m_events << QStringLiteral("PreImageLoaded ") + path; });
    m_label->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_label));
}

void tst_QItemLabel::clickSelects()
{
    // Any button selects, on the press; a press never deselects.
    QTest::mousePress(m_label, Qt::RightButton, Qt::NoModifier, QPoint(10, 10));
    QVERIFY(m_label->GetSelected());
    QTest::mouseRelease(m_label, Qt::RightButton, Qt::NoModifier, QPoint(10, 10));
    QTest::mouseClick(m_label, Qt::LeftButton, Qt::NoModifier, QPoint(50, 40));
    QVERIFY(m_label->GetSelected());
    QCOMPARE(m_events, QStringList({ "SelectedChanged", "clicked", "clicked" }));

    // SetSelected signals changes only.
    m_events.clear();
    m_label->SetSelected(true);
    m_label->SetSelected(false);
    m_label->SetSelected(false);
    QCOMPARE(m_events, QStringList({ "SelectedChanged" }));
}

void tst_QItemLabel::frames()
{
    // Width 0: outer and middle both trace (0, 0, 99, 79), the middle drawn last; the inner line
    // traces (2, 2, 95, 75).
    m_label->SetSelected(true);
    QImage image = m_label->grab().toImage();
    QCOMPARE(image.pixelColor(0, 0), QColor(80, 80, 80));
    QCOMPARE(image.pixelColor(1, 1), kPicture);
    QCOMPARE(image.pixelColor(2, 2), QColor(230, 230, 230));
    QCOMPARE(image.pixelColor(3, 3), kPicture);

    // Wider lines, in the colours set.
    m_label->SetLineWidth(2.0);
    m_label->SetSelectOuterLineColor(Qt::red);
    m_label->SetSelectMiddleLineColor(Qt::green);
    m_label->SetSelectInnerLineColor(Qt::yellow);
    image = m_label->grab().toImage();
    QCOMPARE(image.pixelColor(0, 40), QColor(Qt::red));
    QCOMPARE(image.pixelColor(2, 40), QColor(Qt::green)); // (2, 2, 95, 75)
    QCOMPARE(image.pixelColor(95, 75), QColor(Qt::yellow)); // (4, 4, 91, 71)
    QCOMPARE(image.pixelColor(5, 40), kPicture);

    // Hovered, the hover frame; selection wins over it.
    m_label->SetLineWidth(0.0);
    m_label->SetSelected(false);
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(m_label, &enter);
    QCOMPARE(pixelAt(*m_label, 2, 2), QColor(85, 255, 127));
    m_label->SetSelected(true);
    QCOMPARE(pixelAt(*m_label, 2, 2), QColor(Qt::yellow));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(m_label, &leave);

    // A disabled label shows its picture greyed out, without a frame; no picture, no frame.
    m_label->setEnabled(false);
    image = m_label->grab().toImage();
    QCOMPARE(image.pixelColor(0, 0), image.pixelColor(50, 40));
    m_label->setEnabled(true);
    m_label->setPixmap(QPixmap());
    QCOMPARE(pixelAt(*m_label, 0, 0), m_label->palette().color(QPalette::Window));
}

void tst_QItemLabel::doubleClick()
{
    // No functor, then a cancelled dialog: nothing is loaded.
    QTest::mouseDClick(m_label, Qt::LeftButton, Qt::NoModifier, QPoint(50, 40));
    QString chosen;
    int asked = 0;
    m_label->SetGetOpenFileNameFunctor([&] {
        ++asked;
        return chosen;
    });
    QTest::mouseDClick(m_label, Qt::LeftButton, Qt::NoModifier, QPoint(50, 40));
    QCOMPARE(m_label->pixmap(Qt::ReturnByValue).toImage().pixelColor(10, 10), kPicture);
    // The right button is reported instead; the others do nothing.
    QList<Qt::MouseButton> buttons;
    connect(m_label, &QItemLabel::RightDoubleClicked, this,
            [&](QMouseEvent *event) { buttons << event->button(); });
    QTest::mouseDClick(m_label, Qt::RightButton, Qt::NoModifier, QPoint(50, 40));
    QTest::mouseDClick(m_label, Qt::MiddleButton, Qt::NoModifier, QPoint(50, 40));
    QCOMPARE(buttons, QList<Qt::MouseButton> { Qt::RightButton });
    QCOMPARE(asked, 1);
    QVERIFY(m_events.filter(QStringLiteral("PreImageLoaded")).isEmpty());

    chosen = VelaTest::writeImage(m_dir.path(), QStringLiteral("rock.png"), Qt::darkGreen,
                                  QSize(100, 80));
    QTest::mouseDClick(m_label, Qt::LeftButton, Qt::NoModifier, QPoint(50, 40));
    QCOMPARE(m_label->pixmap(Qt::ReturnByValue).toImage().pixelColor(10, 10),
             QColor(Qt::darkGreen));
    QCOMPARE(m_events.filter(QStringLiteral("PreImageLoaded")),
             QStringList { "PreImageLoaded " + chosen });

    // A thumbnail functor makes the picture instead.
    QStringList thumbnailsFor;
    m_label->SetSpecialThumbnailFunctor([&](const QString &file) {
        thumbnailsFor << file;
        return solidPixmap(QSize(20, 20), Qt::magenta);
    });
    QTest::mouseDClick(m_label, Qt::LeftButton, Qt::NoModifier, QPoint(50, 40));
    QCOMPARE(thumbnailsFor, QStringList { chosen });
    QCOMPARE(m_label->pixmap(Qt::ReturnByValue).size(), QSize(20, 20));

    // A path that cannot be read still replaces the picture, with an empty one.
    m_label->SetSpecialThumbnailFunctor(nullptr);
    chosen = m_dir.filePath(QStringLiteral("missing.png"));
    m_label->OnMouseDoubleClicked();
    QVERIFY(m_label->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(m_events.last(), QStringLiteral("PreImageLoaded ") + chosen);
}

void tst_QItemLabel::dragEnterFilter_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<bool>("accepted");

    const QString filter = QStringLiteral("Images (*.png *.jpg *.tga)");
    QTest::newRow("listed suffix") << filter << QStringList { "/tmp/a.png" } << true;
    QTest::newRow("suffix in capitals") << filter << QStringList { "/tmp/A.PNG" } << true;
    QTest::newRow("unlisted suffix") << filter << QStringList { "/tmp/a.bmp" } << false;
    QTest::newRow("no suffix, a substring") << filter << QStringList { "/tmp/readme" } << true;
    QTest::newRow("two files") << filter << QStringList { "/tmp/a.png", "/tmp/b.png" } << false;
    QTest::newRow("empty filter") << QString() << QStringList { "/tmp/a.bmp" } << true;
}

void tst_QItemLabel::dragEnterFilter()
{
    QFETCH(QString, filter);
    QFETCH(QStringList, files);
    QFETCH(bool, accepted);
    QVERIFY(m_label->setProperty("DragFilter", filter));
    const auto mimeData = VelaTest::fileMime(files);
    QCOMPARE(VelaTest::dragEnter(m_label, QPoint(50, 40), mimeData.get()), accepted);

    QMimeData text;
    text.setText(files.first());
    QVERIFY(!VelaTest::dragEnter(m_label, QPoint(50, 40), &text));
}

void tst_QItemLabel::dropLoadsImage()
{
    // The thumbnail functor is for the file dialog only.
    bool thumbnailAsked = false;
    m_label->SetSpecialThumbnailFunctor([&](const QString &) {
        thumbnailAsked = true;
        return QPixmap();
    });
    m_label->SetFileFilter(QStringLiteral("png"));
    const QString path =
        VelaTest::writeImage(m_dir.path(), QStringLiteral("bark.png"), Qt::darkRed, QSize(64, 64));
    const auto mimeData = VelaTest::fileMime({ path });
    QVERIFY(VelaTest::dropAt(m_label, QPoint(50, 40), mimeData.get()));
    QCOMPARE(m_label->pixmap(Qt::ReturnByValue).size(), QSize(64, 64));
    QCOMPARE(m_events, QStringList { "PreImageLoaded " + path });
    QVERIFY(!thumbnailAsked);
    QVERIFY(!QApplication::overrideCursor());

    // A file that cannot be read keeps the picture.
    const QString broken =
        VelaTest::writeFile(m_dir.path(), QStringLiteral("broken.png"), "not a picture");
    const auto brokenMime = VelaTest::fileMime({ broken });
    VelaTest::dropAt(m_label, QPoint(50, 40), brokenMime.get());
    QCOMPARE(m_label->pixmap(Qt::ReturnByValue).toImage().pixelColor(10, 10), QColor(Qt::darkRed));
    QCOMPARE(m_events.last(), QStringLiteral("PreImageLoaded ") + broken);
}

VELA_TEST_CLASS(tst_QItemLabel)
#include "tst_QItemLabel.moc"
