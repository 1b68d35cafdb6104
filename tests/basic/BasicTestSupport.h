#ifndef BASICTESTSUPPORT_H
#define BASICTESTSUPPORT_H

// What the tests of the basic controls share: a window in which the focus can be taken away from
// a control, and a mouse drag as a user makes it.

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <QWidget>
#include <QtTest>

#include "VelaTest.h"

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

// Press at `from`, one move with the left button held, release at `to`.
inline void drag(QWidget *widget, const QPoint &from, const QPoint &to)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, from);
    VelaTest::mouseMove(widget, to);
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, to);
}

} // namespace BasicTest

#endif // BASICTESTSUPPORT_H
