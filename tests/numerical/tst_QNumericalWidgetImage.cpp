#include "NumericalTestSupport.h"
#include "QNumericalWidgetImage.h"
#include "VelaImageLoader.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>

using Image = QNumericalWidgetImage;
using NumericalTest::description;
using NumericalTest::variable;

static const char *const kButtonNames[] = { "qtLoadPushButton",   "qtSavePushButton",
                                            "qtLaunchPushButton", "qtResetPushButton",
                                            "qtDeletePushButton", "qtAdjustToolButton" };

class tst_QNumericalWidgetImage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }
    void init();
    void form();
    void buttons_data();
    void buttons();
    void everySuffixOfTheMask_data();
    void everySuffixOfTheMask();
    void drops();

private:
    void initialize(const wchar_t *name)
    {
        m_w->Initialize(variable(Vela::DynamicVariable_Image), description(name));
    }
    QToolButton *button(int i) const
    {
        return m_w->findChild<QToolButton *>(QString::fromLatin1(kButtonNames[i]));
    }
    bool enterFiles(const QStringList &names)
    {
        QStringList files;
        for (const QString &name : names)
            files << m_dir.filePath(name);
        QLabel *preview = m_w->getImageLabel();
        return VelaTest::dragEnter(preview, preview->rect().center(),
                                   VelaTest::fileMime(files).get());
    }
    // Drags the data onto the preview and drops it there; true when the host accepted the drop.
    bool drop(const QMimeData &mime)
    {
        QLabel *preview = m_w->getImageLabel();
        return VelaTest::dropAt(preview, preview->rect().center(), &mime);
    }
    QColor previewColor() const
    {
        const QImage image = m_w->getImageLabel()->pixmap(Qt::ReturnByValue).toImage();
        return image.isNull() ? QColor() : image.pixelColor(image.width() / 2, image.height() / 2);
    }

    QTemporaryDir m_dir;
    std::unique_ptr<Image> m_w;
};

void tst_QNumericalWidgetImage::init()
{
    m_w.reset(new Image);
    m_w->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_w.get()));
}

void tst_QNumericalWidgetImage::form()
{
    initialize(L"Base Color Map");
    QCOMPARE(m_w->text(), QStringLiteral("Base Color Map"));
    // labelName is the name label's object name, not its text.
    QVERIFY(m_w->setProperty("labelName", QStringLiteral("qtMaskName")));
    QCOMPARE(m_w->findChild<QLabel *>(QStringLiteral("qtMaskName"))->text(),
             QStringLiteral("Base Color Map"));

    // Until the host pushes an image the preview shows the host's placeholder; it alone takes
    // drops.
    QLabel *preview = m_w->getImageLabel();
    QCOMPARE(previewColor(), QColor(0x50, 0x50, 0x50));
    QVERIFY(preview->acceptDrops());
    QVERIFY(!m_w->acceptDrops());

    // The value is always one, and pushing another one raises nothing.
    QSignalSpy changed(m_w.get(), &QNumericalWidgetBase::ValueChanged);
    QSignalSpy finished(m_w.get(), &QNumericalWidgetBase::EditFinished);
    m_w->SetValue(Vela::CVector4f(0.0f, 2.0f, -3.0f, 0.5f));
    m_w->UpdateInputValue(Vela::CVector4f(7.0f, 7.0f, 7.0f, 7.0f));
    QCOMPARE(m_w->GetValue(), Vela::CVector4f(1.0f, 1.0f, 1.0f, 1.0f));
    QCOMPARE(changed.count() + finished.count(), 0);

    // Bits beyond the six buttons are ignored.
    m_w->SetVisibleButtons(Image::EButtonList(0xFFFFFFC0u | Image::Button_Load | Image::Button_Reset
                                              | Image::Button_Adjust));
    const bool expected[] = { true, false, false, true, false, true };
    for (int i = 0; i < 6; ++i)
        QCOMPARE(button(i)->isVisible(), expected[i]);

    // Enabling and disabling touches only the buttons named.
    button(0)->setEnabled(false);
    m_w->SetButtonsEnableState(Image::Button_Save | Image::Button_Delete, false);
    const bool afterDisable[] = { false, false, true, true, false, true };
    for (int i = 0; i < 6; ++i)
        QCOMPARE(button(i)->isEnabled(), afterDisable[i]);

    // A disabled button raises nothing.
    QSignalSpy save(m_w.get(), &Image::SaveTexture);
    QTest::mouseClick(button(1), Qt::LeftButton);
    m_w->SetButtonsEnableState(Image::Button_Save, true);
    QVERIFY(!button(0)->isEnabled());
    QTest::mouseClick(button(1), Qt::LeftButton);
    QCOMPARE(save.count(), 1);

    // A double-click on the preview asks for a file; a single click or a disabled widget not.
    QSignalSpy open(m_w.get(), &Image::OpenTextureFileDialog);
    QTest::mouseDClick(preview, Qt::LeftButton);
    QTest::mouseClick(preview, Qt::LeftButton);
    m_w->setEnabled(false);
    QTest::mouseDClick(preview, Qt::LeftButton);
    QCOMPARE(open.count(), 1);
    QCOMPARE(open.at(0).at(0).toString(), QStringLiteral("Base Color Map"));
}

