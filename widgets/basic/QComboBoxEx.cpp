#include "QComboBoxEx.h"

#include "VelaEditRulesPrivate.h"

using namespace Vela;

QComboBoxEx::QComboBoxEx(QWidget *parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

QComboBoxEx::~QComboBoxEx() = default;

bool QComboBoxEx::IgnoreWheelEvent() const
{
    return m_bIgnoreWheelEvent;
}

void QComboBoxEx::SetIgnoreWheelEvent(bool bIgnore)
{
    m_bIgnoreWheelEvent = bIgnore;
}

void QComboBoxEx::wheelEvent(QWheelEvent *event)
{
    // With the switch on, the event is left exactly as it came.
    if (m_bIgnoreWheelEvent)
        return;
    if (EditRules::AcceptsWheel(this, event))
        QComboBox::wheelEvent(event);
}

void QComboBoxEx::focusInEvent(QFocusEvent *event)
{
    EditRules::FocusGained(this);
    QComboBox::focusInEvent(event);
}

void QComboBoxEx::focusOutEvent(QFocusEvent *event)
{
    EditRules::FocusLost(this);
    QComboBox::focusOutEvent(event);
}
