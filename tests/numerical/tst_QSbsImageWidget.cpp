#include "QComboBoxEx.h"
#include "QSbsImageWidget.h"
#include "VelaImageLoader.h"
#include "VelaTest.h"

#include <QAbstractItemView>
#include <QFile>
#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUrl>
#include <QVBoxLayout>
#include <QtTest>

static const unsigned int kUid = 4711;

static Vela::CMap<Vela::ESubstanceUiChannel, QString> channelNames()
{
    Vela::CMap<Vela::ESubstanceUiChannel, QString> names;
    const char *const texts[] = { "Base Color", "Normal",   "Roughness", "Metallic", "Height", "AO",
                                  "Opacity",    "Emissive", "Specular",  "Glossy",   "Diffuse" };
    for (int i = 0; i < 11; ++i)
        names[Vela::ESubstanceUiChannel(i)] = QString::fromLatin1(texts[i]);
    names[Vela::SubstanceChannel_Custom] = QStringLiteral("Custom");
    names[Vela::SubstanceChannel_None] = QStringLiteral("None");
    return names;
}

// Records every signal of the widget in order, with its arguments.
class SignalLog : public QObject
{
public:
    explicit SignalLog(QSbsImageWidget *w)
    {
        connect(w, &QSbsImageWidget::OpenCustomImageFileDialog, this,
                [this](uint32_t uid) { lines.append(QStringLiteral("OpenDialog %1").arg(uid)); });
        connect(w, &QSbsImageWidget::ImportImageFromChannel, this,
                [this](uint32_t uid, Vela::ESubstanceUiChannel c) {
                    lines.append(QStringLiteral("Channel %1 %2").arg(uid).arg(int(c)));
                });
        connect(w, &QSbsImageWidget::ImportImageFromExtern, this,
                [this](uint32_t uid, int n, const QString &name) {
                    lines.append(QStringLiteral("Extern %1 %2 %3").arg(uid).arg(n).arg(name));
                });
        connect(w, &QSbsImageWidget::RemoveImage, this,
                [this](uint32_t uid) { lines.append(QStringLiteral("Remove %1").arg(uid)); });
        connect(w, &QSbsImageWidget::DropFileCustomImageFile, this,
                [this](uint32_t uid, const QString &file) {
                    lines.append(
                        QStringLiteral("Drop %1 %2").arg(uid).arg(QFileInfo(file).fileName()));
                });
        connect(w, &QSbsImageWidget::ChannelChanged, this,
                [this]() { lines.append(QStringLiteral("ChannelChanged")); });
        connect(w, &QSbsImageWidget::OpenCustomImageMenu, this,
                [this](uint32_t uid) { lines.append(QStringLiteral("Menu %1").arg(uid)); });
        connect(w, &QSbsImageWidget::MouseHoverEnterInImageLabel, this,
                [this]() { lines.append(QStringLiteral("Hover")); });
    }
    QStringList lines;
};

class tst_QSbsImageWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void uninitialised();
    void entries();
    void chooseExternTextureByKeyboard();
    void chooseNoneAndChannel();
    void activateCurrentCustomEntry();
    void previewMouse();
    void dragEnter_data();
    void dragEnter();
    void drops();
    void sbsarVisibleIf();

private:
    QTemporaryDir m_dir;
};

void tst_QSbsImageWidget::initTestCase()
{
    QVERIFY(m_dir.isValid());
}

// Drags the files onto w and drops dropData (default: the same files) there.
static bool dragAndDrop(QWidget *w, const QStringList &files, const QMimeData *dropData = nullptr)
{
    return VelaTest::dropAt(w, w->rect().center(), VelaTest::fileMime(files).get(), dropData);
}

static QComboBoxEx *comboOf(QSbsImageWidget &w)
{
    return w.findChild<QComboBoxEx *>();
}

static QPixmap previewPixmap(const QSbsImageWidget &w)
{
    return w.GetImageLabel()->pixmap(Qt::ReturnByValue);
}

static void initFull(QSbsImageWidget &w)
{
    w.Initialize(kUid, QStringLiteral("Base Color Input"), channelNames(),
                 Vela::CArrayList<std::wstring> { L"Wood", L"Stone" }, true);
}

