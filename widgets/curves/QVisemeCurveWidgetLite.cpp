#include "QVisemeCurveWidgetLite.h"

#include "CurvePaintingPrivate.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QRegion>
#include <QToolButton>
#include <QVarLengthArray>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <iterator>

using namespace CurvePainting;

namespace {

const char kVisemeButtonFormat[] = "application/x-visemebutton";
const char kVisemeListItemFormat[] = "application/x-visemelistitem";

constexpr int kPlotOrigin = 15;
constexpr int kBottomMargin = 13;
constexpr int kRightMargin = 28;
// Presses this close around the plotting area still reach keys drawn on its edges.
constexpr int kPressTolerance = 5;
// In single-phoneme mode a key can only be added this close to the left edge.
constexpr int kSinglePhonemeReach = 3;
// Keys this far right keep their weight label inside the area by drawing it on their left.
constexpr double kRightLabelLimit = 0.98;

const QColor kSlotColors[] = {
    QColor(143, 0, 0),    QColor(31, 31, 111), QColor(47, 111, 47), QColor(255, 95, 255),
    QColor(255, 143, 47), QColor(10, 95, 170), QColor(255, 250, 0), QColor(129, 1, 255),
    QColor(81, 100, 100), QColor(0, 0, 0),
};

// The marker colour of a slot: its colour lightened by 64 per channel, slightly transparent.
// One key marker drawn once into a transparent image, centred on pixel (nReach, nReach): stamping
// it gives the pixels that drawing the ellipse itself gives, for a fraction of the cost.
QImage MarkerStamp(int nRadius, int nReach, const QPen &kPen, const QBrush &kBrush, qreal fRatio)
{
    const int nSide = 2 * nReach + 1;
    QImage kStamp(QSize(nSide, nSide) * fRatio, QImage::Format_ARGB32_Premultiplied);
    kStamp.setDevicePixelRatio(fRatio);
    kStamp.fill(Qt::transparent);
    QPainter kPainter(&kStamp);
    kPainter.setPen(kPen);
    kPainter.setBrush(kBrush);
    kPainter.drawEllipse(QPoint(nReach, nReach), nRadius, nRadius);
    return kStamp;
}

QColor MarkerColor(const QColor &kColor)
{
    return QColor(std::min(255, kColor.red() + 64), std::min(255, kColor.green() + 64),
                  std::min(255, kColor.blue() + 64), 196);
}

void SortByTime(QList<QPointF> &lstKeys)
{
    std::stable_sort(lstKeys.begin(), lstKeys.end(),
                     [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); });
}

bool IsValidKey(const CVisemeUIData &kSlot)
{
    return kSlot.m_nSelectedKey >= 0 && kSlot.m_nSelectedKey < kSlot.m_lstKeys.size();
}

} // namespace

QVisemeCurveWidgetLite::QVisemeCurveWidgetLite(QWidget *parent)
    : QWidget(parent)
{
    // Viseme names and buttons are dropped on it from the lists beside it.
    setAcceptDrops(true);
}

QVisemeCurveWidgetLite::~QVisemeCurveWidgetLite() = default;

void QVisemeCurveWidgetLite::Init()
{
    m_kCheckerPixmap = CheckerTile(16);

    // Leave room on the right for the host's column of slot buttons.
    int nRightMargin = kRightMargin;
    if (const auto *pkButton = findChild<QToolButton *>())
        nRightMargin += pkButton->width();
    m_kPlotRect = QRect(QPoint(kPlotOrigin, kPlotOrigin),
                        QPoint(width() - nRightMargin - 1, height() - kBottomMargin));

    m_lstAxisPoints.clear();
    m_lstAxisPoints << QPoint(kPlotOrigin, kPlotOrigin) << m_kPlotRect.bottomLeft()
                    << m_kPlotRect.bottomRight();

    for (int i = 0; i < int(std::size(kSlotColors)); ++i)
        m_akVisemeData[i].m_kColor = kSlotColors[i];
}

