// Gallery pages of the facial-key tables: the template grid and the modify-channel table, both
// filled from sample files this page writes into the gallery's sample folder.
#include "GalleryRegistry.h"

#include "CKdFKModifyCellWidget.h"
#include "QKdFKModifyTableManager.h"
#include "QKdFKTemplateTableManager.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QStandardItemModel>
#include <QTextStream>
#include <QToolButton>

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

// The channels of the sample rig, section by section, as the host's facial-key file lists them.
struct SampleSection
{
    const char *group;
    const char *prefix;
    QStringList channels;
    int sliderMinimum, sliderMaximum, spinMinimum, spinMaximum;
};

QVector<SampleSection> SampleSections()
{
    QStringList kCustom;
    for (int nIndex = 0; nIndex < 64; ++nIndex)
        kCustom << QStringLiteral("Custom Slot %1").arg(nIndex + 1);
    return {
        { "BrowModifyString",
          "Brow",
          { "Inner Up L", "Inner Up R", "Outer Up L", "Outer Up R", "Down L", "Down R", "Squeeze L",
            "Squeeze R" },
          0,
          100,
          -50,
          150 },
        { "EyeModifyString",
          "Eye",
          { "Blink L", "Blink R", "Wide L", "Wide R", "Squint L", "Squint R", "Look Up" },
          0,
          100,
          0,
          100 },
        { "NoseModifyString",
          "Nose",
          { "Sneer L", "Sneer R", "Flare L", "Flare R", "Wrinkle L", "Wrinkle R", "Tip Up",
            "Tip Down", "Compress", "Pinch" },
          0,
          100,
          -100,
          200 },
        { "MouthModifyString",
          "Mouth",
          { "Smile L",        "Smile R",        "Frown L",     "Frown R",
            "Dimple L",       "Dimple R",       "Stretch L",   "Stretch R",
            "Press L",        "Press R",        "Upper Up L",  "Upper Up R",
            "Lower Down L",   "Lower Down R",   "Pucker",      "Funnel",
            "Roll Upper",     "Roll Lower",     "Shrug Upper", "Shrug Lower",
            "Close",          "Left",           "Right",       "Jaw Open",
            "Jaw Left",       "Jaw Right",      "Jaw Forward", "Cheek Puff",
            "Cheek Squint L", "Cheek Squint R", "Tongue Out",  "Tongue Up",
            "Tongue Down",    "Lips Together",  "Kiss",        "Grimace",
            "Sticky L",       "Sticky R",       "Chew" },
          -20,
          100,
          -50,
          150 },
        { "CustomModifyString", "Custom", kCustom, -100, 100, -200, 200 },
    };
}

// The key of a channel: section prefix and a two-digit index first, so that keys sort in
// channel order.
QString ChannelKey(const SampleSection &kSection, int nIndex)
{
    QString strName = kSection.channels.at(nIndex);
    strName.remove(QLatin1Char(' '));
    return QStringLiteral("%1_%2_%3")
        .arg(QLatin1String(kSection.prefix))
        .arg(nIndex, 2, 10, QLatin1Char('0'))
        .arg(strName);
}

// Writes the facial-key file: one group per section, then the slider and spin ranges.
QString WriteSampleFacialKeys(const QString &strSampleDir)
{
    const QString strPath = strSampleDir + QStringLiteral("/FacialKeys.ini");
    QFile kFile(strPath);
    if (!kFile.open(QIODevice::WriteOnly | QIODevice::Text))
        return strPath;
    QTextStream kOut(&kFile);
    kOut.setCodec("UTF-8");
    const QVector<SampleSection> kSections = SampleSections();
    for (const SampleSection &kSection : kSections) {
        kOut << '[' << kSection.group << "]\n";
        for (int nIndex = 0; nIndex < kSection.channels.size(); ++nIndex)
            kOut << ChannelKey(kSection, nIndex) << '=' << kSection.channels.at(nIndex) << '\n';
        kOut << '\n';
    }
    for (const bool bSlider : { true, false }) {
        kOut << (bSlider ? "[SliderExtreme]\n" : "[SpinBoxExtreme]\n");
        for (const SampleSection &kSection : kSections) {
            for (int nIndex = 0; nIndex < kSection.channels.size(); ++nIndex) {
                kOut << ChannelKey(kSection, nIndex) << '='
                     << (bSlider ? kSection.sliderMinimum : kSection.spinMinimum) << ", "
                     << (bSlider ? kSection.sliderMaximum : kSection.spinMaximum) << '\n';
            }
        }
        kOut << '\n';
    }
    return strPath;
}

