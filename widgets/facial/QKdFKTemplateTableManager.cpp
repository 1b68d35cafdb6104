#include "QKdFKTemplateTableManager.h"

#include "VelaImageLoader.h"

#include <QCollator>
#include <QDir>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace {

const char kFramePath[] = ":/images/ItemOutline.png";
const int kFramedThumbnailSize = 60;

// Natural order (2 before 10) needs a real collation; the C locale compares code points and
// would ignore the numeric mode, so it falls back to English rules.
QCollator NaturalOrderCollator()
{
    QLocale kLocale;
    if (kLocale.language() == QLocale::C)
        kLocale = QLocale(QLocale::English, QLocale::UnitedStates);
    QCollator kCollator(kLocale);
    kCollator.setNumericMode(true);
    return kCollator;
}

// The thumbnail of one template, fitted into the frame when the host provides one, then brought to
// the size of the grid's icons.
QIcon TemplateIcon(const QString &strTemplatePath, const QString &strCaption, const QImage &kFrame,
                   const QSize &kIconSize)
{
    QImage kThumbnail;
    Vela::LoadImageFile(strTemplatePath + QLatin1String("/Icons/") + strCaption
                            + QLatin1String(".png"),
                        kThumbnail);

    // A template without a thumbnail still shows the empty frame.
    if (!kFrame.isNull()) {
        QImage kFramed = kFrame.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        if (!kThumbnail.isNull()) {
            const QImage kFitted =
                kThumbnail.scaledToHeight(kFramedThumbnailSize, Qt::SmoothTransformation)
                    .scaledToWidth(kFramedThumbnailSize, Qt::SmoothTransformation);
            QPainter kPainter(&kFramed);
            kPainter.drawImage(QPoint(1, 1), kFitted);
        }
        kThumbnail = kFramed;
    }

    if (kThumbnail.isNull() || kIconSize.isEmpty())
        return QIcon();
    return QIcon(QPixmap::fromImage(
        kThumbnail.scaled(kIconSize, Qt::IgnoreAspectRatio, Qt::FastTransformation)));
}

} // namespace

QKdFKTemplateTableManager::QKdFKTemplateTableManager(QWidget *parent)
    : QTableWidget(parent)
    , m_nLimitColNum(0)
    , m_nLimitRowNum(0)
    , m_nThumbnailWidth(0)
    , m_nThumbnailHeight(0)
{ }

bool QKdFKTemplateTableManager::InitManager(int nLimitColNum, int nThumbnailWidth,
                                            int nThumbnailHeight)
{
    m_nLimitColNum = qMax(0, nLimitColNum);
    m_nThumbnailWidth = qMax(0, nThumbnailWidth);
    m_nThumbnailHeight = qMax(0, nThumbnailHeight);
    setColumnCount(m_nLimitColNum);
    setStyleSheet(QStringLiteral("QTableWidget::item{ padding-top: 9px }"));
    return true;
}

int QKdFKTemplateTableManager::GetLimitColNum()
{
    return m_nLimitColNum;
}

bool QKdFKTemplateTableManager::UpdateTable(QString strTemplatePath, QString strUnused,
                                            int nLimitRowNum)
{
    Q_UNUSED(strUnused)

    m_nLimitRowNum = qMax(0, nLimitRowNum);
    clear();
    setRowCount(m_nLimitRowNum);

    // Cells without a template stay inert: neither enabled nor selectable.
    for (int nRow = 0; nRow < m_nLimitRowNum; ++nRow) {
        for (int nColumn = 0; nColumn < columnCount(); ++nColumn) {
            QTableWidgetItem *pkItem = new QTableWidgetItem;
            pkItem->setFlags(Qt::NoItemFlags);
            setItem(nRow, nColumn, pkItem);
        }
    }

    // An empty path would name the working directory: it holds no templates.
    if (strTemplatePath.isEmpty())
        return false;
    QStringList kNames =
        QDir(strTemplatePath).entryList(QDir::Files | QDir::NoDotAndDotDot, QDir::NoSort);
    if (kNames.isEmpty())
        return false;

    const QCollator kCollator = NaturalOrderCollator();
    std::sort(kNames.begin(), kNames.end(), kCollator);

    QImage kFrame;
    Vela::LoadImageFile(QString::fromLatin1(kFramePath), kFrame);

    int nRow = 0;
    int nColumn = 0;
    for (const QString &strName : qAsConst(kNames)) {
        if (nColumn >= m_nLimitColNum) {
            ++nRow;
            nColumn = 0;
        }
        if (nRow >= m_nLimitRowNum)
            break;
        const int nItemColumn = nColumn++;
        if (nItemColumn >= columnCount())
            continue; // the host narrowed the grid: this template has no cell

        const int nDot = strName.lastIndexOf(QLatin1Char('.'));
        const QString strCaption = nDot < 0 ? strName : strName.left(nDot);

        QTableWidgetItem *pkItem =
            new QTableWidgetItem(TemplateIcon(strTemplatePath, strCaption, kFrame,
                                              QSize(m_nThumbnailWidth, m_nThumbnailHeight)),
                                 strCaption);
        pkItem->setTextAlignment(Qt::AlignHCenter);
        pkItem->setFlags(Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
        setItem(nRow, nItemColumn, pkItem);
    }
    return true;
}

QString QKdFKTemplateTableManager::GetSelectedExpTmpName(int nRow, int nColumn)
{
    const QTableWidgetItem *pkItem = item(nRow, nColumn);
    return pkItem ? pkItem->text() : QString();
}

QStyleOptionViewItem QKdFKTemplateTableManager::viewOptions() const
{
    QStyleOptionViewItem kOption = QTableWidget::viewOptions();
    kOption.decorationAlignment = Qt::AlignCenter;
    kOption.decorationPosition = QStyleOptionViewItem::Top;
    return kOption;
}
