#include "QComboBoxEx.h"
#include "QSbsImageWidget.h"
#include "VelaImageLoader.h"
#include "VelaTest.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

static const unsigned int kUid = 4711;

// Records every signal of the widget in order, with its arguments.
class SignalLog : public QObject
{
public:
    explicit SignalLog(QSbsImageWidget *w)
    {
        auto add = [this](const QString &line) { lines.append(line); };
        connect(w, &QSbsImageWidget::OpenCustomImageFileDialog, this,
                [=](uint32_t uid) { add(QStringLiteral("OpenDialog %1").arg(uid)); });
        connect(w, &QSbsImageWidget::ImportImageFromChannel, this,
                [=](uint32_t uid, Vela::ESubstanceUiChannel c) {
                    add(QStringLiteral("Channel %1 %2").arg(uid).arg(int(c)));
                });
        connect(w, &QSbsImageWidget::ImportImageFromExtern, this,
                [=](uint32_t uid, int n, const QString &name) {
                    add(QStringLiteral("Extern %1 %2 %3").arg(uid).arg(n).arg(name));
                });
        connect(w, &QSbsImageWidget::RemoveImage, this,
                [=](uint32_t uid) { add(QStringLiteral("Remove %1").arg(uid)); });
        connect(w, &QSbsImageWidget::DropFileCustomImageFile, this,
                [=](uint32_t uid, const QString &file) {
                    add(QStringLiteral("Drop %1 %2").arg(uid).arg(QFileInfo(file).fileName()));
                });
        connect(w, &QSbsImageWidget::ChannelChanged, this, [=]() { add("ChannelChanged"); });
        connect(w, &QSbsImageWidget::OpenCustomImageMenu, this,
                [=](uint32_t uid) { add(QStringLiteral("Menu %1").arg(uid)); });
        connect(w, &QSbsImageWidget::MouseHoverEnterInImageLabel, this, [=]() { add("Hover"); });
    }
    QStringList lines;
};

class tst_QSbsImageWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }
    void init();

    void entries();
    void chooseChannel();
    void previewAndVisibility();
    void dragEnter_data();
    void dragEnter();
    void drops();

private:
    // Drags the files onto the widget and drops dropData (default: the same files) there.
    bool dragAndDrop(const QStringList &files, const QMimeData *dropData = nullptr)
    {
        return VelaTest::dropAt(m_w.get(), m_w->rect().center(), VelaTest::fileMime(files).get(),
                                dropData);
    }
    QComboBoxEx *combo() const { return m_w->findChild<QComboBoxEx *>(); }
    QPixmap preview() const { return m_w->GetImageLabel()->pixmap(Qt::ReturnByValue); }

    QTemporaryDir m_dir;
    std::unique_ptr<QSbsImageWidget> m_w;
    std::unique_ptr<SignalLog> m_log;
};

// A slot with the eleven channels, two extern textures and drops on; the custom entry is current.
void tst_QSbsImageWidget::init()
{
    Vela::CMap<Vela::ESubstanceUiChannel, QString> names;
    const char *const texts[] = { "Base Color", "Normal",   "Roughness", "Metallic", "Height", "AO",
                                  "Opacity",    "Emissive", "Specular",  "Glossy",   "Diffuse" };
    for (int i = 0; i < 11; ++i)
        names[Vela::ESubstanceUiChannel(i)] = QString::fromLatin1(texts[i]);
    names[Vela::SubstanceChannel_Custom] = QStringLiteral("Custom");
    names[Vela::SubstanceChannel_None] = QStringLiteral("None");
    m_w.reset(new QSbsImageWidget);
    m_w->Initialize(kUid, QStringLiteral("Base Color Input"), names,
                    Vela::CArrayList<std::wstring> { L"Wood", L"Stone" }, true);
    m_log.reset(new SignalLog(m_w.get()));
}

