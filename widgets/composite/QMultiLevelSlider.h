#ifndef QMULTILEVELSLIDER_H
#define QMULTILEVELSLIDER_H

#include "VelaContainers.h"
#include "VelaExport.h"
#include "VelaResult.h"

#include <QColor>
#include <QPixmap>
#include <QWidget>

#include <functional>

class QLabel;

// A painted horizontal track with several arrow-shaped indicators, each marking an integer value in
// one shared range (for example the low, middle and high points of a levels adjustment). The user
// selects an indicator by clicking it and drags it along the track; indicators keep their order and
// a minimum distance from their neighbours. In middle mode the middle one of three indicators
// follows the two ends at a stored ratio. The owner is told about changes through four callbacks.
class VELA_WIDGETS_EXPORT QMultiLevelSlider : public QWidget
{
    Q_OBJECT

public:
    // One indicator on the track. Images and labels are not owned by the slider.
    struct IndicatorDesc
    {
        int nValue = 0;
        int nUpperOffset = 0; // base y when the indicator is drawn above the track
        int nLabelOffsetY = 0; // label position relative to the indicator image
        int nLabelOffsetX = 0;
        int nLabelHeight = 0;
        int nLabelWidth = 0;
        bool bFixed = false; // can be selected but never dragged
        bool bSelectable = false; // a mouse press can pick it
        bool bUnconstrained = false; // neighbours ignore it when keeping order and distance
        bool bPlaceUpper = false; // drawn above the track
        QPixmap *pkImage = nullptr; // fixed image; null lets the slider choose by state
        QLabel *pkLabel = nullptr; // placed beside the indicator at every paint
    };

    using IndicatorCallback = std::function<void(unsigned long long)>;

    explicit QMultiLevelSlider(QWidget *parent = nullptr);
    ~QMultiLevelSlider() override;

    Vela::Result InitUi(int nMinimum, int nMaximum, bool bFreeOrder,
                        const Vela::CArrayList<IndicatorDesc> &kIndicators, bool bMiddleMode,
                        QPixmap *pkNormal, QPixmap *pkDisabled, bool bHighlightSelected,
                        QPixmap *pkSelected, QPixmap *pkHover, QColor kTrackColor);
    Vela::Result CheckInputData(int nMinimum, int nMaximum, bool bFreeOrder,
                                const Vela::CArrayList<IndicatorDesc> &kIndicators,
                                const QPixmap *pkNormal, const QPixmap *pkSelected,
                                const QPixmap *pkHover) const;

    Vela::Result SetIndicatorValue(unsigned long long uIndex, int nValue, bool bUpdate);
    int GetIndicatorValue(unsigned long long uIndex) const;
    void SetIndicatorPlaceUpper(unsigned long long uIndex, bool bPlaceUpper);
    Vela::Result UpdateMiddleIndicatorRatio();

    void SetSelectedIndicator(unsigned long long uIndex);
    unsigned long long GetSelectedIndicator() const;

    void SetTrackPosY(int nPosY);
    void SetMin(int nMinimum);
    void SetMax(int nMaximum);
    unsigned int GetCount() const;

    void SetIndicatorMoveSignalInterface(const IndicatorCallback &kCallback);
    void SetIndicatorMoveDoneSignalInterface(const IndicatorCallback &kCallback);
    void SetIndicatorSelecteChangeSignalInterface(const IndicatorCallback &kCallback);
    void SetIndicatorDoubleClickSignalInterface(const IndicatorCallback &kCallback);

protected:
    int GetTrackStartPosX() const;
    int GetTrackEndPosX() const;
    int GetTrackLength() const;
    int GetIndicatorPosX(unsigned long long uIndex) const;
    int GetIndicatorImagePosX(unsigned long long uIndex) const;
    int GetIndicatorImagePosY(unsigned long long uIndex) const;
    const QPixmap *DetermineIndicatorImage(unsigned long long uIndex) const;

    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    QRect GetIndicatorHitRect(unsigned long long uIndex) const;
    long long GetIndicatorAt(const QPoint &kPos, bool bSelectableOnly) const;
    int ClampValue(int nValue) const;

    Vela::CArrayList<IndicatorDesc> m_kIndicators;
    int m_nMinimum = 0;
    int m_nMaximum = 0;
    int m_nRange = 0;
    bool m_bFreeOrder = false;
    bool m_bMiddleMode = false;
    float m_fMiddleRatio = 0.5f;
    bool m_bUpperMiddle = false;
    bool m_bHighlightSelected = false;

    QPixmap *m_pkNormalImage = nullptr;
    QPixmap *m_pkSelectedImage = nullptr;
    QPixmap *m_pkHoverImage = nullptr;
    QPixmap *m_pkDisabledImage = nullptr;

    QPixmap m_kNormalPixmap;
    QPixmap m_kSelectedPixmap;
    QPixmap m_kHoverPixmap;
    QPixmap m_kDisabledPixmap;
    QPixmap m_kUpperNormalPixmap;
    QPixmap m_kUpperSelectedPixmap;
    QPixmap m_kUpperHoverPixmap;
    QPixmap m_kUpperDisabledPixmap;

    int m_nImageWidth = 0;
    int m_nImageHalfWidth = 0;
    int m_nImageHeight = 0;
    int m_nTrackPosY = 8;
    int m_nPenWidth = 1;
    int m_nIndicatorGap = 2;

    int m_nDragIndex = -1;
    int m_nDragOffset = 0;
    unsigned long long m_uSelectedIndex = 0;
    long long m_nHoverIndex = -1;

    IndicatorCallback m_kMoveCallback;
    IndicatorCallback m_kMoveDoneCallback;
    IndicatorCallback m_kSelectionChangeCallback;
    IndicatorCallback m_kDoubleClickCallback;

    QColor m_kTrackColor = QColor(200, 200, 200, 255);
};

#endif // QMULTILEVELSLIDER_H
