#include "QNumericalWidgetImage.h"
#include "VelaImageLoader.h"
#include "VelaTest.h"

#include <QBoxLayout>
#include <QDir>
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

QString expectedButtonStyle(const QString &name, const QString &base)
{
    QStringList lines {
        "QToolButton{background-color:#282828;border:1px solid #505050;}",
        "QToolButton:hover{background-color:#505050;}",
        "QToolButton:pressed{background-color:#c8c8c8;}",
        "QToolButton:selected{background-color:#c8c8c8;  }",
        "QToolButton:checked{background-color:#c8c8c8;  }",
        "QToolButton:disabled{color:#464646;border:1px solid #3c3c3c;}",
    };
    lines
        << QStringLiteral("QToolButton#%1{image:url(:/icon/%2.svg);}").arg(name, base)
        << QStringLiteral("QToolButton#%1:hover{image:url(:/icon/%2.svg);}").arg(name, base)
        << QStringLiteral("QToolButton#%1:pressed{image:url(:/icon/%2_sel.svg);}").arg(name, base)
        << QStringLiteral("QToolButton#%1:disabled{image:url(:/icon/%2_dis.svg);}").arg(name, base);
    return lines.join(QLatin1Char('\n'));
}

} // namespace

class tst_QNumericalWidgetImage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void form();
    void initializeFromRecords();
    void buttons_data();
    void buttons();
    void doubleClickPreview();
    void dragEnterRules_data();
    void dragEnterRules();
    void everySuffixOfTheMask_data();
    void everySuffixOfTheMask();
    void dropImageFile();
    void rejectedDropsLeaveThePreview();
    void buttonStates();
    void forwardedProperties();
    void setImage();
    void ownVisibilityFlag();

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
    QCOMPARE(w.objectName(), QStringLiteral("NumericalWidgetImage"));
    QCOMPARE(w.windowTitle(), QStringLiteral("Form"));
    for (const char *layout : { "verticalLayout", "verticalLayout_6", "horizontalLayout_10",
                                "horizontalLayout_4", "horizontalLayout_3" })
        QVERIFY2(w.findChild<QLayout *>(QString::fromLatin1(layout)), layout);
    QCOMPARE(w.size(), QSize(277, 151));
    QCOMPARE(w.minimumSize(), QSize(145, 0));

    QLabel *preview = w.getImageLabel();
    QCOMPARE(preview->objectName(), QStringLiteral("qtImageLabel"));
    QCOMPARE(preview->maximumSize(), QSize(80, 80));
    QVERIFY(preview->hasScaledContents());
    QCOMPARE(preview->alignment(), Qt::AlignCenter);
    QCOMPARE(preview->styleSheet(),
             QStringLiteral("QLabel#qtImageLabel{border:1px solid #505050;min-width:78px "
                            ";max-width:78px;min-height:78px;max-height:78px}"));
    // Until the host pushes an image the preview shows the host's placeholder.
    QCOMPARE(previewColor(w), QColor(0x50, 0x50, 0x50));
    // The form leaves drops off; the widget turns them on for the preview only.
    QVERIFY(preview->acceptDrops());
    QVERIFY(!w.acceptDrops());

    QLabel *name = w.findChild<QLabel *>(QStringLiteral("qtImageNameLabel"));
    QVERIFY(name);
    QCOMPARE(name->styleSheet(),
             QStringLiteral("QLabe#qtImageNameLabell{min-height:0px;margin-top:3px}"));

    // The six buttons, in this order in their row.
    auto *buttonRow = w.findChild<QHBoxLayout *>(QStringLiteral("horizontalLayout_3"));
    QVERIFY(buttonRow);
    QCOMPARE(buttonRow->count(), 8);
    const char *const bases[] = { "Load", "Save", "Launch", "Reset", "Delete", "Color" };
    const char *const tips[] = { "Load", "Save", "Launch", "Remove", "Delete", "Adjust Color" };
    for (int i = 0; i < 6; ++i) {
        QToolButton *b = button(w, i);
        QVERIFY2(b, kButtonNames[i]);
        QCOMPARE(buttonRow->itemAt(i + 1)->widget(), b);
        QCOMPARE(b->maximumSize(), QSize(25, 25));
        QVERIFY(b->autoRaise());
        if (i < 4)
            QCOMPARE(b->focusPolicy(), Qt::TabFocus);
        QCOMPARE(b->toolTip(), QString::fromLatin1(tips[i]));
        QCOMPARE(b->styleSheet(),
                 expectedButtonStyle(QString::fromLatin1(kButtonNames[i]),
                                     QString::fromLatin1(bases[i])));
    }
}

