#include "QDragDropTableWidget.h"

#include "VelaFileDropPrivate.h"

#include <QMouseEvent>

bool QDragDropTableWidgetInterface::CanDragEnter(QList<QString>)
{
    return false;
}

bool QDragDropTableWidgetInterface::CanDropFile(QString, QTableWidgetItem *)
{
    return false;
}

bool QDragDropTableWidgetInterface::CanDropFileList(QList<QString>)
{
    return false;
}

void QDragDropTableWidgetInterface::MouseRButtonRelease() { }

QDragDropTableWidget::QDragDropTableWidget(QWidget *parent)
    : QTableWidget(parent)
    , m_pkWindow(parent)
{ }

void QDragDropTableWidget::SetInterface(QDragDropTableWidgetInterface *pkInterface)
{
    m_pkInterface = pkInterface;
}

void QDragDropTableWidget::dragEnterEvent(QDragEnterEvent *event)
{
    VelaFileDrop::DragEnter(event, m_pkWindow, m_pkInterface);
}

void QDragDropTableWidget::dragMoveEvent(QDragMoveEvent *)
{
    // The decision taken on entering holds for the whole drag.
}

void QDragDropTableWidget::dropEvent(QDropEvent *event)
{
    VelaFileDrop::Drop(event, this, m_pkWindow, m_pkInterface);
}

void QDragDropTableWidget::mousePressEvent(QMouseEvent *event)
{
    // The right button belongs to the host's context menu: it never changes the selection.
    if (event->button() == Qt::RightButton)
        return;
    QAbstractItemView::mousePressEvent(event);
}

void QDragDropTableWidget::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton && m_pkInterface)
        m_pkInterface->MouseRButtonRelease();
    QAbstractItemView::mouseReleaseEvent(event);
}

void QDragDropTableWidget::mouseMoveEvent(QMouseEvent *event)
{
    QAbstractItemView::mouseMoveEvent(event);
}
