#include "QHoverToolBtn.h"

QHoverToolBtn::QHoverToolBtn(QWidget *parent)
    : QToolButton(parent)
{ }

void QHoverToolBtn::setHovered(bool on)
{
    emit hovered();
    setAttribute(Qt::WA_Hover, on);
}

void QHoverToolBtn::enterEvent(QEvent *event)
{
    emit hovered();
    QWidget::enterEvent(event);
}

void QHoverToolBtn::leaveEvent(QEvent *event)
{
    emit left();
    QWidget::leaveEvent(event);
}
