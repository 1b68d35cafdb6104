#include "QStartEndIndicatorWidget.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>

namespace {

int pixmapWidth(const QPixmap *pkPixmap)
{
    return pkPixmap ? pkPixmap->width() : 0;
}

// The hit and paint rectangle of a marker whose top-left corner is at (nX, nY).
QRect markerRect(int nX, int nY, const QPixmap *pkPixmap)
{
    return pkPixmap ? QRect(QPoint(nX, nY), pkPixmap->size()) : QRect();
}

// A marker offset from the track start, as a fraction of the track. A slider without width has no
// track to measure against: report its start.
float trackRatio(int nOffset, int nTrackWidth)
{
    return nTrackWidth != 0 ? float(nOffset) / float(nTrackWidth) : 0.0f;
}

void drawMarker(QPainter &painter, int nX, int nY, const QPixmap *pkPixmap)
{
    if (pkPixmap)
        painter.drawPixmap(nX, nY, *pkPixmap);
}

} // namespace

QStartEndIndicatorWidget::QStartEndIndicatorWidget(QWidget *parent)
    : QWidget(parent)
    , m_pkPreviewStart(new QPixmap(QStringLiteral(":/icons/timeline/Timeline_Preview_Start.svg")))
    , m_pkPreviewEnd(new QPixmap(QStringLiteral(":/icons/timeline/Timeline_Preview_End.svg")))
    , m_pkStartDisabled(new QPixmap(QStringLiteral(":/icons/timeline/TimelineStart_dis.svg")))
    , m_pkStart(new QPixmap(QStringLiteral(":/icons/timeline/TimelineStart.svg")))
    , m_pkEndDisabled(new QPixmap(QStringLiteral(":/icons/timeline/TimelineEnd_dis.svg")))
    , m_pkEnd(new QPixmap(QStringLiteral(":/icons/timeline/TimelineEnd.svg")))
{
    setAccessibleName(QStringLiteral("QStartEndIndicatorWidget"));
    m_pkCurrentStart = m_pkStart;
    m_pkCurrentEnd = m_pkEnd;
}

QStartEndIndicatorWidget::~QStartEndIndicatorWidget()
{
    delete m_pkPreviewStart;
    delete m_pkPreviewEnd;
    delete m_pkStartDisabled;
    delete m_pkStart;
    delete m_pkEndDisabled;
    delete m_pkEnd;
}

void QStartEndIndicatorWidget::SetStartRatio(float fRatio)
{
    int nTrack = 0;
    int nBase = 0;
    GetIndicatorParam(nTrack, nBase, m_pkCurrentStart);
    m_nStartX = int(float(nBase) + float(nTrack) * fRatio);
    update();
}

void QStartEndIndicatorWidget::SetEndRatio(float fRatio)
{
    // Measured with the start marker, so that both markers meet on the same track position.
    int nTrack = 0;
    int nBase = 0;
    GetIndicatorParam(nTrack, nBase, m_pkCurrentStart);
    m_nEndX = int(float(pixmapWidth(m_pkCurrentStart) + nBase) + float(nTrack) * fRatio);
    update();
}

void QStartEndIndicatorWidget::SetPreviewStartRatio(float fRatio)
{
    int nTrack = 0;
    int nBase = 0;
    GetIndicatorParam(nTrack, nBase, m_pkPreviewStart);
    m_nPreviewStartX = int(float(nBase) + float(nTrack) * fRatio);
    update();
}

void QStartEndIndicatorWidget::SetPreviewEndRatio(float fRatio)
{
    int nTrack = 0;
    int nBase = 0;
    GetIndicatorParam(nTrack, nBase, m_pkPreviewStart);
    m_nPreviewEndX = int(float(pixmapWidth(m_pkPreviewStart) + nBase) + float(nTrack) * fRatio);
    update();
}

void QStartEndIndicatorWidget::UpdateRatio(float fStartRatio, float fEndRatio,
                                           float fPreviewStartRatio, float fPreviewEndRatio)
{
    SetEndRatio(fEndRatio);
    SetStartRatio(fStartRatio);
    SetPreviewStartRatio(fPreviewStartRatio);
    SetPreviewEndRatio(fPreviewEndRatio);
    update();
}

void QStartEndIndicatorWidget::SetDrawPrevewIndicatorFlag(bool bDraw)
{
    m_bDrawPreviewIndicator = bDraw;
}

void QStartEndIndicatorWidget::SetStartEndIndicatorImage(QPixmap *pkStart, QPixmap *pkEnd)
{
    m_pkCurrentStart = pkStart;
    m_pkCurrentEnd = pkEnd;
}

void QStartEndIndicatorWidget::SetStartEndIndicatorCSSOffset(int nOffset)
{
    m_nCSSOffset = nOffset;
}

void QStartEndIndicatorWidget::SetEnabled(bool bEnabled)
{
    m_pkCurrentStart = bEnabled ? m_pkStart : m_pkStartDisabled;
    m_pkCurrentEnd = bEnabled ? m_pkEnd : m_pkEndDisabled;
    QWidget::setEnabled(bEnabled);
}

void QStartEndIndicatorWidget::paintEvent(QPaintEvent *)
{
    const QRect slider = childrenRect();
    QPainter painter(this);
    drawMarker(painter, m_nStartX, slider.bottom(), m_pkCurrentStart);
    drawMarker(painter, m_nEndX, slider.bottom(), m_pkCurrentEnd);
    if (m_bDrawPreviewIndicator) {
        drawMarker(painter, m_nPreviewStartX, slider.top(), m_pkPreviewStart);
        drawMarker(painter, m_nPreviewEndX, slider.top(), m_pkPreviewEnd);
    }
}