void QVisemeCurveWidgetLite::SetCurrentCheckButtonIndex(int nIndex)
{
    m_nCurrentIndex = nIndex;
}

CVisemeUIData *QVisemeCurveWidgetLite::GetVisemeUIData()
{
    return m_akVisemeData;
}

void QVisemeCurveWidgetLite::SetVisemeData(int nIndex, const CVisemeUIData &kData)
{
    if (CVisemeUIData *pkSlot = GetSlot(nIndex))
        *pkSlot = kData;
}

void QVisemeCurveWidgetLite::AddVisemeData(int nIndex, QString strName)
{
    if (CVisemeUIData *pkSlot = GetSlot(nIndex)) {
        pkSlot->m_lstKeys.clear();
        pkSlot->m_bInUse = true;
        pkSlot->m_strName = std::move(strName);
    }
}

QString QVisemeCurveWidgetLite::GetVisemeName(int nIndex)
{
    const CVisemeUIData *pkSlot = GetSlot(nIndex);
    return pkSlot ? pkSlot->m_strName : QString();
}

void QVisemeCurveWidgetLite::AddVisemeCurveEndPoints()
{
    for (CVisemeUIData &kSlot : m_akVisemeData) {
        if (!kSlot.m_lstKeys.isEmpty())
            continue;
        kSlot.m_lstKeys.append(QPointF(0.0, 0.0));
        if (!m_bSinglePhoneme)
            kSlot.m_lstKeys.append(QPointF(1.0, 0.0));
    }
}

void QVisemeCurveWidgetLite::SetTimeLength(float fCurrentTime, float fTimeLength)
{
    m_fCurrentTime = fCurrentTime;
    m_fTimeLength = fTimeLength;
}

void QVisemeCurveWidgetLite::SetSelKeyValue(double fValue)
{
    CVisemeUIData *pkSlot = GetCurrentSlot();
    if (!pkSlot || !IsValidKey(*pkSlot))
        return;
    pkSlot->m_lstKeys[pkSlot->m_nSelectedKey].setY(fValue / 100.0);
    update();
}

float QVisemeCurveWidgetLite::GetSelPtValue()
{
    const CVisemeUIData *pkSlot = GetCurrentSlot();
    if (!pkSlot || !IsValidKey(*pkSlot))
        return 0.0f;
    return float(pkSlot->m_lstKeys.at(pkSlot->m_nSelectedKey).y() * 100.0);
}

void QVisemeCurveWidgetLite::SetSinglePhonemeState(const bool &bSinglePhoneme)
{
    m_bSinglePhoneme = bSinglePhoneme;
}

bool QVisemeCurveWidgetLite::GetSinglePhonemeState()
{
    return m_bSinglePhoneme;
}

void QVisemeCurveWidgetLite::SetShowWeightingAtPoint(const bool &bShow)
{
    m_bShowWeightingAtPoint = bShow;
}

bool QVisemeCurveWidgetLite::GetShowWeightingAtPoint()
{
    return m_bShowWeightingAtPoint;
}

