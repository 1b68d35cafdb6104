#include "QKdFKTemplateTableManager.h"
#include "VelaTest.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString kSampleFolder = QStringLiteral(VELA_TEST_DATA_DIR "/facial/templates");
const QRgb kFrameColor = qRgb(0x82, 0xbe, 0x0f);

// A template file plus, unless told otherwise, a thumbnail of one colour.
void AddTemplate(const QString &strFolder, const QString &strFile, const QColor &kColor = Qt::blue,
                 const QSize &kSize = QSize(40, 40))
{
    QVERIFY(!VelaTest::writeFile(strFolder, strFile, "template").isEmpty());
    if (kColor.isValid()) {
        QVERIFY(QDir(strFolder).mkpath(QStringLiteral("Icons")));
        const QString strName = strFile.left(strFile.lastIndexOf(QLatin1Char('.')));
        QVERIFY(!VelaTest::writeImage(strFolder + QStringLiteral("/Icons"),
                                      strName + QStringLiteral(".png"), kColor, kSize)
                     .isEmpty());
    }
}

// The PNG chunk checksum (CRC-32, polynomial 0xedb88320), so that a patched header stays valid.
quint32 PngCrc(const QByteArray &kBytes)
{
    quint32 uCrc = 0xffffffffu;
    for (const char cByte : kBytes) {
        uCrc ^= quint8(cByte);
        for (int nBit = 0; nBit < 8; ++nBit)
            uCrc = (uCrc >> 1) ^ (0xedb88320u & (0u - (uCrc & 1u)));
    }
    return ~uCrc;
}

QStringList Captions(QKdFKTemplateTableManager &kTable)
{
    QStringList kCaptions;
    for (int nRow = 0; nRow < kTable.rowCount(); ++nRow) {
        for (int nColumn = 0; nColumn < kTable.columnCount(); ++nColumn)
            kCaptions << kTable.GetSelectedExpTmpName(nRow, nColumn);
    }
    return kCaptions;
}

QImage IconImage(QKdFKTemplateTableManager &kTable, int nRow, int nColumn, const QSize &kSize)
{
    const QTableWidgetItem *pkItem = kTable.item(nRow, nColumn);
    return pkItem ? pkItem->icon().pixmap(kSize).toImage().convertToFormat(QImage::Format_ARGB32)
                  : QImage();
}

} // namespace

class tst_QKdFKTemplateTableManager : public QObject
{
    Q_OBJECT

private slots:
    void sampleFolder();
    void updateTable_data();
    void updateTable();
    void badThumbnails_data();
    void badThumbnails();
    void unusualFileNames();
    void missingFrameUsesThumbnail();
};

