// The rules that the edit-tracking controls share: the wheel and the focus policy for all five,
// the wider editing range and the settling of a typed number for both spin boxes.
#include "BasicTestSupport.h"
#include "QComboBoxEx.h"
#include "QDialEx.h"
#include "QDoubleSpinBoxEx.h"
#include "QSliderEx.h"
#include "QSpinBoxEx.h"
#include "VelaTest.h"

#include <QtTest>

#include <climits>
#include <functional>

using ControlFactory = std::function<QWidget *(QWidget *)>;
Q_DECLARE_METATYPE(ControlFactory)

class tst_EditTrackingRules : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void wheelAndFocusPolicyFollowFocus_data();
    void wheelAndFocusPolicyFollowFocus();
    void editingRangeWhileFocused_data();
    void editingRangeWhileFocused();
    void typedNumberSettles_data();
    void typedNumberSettles();
};

static int currentValue(QWidget *control)
{
    if (auto *combo = qobject_cast<QComboBox *>(control))
        return combo->currentIndex();
    if (auto *spin = qobject_cast<QDoubleSpinBox *>(control))
        return qRound(spin->value() * 100);
    return control->property("value").toInt();
}

static ControlFactory intSpin(int minimum, int maximum, bool wrapping = false)
{
    return [=](QWidget *p) {
        auto *spin = new QSpinBoxEx(p);
        spin->setRange(minimum, maximum);
        spin->setWrapping(wrapping);
        spin->setValue(5);
        return spin;
    };
}

static ControlFactory doubleSpin(double minimum, double maximum, int decimals = 2,
                                 bool wrapping = false)
{
    return [=](QWidget *p) {
        auto *spin = new QDoubleSpinBoxEx(p);
        spin->setDecimals(decimals);
        spin->setRange(minimum, maximum);
        spin->setWrapping(wrapping);
        spin->setValue(5);
        return spin;
    };
}

void tst_EditTrackingRules::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_EditTrackingRules::wheelAndFocusPolicyFollowFocus_data()
{
    QTest::addColumn<ControlFactory>("create");
    QTest::addColumn<bool>("takesWheel");
    QTest::newRow("QSpinBoxEx") << intSpin(0, 99) << true;
    QTest::newRow("QDoubleSpinBoxEx") << doubleSpin(0, 99) << true;
    QTest::newRow("QSliderEx") << ControlFactory([](QWidget *p) {
        auto *slider = new QSliderEx(Qt::Horizontal, p);
        slider->setFocusPolicy(Qt::StrongFocus);
        slider->SetValue(5);
        return slider;
    }) << true;
    QTest::newRow("QDialEx") << ControlFactory([](QWidget *p) {
        auto *dial = new QDialEx(p);
        dial->setValue(5);
        return dial;
    }) << true;
    const auto combo = [](bool ignoreWheel) {
        return ControlFactory([=](QWidget *p) {
            auto *combo = new QComboBoxEx(p);
            combo->addItems({ "a", "b", "c", "d", "e", "f", "g" });
            combo->setCurrentIndex(3);
            combo->setProperty("ignoreWheelEvent", ignoreWheel);
            return combo;
        });
    };
    QTest::newRow("QComboBoxEx") << combo(false) << true;
    QTest::newRow("QComboBoxEx ignoring the wheel") << combo(true) << false;
}

// Over an unfocused control the wheel belongs to the scroll area behind it; a focused control
// takes the wheel focus too and gives it back on leaving. A combo box told to ignore the wheel
// never changes on it.
void tst_EditTrackingRules::wheelAndFocusPolicyFollowFocus()
{
    QFETCH(ControlFactory, create);
    QFETCH(bool, takesWheel);
    BasicTest::FocusWindow window;
    QWidget *control = window.add(create(&window));
    QVERIFY(window.showWithFocusElsewhere());

    // Whether the wheel was accepted, where the control takes part in the rule.
    const auto wheel = [&](int notches) {
        return VelaTest::wheel(control, notches) || !takesWheel;
    };
    const int before = currentValue(control);
    QCOMPARE(wheel(1), !takesWheel);
    QCOMPARE(currentValue(control), before);

    QVERIFY(window.focus(control));
    QCOMPARE(control->focusPolicy(), Qt::WheelFocus);
    QVERIFY(wheel(-1));
    QCOMPARE(currentValue(control) != before, takesWheel);
    QVERIFY(window.focus(window.other));
    QCOMPARE(control->focusPolicy(), Qt::StrongFocus);
}