void QVisemeCurveWidgetLite::paintEvent(QPaintEvent *)
{
    if (m_lstAxisPoints.size() < 3)
        return;
    const QPoint kAxisTop = m_lstAxisPoints.at(0);
    const QPoint kAxisCorner = m_lstAxisPoints.at(1);
    const QPoint kAxisEnd = m_lstAxisPoints.at(2);
    QPainter kPainter(this);

    kPainter.drawTiledPixmap(rect(), m_kCheckerPixmap);
    kPainter.drawRoundedRect(QRect(0, 0, width() - 1, height() - 1), 0, 0);

    const QPoint akAxes[] = { kAxisTop, kAxisCorner, kAxisEnd };
    kPainter.setPen(LinePen(QColor(32, 32, 32), 1.0));
    kPainter.drawPolyline(akAxes, 3);
    kPainter.setPen(QPen(QColor(64, 64, 64), 1.0));
    kPainter.drawLine(kAxisEnd, QPoint(kAxisEnd.x(), kAxisTop.y()));
    kPainter.setBrush(QColor(64, 64, 64));
    const QPoint akUpArrow[] = { QPoint(kAxisTop.x(), kAxisTop.y() - 8),
                                 QPoint(kAxisTop.x() - 5, kAxisTop.y()),
                                 QPoint(kAxisTop.x() + 5, kAxisTop.y()) };
    kPainter.drawPolygon(akUpArrow, 3);
    const QPoint akRightArrow[] = { QPoint(kAxisEnd.x() + 8, kAxisEnd.y()),
                                    QPoint(kAxisEnd.x(), kAxisEnd.y() - 5),
                                    QPoint(kAxisEnd.x(), kAxisEnd.y() + 5) };
    kPainter.drawPolygon(akRightArrow, 3);

    // The current slot's pixel positions and labels are drawn once per curve below; work them out
    // once per frame, and reuse one buffer for every curve.
    const CVisemeUIData *pkCurrent = GetCurrentSlot();
    const bool bShowCurrent = pkCurrent && pkCurrent->m_bInUse && !pkCurrent->m_strName.isEmpty();
    QVarLengthArray<QPoint, 256> akCurrentPixels;
    if (bShowCurrent) {
        akCurrentPixels.reserve(pkCurrent->m_lstKeys.size());
        for (const QPointF &kKey : pkCurrent->m_lstKeys)
            akCurrentPixels.append(RevertNormalizedPoint(kKey));
    }
    // Pens and brushes are made once: setting them per key then only shares them.
    const QColor kCurrentMarker = pkCurrent ? MarkerColor(pkCurrent->m_kColor) : QColor();
    const QPen kRingPen(kCurrentMarker, 2);
    const QPen kDotPen(kCurrentMarker);
    const QBrush kRingBrush(QColor(255, 255, 255, 0));
    const QBrush kMarkerBrush(kCurrentMarker);
    // The weight labels too are drawn after every curve: lay each out and rasterise it once per
    // frame, clipped to its rectangle as drawing it there would clip it.
    QVector<QRect> akLabelRects;
    QVector<QImage> akLabelStamps;
    if (bShowCurrent && m_bShowWeightingAtPoint) {
        const QFont kLabelFont(QStringLiteral("Bavaria"), 10, QFont::Normal, false);
        const qreal fRatio = devicePixelRatioF();
        akLabelRects.reserve(akCurrentPixels.size());
        akLabelStamps.reserve(akCurrentPixels.size());
        for (int k = 0; k < akCurrentPixels.size(); ++k) {
            const QPoint kPixel = akCurrentPixels[k];
            const QPointF &kKey = pkCurrent->m_lstKeys.at(k);
            const QRect kLabelRect = kKey.x() >= kRightLabelLimit && kKey.y() != 0.0
                ? QRect(QPoint(kPixel.x() - 28, kPixel.y() - 8),
                        QPoint(kPixel.x() - 8, kPixel.y() + 3))
                : QRect(QPoint(kPixel.x() + 8, kPixel.y() - 8),
                        QPoint(kPixel.x() + 28, kPixel.y() + 3));
            QImage kStamp(kLabelRect.size() * fRatio, QImage::Format_ARGB32_Premultiplied);
            kStamp.setDevicePixelRatio(fRatio);
            // Text in the stamp has the size it has on this widget's screen.
            kStamp.setDotsPerMeterX(qRound(logicalDpiX() / 0.0254));
            kStamp.setDotsPerMeterY(qRound(logicalDpiY() / 0.0254));
            kStamp.fill(Qt::transparent);
            QPainter kStampPainter(&kStamp);
            kStampPainter.setPen(Qt::black);
            kStampPainter.setFont(kLabelFont);
            kStampPainter.drawText(QRect(QPoint(0, 0), kLabelRect.size()), Qt::TextSingleLine,
                                   QString::number(kKey.y() * 100.0, 'g', 6));
            kStampPainter.end();
            akLabelRects.append(kLabelRect);
            akLabelStamps.append(kStamp);
        }
    }
    // The current slot's markers are stamped after every curve: rasterise them once per frame.
    constexpr int kDotReach = 6;
    constexpr int kRingReach = 11;
    QImage kDotStamp;
    QImage kRingStamp;
    if (bShowCurrent) {
        kDotStamp = MarkerStamp(5, kDotReach, kDotPen, kMarkerBrush, devicePixelRatioF());
        kRingStamp = MarkerStamp(9, kRingReach, kRingPen, kRingBrush, devicePixelRatioF());
    }
    QVarLengthArray<QPoint, 256> akCurve;

    for (const CVisemeUIData &kSlot : m_akVisemeData) {
        if (!kSlot.m_bInUse || kSlot.m_lstKeys.isEmpty() || kSlot.m_strName.isEmpty())
            continue;

        akCurve.clear();
        akCurve.reserve(kSlot.m_lstKeys.size());
        for (const QPointF &kKey : kSlot.m_lstKeys)
            akCurve.append(RevertNormalizedPoint(kKey));
        kPainter.setPen(LinePen(kSlot.m_kColor, 2.0));
        kPainter.setBrush(Qt::NoBrush);
        kPainter.drawPolyline(akCurve.constData(), akCurve.size());

        if (bShowCurrent) {
            for (int k = 0; k < akCurrentPixels.size(); ++k) {
                const QPoint kPixel = akCurrentPixels[k];
                if (k == pkCurrent->m_nSelectedKey)
                    kPainter.drawImage(kPixel - QPoint(kRingReach, kRingReach), kRingStamp);
                kPainter.drawImage(kPixel - QPoint(kDotReach, kDotReach), kDotStamp);
            }
        }

        for (int k = 0; k < akLabelStamps.size(); ++k)
            kPainter.drawImage(akLabelRects.at(k).topLeft(), akLabelStamps.at(k));

        if (m_bSinglePhoneme) {
            kPainter.setPen(Qt::black);
            kPainter.setBrush(MarkerColor(kSlot.m_kColor));
            kPainter.drawEllipse(akCurve[0], 5, 5);
        }
    }

    const float fCursorX =
        float(m_kPlotRect.right() - m_kPlotRect.left() + 1) * m_fCurrentTime / m_fTimeLength
        + float(m_kPlotRect.left());
    if (std::isfinite(fCursorX)) {
        kPainter.setPen(QPen(Qt::black, 1.0));
        kPainter.drawLine(QLineF(fCursorX, m_kPlotRect.top(), fCursorX, m_kPlotRect.bottom()));
    }

    // Keep repainting while visible: the host moves the time cursor without telling the widget.
    update();
}