void tst_QNumericalWidgetImage::buttons_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("tip");
    const char *const tips[] = { "Load", "Save", "Launch", "Remove", "Delete", "Adjust Color" };
    for (int i = 0; i < 6; ++i)
        QTest::newRow(kButtonNames[i]) << i << QString::fromLatin1(tips[i]);
}

void tst_QNumericalWidgetImage::buttons()
{
    QFETCH(int, index);
    QFETCH(QString, tip);
    QCOMPARE(button(index)->toolTip(), tip);
    using Signal = void (Image::*)(QString);
    const Signal kSignals[] = {
        &Image::LoadTexture,  &Image::SaveTexture,   &Image::LaunchTexture,
        &Image::ResetTexture, &Image::DeleteTexture, &Image::AdjustTexture
    };
    QStringList log;
    for (int i = 0; i < 6; ++i)
        connect(m_w.get(), kSignals[i], this,
                [&log, i](QString name) { log << QStringLiteral("%1 %2").arg(i).arg(name); });
    // Before Initialize a click raises nothing.
    QTest::mouseClick(button(index), Qt::LeftButton);
    QVERIFY(log.isEmpty());
    // Only the button's own signal, and a second Initialize does not make it report twice.
    initialize(L"Roughness");
    QTest::mouseClick(button(index), Qt::LeftButton);
    initialize(L"Metallic");
    QTest::mouseClick(button(index), Qt::LeftButton);
    QCOMPARE(log,
             (QStringList { QStringLiteral("%1 Roughness").arg(index),
                            QStringLiteral("%1 Metallic").arg(index) }));
}

void tst_QNumericalWidgetImage::everySuffixOfTheMask_data()
{
    QTest::addColumn<unsigned int>("bit");
    QTest::addColumn<QStringList>("suffixes");
    const char *const suffixes[] = { "jpg jpeg", "bmp", "gif", "png", "tga", "tif tiff",
                                     "exr",      "hdr", "mp4", "avi", "wmv" };
    for (int i = 0; i < 11; ++i)
        QTest::newRow(suffixes[i]) << (1u << i) << QString::fromLatin1(suffixes[i]).split(' ');
}

void tst_QNumericalWidgetImage::everySuffixOfTheMask()
{
    QFETCH(unsigned int, bit);
    QFETCH(QStringList, suffixes);
    initialize(L"Albedo");
    // A filter replaces the one before it.
    m_w->SetFileTypeFilter(Image::EAcceptImageType(0x7FF & ~bit));
    m_w->SetFileTypeFilter(Image::EAcceptImageType(bit));
    for (const QString &suffix :
         QStringLiteral("jpg jpeg bmp gif png tga tif tiff exr hdr mp4 avi wmv").split(' '))
        QCOMPARE(enterFiles({ "file." + suffix }), suffixes.contains(suffix));
}

void tst_QNumericalWidgetImage::drops()
{
    initialize(L"Height");
    // Only the first file's suffix counts, in any case; bits beyond the table accept nothing.
    m_w->SetFileTypeFilter(Image::EAcceptImageType(0xF800u));
    QVERIFY(!enterFiles({ "a.png" }));
    m_w->SetFileTypeFilter(Image::AcceptImage_Png | Image::AcceptImage_Jpg);
    QVERIFY(enterFiles({ "PHOTO.JPEG" }));
    QVERIFY(!enterFiles({ "dir.png/README" }));
    QVERIFY(!enterFiles({ "notes.txt", "a.png" }));

    QImage start(8, 8, QImage::Format_RGB32);
    start.fill(Qt::darkGreen);
    m_w->SetImage(start);
    // The host's side: load the first dropped file and show it.
    QStringList names;
    QObject *dropTarget = nullptr;
    connect(m_w.get(), &Image::DropToLoadTextureFile, this,
            [&](const QString &name, QObject *pObject, QDropEvent *pDropEvent) {
                names.append(name);
                dropTarget = pObject;
                const QList<QUrl> urls = pDropEvent->mimeData()->urls();
                QImage image;
                if (!urls.isEmpty() && Vela::LoadImageFile(urls.first().toLocalFile(), image)) {
                    m_w->SetImage(image);
                    pDropEvent->acceptProposedAction();
                }
            });

    // Data without local files is refused, and so is anything while disabled.
    const QString png =
        VelaTest::writeImage(m_dir.path(), QStringLiteral("height.png"), Qt::magenta);
    QVERIFY(!png.isEmpty());
    QMimeData plain;
    plain.setText(png);
    drop(plain);
    QMimeData remote;
    remote.setUrls({ QUrl(QStringLiteral("https://example.org/texture.png")) });
    drop(remote);
    m_w->setEnabled(false);
    drop(*VelaTest::fileMime({ png }));
    QVERIFY(names.isEmpty());
    QCOMPARE(previewColor(), QColor(Qt::darkGreen));

    m_w->setEnabled(true);
    QVERIFY(drop(*VelaTest::fileMime({ png })));
    QCOMPARE(names, QStringList { "Height" });
    QCOMPARE(dropTarget, m_w->getImageLabel());
    QCOMPARE(previewColor(), QColor(Qt::magenta));
    // A null image empties the preview.
    m_w->SetImage(QImage());
    QVERIFY(m_w->pixmap().isNull());
}

VELA_TEST_CLASS(tst_QNumericalWidgetImage)
#include "tst_QNumericalWidgetImage.moc"
