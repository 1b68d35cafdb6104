#include "QMultiLevelSlider.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>

// Track length and range used as divisors: a slider narrower than its images, or one that has not
// been initialised yet, still computes finite positions.
static float SafeDivisor(int nValue)
{
    return float(std::max(nValue, 1));
}

QMultiLevelSlider::QMultiLevelSlider(QWidget *parent)
    : QWidget(parent)
    , m_kNormalPixmap(QStringLiteral(":/icon/ArrowRangeStartEnd.svg"))
    , m_kSelectedPixmap(QStringLiteral(":/icon/ArrowRangeStartEnd_sel.svg"))
    , m_kHoverPixmap(QStringLiteral(":/icon/ArrowRangeStartEnd.svg"))
    , m_kDisabledPixmap(QStringLiteral(":/icon/ArrowRangeStartEnd_dis.svg"))
    , m_kUpperNormalPixmap(QStringLiteral(":/icon/ArrowRangeUpper.svg"))
    , m_kUpperSelectedPixmap(QStringLiteral(":/icon/ArrowRangeUpper_sel.svg"))
    , m_kUpperHoverPixmap(QStringLiteral(":/icon/ArrowRangeUpper.svg"))
    , m_kUpperDisabledPixmap(QStringLiteral(":/icon/ArrowRangeUpper_dis.svg"))
{
    m_pkNormalImage = &m_kNormalPixmap;
    m_pkSelectedImage = &m_kSelectedPixmap;
    m_pkHoverImage = &m_kHoverPixmap;
    m_pkDisabledImage = &m_kDisabledPixmap;

    setAccessibleName(QStringLiteral("QMultiLevelSlider"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

QMultiLevelSlider::~QMultiLevelSlider() = default;

Vela::Result QMultiLevelSlider::CheckInputData(int nMinimum, int nMaximum, bool bFreeOrder,
                                               const Vela::CArrayList<IndicatorDesc> &kIndicators,
                                               const QPixmap *pkNormal, const QPixmap *pkSelected,
                                               const QPixmap *pkHover) const
{
    // The range has to be an int itself: positions are measured from the minimum.
    if (nMinimum >= nMaximum || qint64(nMaximum) - nMinimum > std::numeric_limits<int>::max())
        return Vela::Result::InvalidArgument;
    for (std::size_t i = 0; i < kIndicators.size(); ++i) {
        const int nValue = kIndicators[i].nValue;
        if (nValue < nMinimum || nValue > nMaximum)
            return Vela::Result::InvalidArgument;
        if (!bFreeOrder && i > 0 && nValue <= kIndicators[i - 1].nValue)
            return Vela::Result::InvalidArgument;
    }
    if (pkNormal) {
        if (pkSelected && pkSelected->size() != pkNormal->size())
            return Vela::Result::InvalidArgument;
        if (pkHover && pkHover->size() != pkNormal->size())
            return Vela::Result::InvalidArgument;
    }
    return Vela::Result::Success;
}

Vela::Result QMultiLevelSlider::InitUi(int nMinimum, int nMaximum, bool bFreeOrder,
                                       const Vela::CArrayList<IndicatorDesc> &kIndicators,
                                       bool bMiddleMode, QPixmap *pkNormal, QPixmap *pkDisabled,
                                       bool bHighlightSelected, QPixmap *pkSelected,
                                       QPixmap *pkHover, QColor kTrackColor)
{
    const Vela::Result kCheck =
        CheckInputData(nMinimum, nMaximum, bFreeOrder, kIndicators, pkNormal, pkSelected, pkHover);
    if (kCheck.failed())
        return kCheck;

    m_nMinimum = nMinimum;
    m_nMaximum = nMaximum;
    m_nRange = nMaximum - nMinimum;
    m_bFreeOrder = bFreeOrder;
    m_bMiddleMode = bMiddleMode;
    if (bMiddleMode && (kIndicators.size() != 3 || bFreeOrder))
        return Vela::Result::InvalidArgument;

    m_kIndicators = kIndicators;
    if (m_kIndicators.size() == 3 && m_kIndicators[1].bPlaceUpper)
        m_bUpperMiddle = true;

    m_bHighlightSelected = bHighlightSelected;
    m_pkNormalImage = pkNormal ? pkNormal : &m_kNormalPixmap;
    m_pkDisabledImage = pkDisabled ? pkDisabled : &m_kDisabledPixmap;
    m_pkSelectedImage = pkSelected ? pkSelected : &m_kSelectedPixmap;
    m_pkHoverImage = pkHover ? pkHover : &m_kHoverPixmap;
    m_kTrackColor = kTrackColor;
    m_nImageWidth = m_pkNormalImage->width();
    m_nImageHalfWidth = m_nImageWidth / 2;
    m_nImageHeight = m_pkNormalImage->height();

    // The upper indicator has to fit between the top edge and the track.
    if (m_bUpperMiddle)
        m_nTrackPosY = std::max(m_nTrackPosY, m_nIndicatorGap + m_nPenWidth + m_nImageHeight);

    new QHBoxLayout(this);
    int nMinimumHeight = m_nPenWidth + m_nTrackPosY;
    if (m_bUpperMiddle)
        nMinimumHeight += m_nIndicatorGap + m_nImageHeight;
    setMinimumHeight(std::max(nMinimumHeight, 12));
    return Vela::Result::Success;
}

Vela::Result QMultiLevelSlider::SetIndicatorValue(unsigned long long uIndex, int nValue,
                                                  bool bUpdate)
{
    if (uIndex >= m_kIndicators.size())
        return Vela::Result::IndexOutOfRange;
    m_kIndicators[uIndex].nValue = ClampValue(nValue);
    if (bUpdate) {
        if (m_bMiddleMode && uIndex == 1)
            UpdateMiddleIndicatorRatio();
        update();
    }
    return Vela::Result::Success;
}

int QMultiLevelSlider::GetIndicatorValue(unsigned long long uIndex) const
{
    if (uIndex >= m_kIndicators.size())
        return m_nMinimum;
    return m_kIndicators[uIndex].nValue;
}

void QMultiLevelSlider::SetIndicatorPlaceUpper(unsigned long long uIndex, bool bPlaceUpper)
{
    if (uIndex >= m_kIndicators.size())
        return;
    m_kIndicators[uIndex].bPlaceUpper = bPlaceUpper;
    if (m_kIndicators.size() == 3 && m_kIndicators[1].bPlaceUpper)
        m_bUpperMiddle = true;
}

Vela::Result QMultiLevelSlider::UpdateMiddleIndicatorRatio()
{
    if (m_bMiddleMode && m_kIndicators.size() == 3) {
        const int nFirst = m_kIndicators[0].nValue;
        m_fMiddleRatio = float(m_kIndicators[1].nValue - nFirst)
            / float(std::max(m_kIndicators[2].nValue - nFirst, 1));
    }
    return Vela::Result::Success;
}

void QMultiLevelSlider::SetSelectedIndicator(unsigned long long uIndex)
{
    m_uSelectedIndex = uIndex;
    update();
}

unsigned long long QMultiLevelSlider::GetSelectedIndicator() const
{
    return m_uSelectedIndex;
}

void QMultiLevelSlider::SetTrackPosY(int nPosY)
{
    m_nTrackPosY = nPosY;
}

void QMultiLevelSlider::SetMin(int nMinimum)
{
    m_nMinimum = nMinimum;
}

void QMultiLevelSlider::SetMax(int nMaximum)
{
    m_nMaximum = nMaximum;
}

unsigned int QMultiLevelSlider::GetCount() const
{
    return static_cast<unsigned int>(m_kIndicators.size());
}

void QMultiLevelSlider::SetIndicatorMoveSignalInterface(const IndicatorCallback &kCallback)
{
    m_kMoveCallback = kCallback;
}

void QMultiLevelSlider::SetIndicatorMoveDoneSignalInterface(const IndicatorCallback &kCallback)
{
    m_kMoveDoneCallback = kCallback;
}

void QMultiLevelSlider::SetIndicatorSelecteChangeSignalInterface(const IndicatorCallback &kCallback)
{
    m_kSelectionChangeCallback = kCallback;
}

void QMultiLevelSlider::SetIndicatorDoubleClickSignalInterface(const IndicatorCallback &kCallback)
{
    m_kDoubleClickCallback = kCallback;
}

int QMultiLevelSlider::GetTrackStartPosX() const
{
    return m_nImageHalfWidth;
}

int QMultiLevelSlider::GetTrackEndPosX() const
{
    return width() - 1 - m_nImageHalfWidth;
}

int QMultiLevelSlider::GetTrackLength() const
{
    return width() - 1 - 2 * m_nImageHalfWidth;
}

int QMultiLevelSlider::GetIndicatorPosX(unsigned long long uIndex) const
{
    return GetIndicatorImagePosX(uIndex) + m_nImageHalfWidth;
}

int QMultiLevelSlider::GetIndicatorImagePosX(unsigned long long uIndex) const
{
    // SetMin may leave the minimum anywhere below or above the values: measure in 64 bits.
    const float fOffset = float(qint64(GetIndicatorValue(uIndex)) - m_nMinimum);
    return int(std::lround(float(GetTrackLength()) * fOffset / SafeDivisor(m_nRange)));
}

int QMultiLevelSlider::GetIndicatorImagePosY(unsigned long long uIndex) const
{
    if (uIndex < m_kIndicators.size() && m_kIndicators[uIndex].bPlaceUpper) {
        return std::max(0,
                        m_kIndicators[uIndex].nUpperOffset - m_nImageHeight - m_nIndicatorGap
                            - m_nPenWidth + m_nTrackPosY);
    }
    return m_nIndicatorGap + m_nPenWidth + m_nTrackPosY;
}

const QPixmap *QMultiLevelSlider::DetermineIndicatorImage(unsigned long long uIndex) const
{
    // The middle one of three indicators drawn above the track uses the upper image set.
    const bool bUpper = m_bUpperMiddle && uIndex == 1;
    if (!isEnabled())
        return bUpper ? &m_kUpperDisabledPixmap : m_pkDisabledImage;
    if (m_bHighlightSelected && uIndex == m_uSelectedIndex)
        return bUpper ? &m_kUpperSelectedPixmap : m_pkSelectedImage;
    if (static_cast<long long>(uIndex) != m_nHoverIndex)
        return bUpper ? &m_kUpperNormalPixmap : m_pkNormalImage;
    return bUpper ? &m_kUpperHoverPixmap : m_pkHoverImage;
}

void QMultiLevelSlider::paintEvent(QPaintEvent *event)
{
    QPainter kPainter(this);
    QPen kPen(isEnabled() ? m_kTrackColor : QColor(70, 70, 70, 255));
    kPen.setCosmetic(true);
    kPen.setWidth(m_nPenWidth);
    kPainter.setPen(kPen);
    kPainter.drawLine(m_nImageHalfWidth, m_nTrackPosY, width() - m_nImageHalfWidth - 1,
                      m_nTrackPosY);

    for (std::size_t i = 0; i < m_kIndicators.size(); ++i) {
        const IndicatorDesc &kDesc = m_kIndicators[i];
        const QPixmap *pkImage = kDesc.pkImage ? kDesc.pkImage : DetermineIndicatorImage(i);
        const int nImageX = GetIndicatorImagePosX(i);
        const int nImageY = GetIndicatorImagePosY(i);
        if (pkImage && !pkImage->isNull())
            kPainter.drawPixmap(nImageX, nImageY, *pkImage);
        if (kDesc.pkLabel) {
            kDesc.pkLabel->setGeometry(nImageX + kDesc.nLabelOffsetX, nImageY + kDesc.nLabelOffsetY,
                                       kDesc.nLabelWidth, kDesc.nLabelHeight);
            kDesc.pkLabel->setAlignment(Qt::AlignCenter);
            // Adding a label that the layout already holds would only make the layout move it
            // again; the geometry set above is what places it.
            if (layout() && layout()->indexOf(kDesc.pkLabel) < 0)
                layout()->addWidget(kDesc.pkLabel);
        }
    }
    QWidget::paintEvent(event);
}

void QMultiLevelSlider::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_nDragIndex = -1;
    m_nDragOffset = 0;

    long long nPicked = -1;
    // Both ends stacked at the end of the track: the first one has to stay reachable, or the user
    // could never pull the pair apart again.
    if (m_bMiddleMode && m_kIndicators.size() == 3) {
        const int nFirstX = GetIndicatorImagePosX(0);
        if (m_nImageHalfWidth + nFirstX >= width() - 1 - m_nImageHalfWidth
            && GetIndicatorImagePosX(2) == nFirstX && GetIndicatorHitRect(0).contains(event->pos()))
            nPicked = 0;
    }
    if (nPicked < 0)
        nPicked = GetIndicatorAt(event->pos(), true);
    if (nPicked < 0) {
        QWidget::mousePressEvent(event);
        return;
    }

    const unsigned long long uPicked = static_cast<unsigned long long>(nPicked);
    if (uPicked != m_uSelectedIndex && m_kSelectionChangeCallback) {
        m_uSelectedIndex = uPicked;
        m_kSelectionChangeCallback(uPicked);
    }
    m_uSelectedIndex = uPicked;

    if (!m_kIndicators[uPicked].bFixed) {
        m_nDragIndex = static_cast<int>(nPicked);
        m_nDragOffset = m_nImageHalfWidth - event->pos().x() + GetIndicatorImagePosX(uPicked);
    }
    update();
    QWidget::mousePressEvent(event);
}

void QMultiLevelSlider::mouseMoveEvent(QMouseEvent *event)
{
    const int nCount = static_cast<int>(m_kIndicators.size());
    if (m_nDragIndex >= 0 && m_nDragIndex < nCount) {
        const int nHalf = m_nImageHalfWidth;
        const float fLength = SafeDivisor(GetTrackLength());
        const int nX = std::clamp(event->pos().x() + m_nDragOffset, nHalf,
                                  std::max(nHalf, width() - 1 - nHalf));
        // Measured from zero, not from the minimum: the track maps onto [0, range].
        int nValue = int(std::lround(float(nX - nHalf) / fLength * float(m_nRange)));
        int nGap = std::max(1, int(std::lround(float(nHalf + 1) / fLength * float(m_nRange))));

        if (!m_bFreeOrder) {
            if (m_bMiddleMode && nCount == 3) {
                nGap = m_nDragIndex == 1 ? 0 : 1;
                const int nFirst = m_kIndicators[0].nValue;
                const int nLast = m_kIndicators[2].nValue;
                if (m_nDragIndex == 0) {
                    nValue = std::min(nValue, nLast - nGap);
                    m_kIndicators[0].nValue = nValue;
                    const int nFollow = int(float(nLast - nValue) * m_fMiddleRatio + float(nValue));
                    m_kIndicators[1].nValue = std::max(nValue, std::min(nFollow, nLast));
                } else if (m_nDragIndex == 2) {
                    nValue = std::max(nValue, nFirst + nGap);
                    m_kIndicators[2].nValue = nValue;
                    const int nFollow =
                        int(float(nValue - nFirst) * m_fMiddleRatio + float(nFirst));
                    m_kIndicators[1].nValue = std::max(nFirst, std::min(nFollow, nValue));
                }
            }
            for (int i = m_nDragIndex - 1; i >= 0; --i) {
                const IndicatorDesc &kDesc = m_kIndicators[i];
                if (!kDesc.bUnconstrained && kDesc.nValue >= nValue)
                    nValue = std::max(nValue, kDesc.nValue + nGap);
            }
            for (int i = m_nDragIndex + 1; i < nCount; ++i) {
                const IndicatorDesc &kDesc = m_kIndicators[i];
                if (!kDesc.bUnconstrained && kDesc.nValue <= nValue)
                    nValue = std::min(nValue, kDesc.nValue - nGap);
            }
        }

        m_kIndicators[m_nDragIndex].nValue = nValue;
        if (m_bMiddleMode && nCount == 3 && m_nDragIndex == 1) {
            const int nFirst = m_kIndicators[0].nValue;
            const float fRatio =
                float(nValue - nFirst) / SafeDivisor(m_kIndicators[2].nValue - nFirst);
            m_fMiddleRatio = std::clamp(fRatio, 0.0f, 1.0f);
        }
        update();
        if (m_kMoveCallback)
            m_kMoveCallback(m_uSelectedIndex);
    }

    m_nHoverIndex = GetIndicatorAt(event->pos(), false);
    update();
    QWidget::mouseMoveEvent(event);
}

void QMultiLevelSlider::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_nDragIndex >= 0 && m_kMoveDoneCallback)
        m_kMoveDoneCallback(m_uSelectedIndex);
    m_nDragIndex = -1;
    QWidget::mouseReleaseEvent(event);
}

QRect QMultiLevelSlider::GetIndicatorHitRect(unsigned long long uIndex) const
{
    return QRect(GetIndicatorImagePosX(uIndex), GetIndicatorImagePosY(uIndex), m_nImageWidth,
                 m_nImageHeight);
}

long long QMultiLevelSlider::GetIndicatorAt(const QPoint &kPos, bool bSelectableOnly) const
{
    for (long long i = static_cast<long long>(m_kIndicators.size()) - 1; i >= 0; --i) {
        if (bSelectableOnly && !m_kIndicators[i].bSelectable)
            continue;
        if (GetIndicatorHitRect(i).contains(kPos))
            return i;
    }
    return -1;
}

int QMultiLevelSlider::ClampValue(int nValue) const
{
    return std::max(m_nMinimum, std::min(nValue, m_nMaximum));
}
