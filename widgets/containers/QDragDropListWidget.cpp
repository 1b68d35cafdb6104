#include "QDragDropListWidget.h"

#include "VelaFileDropPrivate.h"

#include <QMouseEvent>

namespace {
// Set on the item under a drag; cleared on every item at the next drag move.
constexpr int kDropTargetRole = Qt::UserRole + 10;
} // namespace

bool QDragDropListWidgetInterface::CanDragEnter(QList<QString>)
{
    return false;
}

bool QDragDropListWidgetInterface::CanDropFile(QString, QListWidgetItem *)
{
    return false;
}

bool QDragDropListWidgetInterface::CanDropFileList(QList<QString>)
{
    return false;
}

void QDragDropListWidgetInterface::MouseRButtonRelease() { }

QDragDropListWidget::QDragDropListWidget(QWidget *parent)
    : QListWidget(parent)
    , m_pkWindow(parent)
{ }

void QDragDropListWidget::SetInterface(QDragDropListWidgetInterface *pkInterface)
{
    m_pkInterface = pkInterface;
}

void QDragDropListWidget::dragEnterEvent(QDragEnterEvent *event)
{
    VelaFileDrop::DragEnter(event, m_pkWindow, m_pkInterface);
}

void QDragDropListWidget::dragMoveEvent(QDragMoveEvent *event)
{
    if (event->source() == this) {
        event->ignore();
        return;
    }

    for (int i = 0; i < count(); ++i)
        item(i)->setData(kDropTargetRole, false);

    QListWidgetItem *target = itemAt(event->pos());
    if (!target) {
        event->acceptProposedAction();
        return;
    }
    // Items whose user value is negative (for example -1) take no files.
    if (qint32(target->data(Qt::UserRole).toUInt()) < 0) {
        event->ignore();
        return;
    }
    target->setData(kDropTargetRole, true);
    event->acceptProposedAction();
}

void QDragDropListWidget::dropEvent(QDropEvent *event)
{
    VelaFileDrop::Drop(event, this, m_pkWindow, m_pkInterface);
}

void QDragDropListWidget::mousePressEvent(QMouseEvent *event)
{
    // The right button belongs to the host's context menu: it never changes the selection.
    if (event->button() == Qt::RightButton)
        return;
    QAbstractItemView::mousePressEvent(event);
}

void QDragDropListWidget::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton && m_pkInterface)
        m_pkInterface->MouseRButtonRelease();
    QListView::mouseReleaseEvent(event);
}

void QDragDropListWidget::mouseMoveEvent(QMouseEvent *event)
{
    QListView::mouseMoveEvent(event);
}