void tst_QNumericalWidgetImage::initializeFromRecords()
{
    Image w;
    QLayout *formLayout = w.layout();
    initialize(w, L"Base Color Map");
    QCOMPARE(w.GetName(), QStringLiteral("Base Color Map"));
    QCOMPARE(w.text(), QStringLiteral("Base Color Map"));
    QCOMPARE(w.GetWidgetType(), Vela::DynamicBehavior_Image);
    QVERIFY(w.IsTriggerBake());
    // The form's layout stays and nothing new is built beside the form.
    QCOMPARE(w.layout(), formLayout);
    QCOMPARE(w.findChildren<QLabel *>().size(), 2);
    QCOMPARE(w.findChildren<QToolButton *>().size(), 6);

    // The value is always one, and pushing another one raises nothing.
    QSignalSpy changed(&w, &QNumericalWidgetBase::ValueChanged);
    QSignalSpy finished(&w, &QNumericalWidgetBase::EditFinished);
    w.SetValue(Vela::CVector4f(0.0f, 2.0f, -3.0f, 0.5f));
    w.UpdateInputValue(Vela::CVector4f(7.0f, 7.0f, 7.0f, 7.0f));
    QCOMPARE(w.GetValue(), Vela::CVector4f(1.0f, 1.0f, 1.0f, 1.0f));
    QCOMPARE(changed.count() + finished.count(), 0);
}

void tst_QNumericalWidgetImage::buttons_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < 6; ++i)
        QTest::newRow(kButtonNames[i]) << i;
}

