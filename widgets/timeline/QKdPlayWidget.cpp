#include "QKdPlayWidget.h"

#include <QCloseEvent>
#include <QResizeEvent>

QKdPlayWidget::QKdPlayWidget(QWidget *parent)
    : QWidget(parent)
{
    setCursor(Qt::ArrowCursor);
    setAttribute(Qt::WA_SetCursor);
}

void QKdPlayWidget::UpdateKdCoreWndSize()
{
    QWidget *view = findChild<QWidget *>(QString(), Qt::FindChildrenRecursively);
    if (!view)
        return;

    const int w = width();
    const int h = height();
    if (m_bFill || !m_bLockRatio || w <= 0 || h <= 0) {
        view->setGeometry(0, 0, w, h);
        return;
    }

    const float aspect = float(m_nExportHeight) / float(m_nExportWidth);
    if (aspect > float(h) / float(w)) {
        // The export is taller than the widget: full height, bars left and right.
        const int viewWidth = int(float(h) / aspect);
        view->setGeometry((w - viewWidth) / 2, 0, viewWidth, h);
    } else {
        const int viewHeight = int(float(w) * aspect);
        view->setGeometry(0, (h - viewHeight) / 2, w, viewHeight);
    }
}

Vela::Result QKdPlayWidget::SetExportSize(int width, int height)
{
    if (width < 1 || height < 1)
        return Vela::Result::InvalidArgument;
    if (width == m_nExportWidth && height == m_nExportHeight)
        return Vela::Result::NothingChanged;
    m_nExportWidth = width;
    m_nExportHeight = height;
    UpdateKdCoreWndSize();
    return Vela::Result::Success;
}

Vela::Result QKdPlayWidget::GetExportSize(int &width, int &height)
{
    width = m_nExportWidth;
    height = m_nExportHeight;
    return Vela::Result::Success;
}

Vela::Result QKdPlayWidget::UpdateExportSize()
{
    if (m_nExportWidth < 1 || m_nExportHeight < 1)
        return Vela::Result::InvalidArgument;
    UpdateKdCoreWndSize();
    return Vela::Result::Success;
}

void QKdPlayWidget::SetLockRatio(bool bLock)
{
    m_bLockRatio = bLock;
    UpdateKdCoreWndSize();
}

bool QKdPlayWidget::IsLockRatio()
{
    return m_bLockRatio;
}

void QKdPlayWidget::resizeEvent(QResizeEvent *event)
{
    UpdateKdCoreWndSize();
    QWidget::resizeEvent(event);
}

void QKdPlayWidget::closeEvent(QCloseEvent *event)
{
    event->ignore();
}
