#include "NumericalTestSupport.h"
#include "QNumericalWidgetToggleButton.h"
#include "VelaTest.h"

#include <QCheckBox>
#include <QStyle>
#include <QStyleOptionButton>

#include <limits>

using NumericalTest::EditLog;

namespace {

// Where a user clicks a check box: on its indicator.
QPoint indicatorCenter(QCheckBox *box)
{
    QStyleOptionButton option;
    option.initFrom(box);
    return box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box).center();
}

} // namespace

class tst_QNumericalWidgetToggleButton : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void construction();
    void click();
    void pushValue_data();
    void pushValue();
    void reportedValue_data();
    void reportedValue();
    void setCheckedValueChangesNothingOnScreen();

private:
    std::unique_ptr<NumericalTest::Panel> m_panel;
    QNumericalWidgetToggleButton *m_widget = nullptr;
    QCheckBox *m_box = nullptr;
};

void tst_QNumericalWidgetToggleButton::init()
{
    m_widget = new QNumericalWidgetToggleButton;
    m_panel.reset(new NumericalTest::Panel(m_widget));
    EditLog log(m_widget);
    Lu::CDynamicWidgetVariableBase var;
    var.eType = Vela::DynamicVariable_Boolean;
    // The current value is not read when building: the box starts unchecked.
    var.vValue = Vela::CVector4f(1, 0, 0, 0);
    Lu::CDynamicWidgetDescBase desc;
    desc.strName = L"Invert Normal";
    desc.eBehaviorType = Vela::DynamicBehavior_ToggleButton;
    QCOMPARE(m_widget->Initialize(var, desc).code(), 0u);
    QVERIFY(log.names.isEmpty());
    m_box = m_widget->findChild<QCheckBox *>();
    QVERIFY(m_box);
    QVERIFY(m_panel->show());
}

void tst_QNumericalWidgetToggleButton::cleanup()
{
    m_panel.reset();
}

void tst_QNumericalWidgetToggleButton::construction()
{
    // Without a check box there is nothing to show a value in.
    QNumericalWidgetToggleButton widget;
    Lu::CDynamicWidgetVariableBase var;
    var.vValue = Vela::CVector4f(1, 0, 0, 0);
    widget.SetDesc(var, Lu::CDynamicWidgetDescBase());
    widget.SetValue(var.vValue);
    QVERIFY(!widget.IsChecked());
    QVERIFY(widget.children().isEmpty());
}

void tst_QNumericalWidgetToggleButton::click()
{
    EditLog log(m_widget);
    QTest::mouseClick(m_box, Qt::LeftButton, Qt::NoModifier, indicatorCenter(m_box));
    QVERIFY(m_widget->IsChecked());
    QCOMPARE(log.entries, NumericalTest::oneEdit(1));
    log.clear();
    QTest::mouseClick(m_box, Qt::LeftButton, Qt::NoModifier, indicatorCenter(m_box));
    QVERIFY(!m_widget->IsChecked());
    QCOMPARE(log.entries, NumericalTest::oneEdit(0));

    // The space key toggles as well.
    m_widget->SetCheckedValue(5.0f, 2.0f);
    log.clear();
    m_box->setFocus();
    QTRY_VERIFY(m_box->hasFocus());
    QTest::keyClick(m_box, Qt::Key_Space);
    QCOMPARE(log.entries, NumericalTest::oneEdit(5));
}

void tst_QNumericalWidgetToggleButton::pushValue_data()
{
    QTest::addColumn<float>("onValue");
    QTest::addColumn<float>("offValue");
    QTest::addColumn<float>("x");
    QTest::addColumn<bool>("checked");
    QTest::newRow("on") << 1.0f << 0.0f << 1.0f << true;
    QTest::newRow("within tolerance") << 1.0f << 0.0f << 0.999995f << true;
    QTest::newRow("just outside") << 1.0f << 0.0f << 0.9999f << false;
    QTest::newRow("fractional on-value") << 0.7f << 0.0f << 0.7f << true;
    QTest::newRow("nan") << 1.0f << 0.0f << std::numeric_limits<float>::quiet_NaN() << false;
}

