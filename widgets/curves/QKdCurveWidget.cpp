#include "QKdCurveWidget.h"

#include <QPainterPath>

#include <utility>

namespace {

// Share of the widget that the curve spans; the strip beyond stays empty.
constexpr float kDrawnShare = 0.9f;

} // namespace

QKdCurveWidget::QKdCurveWidget(QWidget *parent)
    : QWidget(parent)
    , m_kPen(QBrush(QColor(0, 0, 255)), 2, Qt::SolidLine)
{ }

QKdCurveWidget::~QKdCurveWidget() = default;

void QKdCurveWidget::SetCurveSeq(std::vector<Vela::CVector3<float>> vecCurveSeq)
{
    m_vecCurveSeq = std::move(vecCurveSeq);
    repaint();
}

void QKdCurveWidget::paintEvent(QPaintEvent *)
{
    if (m_vecCurveSeq.empty())
        return;
    const float fScaleX = float(width()) * kDrawnShare;
    const float fScaleY = float(height()) * kDrawnShare;
    QPainterPath kPath;
    kPath.moveTo(fScaleX * m_vecCurveSeq.front().x, fScaleY * m_vecCurveSeq.front().y);
    for (auto it = m_vecCurveSeq.cbegin() + 1; it != m_vecCurveSeq.cend(); ++it)
        kPath.lineTo(fScaleX * it->x, fScaleY * it->y);

    QPainter kPainter(this);
    kPainter.setPen(m_kPen);
    kPainter.setCompositionMode(m_eCompositionMode);
    kPainter.setBackgroundMode(m_eBackgroundMode);
    kPainter.setRenderHint(QPainter::Antialiasing);
    kPainter.drawPath(kPath);
}