void tst_QSbsImageWidget::uninitialised()
{
    // Nothing is built before Initialize; every setter is safe and nothing is raised.
    QSbsImageWidget w;
    SignalLog log(&w);
    w.SetSelectedChannel(3);
    w.SetImage(QImage(4, 4, QImage::Format_RGB32));
    w.SetImageTip(QStringLiteral("tip"));
    w.SetLabelColor(QStringLiteral("color: red"));
    w.OnUpdateWidgetSbsarVisibleif(0, false); // the uid defaults to 0
    QVERIFY(!w.GetSbsarVisibleif());

    // Without a channel map there is no drop-down to choose from.
    QCOMPARE(w.Initialize(kUid, QStringLiteral("Mask")).code(), 0u);
    QVERIFY(!comboOf(w));
    w.SetSelectedChannel(3);
    w.SetSelectedChannel(99998);
    QCOMPARE(w.GetCurrentChannel(), Vela::SubstanceChannel_None);
    QVERIFY(log.lines.isEmpty());
}

void tst_QSbsImageWidget::entries()
{
    QSbsImageWidget w;
    initFull(w);
    QComboBoxEx *combo = comboOf(w);
    QVERIFY(combo);
    QList<int> data;
    for (int i = 0; i < combo->count(); ++i)
        data.append(combo->itemData(i).toInt());
    QCOMPARE(data, (QList<int> { 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 99998, 99999 }));
    QStringList texts;
    for (int i : { 0, 10, 11, 12, 13, 14 })
        texts << combo->itemText(i);
    QCOMPARE(texts, QString("Base Color,Diffuse,Wood,Stone,Custom,None").split(','));
    QCOMPARE(w.GetCurrentChannel(), Vela::SubstanceChannel_Custom);

    // Initialized again without channels: the drop-down goes, nothing is built twice.
    QCOMPARE(w.Initialize(7, QStringLiteral("Again")).code(), 0u);
    QVERIFY(!comboOf(w));
    QCOMPARE(w.findChildren<QLabel *>().size(), 2);
    QCOMPARE(w.GetCurrentChannel(), Vela::SubstanceChannel_None);

    // Names missing from the map leave their entries blank, and no extern textures none.
    Vela::CMap<Vela::ESubstanceUiChannel, QString> names;
    names[Vela::SubstanceChannel_Normal] = QStringLiteral("Normal");
    w.Initialize(kUid, QStringLiteral("Slot"), names, {}, false);
    combo = comboOf(w);
    QCOMPARE(combo->count(), 13);
    QCOMPARE(combo->itemText(0), QString());
    QCOMPARE(combo->itemText(1), QStringLiteral("Normal"));
    QVERIFY(!w.acceptDrops());
}

void tst_QSbsImageWidget::chooseExternTextureByKeyboard()
{
    QSbsImageWidget w;
    initFull(w);
    w.show();
    QVERIFY(QTest::qWaitForWindowActive(&w));
    QComboBoxEx *combo = comboOf(w);
    combo->setFocus();
    QTRY_VERIFY(combo->hasFocus());
    SignalLog log(&w);
    QTest::keyClick(combo, Qt::Key_Up); // custom -> Stone
    QCOMPARE(combo->currentIndex(), 12);
    QCOMPARE(log.lines, (QStringList { "ChannelChanged", "Extern 4711 1 Stone" }));
    log.lines.clear();
    QTest::keyClick(combo, Qt::Key_Up); // Stone -> Wood
    QCOMPARE(log.lines, (QStringList { "ChannelChanged", "Extern 4711 0 Wood" }));
    QCOMPARE(w.GetCurrentChannel(), Vela::SubstanceChannel_ExternTexture);
    log.lines.clear();
    // Back down to the custom entry: only the change of channel, then the dialog request from
    // the activation.
    QTest::keyClick(combo, Qt::Key_Down);
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(combo->currentIndex(), 13);
    QCOMPARE(log.lines.mid(2), (QStringList { "ChannelChanged", "OpenDialog 4711" }));
}

