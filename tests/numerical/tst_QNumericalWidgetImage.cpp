#include "QNumericalWidgetImage.h"
#include "VelaImageLoader.h"
#include "VelaTest.h"

#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>
#include <QUrl>
#include <QtTest>

using Image = QNumericalWidgetImage;

namespace {

const char *const kButtonNames[] = { "qtLoadPushButton",   "qtSavePushButton",
                                     "qtLaunchPushButton", "qtResetPushButton",
                                     "qtDeletePushButton", "qtAdjustToolButton" };

// The six button signals, in the order of the buttons above.
const char *const kButtonSignals[] = { "LoadTexture(QString)",   "SaveTexture(QString)",
                                       "LaunchTexture(QString)", "ResetTexture(QString)",
                                       "DeleteTexture(QString)", "AdjustTexture(QString)" };

void initialize(Image &w, const wchar_t *name = L"Albedo")
{
    Lu::CDynamicWidgetVariableBase var;
    var.eType = Vela::DynamicVariable_Image;
    var.vValue = Vela::CVector4f(0.25f, 0.5f, 0.75f, 1.0f);
    Lu::CDynamicWidgetDescBase desc;
    desc.strName = name;
    desc.eBehaviorType = Vela::DynamicBehavior_Image;
    desc.bTriggerBake = true;
    w.Initialize(var, desc);
}

QToolButton *button(Image &w, int i)
{
    return w.findChild<QToolButton *>(QString::fromLatin1(kButtonNames[i]));
}

// Drags the data onto the preview and drops it there; true when the host accepted the drop.
bool drop(Image &w, const QMimeData &mime)
{
    QLabel *preview = w.getImageLabel();
    return VelaTest::dropAt(preview, preview->rect().center(), &mime);
}

bool dropFiles(Image &w, const QStringList &files)
{
    return drop(w, *VelaTest::fileMime(files));
}

bool enterFiles(Image &w, const QStringList &files)
{
    QLabel *preview = w.getImageLabel();
    return VelaTest::dragEnter(preview, preview->rect().center(), VelaTest::fileMime(files).get());
}

QColor previewColor(Image &w)
{
    const QImage image = w.getImageLabel()->pixmap(Qt::ReturnByValue).toImage();
    return image.isNull() ? QColor() : image.pixelColor(image.width() / 2, image.height() / 2);
}

} // namespace

class tst_QNumericalWidgetImage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void form();
    void buttons_data();
    void buttons();
    void everySuffixOfTheMask_data();
    void everySuffixOfTheMask();
    void drops();
    void buttonStates();

private:
    QTemporaryDir m_dir;
};

void tst_QNumericalWidgetImage::initTestCase()
{
    QVERIFY(m_dir.isValid());
}

void tst_QNumericalWidgetImage::form()
{
    Image w;
    initialize(w, L"Base Color Map");
    // Nothing is built beside the form.
    QCOMPARE(w.findChildren<QLabel *>().size(), 2);
    QCOMPARE(w.findChildren<QToolButton *>().size(), 6);
    QCOMPARE(w.text(), QStringLiteral("Base Color Map"));

    // Until the host pushes an image the preview shows the host's placeholder; it alone takes
    // drops.
    QLabel *preview = w.getImageLabel();
    QCOMPARE(previewColor(w), QColor(0x50, 0x50, 0x50));
    QVERIFY(preview->acceptDrops());
    QVERIFY(!w.acceptDrops());

    // The value is always one, and pushing another one raises nothing.
    QSignalSpy changed(&w, &QNumericalWidgetBase::ValueChanged);
    QSignalSpy finished(&w, &QNumericalWidgetBase::EditFinished);
    w.SetValue(Vela::CVector4f(0.0f, 2.0f, -3.0f, 0.5f));
    w.UpdateInputValue(Vela::CVector4f(7.0f, 7.0f, 7.0f, 7.0f));
    QCOMPARE(w.GetValue(), Vela::CVector4f(1.0f, 1.0f, 1.0f, 1.0f));
    QCOMPARE(changed.count() + finished.count(), 0);

    // A double-click on the preview asks for a file; a single click or a disabled widget not.
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    QSignalSpy open(&w, &Image::OpenTextureFileDialog);
    QTest::mouseDClick(preview, Qt::LeftButton);
    QTest::mouseClick(preview, Qt::LeftButton);
    w.setEnabled(false);
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
    Image w;
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    QList<QSharedPointer<QSignalSpy>> spies;
    for (const char *signal : kButtonSignals) {
        spies.append(QSharedPointer<QSignalSpy>::create(&w, QByteArray("2") + signal));
        QVERIFY(spies.last()->isValid());
    }
    QCOMPARE(button(w, index)->toolTip(), tip);
    // Before Initialize a click raises nothing.
    QTest::mouseClick(button(w, index), Qt::LeftButton);
    QCOMPARE(spies.at(index)->count(), 0);

    initialize(w, L"Roughness");
    QTest::mouseClick(button(w, index), Qt::LeftButton);
    for (int i = 0; i < 6; ++i)
        QCOMPARE(spies.at(i)->count(), i == index ? 1 : 0);
    QCOMPARE(spies.at(index)->at(0).at(0).toString(), QStringLiteral("Roughness"));
    // A second Initialize does not make the click report twice.
    initialize(w, L"Metallic");
    QTest::mouseClick(button(w, index), Qt::LeftButton);
    QCOMPARE(spies.at(index)->count(), 2);
    QCOMPARE(spies.at(index)->at(1).at(0).toString(), QStringLiteral("Metallic"));
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
    const QStringList all =
        QStringLiteral("jpg jpeg bmp gif png tga tif tiff exr hdr mp4 avi wmv").split(' ');
    Image w;
    initialize(w);
    // A filter replaces the one before it.
    w.SetFileTypeFilter(Image::EAcceptImageType(0x7FF & ~bit));
    w.SetFileTypeFilter(Image::EAcceptImageType(bit));
    for (const QString &suffix : all)
        QCOMPARE(enterFiles(w, { m_dir.filePath("file." + suffix) }), suffixes.contains(suffix));
}

