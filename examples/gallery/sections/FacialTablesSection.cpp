// Gallery pages of the facial-key tables: the template grid and the modify-channel table, both
// filled from sample files this page writes into the gallery's sample folder.
#include "GalleryRegistry.h"

#include "QKdFKTemplateTableManager.h"

#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

namespace {

struct SampleExpression
{
    const char *name;
    int brow; // -1 frown .. 1 raised
    int eyes; // 0 closed, 1 open, 2 wide
    int mouth; // -1 sad, 0 flat, 1 smile, 2 open
    QRgb skin;
};

const SampleExpression kExpressions[] = {
    { "Neutral", 0, 1, 0, 0xffe8c39e },    { "Smile 1", 0, 1, 1, 0xffeec8a0 },
    { "Smile 2", 1, 1, 1, 0xfff0cca4 },    { "Smile 10", 1, 0, 1, 0xfff2d0a8 },
    { "Surprise", 1, 2, 2, 0xffe6c09a },   { "Sad", -1, 1, -1, 0xffd8b894 },
    { "Angry.v2", -1, 2, -1, 0xffe0a888 }, { "Blink", 0, 0, 0, 0xffe8c39e },
    { "Jaw Open", 0, 1, 2, 0xffeac6a0 },
};

// A small cartoon face showing one expression.
QImage DrawFace(const SampleExpression &kExpression)
{
    QImage kImage(64, 64, QImage::Format_ARGB32_Premultiplied);
    kImage.fill(Qt::transparent);
    QPainter kPainter(&kImage);
    kPainter.setRenderHint(QPainter::Antialiasing);
    kPainter.setPen(QPen(QColor(0x50, 0x30, 0x20), 2));
    kPainter.setBrush(QColor::fromRgba(kExpression.skin));
    kPainter.drawEllipse(QRectF(6, 4, 52, 56));

    for (const int nX : { 22, 42 }) {
        const qreal fTilt = kExpression.brow * 3.0;
        kPainter.drawLine(QPointF(nX - 7, 20 - fTilt), QPointF(nX + 7, 20 - fTilt));
        if (kExpression.eyes == 0) {
            kPainter.drawLine(QPointF(nX - 5, 28), QPointF(nX + 5, 28));
        } else {
            kPainter.setBrush(Qt::white);
            const qreal fSize = kExpression.eyes == 2 ? 6 : 4;
            kPainter.drawEllipse(QPointF(nX, 28), fSize, fSize);
            kPainter.setBrush(QColor(0x30, 0x20, 0x10));
            kPainter.drawEllipse(QPointF(nX, 28), 2, 2);
        }
    }

    kPainter.setBrush(Qt::NoBrush);
    QPainterPath kMouth(QPointF(20, 46));
    switch (kExpression.mouth) {
    case -1:
        kMouth.quadTo(QPointF(32, 38), QPointF(44, 46));
        break;
    case 1:
        kMouth.quadTo(QPointF(32, 56), QPointF(44, 46));
        break;
    case 2:
        kPainter.setBrush(QColor(0x60, 0x10, 0x10));
        kPainter.drawEllipse(QPointF(32, 47), 7, 8);
        break;
    default:
        kMouth.lineTo(QPointF(44, 46));
        break;
    }
    if (kExpression.mouth != 2)
        kPainter.drawPath(kMouth);
    return kImage;
}

// One template file per expression and its thumbnail under Icons/.
QString WriteSampleTemplates(const QString &strSampleDir)
{
    const QString strFolder = strSampleDir + QStringLiteral("/ExpressionTemplates");
    QDir().mkpath(strFolder + QStringLiteral("/Icons"));
    for (const SampleExpression &kExpression : kExpressions) {
        const QString strName = QString::fromLatin1(kExpression.name);
        QFile kFile(strFolder + QLatin1Char('/') + strName + QStringLiteral(".fkt"));
        if (kFile.open(QIODevice::WriteOnly))
            kFile.write("facial key template\n");
        DrawFace(kExpression)
            .save(strFolder + QStringLiteral("/Icons/") + strName + QStringLiteral(".png"));
    }
    return strFolder;
}

QWidget *CreateTemplateTable(GalleryContext &kContext)
{
    const int nColumns = 4;
    const int nThumbnail = 72;
    auto *pkTable = new QKdFKTemplateTableManager;
    pkTable->InitManager(nColumns, nThumbnail, nThumbnail);
    pkTable->setIconSize(QSize(nThumbnail, nThumbnail));
    pkTable->horizontalHeader()->hide();
    pkTable->verticalHeader()->hide();
    pkTable->UpdateTable(WriteSampleTemplates(kContext.sampleDir()), QString(), 3);
    for (int nColumn = 0; nColumn < nColumns; ++nColumn)
        pkTable->setColumnWidth(nColumn, 100);
    for (int nRow = 0; nRow < pkTable->rowCount(); ++nRow)
        pkTable->setRowHeight(nRow, 110);
    pkTable->setMinimumSize(4 * 100 + 4, 3 * 110 + 4);

    QObject::connect(
        pkTable, &QTableWidget::cellClicked, pkTable, [pkTable, &kContext](int nRow, int nColumn) {
            const QString strName = pkTable->GetSelectedExpTmpName(nRow, nColumn);
            kContext.log(
                QStringLiteral("picked (%1, %2): \"%3\"").arg(nRow).arg(nColumn).arg(strName));
        });
    return pkTable;
}

} // namespace

GALLERY_ENTRY({ 60, "Facial", "QKdFKTemplateTableManager",
                "Expression templates of a folder as framed thumbnails, in natural order",
                CreateTemplateTable })