void tst_QSbsImageWidget::chooseNoneAndChannel()
{
    QSbsImageWidget w;
    initFull(w);
    SignalLog log(&w);
    // Hosts spy on the signals by the signatures' names, arguments included.
    QSignalSpy removed(&w, SIGNAL(RemoveImage(uint32_t)));
    QSignalSpy channel(&w, &QSbsImageWidget::ImportImageFromChannel);
    w.SetSelectedChannel(99999);
    QCOMPARE(log.lines, (QStringList { "ChannelChanged", "Remove 4711" }));
    QCOMPARE(removed.count(), 1);
    QCOMPARE(w.GetCurrentChannel(), Vela::SubstanceChannel_None);
    log.lines.clear();
    w.SetSelectedChannel(3);
    QCOMPARE(log.lines, (QStringList { "ChannelChanged", "Channel 4711 3" }));
    QCOMPARE(channel.at(0).at(1).value<Vela::ESubstanceUiChannel>(),
             Vela::SubstanceChannel_Metallic);
    log.lines.clear();
    // Back to custom by a change of index: the channel change only.
    w.SetSelectedChannel(99998);
    QCOMPARE(log.lines, QStringList { "ChannelChanged" });

    // Channels that do not exist change nothing.
    w.SetSelectedChannel(4);
    log.lines.clear();
    for (int c : { -1, -99999, 15, 500, 99997, 100000 })
        w.SetSelectedChannel(c);
    QVERIFY(log.lines.isEmpty());
    QCOMPARE(w.GetCurrentChannel(), Vela::SubstanceChannel_Height);
    // Past the channels, the extern textures count by position.
    w.SetSelectedChannel(12);
    QCOMPARE(log.lines, (QStringList { "ChannelChanged", "Extern 4711 1 Stone" }));
    QCOMPARE(w.GetCurrentChannel(), Vela::SubstanceChannel_ExternTexture);
}

void tst_QSbsImageWidget::activateCurrentCustomEntry()
{
    QSbsImageWidget w;
    initFull(w);
    w.show();
    QVERIFY(QTest::qWaitForWindowActive(&w));
    QComboBoxEx *combo = comboOf(w);
    SignalLog log(&w);
    // Open the list and click the entry that is already current.
    combo->showPopup();
    QAbstractItemView *view = combo->view();
    QTRY_VERIFY(view->isVisible());
    const QRect rect = view->visualRect(view->model()->index(13, 0));
    QVERIFY(rect.isValid());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, rect.center());
    QTRY_COMPARE(log.lines, QStringList { "OpenDialog 4711" });
    QCOMPARE(combo->currentIndex(), 13);
}

void tst_QSbsImageWidget::previewMouse()
{
    QSbsImageWidget w;
    initFull(w);
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    QLabel *preview = w.GetImageLabel();
    SignalLog log(&w);
    QTest::mousePress(preview, Qt::RightButton);
    QTest::mouseRelease(preview, Qt::RightButton);
    QCOMPARE(log.lines, QStringList { "Menu 4711" });
    log.lines.clear();
    QTest::mouseDClick(preview, Qt::LeftButton);
    QCOMPARE(log.lines.count(QStringLiteral("OpenDialog 4711")), 1);
    log.lines.clear();
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(preview, &enter);
    QCOMPARE(log.lines, QStringList { "Hover" });

    // A disabled widget answers none of it.
    log.lines.clear();
    w.setEnabled(false);
    QTest::mousePress(preview, Qt::RightButton);
    QTest::mouseRelease(preview, Qt::RightButton);
    QTest::mouseDClick(preview, Qt::LeftButton);
    QApplication::sendEvent(preview, &enter);
    QVERIFY(log.lines.isEmpty());
}

void tst_QSbsImageWidget::dragEnter_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("upper case") << "png;jpg;tga" << QStringList { "SHOT.PNG" } << true;
    QTest::newRow("part of a suffix") << "png;jpeg" << QStringList { "a.jpe" } << true;
    QTest::newRow("first counts") << "png" << QStringList { "notes.txt", "a.png" } << false;
    QTest::newRow("first png") << "png" << QStringList { "a.png", "notes.txt" } << true;
    QTest::newRow("empty filter") << "" << QStringList { "a.png" } << false;
    QTest::newRow("not existing yet") << "png" << QStringList { "missing.png" } << true;
}