void tst_QNumericalWidgetImage::buttons()
{
    QFETCH(int, index);
    Image w;
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    QList<QSharedPointer<QSignalSpy>> spies;
    for (const char *signal : kButtonSignals) {
        spies.append(QSharedPointer<QSignalSpy>::create(&w, QByteArray("2") + signal));
        QVERIFY(spies.last()->isValid());
    }
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

void tst_QNumericalWidgetImage::doubleClickPreview()
{
    Image w;
    initialize(w, L"Normal");
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    QSignalSpy open(&w, &Image::OpenTextureFileDialog);
    QTest::mouseDClick(w.getImageLabel(), Qt::LeftButton);
    QCOMPARE(open.count(), 1);
    QCOMPARE(open.at(0).at(0).toString(), QStringLiteral("Normal"));
    QTest::mouseDClick(w.getImageLabel(), Qt::RightButton);
    QCOMPARE(open.count(), 2);
    // A single click asks for nothing.
    QTest::mouseClick(w.getImageLabel(), Qt::LeftButton);
    QCOMPARE(open.count(), 2);

    w.setEnabled(false);
    QTest::mouseDClick(w.getImageLabel(), Qt::LeftButton);
    QCOMPARE(open.count(), 2);
}

void tst_QNumericalWidgetImage::dragEnterRules_data()
{
    QTest::addColumn<unsigned int>("mask");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<bool>("accepted");
    const unsigned int jpgTif = Image::AcceptImage_Jpg | Image::AcceptImage_Tif;
    QTest::newRow("JPEG upper case") << jpgTif << QStringList { "PHOTO.JPEG" } << true;
    QTest::newRow("several dots") << jpgTif << QStringList { "v1.2.final.jpg" } << true;
    QTest::newRow("no suffix") << jpgTif << QStringList { "jpg" } << false;
    QTest::newRow("dot in folder only") << jpgTif << QStringList { "dir.jpg/README" } << false;
    QTest::newRow("text then png")
        << unsigned(Image::AcceptImage_Png) << QStringList { "notes.txt", "a.png" } << false;
    QTest::newRow("png then text")
        << unsigned(Image::AcceptImage_Png) << QStringList { "a.png", "notes.txt" } << true;
    QTest::newRow("empty filter") << 0u << QStringList { "a.png" } << false;
    QTest::newRow("unknown bits only") << 0xF800u << QStringList { "a.png" } << false;
}

void tst_QNumericalWidgetImage::dragEnterRules()
{
    QFETCH(unsigned int, mask);
    QFETCH(QStringList, names);
    QFETCH(bool, accepted);
    Image w;
    initialize(w);
    w.SetFileTypeFilter(Image::EAcceptImageType(mask));
    QStringList files;
    for (const QString &name : names)
        files.append(m_dir.filePath(name));
    QCOMPARE(enterFiles(w, files), accepted);
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

void tst_QNumericalWidgetImage::dropImageFile()
{
    Image w;
    initialize(w, L"Height");
    w.SetFileTypeFilter(Image::AcceptImage_Png | Image::AcceptImage_Jpg);
    const QString png =
        VelaTest::writeImage(m_dir.path(), QStringLiteral("height.png"), Qt::magenta);
    QVERIFY(!png.isEmpty());

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
    int dragSignals = 0;
    connect(&w, &Image::DragEnterTextureLabel, &w,
            [&](const QString &, QDragEnterEvent *) { ++dragSignals; });
    QSignalSpy channel(&w, &Image::ChannelChanged);

    QVERIFY(dropFiles(w, { png }));
    QCOMPARE(names, QStringList { "Height" });
    QCOMPARE(dropTarget, w.getImageLabel());
    QCOMPARE(previewColor(w), QColor(Qt::magenta));
    QCOMPARE(dragSignals, 0);
    QCOMPARE(channel.count(), 0);
}

void tst_QNumericalWidgetImage::rejectedDropsLeaveThePreview()
{
    Image w;
    initialize(w);
    w.SetFileTypeFilter(Image::AcceptImage_Png);
    QImage start(8, 8, QImage::Format_RGB32);
    start.fill(Qt::darkGreen);
    w.SetImage(start);
    int drops = 0;
    connect(&w, &Image::DropToLoadTextureFile, &w, [&](const QString &, QObject *, QDropEvent *) {
        ++drops;
        w.SetImage(QImage());
    });

    // Files of other types are refused at the drag enter (dragEnterRules); data without local
    // files as well.
    const QString png = VelaTest::writeImage(m_dir.path(), QStringLiteral("other.png"), Qt::red);
    QMimeData plain;
    plain.setText(png);
    drop(w, plain);
    QMimeData remote;
    remote.setUrls({ QUrl(QStringLiteral("https://example.org/texture.png")) });
    drop(w, remote);
    QMimeData noUrls;
    noUrls.setUrls({});
    drop(w, noUrls);
    QCOMPARE(drops, 0);
    QCOMPARE(previewColor(w), QColor(Qt::darkGreen));

    // A disabled widget takes nothing either.
    w.setEnabled(false);
    dropFiles(w, { png });
    QCOMPARE(drops, 0);
    w.setEnabled(true);
    dropFiles(w, { png });
    QCOMPARE(drops, 1);
}

void tst_QNumericalWidgetImage::buttonStates()
{
    Image w;
    initialize(w);
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    w.SetVisibleButtons(Image::Button_None);
    for (int i = 0; i < 6; ++i)
        QVERIFY2(!button(w, i)->isVisible(), kButtonNames[i]);
    w.SetVisibleButtons(Image::Button_Load | Image::Button_Reset | Image::Button_Adjust);
    const bool expected[] = { true, false, false, true, false, true };
    for (int i = 0; i < 6; ++i)
        QCOMPARE(button(w, i)->isVisible(), expected[i]);
    // Bits beyond the six buttons are ignored.
    w.SetVisibleButtons(Image::EButtonList(0xFFFFFFC0u | Image::Button_Save));
    for (int i = 0; i < 6; ++i)
        QCOMPARE(button(w, i)->isVisible(), i == 1);

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
    const bool afterEnable[] = { false, true, true, true, false, true };
    for (int i = 0; i < 6; ++i)
        QCOMPARE(button(w, i)->isEnabled(), afterEnable[i]);
    QTest::mouseClick(button(w, 1), Qt::LeftButton);
    QCOMPARE(save.count(), 1);
}

void tst_QNumericalWidgetImage::forwardedProperties()
{
    Image w;
    initialize(w, L"Mask");
    QLabel *name = w.UI()->qtImageNameLabel;
    QLabel *preview = w.getImageLabel();

    // labelName is the name label's object name, not its text.
    QCOMPARE(w.property("labelName").toString(), QStringLiteral("qtImageNameLabel"));
    QVERIFY(w.setProperty("labelName", QStringLiteral("qtMaskName")));
    QCOMPARE(name->objectName(), QStringLiteral("qtMaskName"));
    QCOMPARE(name->text(), QStringLiteral("Mask"));

    QVERIFY(w.setProperty("text", QStringLiteral("<b>Mask</b>")));
    QCOMPARE(name->text(), QStringLiteral("<b>Mask</b>"));
    QVERIFY(w.setProperty("textFormat", QVariant::fromValue(Qt::PlainText)));
    QCOMPARE(name->textFormat(), Qt::PlainText);
    QVERIFY(w.setProperty("wordWrap", true));
    QVERIFY(name->wordWrap());

    QPixmap pixmap(5, 7);
    pixmap.fill(Qt::red);
    QVERIFY(w.setProperty("pixmap", QVariant::fromValue(pixmap)));
    QCOMPARE(preview->pixmap(Qt::ReturnByValue).size(), QSize(5, 7));

    w.setScaledContents(false);
    QVERIFY(!preview->hasScaledContents());

    w.SetLabelColor(QStringLiteral("color: #82be0f;"));
    QCOMPARE(name->styleSheet(), QStringLiteral("color: #82be0f;"));
}

void tst_QNumericalWidgetImage::setImage()
{
    Image w;
    initialize(w, L"Emissive");
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    w.getImageLabel()->setText(QStringLiteral("placeholder"));
    QImage image(300, 200, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    w.SetImage(image);
    QVERIFY(w.getImageLabel()->text().isEmpty());
    QCOMPARE(w.pixmap().size(), QSize(300, 200));
    QCOMPARE(previewColor(w), QColor(Qt::darkCyan));
    // The preview keeps its size; the image is scaled into it.
    QCOMPARE(w.GetImageSize(), QSize(80, 80));
    // A null image empties the preview.
    w.SetImage(QImage());
    QVERIFY(w.pixmap().isNull());

    // The host's request for a fresh preview names the input.
    QSignalSpy update(&w, &Image::UpdatePreviewImage);
    QVERIFY(QMetaObject::invokeMethod(&w, "OnUpdatePreviewImage"));
    QCOMPARE(update.count(), 1);
    QCOMPARE(update.at(0).at(0).toString(), QStringLiteral("Emissive"));
}

void tst_QNumericalWidgetImage::ownVisibilityFlag()
{
    Image w;
    initialize(w);
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    w.SetWidgetVisibility(false);
    QVERIFY(!w.GetWidgetVisibility());
    QVERIFY(w.isVisible());
    // The base's flag of the same purpose stays untouched.
    QVERIFY(static_cast<QNumericalWidgetBase &>(w).GetWidgetVisibility());
    w.UpdateWidgetVisibibility(false);
    QVERIFY(!w.isVisible());
    QVERIFY(!static_cast<QNumericalWidgetBase &>(w).GetWidgetVisibility());
}

VELA_TEST_CLASS(tst_QNumericalWidgetImage)
#include "tst_QNumericalWidgetImage.moc"
