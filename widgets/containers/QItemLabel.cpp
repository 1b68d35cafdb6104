#include "QItemLabel.h"

#include "VelaImageLoader.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPen>
#include <QUrl>

namespace {

// Shows the wait cursor while a picture is being made.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
};

QPixmap loadPixmap(const QString &strPath)
{
    QImage image;
    return Vela::LoadImageFile(strPath, image) ? QPixmap::fromImage(image) : QPixmap();
}

} // namespace

QItemLabel::QItemLabel(QWidget *parent)
    : QLabel(parent)
{ }

bool QItemLabel::GetSelected() const
{
    return m_bSelected;
}

void QItemLabel::SetSelected(bool bSelected)
{
    if (m_bSelected == bSelected)
        return;
    m_bSelected = bSelected;
    repaint();
    emit SelectedChanged();
}

double QItemLabel::GetLineWidth() const
{
    return m_fLineWidth;
}

void QItemLabel::SetLineWidth(double fWidth)
{
    m_fLineWidth = fWidth;
}

QColor QItemLabel::GetSelectOuterLineColor() const
{
    return m_kSelectOuterColor;
}

void QItemLabel::SetSelectOuterLineColor(const QColor &kColor)
{
    m_kSelectOuterColor = kColor;
}

QColor QItemLabel::GetSelectMiddleLineColor() const
{
    return m_kSelectMiddleColor;
}

void QItemLabel::SetSelectMiddleLineColor(const QColor &kColor)
{
    m_kSelectMiddleColor = kColor;
}

QColor QItemLabel::GetSelectInnerLineColor() const
{
    return m_kSelectInnerColor;
}

void QItemLabel::SetSelectInnerLineColor(const QColor &kColor)
{
    m_kSelectInnerColor = kColor;
}

QColor QItemLabel::GetHoverOuterLineColor() const
{
    return m_kHoverOuterColor;
}

void QItemLabel::SetHoverOuterLineColor(const QColor &kColor)
{
    m_kHoverOuterColor = kColor;
}

QColor QItemLabel::GetHoverMiddleLineColor() const
{
    return m_kHoverMiddleColor;
}

void QItemLabel::SetHoverMiddleLineColor(const QColor &kColor)
{
    m_kHoverMiddleColor = kColor;
}

QColor QItemLabel::GetHoverInnerLineColor() const
{
    return m_kHoverInnerColor;
}

void QItemLabel::SetHoverInnerLineColor(const QColor &kColor)
{
    m_kHoverInnerColor = kColor;
}

QString QItemLabel::GetFileFilter() const
{
    return m_strFileFilter;
}

void QItemLabel::SetFileFilter(const QString &strFilter)
{
    m_strFileFilter = strFilter;
}

void QItemLabel::SetGetOpenFileNameFunctor(const std::function<QString()> &kFunctor)
{
    m_kGetOpenFileNameFunctor = kFunctor;
}

void QItemLabel::SetSpecialThumbnailFunctor(const std::function<QPixmap(QString)> &kFunctor)
{
    m_kSpecialThumbnailFunctor = kFunctor;
}

void QItemLabel::OnMouseDoubleClicked()
{
    if (!m_kGetOpenFileNameFunctor)
        return;
    const QString strPath = m_kGetOpenFileNameFunctor();
    if (strPath.isEmpty())
        return;

    WaitCursor waitCursor;
    QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
    setPixmap(m_kSpecialThumbnailFunctor ? m_kSpecialThumbnailFunctor(strPath)
                                         : loadPixmap(strPath));
    emit PreImageLoaded(strPath);
}

bool QItemLabel::IsValidPath(QString strPath)
{
    // A plain substring test: the filter's format is the host's business.
    return m_strFileFilter.contains(QFileInfo(strPath).suffix(), Qt::CaseInsensitive);
}

void QItemLabel::DrawItemFrame(QColor kOuter, QColor kMiddle, QColor kInner)
{
    const int w = width();
    const int h = height();
    const double l = m_fLineWidth;
    const double m = l + 2.0;

    QPainter painter(this);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QBrush(kOuter), l, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawRect(0, 0, w - 1, h - 1);
    painter.setPen(kMiddle);
    painter.drawRect(int(l), int(l), int(w - 2 * l - 1), int(h - 2 * l - 1));
    painter.setPen(kInner);
    painter.drawRect(int(m), int(m), int(w - 2 * m - 1), int(h - 2 * m - 1));
}

void QItemLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (!isEnabled() || pixmap(Qt::ReturnByValue).isNull())
        return;
    if (m_bSelected)
        DrawItemFrame(m_kSelectOuterColor, m_kSelectMiddleColor, m_kSelectInnerColor);
    else if (m_bHovered)
        DrawItemFrame(m_kHoverOuterColor, m_kHoverMiddleColor, m_kHoverInnerColor);
}

void QItemLabel::mousePressEvent(QMouseEvent *event)
{
    QLabel::mousePressEvent(event);
    if (!m_bSelected)
        SetSelected(true);
    emit clicked();
}

void QItemLabel::mouseDoubleClickEvent(QMouseEvent *event)
{
    QLabel::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton)
        OnMouseDoubleClicked();
    else if (event->button() == Qt::RightButton)
        emit RightDoubleClicked(event);
}

void QItemLabel::enterEvent(QEvent *event)
{
    QLabel::enterEvent(event);
    m_bHovered = true;
    repaint();
}

void QItemLabel::leaveEvent(QEvent *event)
{
    QLabel::leaveEvent(event);
    m_bHovered = false;
    repaint();
}

void QItemLabel::dragEnterEvent(QDragEnterEvent *event)
{
    QLabel::dragEnterEvent(event);
    const QMimeData *mimeData = event->mimeData();
    if (!mimeData || !mimeData->hasUrls())
        return;
    const QList<QUrl> urls = mimeData->urls();
    if (urls.size() != 1)
        return;
    if (m_strFileFilter.isEmpty() || IsValidPath(urls.first().toLocalFile()))
        event->acceptProposedAction();
}

void QItemLabel::dropEvent(QDropEvent *event)
{
    QLabel::dropEvent(event);
    const QMimeData *mimeData = event->mimeData();
    if (!mimeData || !mimeData->hasUrls())
        return;
    const QList<QUrl> urls = mimeData->urls();
    if (urls.isEmpty())
        return;
    const QString strFile = urls.first().toLocalFile();

    WaitCursor waitCursor;
    const QPixmap kPixmap = loadPixmap(strFile);
    if (!kPixmap.isNull())
        setPixmap(kPixmap);
    emit PreImageLoaded(strFile);
    event->acceptProposedAction();
}