void tst_QSbsImageWidget::dragEnter()
{
    QFETCH(QString, filter);
    QFETCH(QStringList, names);
    QFETCH(bool, accepted);
    QSbsImageWidget w;
    initFull(w);
    w.SetFileTypeFilter(filter);
    QStringList files;
    for (const QString &name : names)
        files.append(m_dir.filePath(name));
    QCOMPARE(VelaTest::dragEnter(&w, QPoint(1, 1), VelaTest::fileMime(files).get()), accepted);

    // Data without files is never accepted.
    QMimeData text;
    text.setText(QStringLiteral("a.png"));
    QVERIFY(!VelaTest::dragEnter(&w, QPoint(1, 1), &text));
}

void tst_QSbsImageWidget::drops()
{
    // The host answers a dropped file by loading it through the library's image loader and
    // pushing the result.
    QSbsImageWidget w;
    initFull(w);
    w.SetFileTypeFilter(QStringLiteral("png;jpg"));
    connect(&w, &QSbsImageWidget::DropFileCustomImageFile, &w, [&w](uint32_t, const QString &file) {
        QImage image;
        if (Vela::LoadImageFile(file, image))
            w.SetImage(image);
    });
    SignalLog log(&w);
    const QString png = VelaTest::writeImage(m_dir.path(), QStringLiteral("good.png"), Qt::yellow);
    QVERIFY(!png.isEmpty());

    // A missing file or a folder is ignored at the drop, and so is data that changed since the
    // drag entered: no files, a remote url.
    QVERIFY(!dragAndDrop(&w, { m_dir.filePath(QStringLiteral("missing.png")) }));
    QVERIFY(QDir(m_dir.path()).mkpath(QStringLiteral("folder.png")));
    QVERIFY(!dragAndDrop(&w, { m_dir.filePath(QStringLiteral("folder.png")) }));
    QMimeData none;
    none.setText(png);
    QVERIFY(!dragAndDrop(&w, { png }, &none));
    QMimeData remote;
    remote.setUrls({ QUrl(QStringLiteral("https://example.org/a.png")) });
    QVERIFY(!dragAndDrop(&w, { png }, &remote));
    QVERIFY(log.lines.isEmpty());

    // Files the loader refuses leave the slot as it was.
    const QString fake =
        VelaTest::writeFile(m_dir.path(), QStringLiteral("fake.png"), "plain text, not a png");
    const QString empty =
        VelaTest::writeFile(m_dir.path(), QStringLiteral("empty.jpg"), QByteArray());
    const QString huge = QStringLiteral(VELA_TEST_DATA_DIR "/sbs-huge-header.png");
    QVERIFY(QFileInfo::exists(huge));
    for (const QString &file : { fake, empty, huge }) {
        dragAndDrop(&w, { file });
        QVERIFY2(previewPixmap(w).isNull(), qPrintable(file));
    }
    QImage untouched(2, 2, QImage::Format_RGB32);
    QVERIFY(!Vela::LoadImageFile(huge, untouched));
    QCOMPARE(untouched.size(), QSize(2, 2));

    log.lines.clear();
    QVERIFY(dragAndDrop(&w, { png }));
    QCOMPARE(log.lines, QStringList { "Drop 4711 good.png" });
    QCOMPARE(previewPixmap(w).toImage().pixelColor(8, 8), QColor(Qt::yellow));
    QCOMPARE(w.GetImageSize(), QSize(102, 102));
    QCOMPARE(comboOf(w)->currentIndex(), 13);

    // A disabled widget takes no drag, so no drop reaches it.
    w.setEnabled(false);
    QVERIFY(!dragAndDrop(&w, { png }));
    QCOMPARE(log.lines.size(), 1);
}

void tst_QSbsImageWidget::sbsarVisibleIf()
{
    QSbsImageWidget w;
    initFull(w);
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    QVERIFY(w.GetSbsarVisibleif());
    w.OnUpdateWidgetSbsarVisibleif(kUid + 1, false);
    QVERIFY(w.isVisible());
    QVERIFY(w.GetSbsarVisibleif());
    w.OnUpdateWidgetSbsarVisibleif(kUid, false);
    QVERIFY(!w.isVisible());
    QVERIFY(!w.GetSbsarVisibleif());
    QVERIFY(!w.signalsBlocked());
    w.OnUpdateWidgetSbsarVisibleif(kUid, true);
    QVERIFY(w.isVisible());
}

VELA_TEST_CLASS(tst_QSbsImageWidget)
#include "tst_QSbsImageWidget.moc"
