#include "QVelaPushbutton.h"

#include <QMouseEvent>

QVelaPushButton::QVelaPushButton(QWidget *parent)
    : QPushButton(parent)
{ }

void QVelaPushButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton)
        emit RightClicked();
    else if (event->button() == Qt::LeftButton)
        emit LeftClicked();
    QAbstractButton::mouseReleaseEvent(event);
}

void QVelaPushButton::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton)
        emit RightDoubleClicked();
    else if (event->button() == Qt::LeftButton)
        emit LeftDoubleClicked();
    QWidget::mouseDoubleClickEvent(event);
}
