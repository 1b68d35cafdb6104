#ifndef QCURVEEDITOR_H
#define QCURVEEDITOR_H

#include "VelaExport.h"

#include <QList>
#include <QMap>
#include <QPixmap>
#include <QPoint>
#include <QWidget>

#include <functional>

class QAction;
class QImage;

// Editor of a weighting profile: for each of three parts, a curve over a 0..100 square made of two
// cubic Bézier segments that rise from a fixed start point to a movable apex and fall back to a
// fixed end point. Only the current part's curve is shown and edited; the host reads the control
// points back and is told through a plain callback when an edit is finished.
class VELA_WIDGETS_EXPORT QCurveEditor : public QWidget
{
    Q_OBJECT

public:
    explicit QCurveEditor(QWidget *parent = nullptr);
    ~QCurveEditor() override;

    // Creates the keyboard actions and the background tile and gives every part the default
    // curve. The host calls it once after construction.
    void Init();

    QMap<int, QList<QPoint>> GetData() const;
    void SetData(const QMap<int, QList<QPoint>> &kData);

    void SetWeighting(float fWeighting);
    float GetCurveWeighting();

    void SetFinishedCallback(std::function<void()> fnCallback);

    int GetPart();

public slots:
    void OnDividerNum();
    void OnShowDivider();
    void OnSymmetry();
    void OnReset();
    void OnChangePart();
    void OnCurveWeighting(double fValue);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void InitPoints();
    void InitAllPartsPoints();
    QPoint ConvertToCanvasPos(const QPoint &kDataPos) const;
    QPoint ConvertToCanvasPosForImage(const QPoint &kDataPos) const;
    QPoint ConvertToDataPos(const QPoint &kCanvasPos) const;
    void GetCurveImage(QImage &kImage);
    int GetWeightingFromCurveImage(QImage &kImage, int nPercent);
    void EmitFinished();

    QPixmap m_kCheckerPixmap;
    QAction *m_pkDividerNumAction = nullptr;
    QAction *m_pkShowDividerAction = nullptr;
    QAction *m_pkSymmetryAction = nullptr;
    QMap<int, QList<QPoint>> m_kCurveData;
    float m_fWeighting = 1.0f;
    int m_nSelectedPoint = -1;
    bool m_bShowDivider = true;
    bool m_bSymmetry = true;
    int m_nDividerNum = 4;
    std::function<void()> m_fnFinishedCallback;
    int m_nPart = 0;
};

#endif // QCURVEEDITOR_H