void tst_QKdFKTemplateTableManager::sampleFolder()
{
    QKdFKTemplateTableManager kTable;
    QVERIFY(kTable.InitManager(3, 62, 62));
    QCOMPARE(kTable.columnCount(), 3);
    QVERIFY(kTable.UpdateTable(kSampleFolder, QStringLiteral("ignored"), 2));
    // In natural order: "10" after "2".
    QCOMPARE(
        Captions(kTable),
        QStringList({ "Brow Raise 1", "Brow Raise 2", "Brow Raise 10", "Jaw.Open", "Smile", "" }));
    QCOMPARE(kTable.GetSelectedExpTmpName(2, 0), QString());

    QCOMPARE(kTable.item(0, 0)->flags(),
             Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
    QVERIFY(kTable.item(1, 2)->icon().isNull());

    // The face inside the one-pixel frame of the 62 x 62 outline, its corner transparent.
    const QImage kIcon = IconImage(kTable, 1, 1, QSize(62, 62));
    QCOMPARE(kIcon.size(), QSize(62, 62));
    QCOMPARE(kIcon.pixel(61, 61), kFrameColor);
    QCOMPARE(qAlpha(kIcon.pixel(1, 1)), 0);
    QCOMPARE(qAlpha(kIcon.pixel(31, 11)), 255);

    // A negative limit is no limit at all: nothing to lay out, nothing to crash on.
    QVERIFY(kTable.InitManager(-3, -1, -1));
    QCOMPARE(kTable.GetLimitColNum(), 0);
    QCOMPARE(kTable.columnCount(), 0);
    QVERIFY(kTable.UpdateTable(kSampleFolder, QString(), 3));
    QCOMPARE(kTable.rowCount(), 3);
    QCOMPARE(kTable.GetSelectedExpTmpName(0, 0), QString());
}

void tst_QKdFKTemplateTableManager::updateTable_data()
{
    QTest::addColumn<QString>("strFolder"); // how the folder is given, empty: a real folder
    QTest::addColumn<int>("nColumns");
    QTest::addColumn<int>("nRows");
    QTest::addColumn<int>("nFiles");
    QTest::addColumn<int>("nShown");
    const auto row = [](const char *pcName, int nColumns, int nRows, int nFiles, int nShown,
                        const char *pcFolder = "") {
        QTest::newRow(pcName) << QString(pcFolder) << nColumns << nRows << nFiles << nShown;
    };
    row("3x2, 8 files", 3, 2, 8, 6);
    row("3x2, 4 files", 3, 2, 4, 4);
    row("4x-2, 5 files", 4, -2, 5, 0);
    // No templates found: the grid of the requested size remains, every cell inert.
    row("empty folder", 3, 2, 0, 0);
    row("missing folder", 3, 2, 0, 0, "missing");
    row("a file, not a folder", 3, 2, 0, 0, "file");
    row("empty path", 3, 2, 0, 0, "none");
}

void tst_QKdFKTemplateTableManager::updateTable()
{
    QFETCH(QString, strFolder);
    QFETCH(int, nColumns);
    QFETCH(int, nRows);
    QFETCH(int, nFiles);
    QFETCH(int, nShown);

    QTemporaryDir kDir;
    QStringList kExpected;
    for (int i = 1; i <= nFiles; ++i) {
        AddTemplate(kDir.path(), QStringLiteral("Key %1.exp").arg(i));
        if (i <= nShown)
            kExpected << QStringLiteral("Key %1").arg(i);
    }
    const int nRowCount = qMax(0, nRows);
    while (kExpected.size() < nRowCount * nColumns)
        kExpected << QString();
    if (strFolder == QLatin1String("missing"))
        strFolder = kDir.filePath(QStringLiteral("missing"));
    else if (strFolder == QLatin1String("file"))
        strFolder = VelaTest::writeFile(kDir.path(), QStringLiteral("templates"), "not a folder");
    else if (strFolder.isEmpty())
        strFolder = kDir.path();
    else
        strFolder.clear();

    QKdFKTemplateTableManager kTable;
    kTable.InitManager(nColumns, 16, 16);
    // Over a grid filled before: the new one replaces it.
    QVERIFY(kTable.UpdateTable(kSampleFolder, QString(), 4));
    QCOMPARE(kTable.UpdateTable(strFolder, QString(), nRows), nFiles > 0);
    QCOMPARE(kTable.rowCount(), nRowCount);
    QCOMPARE(Captions(kTable), kExpected);
    for (int nCell = 0; nCell < nRowCount * nColumns; ++nCell) {
        const QTableWidgetItem *pkItem = kTable.item(nCell / nColumns, nCell % nColumns);
        QVERIFY(pkItem);
        QCOMPARE(pkItem->flags() == Qt::NoItemFlags, nCell >= nShown);
    }
}

void tst_QKdFKTemplateTableManager::badThumbnails_data()
{
    QTest::addColumn<QByteArray>("kBytes"); // null: no thumbnail at all

    QTest::newRow("no thumbnail") << QByteArray();

    QTest::newRow("garbage") << QByteArray("\x89PNG\r\n\x1a\n this is not really a png", 34);

    // A valid one-pixel PNG whose header claims 60000 x 60000 pixels.
    QImage kPixel(1, 1, QImage::Format_RGB32);
    kPixel.fill(Qt::green);
    QByteArray kPng;
    QBuffer kBuffer(&kPng);
    kBuffer.open(QIODevice::WriteOnly);
    kPixel.save(&kBuffer, "PNG");
    kPng.replace(16, 8, QByteArray::fromHex("0000ea600000ea60"));
    const quint32 uCrc = PngCrc(kPng.mid(12, 17)); // chunk type and the 13 bytes of IHDR
    kPng.replace(29, 4, QByteArray::fromHex(QByteArray::number(uCrc, 16).rightJustified(8, '0')));
    QImageReader kReader(&kBuffer);
    kBuffer.close();
    kBuffer.open(QIODevice::ReadOnly);
    QCOMPARE(kReader.size(), QSize(60000, 60000));
    QTest::newRow("header claims a huge size") << kPng;
}

void tst_QKdFKTemplateTableManager::badThumbnails()
{
    QFETCH(QByteArray, kBytes);

    QTemporaryDir kDir;
    AddTemplate(kDir.path(), QStringLiteral("Bad.exp"), QColor());
    QDir(kDir.path()).mkpath(QStringLiteral("Icons"));
    if (!kBytes.isNull())
        VelaTest::writeFile(kDir.path(), QStringLiteral("Icons/Bad.png"), kBytes);
    AddTemplate(kDir.path(), QStringLiteral("Good.exp"), Qt::red);

    QKdFKTemplateTableManager kTable;
    kTable.InitManager(2, 62, 62);
    QVERIFY(kTable.UpdateTable(kDir.path(), QString(), 1));
    QCOMPARE(Captions(kTable), QStringList({ "Bad", "Good" }));

    // The refused thumbnail leaves the frame empty; its neighbour is unaffected.
    const QImage kBad = IconImage(kTable, 0, 0, QSize(62, 62));
    QCOMPARE(kBad.pixel(0, 0), kFrameColor);
    QCOMPARE(qAlpha(kBad.pixel(31, 31)), 0);
    QCOMPARE(IconImage(kTable, 0, 1, QSize(62, 62)).pixel(31, 31), qRgb(255, 0, 0));
}

void tst_QKdFKTemplateTableManager::unusualFileNames()
{
    QTemporaryDir kDir;
    AddTemplate(kDir.path(), QString::fromUtf8("Überraschung ä.exp"), Qt::red);
    AddTemplate(kDir.path(), QStringLiteral("jaw open.v2.exp"), Qt::green, QSize(80, 40));
    AddTemplate(kDir.path(), QStringLiteral("NoExtension"), Qt::blue);
    AddTemplate(kDir.path(), QString::fromUtf8("微笑.exp"), Qt::yellow);

    QKdFKTemplateTableManager kTable;
    kTable.InitManager(4, 62, 62);
    QVERIFY(kTable.UpdateTable(kDir.path(), QString(), 1));

    // Every one shows its caption and found its thumbnail through it. The wide one keeps its
    // proportions: 60 x 30 at (1, 1), the lower half of the frame empty.
    const QMap<QString, QRgb> kColors = { { QString::fromUtf8("Überraschung ä"), qRgb(255, 0, 0) },
                                          { QStringLiteral("jaw open.v2"), qRgb(0, 255, 0) },
                                          { QStringLiteral("NoExtension"), qRgb(0, 0, 255) },
                                          { QString::fromUtf8("微笑"), qRgb(255, 255, 0) } };
    QStringList kCaptions = Captions(kTable);
    std::sort(kCaptions.begin(), kCaptions.end());
    QCOMPARE(kCaptions, kColors.keys());
    for (int nColumn = 0; nColumn < 4; ++nColumn) {
        const QString strCaption = kTable.GetSelectedExpTmpName(0, nColumn);
        const QImage kIcon = IconImage(kTable, 0, nColumn, QSize(62, 62));
        QCOMPARE(kIcon.pixel(0, 0), kFrameColor);
        QCOMPARE(kIcon.pixel(60, 30), kColors.value(strCaption));
        QCOMPARE(qAlpha(kIcon.pixel(30, 45)),
                 strCaption.startsWith(QLatin1String("jaw")) ? 0 : 255);
    }
}

void tst_QKdFKTemplateTableManager::missingFrameUsesThumbnail()
{
    QTemporaryDir kDir;
    AddTemplate(kDir.path(), QStringLiteral("Smile.exp"), Qt::red);

    Q_CLEANUP_RESOURCE(kdfk_template_frame);
    QVERIFY(!QFile::exists(QStringLiteral(":/images/ItemOutline.png")));
    QKdFKTemplateTableManager kTable;
    kTable.InitManager(1, 20, 10);
    const bool bUpdated = kTable.UpdateTable(kDir.path(), QString(), 1);
    Q_INIT_RESOURCE(kdfk_template_frame);
    QVERIFY(bUpdated);

    // The 40 x 40 thumbnail itself, brought to 20 x 10: no frame around it.
    const QImage kIcon = IconImage(kTable, 0, 0, QSize(20, 10));
    QCOMPARE(kIcon.size(), QSize(20, 10));
    QCOMPARE(kIcon.pixel(0, 0), qRgb(255, 0, 0));
    QCOMPARE(kIcon.pixel(19, 9), qRgb(255, 0, 0));
}

VELA_TEST_CLASS(tst_QKdFKTemplateTableManager)
#include "tst_QKdFKTemplateTableManager.moc"
