// The wheel and focus rules that all five edit-tracking controls share.
#include "BasicTestSupport.h"
#include "QComboBoxEx.h"
#include "QDialEx.h"
#include "QDoubleSpinBoxEx.h"
#include "QSliderEx.h"
#include "QSpinBoxEx.h"
#include "VelaTest.h"

#include <QtTest>

#include <functional>

using ControlFactory = std::function<QWidget *(QWidget *)>;
Q_DECLARE_METATYPE(ControlFactory)

class tst_EditTrackingRules : public QObject
{
    Q_OBJECT

private slots:
    void wheelAndFocusPolicyFollowFocus_data();
    void wheelAndFocusPolicyFollowFocus();
};

static int currentValue(QWidget *control)
{
    if (auto *combo = qobject_cast<QComboBox *>(control))
        return combo->currentIndex();
    if (auto *spin = qobject_cast<QDoubleSpinBox *>(control))
        return qRound(spin->value() * 100);
    return control->property("value").toInt();
}

static void addControls()
{
    QTest::addColumn<ControlFactory>("create");
    QTest::newRow("QSpinBoxEx") << ControlFactory([](QWidget *p) {
        auto *spin = new QSpinBoxEx(p);
        spin->setValue(5);
        return spin;
    });
    QTest::newRow("QDoubleSpinBoxEx") << ControlFactory([](QWidget *p) {
        auto *spin = new QDoubleSpinBoxEx(p);
        spin->setValue(5);
        return spin;
    });
    QTest::newRow("QSliderEx") << ControlFactory([](QWidget *p) {
        auto *slider = new QSliderEx(Qt::Horizontal, p);
        slider->setFocusPolicy(Qt::StrongFocus);
        slider->SetValue(5);
        return slider;
    });
    QTest::newRow("QDialEx") << ControlFactory([](QWidget *p) {
        auto *dial = new QDialEx(p);
        dial->setValue(5);
        return dial;
    });
    QTest::newRow("QComboBoxEx") << ControlFactory([](QWidget *p) {
        auto *combo = new QComboBoxEx(p);
        combo->addItems({ "a", "b", "c", "d", "e", "f", "g" });
        combo->setCurrentIndex(3);
        return combo;
    });
}

void tst_EditTrackingRules::wheelAndFocusPolicyFollowFocus_data()
{
    addControls();
}

// Over an unfocused control the wheel belongs to the scroll area behind it; a focused control
// takes the wheel focus too and gives it back on leaving.
void tst_EditTrackingRules::wheelAndFocusPolicyFollowFocus()
{
    QFETCH(ControlFactory, create);
    BasicTest::FocusWindow window;
    QWidget *control = window.add(create(&window));
    QCOMPARE(control->focusPolicy(), Qt::StrongFocus);
    QVERIFY(window.showWithFocusElsewhere());

    const int before = currentValue(control);
    QVERIFY(!VelaTest::wheel(control, 1));
    QCOMPARE(currentValue(control), before);

    QVERIFY(window.focus(control));
    QCOMPARE(control->focusPolicy(), Qt::WheelFocus);
    QVERIFY(VelaTest::wheel(control, -1));
    QVERIFY(currentValue(control) != before);
    QVERIFY(window.focus(window.other));
    QCOMPARE(control->focusPolicy(), Qt::StrongFocus);
}

VELA_TEST_CLASS(tst_EditTrackingRules)
#include "tst_EditTrackingRules.moc"