void QVisemeCurveWidgetLite::mousePressEvent(QMouseEvent *event)
{
    const QPoint kPos = event->pos();
    CVisemeUIData *pkSlot = GetCurrentSlot();
    if (m_kPlotRect.isNull() || !pkSlot
        || !m_kPlotRect
                .adjusted(-kPressTolerance, -kPressTolerance, kPressTolerance, kPressTolerance)
                .contains(kPos)) {
        event->ignore();
        return;
    }

    if (IsPressOnAPoint(kPos)) {
        if (event->button() == Qt::RightButton) {
            const int nSel = pkSlot->m_nSelectedKey;
            if (IsValidKey(*pkSlot))
                pkSlot->m_lstKeys.removeAt(nSel);
            pkSlot->m_nSelectedKey = nSel > 1 ? nSel - 1 : 0;
            // With the last key gone the selection points at nothing and there is no value.
            if (IsValidKey(*pkSlot))
                emit SelKeyValueChanged(
                    float(pkSlot->m_lstKeys.at(pkSlot->m_nSelectedKey).y() * 100.0));
            update();
        }
        event->accept();
        return;
    }

    if (event->button() != Qt::LeftButton || !m_kPlotRect.contains(kPos)
        || pkSlot->m_strName.isEmpty()) {
        event->ignore();
        return;
    }
    QPoint kKeyPos = kPos;
    if (m_bSinglePhoneme) {
        if (kPos.x() - m_kPlotRect.left() > kSinglePhonemeReach) {
            event->ignore();
            return;
        }
        kKeyPos.setX(m_kPlotRect.left());
    }
    pkSlot->m_lstKeys.append(NormalizePoint(kKeyPos));
    SortByTime(pkSlot->m_lstKeys);
    update();
    event->setAccepted(IsPressOnAPoint(kPos));
}