void QStartEndIndicatorWidget::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;

    m_kPressPos = event->pos();
    m_bDragStart = m_bDragEnd = m_bDragPreviewStart = m_bDragPreviewEnd = false;

    // The preview markers can be grabbed even while they are hidden.
    const QRect slider = childrenRect();
    const int nPressX = m_kPressPos.x();
    if (markerRect(m_nStartX, slider.bottom(), m_pkCurrentStart).contains(m_kPressPos)) {
        m_bDragStart = true;
        m_nStartGrabOffset = m_nStartX - nPressX;
    } else if (markerRect(m_nEndX, slider.bottom(), m_pkCurrentEnd).contains(m_kPressPos)) {
        m_bDragEnd = true;
        m_nEndGrabOffset = m_nEndX - nPressX;
    } else if (markerRect(m_nPreviewStartX, slider.top(), m_pkPreviewStart).contains(m_kPressPos)) {
        m_bDragPreviewStart = true;
        m_nPreviewStartGrabOffset = m_nPreviewStartX - nPressX;
    } else if (markerRect(m_nPreviewEndX, slider.top(), m_pkPreviewEnd).contains(m_kPressPos)) {
        m_bDragPreviewEnd = true;
        m_nPreviewEndGrabOffset = m_nPreviewEndX - nPressX;
    }
}

void QStartEndIndicatorWidget::mouseReleaseEvent(QMouseEvent *)
{
    m_bDragStart = m_bDragEnd = m_bDragPreviewStart = m_bDragPreviewEnd = false;
    m_nStartGrabOffset = m_nEndGrabOffset = 0;
    m_nPreviewStartGrabOffset = m_nPreviewEndGrabOffset = 0;
}

void QStartEndIndicatorWidget::mouseMoveEvent(QMouseEvent *event)
{
    const int nMouseX = event->pos().x();
    int nTrack = 0;
    int nBase = 0;
    if (m_bDragStart) {
        m_nStartX = m_nStartGrabOffset + nMouseX;
        CheckStartL(m_nStartX, m_nEndX, m_pkCurrentStart);
        GetIndicatorParam(nTrack, nBase, m_pkCurrentStart);
        emit SetPlaySliderStartRatio(trackRatio(m_nStartX - nBase, nTrack));
    } else if (m_bDragEnd) {
        m_nEndX = m_nEndGrabOffset + nMouseX;
        CheckEndL(m_nStartX, m_nEndX, m_pkCurrentStart);
        GetIndicatorParam(nTrack, nBase, m_pkCurrentStart);
        emit SetPlaySliderEndRatio(
            trackRatio(m_nEndX - nBase - pixmapWidth(m_pkCurrentStart), nTrack));
    } else if (m_bDragPreviewStart) {
        m_nPreviewStartX = m_nPreviewStartGrabOffset + nMouseX;
        CheckStartL(m_nPreviewStartX, m_nPreviewEndX, m_pkPreviewStart);
        GetIndicatorParam(nTrack, nBase, m_pkPreviewStart);
        emit SetPlaySliderPreviewStartRatio(trackRatio(m_nPreviewStartX - nBase, nTrack));
    } else if (m_bDragPreviewEnd) {
        m_nPreviewEndX = m_nPreviewEndGrabOffset + nMouseX;
        CheckEndL(m_nPreviewStartX, m_nPreviewEndX, m_pkPreviewStart);
        GetIndicatorParam(nTrack, nBase, m_pkPreviewStart);
        emit SetPlaySliderPreviewEndRatio(
            trackRatio(m_nPreviewEndX - nBase - pixmapWidth(m_pkPreviewStart), nTrack));
    } else {
        return;
    }
    update();
}

void QStartEndIndicatorWidget::resizeEvent(QResizeEvent *)
{
    // Marker positions follow the host's ratios, not the widget size.
}

void QStartEndIndicatorWidget::GetIndicatorParam(int &nTrackWidth, int &nBase, QPixmap *pkPixmap)
{
    const QRect slider = childrenRect();
    nTrackWidth = slider.right() - 2 * m_nCSSOffset - slider.left() + 1;
    nBase = m_nCSSOffset + slider.left() - pixmapWidth(pkPixmap);
}

void QStartEndIndicatorWidget::CheckStartL(int &nStartX, int nOtherEndX, QPixmap *pkPixmap)
{
    int nTrack = 0;
    int nBase = 0;
    GetIndicatorParam(nTrack, nBase, pkPixmap);
    const int nWidth = pixmapWidth(pkPixmap);
    if (nStartX > nOtherEndX - nWidth + 1)
        nStartX = nOtherEndX - nWidth;
    if (nStartX < nBase)
        nStartX = nBase;
}

void QStartEndIndicatorWidget::CheckEndL(int nOtherStartX, int &nEndX, QPixmap *pkPixmap)
{
    int nTrack = 0;
    int nBase = 0;
    GetIndicatorParam(nTrack, nBase, pkPixmap);
    const int nWidth = pixmapWidth(pkPixmap);
    const QRect slider = childrenRect();
    const int nHigh = m_nCSSOffset + slider.left() + nTrack;
    if (nEndX > nHigh)
        nEndX = nHigh;
    else if (nEndX < nOtherStartX - 1 + nWidth)
        nEndX = nOtherStartX + nWidth;
}
