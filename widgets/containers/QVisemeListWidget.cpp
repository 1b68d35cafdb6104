#include "QVisemeListWidget.h"

#include "VisemeDragPrivate.h"

QVisemeListWidget::QVisemeListWidget(QWidget *parent)
    : QListWidget(parent)
{ }

QVisemeListWidget::~QVisemeListWidget() = default;

void QVisemeListWidget::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_kDragStartPos = event->pos();
    QAbstractItemView::mousePressEvent(event);
}

void QVisemeListWidget::mouseMoveEvent(QMouseEvent *event)
{
    if (VisemeDrag::ShouldStart(event, m_kDragStartPos))
        StartDragItem();
    QListView::mouseMoveEvent(event);
}

void QVisemeListWidget::StartDragItem()
{
    const QListWidgetItem *pkItem = currentItem();
    if (!pkItem)
        return;
    const QString strName = pkItem->text();
    VisemeDrag::Run(this, VisemeDrag::kListItemFormat, &strName);
}
