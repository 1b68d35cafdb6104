#ifndef QSTARTENDINDICATORWIDGET_H
#define QSTARTENDINDICATORWIDGET_H

#include "VelaExport.h"

#include <QPoint>
#include <QWidget>

class QMouseEvent;
class QPaintEvent;
class QPixmap;
class QResizeEvent;

// Laid around a timeline slider that the host places inside it as a child: draws draggable
// markers for the start and end of the play range below the slider and, optionally, two
// preview-range markers above it. Dragged markers are reported as ratios (0..1) of the slider's
// track; the host positions the markers by ratio. All geometry derives from childrenRect() and
// from a style-sheet offset the host sets.
class VELA_WIDGETS_EXPORT QStartEndIndicatorWidget : public QWidget
{
    Q_OBJECT

public:
    explicit QStartEndIndicatorWidget(QWidget *parent = nullptr);
    ~QStartEndIndicatorWidget() override;

    void SetStartRatio(float fRatio);
    void SetEndRatio(float fRatio);
    void SetPreviewStartRatio(float fRatio);
    void SetPreviewEndRatio(float fRatio);
    void UpdateRatio(float fStartRatio, float fEndRatio, float fPreviewStartRatio,
                     float fPreviewEndRatio);
    void SetDrawPrevewIndicatorFlag(bool bDraw);
    // The pixmaps stay owned by the caller and must outlive their use here.
    void SetStartEndIndicatorImage(QPixmap *pkStart, QPixmap *pkEnd);
    void SetStartEndIndicatorCSSOffset(int nOffset);
    void SetEnabled(bool bEnabled);

signals:
    void SetPlaySliderStartRatio(float fRatio);
    void SetPlaySliderEndRatio(float fRatio);
    void SetPlaySliderPreviewStartRatio(float fRatio);
    void SetPlaySliderPreviewEndRatio(float fRatio);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    // Track width and the x at which a marker of pkPixmap has its right edge on the track start.
    void GetIndicatorParam(int &nTrackWidth, int &nBase, QPixmap *pkPixmap);
    void CheckStartL(int &nStartX, int nOtherEndX, QPixmap *pkPixmap);
    void CheckEndL(int nOtherStartX, int &nEndX, QPixmap *pkPixmap);

    QPixmap *m_pkCurrentStart = nullptr;
    QPixmap *m_pkCurrentEnd = nullptr;
    QPixmap *m_pkPreviewStart = nullptr;
    QPixmap *m_pkPreviewEnd = nullptr;
    QPixmap *m_pkStartDisabled = nullptr;
    QPixmap *m_pkStart = nullptr;
    QPixmap *m_pkEndDisabled = nullptr;
    QPixmap *m_pkEnd = nullptr;

    QPoint m_kPressPos;

    int m_nStartX = 0;
    int m_nEndX = 0;
    int m_nPreviewStartX = 0;
    int m_nPreviewEndX = 0;

    int m_nStartGrabOffset = 0;
    int m_nEndGrabOffset = 0;
    int m_nPreviewStartGrabOffset = 0;
    int m_nPreviewEndGrabOffset = 0;

    bool m_bDragStart = false;
    bool m_bDragEnd = false;
    bool m_bDragPreviewStart = false;
    bool m_bDragPreviewEnd = false;

    bool m_bDrawPreviewIndicator = false;
    int m_nCSSOffset = 0;
};

#endif // QSTARTENDINDICATORWIDGET_H