void QVisemeCurveWidgetLite::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
    if (event->buttons() != Qt::LeftButton)
        return;
    CVisemeUIData *pkSlot = GetCurrentSlot();
    if (!pkSlot || !pkSlot->m_bInUse || !IsValidKey(*pkSlot))
        return;
    const int nX = m_bSinglePhoneme
        ? m_kPlotRect.left()
        : std::max(m_kPlotRect.left(), std::min(event->pos().x(), m_kPlotRect.right()));
    const int nY = std::max(m_kPlotRect.top(), std::min(event->pos().y(), m_kPlotRect.bottom()));
    QPointF &kKey = pkSlot->m_lstKeys[pkSlot->m_nSelectedKey];
    kKey = NormalizePoint(QPoint(nX, nY));
    update();
    emit SelKeyValueChanged(float(kKey.y() * 100.0));
}

void QVisemeCurveWidgetLite::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    CVisemeUIData *pkSlot = GetCurrentSlot();
    if (!pkSlot || !pkSlot->m_bInUse || pkSlot->m_nSelectedKey < 0)
        return;
    if (IsValidKey(*pkSlot)) {
        // A key dragged onto the time of another key replaces it.
        const QPointF kSelected = pkSlot->m_lstKeys.at(pkSlot->m_nSelectedKey);
        const auto it = std::find_if(
            pkSlot->m_lstKeys.begin(), pkSlot->m_lstKeys.end(), [&kSelected](const QPointF &kKey) {
                return kKey.x() == kSelected.x() && kKey.y() != kSelected.y();
            });
        if (it != pkSlot->m_lstKeys.end())
            pkSlot->m_lstKeys.erase(it);
    }
    SortByTime(pkSlot->m_lstKeys);
    update();
    EmitApplyVisemeData();
}

void QVisemeCurveWidgetLite::dragEnterEvent(QDragEnterEvent *event)
{
    event->acceptProposedAction();
}