void tst_QSbsImageWidget::entries()
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
    QVERIFY(log.lines.isEmpty());

    QList<int> data;
    for (int i = 0; i < combo()->count(); ++i)
        data.append(combo()->itemData(i).toInt());
    QCOMPARE(data, (QList<int> { 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 99998, 99999 }));
    QStringList texts;
    for (int i : { 0, 10, 11, 12, 13, 14 })
        texts << combo()->itemText(i);
    QCOMPARE(texts, QString("Base Color,Diffuse,Wood,Stone,Custom,None").split(','));
    QCOMPARE(m_w->GetCurrentChannel(), Vela::SubstanceChannel_Custom);

    // Initialized again without channels: the drop-down goes, nothing is built twice, and
    // there is nothing to choose from.
    QCOMPARE(m_w->Initialize(7, QStringLiteral("Again")).code(), 0u);
    QVERIFY(!combo());
    QCOMPARE(m_w->findChildren<QLabel *>().size(), 2);
    m_w->SetSelectedChannel(3);
    m_w->SetSelectedChannel(99998);
    QCOMPARE(m_w->GetCurrentChannel(), Vela::SubstanceChannel_None);
    QVERIFY(m_log->lines.isEmpty());

    // Names missing from the map leave their entries blank, and no extern textures none.
    Vela::CMap<Vela::ESubstanceUiChannel, QString> names;
    names[Vela::SubstanceChannel_Normal] = QStringLiteral("Normal");
    m_w->Initialize(kUid, QStringLiteral("Slot"), names, {}, false);
    QCOMPARE(combo()->count(), 13);
    QCOMPARE(combo()->itemText(0), QString());
    QCOMPARE(combo()->itemText(1), QStringLiteral("Normal"));
    QVERIFY(!m_w->acceptDrops());
}

void tst_QSbsImageWidget::chooseChannel()
{
    m_w->show();
    QVERIFY(QTest::qWaitForWindowActive(m_w.get()));
    combo()->setFocus();
    QTRY_VERIFY(combo()->hasFocus());
    QTest::keyClick(combo(), Qt::Key_Up); // custom -> Stone
    QTest::keyClick(combo(), Qt::Key_Up); // Stone -> Wood
    QCOMPARE(m_log->lines,
             (QStringList { "ChannelChanged", "Extern 4711 1 Stone", "ChannelChanged",
                            "Extern 4711 0 Wood" }));
    m_log->lines.clear();
    // Back down to the custom entry: only the change of channel, then the dialog request from
    // the activation.
    QTest::keyClick(combo(), Qt::Key_Down);
    QTest::keyClick(combo(), Qt::Key_Down);
    QCOMPARE(combo()->currentIndex(), 13);
    QCOMPARE(m_log->lines.mid(2), (QStringList { "ChannelChanged", "OpenDialog 4711" }));

    m_log->lines.clear();
    // Hosts spy on the signals by the signatures' names, arguments included.
    QSignalSpy removed(m_w.get(), SIGNAL(RemoveImage(uint32_t)));
    QSignalSpy channel(m_w.get(), &QSbsImageWidget::ImportImageFromChannel);
    m_w->SetSelectedChannel(99999);
    m_w->SetSelectedChannel(3);
    // Back to custom by a change of index: the channel change only.
    m_w->SetSelectedChannel(99998);
    QCOMPARE(m_log->lines,
             (QStringList { "ChannelChanged", "Remove 4711", "ChannelChanged", "Channel 4711 3",
                            "ChannelChanged" }));
    QCOMPARE(removed.count(), 1);
    QCOMPARE(channel.at(0).at(1).value<Vela::ESubstanceUiChannel>(),
             Vela::SubstanceChannel_Metallic);

    // Channels that do not exist change nothing.
    m_w->SetSelectedChannel(4);
    m_log->lines.clear();
    for (int c : { -1, -99999, 15, 500, 99997, 100000 })
        m_w->SetSelectedChannel(c);
    QVERIFY(m_log->lines.isEmpty());
    QCOMPARE(m_w->GetCurrentChannel(), Vela::SubstanceChannel_Height);
    // Past the channels, the extern textures count by position.
    m_w->SetSelectedChannel(12);
    QCOMPARE(m_log->lines, (QStringList { "ChannelChanged", "Extern 4711 1 Stone" }));
    QCOMPARE(m_w->GetCurrentChannel(), Vela::SubstanceChannel_ExternTexture);
}

void tst_QSbsImageWidget::previewAndVisibility()
{
    m_w->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_w.get()));
    QLabel *label = m_w->GetImageLabel();
    // A press with any other button than the right one counts as hovering, as entering does.
    QTest::mousePress(label, Qt::RightButton);
    QTest::mousePress(label, Qt::MiddleButton);
    QTest::mouseDClick(label, Qt::LeftButton);
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(label, &enter);
    QCOMPARE(m_log->lines, (QStringList { "Menu 4711", "Hover", "OpenDialog 4711", "Hover" }));

    // A disabled widget answers none of it.
    m_log->lines.clear();
    m_w->setEnabled(false);
    QTest::mousePress(label, Qt::RightButton);
    QTest::mouseRelease(label, Qt::RightButton);
    QTest::mouseDClick(label, Qt::LeftButton);
    QApplication::sendEvent(label, &enter);
    QVERIFY(m_log->lines.isEmpty());

    // Only the update for this slot's uid hides it.
    m_w->OnUpdateWidgetSbsarVisibleif(kUid + 1, false);
    QVERIFY(m_w->isVisible());
    m_w->OnUpdateWidgetSbsarVisibleif(kUid, false);
    QVERIFY(!m_w->isVisible());
    QVERIFY(!m_w->GetSbsarVisibleif());
}

