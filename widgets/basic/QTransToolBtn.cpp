#include "QTransToolBtn.h"

#include <QBitmap>
#include <QCursor>
#include <QMouseEvent>
#include <QPainter>

namespace {
// Indices into one state's pixmap set.
enum StatusPixmap {
    Unchecked = 0,
    UncheckedHovered = 1,
    UncheckedPressed = 2,
    Checked = 3,
    CheckedHovered = 4,
    CheckedPressed = 5,
};
} // namespace

QTransToolBtn::QTransToolBtn(QWidget *parent)
    : QToolButton(parent)
{ }

void QTransToolBtn::SetMultiStates(bool bMultiStates)
{
    m_bMultiStates = bMultiStates;
}

void QTransToolBtn::AddStatusPixmap(const QVector<QPixmap *> &kPixmaps)
{
    QVector<std::shared_ptr<QPixmap>> kState;
    kState.reserve(kPixmaps.size());
    for (QPixmap *pkPixmap : kPixmaps)
        kState.append(std::shared_ptr<QPixmap>(pkPixmap));
    AddStatusPixmap(kState);
}

void QTransToolBtn::AddStatusPixmap(const QVector<std::shared_ptr<QPixmap>> &kPixmaps)
{
    m_kStatusPixmaps.append(kPixmaps);
    m_bMultiStates = true;
}

bool QTransToolBtn::SetCurrState(int nState)
{
    if (nState >= m_kStatusPixmaps.size())
        return false;
    m_nCurrState = nState;
    update();
    return true;
}

int QTransToolBtn::GetCurrState() const
{
    return m_nCurrState;
}

bool QTransToolBtn::IsMouseClickAction(QPoint kPos) const
{
    return QToolButton::hitButton(kPos) && !IsInTransArea(kPos) && isVisible() && isEnabled();
}

QString QTransToolBtn::DoMouseClickAction(const QPoint &kGlobalPos)
{
    if (!IsMouseClickAction(mapFromGlobal(kGlobalPos)))
        return QString();
    toggle();
    update();
    repaint();
    return objectName();
}

QString QTransToolBtn::DoMouseRightClickAction(const QPoint &kGlobalPos)
{
    if (!IsMouseClickAction(mapFromGlobal(kGlobalPos)))
        return QString();
    update();
    repaint();
    return objectName();
}

void QTransToolBtn::DoMouseMoveAction(const QPoint &)
{
    update();
    repaint();
}

void QTransToolBtn::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        emit doubleClicked();
    else if (event->button() == Qt::RightButton)
        emit doubleRightClicked();
    QWidget::mouseDoubleClickEvent(event);
}

bool QTransToolBtn::event(QEvent *event)
{
    if (isEnabled()) {
        // Mouse events travel on to the parent, which decides which button a click belongs to.
        switch (event->type()) {
        case QEvent::MouseButtonPress:
            m_bPressed = true;
            repaint();
            return false;
        case QEvent::MouseButtonRelease:
            m_bPressed = false;
            repaint();
            return false;
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
            return false;
        default:
            break;
        }
    }
    return QToolButton::event(event);
}

bool QTransToolBtn::hitButton(const QPoint &kPos) const
{
    return !IsInTransArea(kPos);
}

bool QTransToolBtn::IsInTransArea(const QPoint &kPos) const
{
    if (!QToolButton::hitButton(kPos))
        return true;

    QBitmap kMask;
    if (m_bMultiStates) {
        if (const QPixmap *pkPixmap = GetStatusPixmap(Unchecked))
            kMask = pkPixmap->mask();
    } else {
        kMask = icon().pixmap(iconSize(), QIcon::Normal, QIcon::Off).mask();
    }
    const QImage kMaskImage = kMask.toImage();

    // The mask reads white where the image is transparent. A point beyond the image (or an
    // image without a mask) leaves the colour invalid, whose red is 0: that counts as opaque.
    QColor kColor;
    if (kMaskImage.rect().contains(kPos))
        kColor = kMaskImage.pixelColor(kPos);
    return kColor.red() != 0;
}

void QTransToolBtn::paintEvent(QPaintEvent *)
{
    const bool bEnabled = isEnabled();
    const bool bHovered = bEnabled && !IsInTransArea(mapFromGlobal(QCursor::pos()));
    QPainter kPainter(this);

    if (m_bMultiStates) {
        int nIndex = isChecked() ? Checked : Unchecked;
        if (m_bPressed && bEnabled)
            nIndex += UncheckedPressed;
        else if (bHovered)
            nIndex += UncheckedHovered;
        if (const QPixmap *pkPixmap = GetStatusPixmap(nIndex))
            kPainter.drawPixmap(0, 0, *pkPixmap);
        return;
    }

    const QIcon::Mode eMode =
        !bEnabled ? QIcon::Disabled : (bHovered ? QIcon::Selected : QIcon::Normal);
    const QIcon::State eState = isChecked() ? QIcon::On : QIcon::Off;
    kPainter.drawPixmap(0, 0, icon().pixmap(iconSize(), eMode, eState));
}

// The pixmap nIndex of the current state, or null when the state or the pixmap is missing.
const QPixmap *QTransToolBtn::GetStatusPixmap(int nIndex) const
{
    if (m_nCurrState < 0 || m_nCurrState >= m_kStatusPixmaps.size())
        return nullptr;
    const QVector<std::shared_ptr<QPixmap>> &kState = m_kStatusPixmaps.at(m_nCurrState);
    if (nIndex < 0 || nIndex >= kState.size())
        return nullptr;
    return kState.at(nIndex).get();
}