void QVisemeCurveWidgetLite::dropEvent(QDropEvent *event)
{
    const QMimeData *pkMime = event->mimeData();
    const QPoint kPos = event->pos();
    const QList<QToolButton *> lstButtons = findChildren<QToolButton *>();
    const auto fnHitsButton = [&kPos](const QToolButton *pkButton) {
        return pkButton->geometry().contains(kPos);
    };

    if (pkMime && pkMime->hasFormat(QLatin1String(kVisemeButtonFormat))) {
        // A viseme button dropped on the curves frees the current slot.
        if (std::any_of(lstButtons.cbegin(), lstButtons.cend(), fnHitsButton))
            return;
        QToolButton *pkButton = lstButtons.value(m_nCurrentIndex);
        if (pkButton)
            pkButton->setText(QString());
        if (CVisemeUIData *pkSlot = GetCurrentSlot()) {
            pkSlot->m_strName.clear();
            pkSlot->m_lstKeys.clear();
            pkSlot->m_bInUse = false;
        }
        EmitApplyVisemeData();
        if (pkButton && pkButton->isChecked()) {
            const auto it =
                std::find_if(lstButtons.cbegin(), lstButtons.cend(),
                             [](const QToolButton *pkOther) { return !pkOther->text().isEmpty(); });
            const int nNext = it != lstButtons.cend() ? int(it - lstButtons.cbegin()) : 0;
            lstButtons.at(nNext)->setChecked(true);
            m_nCurrentIndex = nNext;
        }
    } else if (pkMime && pkMime->hasFormat(QLatin1String(kVisemeListItemFormat))) {
        // Each viseme is shown on one button at most.
        const QString strName = pkMime->text();
        if (std::any_of(
                lstButtons.cbegin(), lstButtons.cend(),
                [&strName](const QToolButton *pkButton) { return pkButton->text() == strName; })) {
            event->accept();
            return;
        }
        for (int i = 0; i < lstButtons.size(); ++i) {
            if (!fnHitsButton(lstButtons.at(i)))
                continue;
            lstButtons.at(i)->setText(strName);
            lstButtons.at(i)->setChecked(true);
            m_nCurrentIndex = i;
            AddVisemeData(i, strName);
        }
        AddVisemeCurveEndPoints();
        EmitApplyVisemeData();
    }
    update();
    event->accept();
}

bool QVisemeCurveWidgetLite::IsPressOnAPoint(QPoint kPos)
{
    CVisemeUIData *pkSlot = GetCurrentSlot();
    if (!pkSlot || !pkSlot->m_bInUse || pkSlot->m_lstKeys.isEmpty())
        return false;
    for (int i = 0; i < pkSlot->m_lstKeys.size(); ++i) {
        const QPoint kPixel = RevertNormalizedPoint(pkSlot->m_lstKeys.at(i));
        const QRect kBox(kPixel.x() - 5, kPixel.y() - 5, 10, 10);
        // The elliptic region lies inside its box: test the cheap box first.
        if (!kBox.contains(kPos) || !QRegion(kBox, QRegion::Ellipse).contains(kPos))
            continue;
        pkSlot->m_nSelectedKey = i;
        emit SelKeyValueChanged(float(pkSlot->m_lstKeys.at(i).y() * 100.0));
        return true;
    }
    return false;
}

QPointF QVisemeCurveWidgetLite::NormalizePoint(QPoint kPos)
{
    const float fSpanX = float(m_kPlotRect.right() - m_kPlotRect.left());
    const float fSpanY = float(m_kPlotRect.bottom() - m_kPlotRect.top());
    const float fX = fSpanX != 0.0f ? float(kPos.x() - m_kPlotRect.left()) / fSpanX : 0.0f;
    const float fY = fSpanY != 0.0f ? float(m_kPlotRect.bottom() - kPos.y()) / fSpanY : 0.0f;
    return QPointF(double(fX), double(fY));
}

QPoint QVisemeCurveWidgetLite::RevertNormalizedPoint(QPointF kKey)
{
    const double fLeft = m_kPlotRect.left();
    const double fBottom = m_kPlotRect.bottom();
    return QPoint(TruncToInt(fLeft + (m_kPlotRect.right() - fLeft) * kKey.x()),
                  TruncToInt(fBottom - (fBottom - m_kPlotRect.top()) * kKey.y()));
}

CVisemeUIData *QVisemeCurveWidgetLite::GetCurrentSlot()
{
    return GetSlot(m_nCurrentIndex);
}

CVisemeUIData *QVisemeCurveWidgetLite::GetSlot(int nIndex)
{
    return nIndex >= 0 && nIndex < kVisemeSlotCount ? &m_akVisemeData[nIndex] : nullptr;
}

void QVisemeCurveWidgetLite::EmitApplyVisemeData()
{
    emit ClearKeys();
    emit ApplyVisemeData();
}