void tst_QNumericalWidgetToggleButton::pushValue()
{
    QFETCH(float, onValue);
    QFETCH(float, offValue);
    QFETCH(float, x);
    QFETCH(bool, checked);
    m_widget->SetCheckedValue(onValue, offValue);
    // Start from the opposite state so that every row really moves the box.
    m_box->setChecked(!checked);
    EditLog log(m_widget);
    m_widget->SetValue(Vela::CVector4f(x, 1, 1, 1));
    QCOMPARE(m_box->isChecked(), checked);
    QVERIFY(log.names.isEmpty());
    QVERIFY(!m_box->signalsBlocked());
}

void tst_QNumericalWidgetToggleButton::reportedValue_data()
{
    QTest::addColumn<float>("onValue");
    QTest::addColumn<float>("offValue");
    QTest::addColumn<float>("checkedReport");
    QTest::addColumn<float>("uncheckedReport");
    QTest::newRow("on-value 1.9") << 1.9f << 0.0f << 1.0f << 0.0f;
    QTest::newRow("on-value 0.7") << 0.7f << 0.0f << 0.0f << 0.0f;
    QTest::newRow("negative off-value") << 4.0f << -2.5f << 4.0f << -2.0f;
    QTest::newRow("huge") << 1e30f << -1e30f << float(INT_MAX) << float(INT_MIN);
}

void tst_QNumericalWidgetToggleButton::reportedValue()
{
    QFETCH(float, onValue);
    QFETCH(float, offValue);
    QFETCH(float, checkedReport);
    QFETCH(float, uncheckedReport);
    m_widget->SetCheckedValue(onValue, offValue);
    m_widget->UpdateInputValue(Vela::CVector4f(onValue, 0, 0, 0));
    QVERIFY(m_widget->IsChecked());
    NUMERICAL_COMPARE_VECTOR(m_widget->GetValue(), Vela::CVector4f(checkedReport, 0, 0, 0));

    EditLog log(m_widget);
    QTest::mouseClick(m_box, Qt::LeftButton, Qt::NoModifier, indicatorCenter(m_box));
    QCOMPARE(log.entries, NumericalTest::oneEdit(uncheckedReport));
}

void tst_QNumericalWidgetToggleButton::setCheckedValueChangesNothingOnScreen()
{
    m_widget->UpdateInputValue(Vela::CVector4f(1, 0, 0, 0));
    QVERIFY(m_widget->IsChecked());
    EditLog log(m_widget);
    m_widget->SetCheckedValue(3.0f, 1.0f);
    // Still checked, now reporting the new on-value.
    QVERIFY(m_widget->IsChecked());
    NUMERICAL_COMPARE_VECTOR(m_widget->GetValue(), Vela::CVector4f(3, 0, 0, 0));
    QVERIFY(log.names.isEmpty());

    // Re-describing applies the record's value, silently.
    Lu::CDynamicWidgetVariableBase var;
    var.vValue = Vela::CVector4f(2.999995f, 0, 0, 0);
    Lu::CDynamicWidgetDescBase desc;
    desc.strName = L"Flip Green";
    m_widget->SetDesc(var, desc);
    QCOMPARE(m_box->text(), QStringLiteral("Flip Green"));
    QVERIFY(m_widget->IsChecked());

    var.vValue = Vela::CVector4f(0.5f, 0, 0, 0);
    m_widget->SetDesc(var, desc);
    QVERIFY(!m_widget->IsChecked());
    QVERIFY(log.names.isEmpty());
}

VELA_TEST_CLASS(tst_QNumericalWidgetToggleButton)
#include "tst_QNumericalWidgetToggleButton.moc"