void tst_QNumericalWidgetImage::drops()
{
    Image w;
    initialize(w, L"Height");
    // Only the first file's suffix counts, in any case; bits beyond the table accept nothing.
    w.SetFileTypeFilter(Image::EAcceptImageType(0xF800u));
    QVERIFY(!enterFiles(w, { m_dir.filePath("a.png") }));
    w.SetFileTypeFilter(Image::AcceptImage_Png | Image::AcceptImage_Jpg);
    QVERIFY(enterFiles(w, { m_dir.filePath("PHOTO.JPEG") }));
    QVERIFY(!enterFiles(w, { m_dir.filePath("dir.png/README") }));
    QVERIFY(!enterFiles(w, { m_dir.filePath("notes.txt"), m_dir.filePath("a.png") }));
    QImage start(8, 8, QImage::Format_RGB32);
    start.fill(Qt::darkGreen);
    w.SetImage(start);
    // The host's side: load the first dropped file and show it.
    QStringList names;
    QObject *dropTarget = nullptr;
    connect(&w, &Image::DropToLoadTextureFile, &w,
            [&](const QString &name, QObject *pObject, QDropEvent *pDropEvent) {
                names.append(name);
                dropTarget = pObject;
                const QList<QUrl> urls = pDropEvent->mimeData()->urls();
                QImage image;
                if (!urls.isEmpty() && Vela::LoadImageFile(urls.first().toLocalFile(), image)) {
                    w.SetImage(image);
                    pDropEvent->acceptProposedAction();
                }
            });

    // Data without local files is refused, and so is anything while disabled.
    const QString png =
        VelaTest::writeImage(m_dir.path(), QStringLiteral("height.png"), Qt::magenta);
    QVERIFY(!png.isEmpty());
    QMimeData plain;
    plain.setText(png);
    drop(w, plain);
    QMimeData remote;
    remote.setUrls({ QUrl(QStringLiteral("https://example.org/texture.png")) });
    drop(w, remote);
    w.setEnabled(false);
    dropFiles(w, { png });
    QVERIFY(names.isEmpty());
    QCOMPARE(previewColor(w), QColor(Qt::darkGreen));

    w.setEnabled(true);
    QVERIFY(dropFiles(w, { png }));
    QCOMPARE(names, QStringList { "Height" });
    QCOMPARE(dropTarget, w.getImageLabel());
    QCOMPARE(previewColor(w), QColor(Qt::magenta));
    // The preview keeps its size; the image is scaled into it.
    QCOMPARE(w.GetImageSize(), QSize(80, 80));
    // A null image empties the preview.
    w.SetImage(QImage());
    QVERIFY(w.pixmap().isNull());
}

void tst_QNumericalWidgetImage::buttonStates()
{
    Image w;
    initialize(w);
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    // Bits beyond the six buttons are ignored.
    w.SetVisibleButtons(Image::EButtonList(0xFFFFFFC0u | Image::Button_Load | Image::Button_Reset
                                           | Image::Button_Adjust));
    const bool expected[] = { true, false, false, true, false, true };
    for (int i = 0; i < 6; ++i)
        QCOMPARE(button(w, i)->isVisible(), expected[i]);

    // Enabling and disabling touches only the buttons named.
    button(w, 0)->setEnabled(false);
    w.SetButtonsEnableState(Image::Button_Save | Image::Button_Delete, false);
    const bool afterDisable[] = { false, false, true, true, false, true };
    for (int i = 0; i < 6; ++i)
        QCOMPARE(button(w, i)->isEnabled(), afterDisable[i]);

    // A disabled button raises nothing.
    QSignalSpy save(&w, &Image::SaveTexture);
    QTest::mouseClick(button(w, 1), Qt::LeftButton);
    QCOMPARE(save.count(), 0);

    w.SetButtonsEnableState(Image::Button_Save, true);
    QVERIFY(!button(w, 0)->isEnabled());
    QTest::mouseClick(button(w, 1), Qt::LeftButton);
    QCOMPARE(save.count(), 1);
}

VELA_TEST_CLASS(tst_QNumericalWidgetImage)
#include "tst_QNumericalWidgetImage.moc"
