#ifndef QVISEMECURVEWIDGETLITE_H
#define QVISEMECURVEWIDGETLITE_H

#include "VelaExport.h"

#include <QColor>
#include <QList>
#include <QPixmap>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QString>
#include <QWidget>

// One viseme slot of the key curve widget: its keys (x = time fraction, y = weight, both
// nominally 0..1), its name (empty while the slot is free) and its colour.
class VELA_WIDGETS_EXPORT CVisemeUIData
{
public:
    QList<QPointF> m_lstKeys;
    QString m_strName;
    bool m_bInUse = false;
    int m_nSelectedKey = 0;
    QColor m_kColor = QColor(0, 0, 0);
};

// Editor of the weight-over-time keys of up to twelve visemes of one phoneme or lip-sync span.
// All named slots are drawn as coloured polylines; the keys of the current slot can be added,
// dragged and deleted with the mouse. Viseme names dropped on the tool buttons that the host puts
// inside the widget claim a slot, and a dropped viseme button frees the current one.
class VELA_WIDGETS_EXPORT QVisemeCurveWidgetLite : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kVisemeSlotCount = 12;

    explicit QVisemeCurveWidgetLite(QWidget *parent = nullptr);
    ~QVisemeCurveWidgetLite() override;

    // Lays out the plotting area from the current size and the host's tool buttons and gives the
    // slots their colours. Called once, after the host has added its buttons and sized the widget.
    void Init();

    void SetCurrentCheckButtonIndex(int nIndex);
    // The first of the twelve slots; the host indexes the array directly.
    CVisemeUIData *GetVisemeUIData();
    void SetVisemeData(int nIndex, const CVisemeUIData &kData);
    void AddVisemeData(int nIndex, QString strName);
    QString GetVisemeName(int nIndex);
    // Gives every slot without keys its end keys: (0, 0) and, unless single phoneme, (1, 0).
    void AddVisemeCurveEndPoints();

    void SetTimeLength(float fCurrentTime, float fTimeLength);
    void SetSelKeyValue(double fValue);
    float GetSelPtValue();

    void SetSinglePhonemeState(const bool &bSinglePhoneme);
    bool GetSinglePhonemeState();
    void SetShowWeightingAtPoint(const bool &bShow);
    bool GetShowWeightingAtPoint();

signals:
    void ApplyVisemeData();
    void ClearKeys();
    void SelKeyValueChanged(float fValue);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    bool IsPressOnAPoint(QPoint kPos);
    QPointF NormalizePoint(QPoint kPos);
    QPoint RevertNormalizedPoint(QPointF kKey);
    CVisemeUIData *GetCurrentSlot();
    CVisemeUIData *GetSlot(int nIndex);
    void EmitApplyVisemeData();

    QPixmap m_kCheckerPixmap;
    QRect m_kPlotRect;
    QList<QPoint> m_lstAxisPoints;
    int m_nCurrentIndex = 0;
    bool m_bSinglePhoneme = false;
    bool m_bShowWeightingAtPoint = true;
    float m_fCurrentTime = 0.0f;
    float m_fTimeLength = 0.0f;
    CVisemeUIData m_akVisemeData[kVisemeSlotCount];
};

#endif // QVISEMECURVEWIDGETLITE_H