void tst_EditTrackingRules::editingRangeWhileFocused_data()
{
    QTest::addColumn<ControlFactory>("create");
    QTest::addColumn<double>("editingMaximum");
    QTest::newRow("0..150") << intSpin(0, 150) << 999.0;
    QTest::newRow("0..0") << intSpin(0, 0) << 9.0;
    QTest::newRow("-300..-50") << intSpin(-300, -50) << 999.0;
    QTest::newRow("int extremes") << intSpin(INT_MIN, INT_MAX) << double(INT_MAX);
    QTest::newRow("-20..0.5, 3 decimals") << doubleSpin(-20, 0.5, 3) << 99.999;
}

// While focused, any number of the range's digit count can be typed; focus-out restores the range
// and, nothing having changed, records nothing.
void tst_EditTrackingRules::editingRangeWhileFocused()
{
    QFETCH(ControlFactory, create);
    QFETCH(double, editingMaximum);
    BasicTest::FocusWindow window;
    QWidget *spin = window.add(create(&window));
    const double minimum = spin->property("minimum").toDouble();
    const double maximum = spin->property("maximum").toDouble();
    QSignalSpy records(spin, SIGNAL(RecordEditingValue()));
    QVERIFY(window.showWithFocusElsewhere());

    QVERIFY(window.focus(spin));
    QCOMPARE(spin->property("maximum").toDouble(), editingMaximum);
    QCOMPARE(spin->property("minimum").toDouble(), -editingMaximum);
    QVERIFY(window.focus(window.other));
    QCOMPARE(spin->property("minimum").toDouble(), minimum);
    QCOMPARE(spin->property("maximum").toDouble(), maximum);
    QCOMPARE(records.count(), 0);
}

void tst_EditTrackingRules::typedNumberSettles_data()
{
    QTest::addColumn<ControlFactory>("create");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("key"); // 0: the focus leaves instead
    QTest::addColumn<double>("expected");

    const int enter = Qt::Key_Enter;
    const int ret = Qt::Key_Return;
    QTest::newRow("int above range") << intSpin(0, 150) << "999" << enter << 150.0;
    QTest::newRow("int above range, focus out") << intSpin(0, 150) << "999" << 0 << 150.0;
    QTest::newRow("int below range") << intSpin(0, 150) << "-20" << ret << 0.0;
    QTest::newRow("int wraps above") << intSpin(0, 10, true) << "13" << ret << 2.0;
    QTest::newRow("int wraps below") << intSpin(0, 10, true) << "-3" << ret << 8.0;
    QTest::newRow("double inside") << doubleSpin(0, 10) << "7.25" << ret << 7.25;
    QTest::newRow("double above") << doubleSpin(0, 10) << "99.5" << ret << 10.0;
    QTest::newRow("double wraps above") << doubleSpin(0, 10, 2, true) << "13" << ret << 2.0;
}

// A number beyond the real range is clamped or wrapped when the edit ends, shown, and recorded
// once; the focus leaves.
void tst_EditTrackingRules::typedNumberSettles()
{
    QFETCH(ControlFactory, create);
    QFETCH(QString, typed);
    QFETCH(int, key);
    QFETCH(double, expected);
    BasicTest::FocusWindow window;
    auto *spin = qobject_cast<QAbstractSpinBox *>(window.add(create(&window)));
    QSignalSpy records(spin, SIGNAL(RecordEditingValue()));
    // Only the integer box announces the start of an edit.
    const bool announces = spin->metaObject()->indexOfSignal("EditingValueStarted()") >= 0;
    QSignalSpy starts(spin, announces ? SIGNAL(EditingValueStarted()) : SIGNAL(destroyed()));
    QVERIFY(window.showWithFocusElsewhere());

    QVERIFY(window.focus(spin));
    spin->selectAll();
    QTest::keyClicks(spin, typed);
    QCOMPARE(spin->text(), typed);
    if (key)
        QTest::keyClick(spin, Qt::Key(key));
    else
        QVERIFY(window.focus(window.other));
    QCOMPARE(spin->property("value").toDouble(), expected);
    QCOMPARE(spin->text().toDouble(), expected);
    QCOMPARE(records.count(), 1);
    QCOMPARE(starts.count(), announces ? 1 : 0);
    QVERIFY(!spin->hasFocus());
}

VELA_TEST_CLASS(tst_EditTrackingRules)
#include "tst_EditTrackingRules.moc"
