#ifndef QKDCURVEWIDGET_H
#define QKDCURVEWIDGET_H

#include "VelaExport.h"
#include "VelaVector.h"

#include <QPainter>
#include <QPen>
#include <QWidget>

#include <vector>

// A read-only plot of a polyline given by the host as points whose x and y are fractions of the
// drawing size (y = 0 at the top). The curve uses the upper-left 90 % of the widget.
class VELA_WIDGETS_EXPORT QKdCurveWidget : public QWidget
{
    Q_OBJECT

public:
    explicit QKdCurveWidget(QWidget *parent = nullptr);
    ~QKdCurveWidget() override;

    // Replaces the curve and repaints at once.
    void SetCurveSeq(std::vector<Vela::CVector3<float>> vecCurveSeq);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPen m_kPen;
    QPainter::CompositionMode m_eCompositionMode = QPainter::CompositionMode_SourceOver;
    Qt::BGMode m_eBackgroundMode = Qt::TransparentMode;
    std::vector<Vela::CVector3<float>> m_vecCurveSeq;
};

#endif // QKDCURVEWIDGET_H