void tst_QSbsImageWidget::dragEnter_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("upper case") << "png;jpg;tga" << QStringList { "SHOT.PNG" } << true;
    QTest::newRow("part of a suffix") << "png;jpeg" << QStringList { "a.jpe" } << true;
    QTest::newRow("first counts") << "png" << QStringList { "notes.txt", "a.png" } << false;
    QTest::newRow("empty filter") << "" << QStringList { "a.png" } << false;
    QTest::newRow("not existing yet") << "png" << QStringList { "missing.png" } << true;
}

void tst_QSbsImageWidget::dragEnter()
{
    QFETCH(QString, filter);
    QFETCH(QStringList, names);
    QFETCH(bool, accepted);
    m_w->SetFileTypeFilter(filter);
    QStringList files;
    for (const QString &name : names)
        files.append(m_dir.filePath(name));
    QCOMPARE(VelaTest::dragEnter(m_w.get(), QPoint(1, 1), VelaTest::fileMime(files).get()),
             accepted);
}

void tst_QSbsImageWidget::drops()
{
    // The host answers a dropped file by loading it through the library's image loader and
    // pushing the result.
    m_w->SetFileTypeFilter(QStringLiteral("png;jpg"));
    connect(m_w.get(), &QSbsImageWidget::DropFileCustomImageFile, m_w.get(),
            [this](uint32_t, const QString &file) {
                QImage image;
                if (Vela::LoadImageFile(file, image))
                    m_w->SetImage(image);
            });
    const QString png = VelaTest::writeImage(m_dir.path(), QStringLiteral("good.png"), Qt::yellow);
    QVERIFY(!png.isEmpty());

    // A missing file or a folder is ignored at the drop, and so is data that changed since the
    // drag entered: no files, a remote url.
    QVERIFY(!dragAndDrop({ m_dir.filePath(QStringLiteral("missing.png")) }));
    QVERIFY(QDir(m_dir.path()).mkpath(QStringLiteral("folder.png")));
    QVERIFY(!dragAndDrop({ m_dir.filePath(QStringLiteral("folder.png")) }));
    QMimeData none;
    none.setText(png);
    QVERIFY(!dragAndDrop({ png }, &none));
    QMimeData remote;
    remote.setUrls({ QUrl(QStringLiteral("https://example.org/a.png")) });
    QVERIFY(!dragAndDrop({ png }, &remote));
    QVERIFY(m_log->lines.isEmpty());

    // Files the loader refuses leave the slot as it was.
    const QString fake =
        VelaTest::writeFile(m_dir.path(), QStringLiteral("fake.png"), "plain text, not a png");
    const QString empty =
        VelaTest::writeFile(m_dir.path(), QStringLiteral("empty.jpg"), QByteArray());
    const QString huge = QStringLiteral(VELA_TEST_DATA_DIR "/sbs-huge-header.png");
    QVERIFY(QFileInfo::exists(huge));
    for (const QString &file : { fake, empty, huge }) {
        dragAndDrop({ file });
        QVERIFY2(preview().isNull(), qPrintable(file));
    }
    QImage untouched(2, 2, QImage::Format_RGB32);
    QVERIFY(!Vela::LoadImageFile(huge, untouched));
    QCOMPARE(untouched.size(), QSize(2, 2));

    m_log->lines.clear();
    QVERIFY(dragAndDrop({ png }));
    QCOMPARE(m_log->lines, QStringList { "Drop 4711 good.png" });
    QCOMPARE(preview().toImage().pixelColor(8, 8), QColor(Qt::yellow));

    // A disabled widget takes no drag, so no drop reaches it.
    m_w->setEnabled(false);
    QVERIFY(!dragAndDrop({ png }));
    QCOMPARE(m_log->lines.size(), 1);
}

VELA_TEST_CLASS(tst_QSbsImageWidget)
#include "tst_QSbsImageWidget.moc"
