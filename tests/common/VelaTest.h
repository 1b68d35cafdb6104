#ifndef VELATEST_H
#define VELATEST_H

#include <QApplication>
#include <QObject>
#include <QPoint>
#include <QWheelEvent>
#include <QWidget>

// Test classes of one folder share one executable: each registers itself here and the shared main
// runs them in registration order (pass a class name as the first argument to run only that one).
namespace VelaTest {

using Factory = QObject *(*)();
int registerTestClass(const char *name, Factory factory);

// Sends one wheel notch (positive: away from the user) to the centre of widget and returns
// whether the widget accepted the event.
inline bool wheel(QWidget *widget, int notches = 1,
                  Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QPoint pos = widget->rect().center();
    QWheelEvent event(pos, widget->mapToGlobal(pos), QPoint(), QPoint(0, 120 * notches),
                      Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

} // namespace VelaTest

#define VELA_TEST_CLASS(Class)                                                                     \
    static const int vela_test_registered_##Class =                                                \
        VelaTest::registerTestClass(#Class, []() -> QObject * { return new Class; });

#endif // VELATEST_H
