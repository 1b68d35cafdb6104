#ifndef BASICTESTSUPPORT_H
#define BASICTESTSUPPORT_H

// What the tests of the basic controls share: a window in which the focus can be taken away from
// a control, and mouse drags as a user makes them.

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <QWidget>
#include <QtTest>

namespace BasicTest {

// A window with a line edit above the controls added to it, so that focus can leave them.
class FocusWindow : public QWidget
{
public:
    QLineEdit *other = new QLineEdit(this);

    FocusWindow() { (new QVBoxLayout(this))->addWidget(other); }
    template<class Control>
    Control *add(Control *control)
    {
        layout()->addWidget(control);
        return control;
    }
    // Shows the window, makes it active and gives the line edit the focus.
    bool showWithFocusElsewhere()
    {
        show();
        return QTest::qWaitForWindowActive(this) && focus(other);
    }
    static bool focus(QWidget *widget)
    {
        widget->setFocus();
        return QTest::qWaitFor([widget] { return widget->hasFocus(); });
    }
};

// A mouse move with `buttons` held, delivered straight to the widget.
inline void moveHeld(QWidget *widget, const QPoint &pos, Qt::MouseButtons buttons = Qt::LeftButton)
{
    QMouseEvent event(QEvent::MouseMove, pos, widget->mapToGlobal(pos), Qt::NoButton, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

// Press at `from`, one move with the left button held, release at `to`.
inline void drag(QWidget *widget, const QPoint &from, const QPoint &to)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, from);
    moveHeld(widget, to);
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, to);
}

} // namespace BasicTest

#endif // BASICTESTSUPPORT_H
