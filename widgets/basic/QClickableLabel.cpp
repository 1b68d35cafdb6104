#include "QClickableLabel.h"

QClickableLabel::QClickableLabel(QWidget *parent)
    : QLabel(parent)
{ }

void QClickableLabel::mousePressEvent(QMouseEvent *)
{
    emit clicked();
}

void QClickableLabel::mouseDoubleClickEvent(QMouseEvent *)
{
    emit doubleClicked();
}