QWidget *CreateModifyTable(GalleryContext &kContext)
{
    auto *pkTable = new QKdFKModifyTableManager;
    const QVector<SampleSection> kSections = SampleSections();
    int nRows = 0;
    for (const SampleSection &kSection : kSections)
        nRows += kSection.channels.size();

    // The host gives the table its rows, then lets it size them from the facial-key file.
    auto *pkModel = new QStandardItemModel(nRows, 1, pkTable);
    pkTable->setModel(pkModel);
    pkTable->horizontalHeader()->hide();
    pkTable->setSelectionMode(QAbstractItemView::NoSelection);
    pkTable->setStyleSheet(QStringLiteral(
        "QTableView { background-color: #282828; gridline-color: #505050; color: #c8c8c8; }"));
    const QString strIniPath = WriteSampleFacialKeys(kContext.sampleDir());
    pkTable->InitManager(strIniPath);

    // InitManager leaves its configured cells to the host; this page builds its own below.
    for (QWidget *pkWidget : QApplication::topLevelWidgets()) {
        if (auto *pkCell = qobject_cast<CKdFKModifyCellWidget *>(pkWidget))
            pkCell->deleteLater();
    }

    const int nSampleValues[] = { 35, 0, 80, 12, 0, 55, 100, 20, 0, 64 };
    int nRow = 0;
    for (const SampleSection &kSection : kSections) {
        for (int nIndex = 0; nIndex < kSection.channels.size(); ++nIndex, ++nRow) {
            const QString strName = kSection.channels.at(nIndex);
            auto *pkCell = new CKdFKModifyCellWidget;
            pkCell->SetItem(nRow, nSampleValues[nRow % 10], strName,
                            { kSection.sliderMinimum, kSection.sliderMaximum },
                            { kSection.spinMinimum, kSection.spinMaximum }, pkTable);
            pkCell->SetRenameButtonVisible(kSection.group == QLatin1String("CustomModifyString"));
            pkCell->GetNameLabel()->setText(
                QStringLiteral("%1 %2").arg(QLatin1String(kSection.prefix)).arg(nIndex + 1));
            pkTable->setIndexWidget(pkModel->index(nRow, 0), pkCell);

            QObject::connect(pkCell, &CKdFKModifyCellWidget::SliderEditStarted, pkTable,
                             [pkTable, pkCell] { pkTable->BeginEditSlider(pkCell); });
            QObject::connect(pkCell, &CKdFKModifyCellWidget::SliderValueChanged, pkTable,
                             [pkTable, pkCell] { pkTable->UpdateSliderValues(pkCell); });
            QObject::connect(pkCell, &CKdFKModifyCellWidget::SliderEditFinished, pkTable,
                             [pkTable, pkCell] { pkTable->StopEditSlider(pkCell); });
            QObject::connect(pkCell->findChild<QToolButton *>(QStringLiteral("qtRenameButton")),
                             &QToolButton::clicked, pkTable,
                             [pkTable, pkCell] { pkTable->RenameSlider(pkCell); });
        }
    }

    auto cellValue = [pkTable, pkModel](int nID) {
        auto *pkCell =
            qobject_cast<CKdFKModifyCellWidget *>(pkTable->indexWidget(pkModel->index(nID, 0)));
        return pkCell ? pkCell->GetValue() : 0;
    };
    QObject::connect(pkTable, &QKdFKModifyTableManager::BeginChangeCellSlider, pkTable,
                     [&kContext](int nID) {
                         kContext.log(QStringLiteral("BeginChangeCellSlider(%1)").arg(nID));
                     });
    QObject::connect(
        pkTable, &QKdFKModifyTableManager::ChangeCellSlider, pkTable,
        [&kContext, cellValue](int nID) {
            kContext.log(QStringLiteral("ChangeCellSlider(%1): %2").arg(nID).arg(cellValue(nID)));
        });
    QObject::connect(
        pkTable, &QKdFKModifyTableManager::StopChangeCellSlider, pkTable,
        [&kContext, cellValue](int nID) {
            kContext.log(
                QStringLiteral("StopChangeCellSlider(%1): %2").arg(nID).arg(cellValue(nID)));
        });
    QObject::connect(
        pkTable, &QKdFKModifyTableManager::RenameCellSlider, pkTable,
        [&kContext](int nID) { kContext.log(QStringLiteral("RenameCellSlider(%1)").arg(nID)); });
    QObject::connect(pkTable, &QKdFKModifyTableManager::MouseEntered, pkTable,
                     [&kContext](const QModelIndex &kIndex) {
                         kContext.log(QStringLiteral("MouseEntered(row %1)").arg(kIndex.row()));
                     });

    pkTable->setMinimumSize(pkTable->verticalHeader()->sizeHint().width() + 370 + 24, 5 * 70 + 4);
    return pkTable;
}

// One channel as the modify table shows it, on its own: a host can place cells in a layout of its
// choosing. Each drag is one edit session.
QWidget *CreateModifyCell(GalleryContext &kContext)
{
    auto *pkCell = new CKdFKModifyCellWidget;
    pkCell->SetItem(7, 35, QStringLiteral("Brow_Raise_L"), Vela::CArrayList<int> { 0, 100 },
                    Vela::CArrayList<int> { -50, 150 }, nullptr);
    QObject::connect(pkCell, &CKdFKModifyCellWidget::SliderEditStarted, pkCell,
                     [&kContext] { kContext.log(QStringLiteral("SliderEditStarted()")); });
    QObject::connect(pkCell, &CKdFKModifyCellWidget::SliderValueChanged, pkCell,
                     [&kContext](int nValue) {
                         kContext.log(QStringLiteral("SliderValueChanged(%1)").arg(nValue));
                     });
    QObject::connect(pkCell, &CKdFKModifyCellWidget::SliderEditFinished, pkCell,
                     [&kContext] { kContext.log(QStringLiteral("SliderEditFinished()")); });
    pkCell->setMinimumWidth(360);
    return pkCell;
}

} // namespace

GALLERY_ENTRY({ 60, "Facial", "QKdFKTemplateTableManager",
                "Expression templates of a folder as framed thumbnails, in natural order",
                CreateTemplateTable })

GALLERY_ENTRY({ 60, "Facial", "QKdFKModifyTableManager",
                "Facial-key modify channels with ranges from the rig's INI file; drag a slider "
                "or double-click a channel to toggle it between 0 and 100",
                CreateModifyTable })

GALLERY_ENTRY({ 60, "Facial", "CKdFKModifyCellWidget",
                "One facial-key channel: a named slider-spin box whose drags are reported as edit "
                "sessions (started, values, finished); the spin box reaches past the slider",
                CreateModifyCell })
