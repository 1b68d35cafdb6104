#include "QVisemeButton.h"

#include "VisemeDragPrivate.h"

QVisemeButton::QVisemeButton(QWidget *parent)
    : QToolButton(parent)
{ }

QVisemeButton::~QVisemeButton() = default;

void QVisemeButton::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_kDragStartPos = event->pos();
    QToolButton::mousePressEvent(event);
}

void QVisemeButton::mouseMoveEvent(QMouseEvent *event)
{
    if (VisemeDrag::ShouldStart(event, m_kDragStartPos))
        StartDragButton();
    QAbstractButton::mouseMoveEvent(event);
}

void QVisemeButton::StartDragButton()
{
    VisemeDrag::Run(this, VisemeDrag::kButtonFormat);
}
