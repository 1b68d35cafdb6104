#ifndef COMBOEDITORTESTSUPPORT_H
#define COMBOEDITORTESTSUPPORT_H

// What the tests of the slider–spin-box editors share: dragging a slider's handle to an exact
// position as a user does, typing into a spin box, a window that logs what a host hears and the
// double-click reset.

#include "QSliderEx.h"
#include "VelaTest.h"

#include <QLineEdit>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

namespace ComboEditorTest {

inline QStyleOptionSlider sliderOption(const QSlider *slider)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = slider->orientation();
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.tickPosition = slider->tickPosition();
    option.upsideDown = slider->invertedAppearance();
    option.sliderPosition = slider->sliderPosition();
    option.sliderValue = slider->value();
    if (slider->orientation() == Qt::Horizontal)
        option.state |= QStyle::State_Horizontal;
    return option;
}

inline QRect handleRect(const QSlider *slider)
{
    const QStyleOptionSlider option = sliderOption(slider);
    return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle,
                                           slider);
}

// The horizontal distance by which the handle must be dragged to reach `target`, as the slider
// converts pixels to values; -1 when no pixel maps exactly to it.
inline int dragDistanceTo(const QSlider *slider, int target)
{
    const QStyleOptionSlider option = sliderOption(slider);
    const QRect groove = slider->style()->subControlRect(QStyle::CC_Slider, &option,
                                                         QStyle::SC_SliderGroove, slider);
    const QRect handle = handleRect(slider);
    const int span = groove.right() - handle.width() + 1 - groove.x();
    for (int x = 0; x <= span; ++x) {
        if (QStyle::sliderValueFromPosition(slider->minimum(), slider->maximum(), x, span,
                                            option.upsideDown)
            == target) {
            return x - (handle.x() - groove.x());
        }
    }
    return -1;
}

// Presses the left button on the handle, moves it in a few steps and releases it.
inline void dragHandle(QSlider *slider, int distance)
{
    const QPoint from = handleRect(slider).center();
    QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, from);
    const int steps = 4;
    QPoint to = from;
    for (int i = 1; i <= steps; ++i) {
        to = from + QPoint(distance * i / steps, 0);
        VelaTest::mouseMove(slider, to);
    }
    QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, to);
}

// Drags the handle so that the slider ends at `target`; fails the test when no pixel maps to it.
#define COMBO_DRAG_SLIDER_TO(slider, target)                                                       \
    do {                                                                                           \
        const int comboDistance = ComboEditorTest::dragDistanceTo((slider), (target));             \
        QVERIFY2(comboDistance != -1, "no pixel maps to the target");                              \
        ComboEditorTest::dragHandle((slider), comboDistance);                                      \
        QCOMPARE((slider)->value(), (target));                                                     \
    } while (false)

// Focuses the spin box, replaces its text as a user does and presses Enter.
#define COMBO_TYPE_INTO(spinBox, text)                                                             \
    do {                                                                                           \
        (spinBox)->setFocus();                                                                     \
        QTRY_VERIFY((spinBox)->hasFocus());                                                        \
        QTest::keyClick((spinBox), Qt::Key_A, Qt::ControlModifier);                                \
        QTest::keyClicks((spinBox), (text));                                                       \
        QTest::keyClick((spinBox), Qt::Key_Return);                                                \
    } while (false)

// A shown, active window holding a line edit that has the focus and, below it, one editor whose
// ValueChanged and EditFinished signals are logged in the order the host receives them.
template<class Editor, class Spin>
struct Harness
{
    QStringList log; // first: the window's teardown may still report an edit
    std::unique_ptr<QWidget> window { new QWidget };
    QLineEdit *other = new QLineEdit(window.get());
    Editor *editor = new Editor(window.get());
    QSliderEx *slider = editor->UI()->qtHorizontalSlider;
    Spin *spin = editor->template findChild<Spin *>();

    explicit Harness(int width)
    {
        auto *layout = new QVBoxLayout(window.get());
        layout->addWidget(other);
        layout->addWidget(editor);
        editor->setText(QStringLiteral("Strength"));
        editor->setMinimumWidth(width);
        QObject::connect(editor, &Editor::ValueChanged, editor, [this](auto value) {
            log << QStringLiteral("ValueChanged(%1)").arg(value);
        });
        QObject::connect(editor, &Editor::EditFinished, editor,
                         [this] { log << QStringLiteral("EditFinished"); });
    }
    // Shows the window and leaves the focus on the line edit; false when that failed.
    bool show()
    {
        window->show();
        if (!QTest::qWaitForWindowActive(window.get()))
            return false;
        other->setFocus();
        const bool focused = QTest::qWaitFor([this] { return other->hasFocus(); });
        log.clear();
        return focused;
    }
    // SetValue reports the new value once, and neither child reports a change of its own.
    template<class Value>
    void checkSetValueIsSilent(Value value, int position)
    {
        QSignalSpy spinSpy(spin, QOverload<Value>::of(&Spin::valueChanged));
        QSignalSpy sliderSpy(slider, &QSlider::valueChanged);
        editor->SetValue(value);
        QCOMPARE(log, QStringList { QStringLiteral("ValueChanged(%1)").arg(value) });
        QCOMPARE(spinSpy.count(), 0);
        QCOMPARE(sliderSpy.count(), 0);
        QCOMPARE(editor->Value(), value);
        QCOMPARE(slider->value(), position);
    }
    // Double-clicks the slider's handle, or the caption, on the editor holding `start` with the
    // default `reset`, which the slider shows at `resetPosition`; the value returns to the default
    // in one finished edit exactly when `resets`.
    template<class Value>
    void doubleClickReset(Value start, Value reset, int resetPosition, bool onLabel = false,
                          Qt::MouseButton button = Qt::LeftButton, bool enabled = true,
                          bool resetFlag = true, bool resets = true)
    {
        editor->SetDefaultValue(reset);
        editor->SetResetOnDoubleClick(resetFlag);
        editor->SetValue(start);
        editor->setEnabled(enabled);
        log.clear();

        QWidget *target = onLabel ? static_cast<QWidget *>(editor->UI()->qtLabel) : slider;
        QTest::mouseDClick(target, button, Qt::NoModifier,
                           onLabel ? QPoint() : handleRect(slider).center());
        QVERIFY(!slider->isSliderDown());
        if (!resets) {
            QVERIFY(log.filter(QStringLiteral("ValueChanged")).isEmpty());
            QVERIFY(!log.contains(QStringLiteral("EditFinished")));
            QCOMPARE(editor->Value(), start);
            return;
        }
        QCOMPARE(log,
                 (QStringList { QStringLiteral("ValueChanged(%1)").arg(reset),
                                QStringLiteral("EditFinished") }));
        QCOMPARE(editor->Value(), reset);
        QCOMPARE(slider->value(), resetPosition);
        QCOMPARE(slider->objectName(), QStringLiteral("UneditedWidget"));
    }
};

} // namespace ComboEditorTest

#endif // COMBOEDITORTESTSUPPORT_H
