#include "QMouseSpinBox.h"

#include <QMouseEvent>

QMouseSpinBox::QMouseSpinBox(QWidget *parent)
    : QDoubleSpinBox(parent)
{ }

void QMouseSpinBox::SetDecNum(int n)
{
    m_nDecNum = n;
    // Re-set the current value so that the text is rebuilt with the new precision; the value
    // itself does not change, so no signal is emitted.
    setValue(value());
}

QString QMouseSpinBox::textFromValue(double v) const
{
    return QStringLiteral("%1").arg(v, 0, 'f', m_nDecNum, QLatin1Char(' '));
}

void QMouseSpinBox::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        m_kLastMousePos = event->pos();
        m_bDragging = true;
    }
    QAbstractSpinBox::mousePressEvent(event);
}

void QMouseSpinBox::mouseMoveEvent(QMouseEvent *event)
{
    if ((event->buttons() & Qt::LeftButton) && m_bDragging) {
        // One step per move event, whatever the distance; a sideways move counts as up.
        if (event->pos().y() - m_kLastMousePos.y() < 1)
            stepUp();
        else
            stepDown();
        m_kLastMousePos = event->pos();
    }
    QAbstractSpinBox::mouseMoveEvent(event);
}

void QMouseSpinBox::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_bDragging = false;
    QAbstractSpinBox::mouseReleaseEvent(event);
}
