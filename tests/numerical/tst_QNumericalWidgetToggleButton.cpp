#include "NumericalTestSupport.h"
#include "QNumericalWidgetToggleButton.h"

#include <QCheckBox>
#include <QStyle>
#include <QStyleOptionButton>

#include <limits>

using namespace NumericalTest;

class tst_QNumericalWidgetToggleButton : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void values_data();
    void values();
    void keyboardAndRedescribe();

private:
    // Clicks the check box where a user does: on its indicator.
    void click()
    {
        QStyleOptionButton option;
        option.initFrom(m_box);
        const QRect indicator =
            m_box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, m_box);
        QTest::mouseClick(m_box, Qt::LeftButton, Qt::NoModifier, indicator.center());
    }

    std::unique_ptr<Panel> m_panel;
    QNumericalWidgetToggleButton *m_widget = nullptr;
    QCheckBox *m_box = nullptr;
};

void tst_QNumericalWidgetToggleButton::init()
{
    m_panel.reset(new Panel(m_widget = new QNumericalWidgetToggleButton));
    EditLog log(m_widget);
    // The current value is not read when building: the box starts unchecked.
    QVERIFY(m_panel->build(m_widget, variable(Vela::DynamicVariable_Boolean, { 1, 0, 0, 0 }),
                           description(L"Invert Normal")));
    QVERIFY(log.entries.isEmpty());
    m_box = m_widget->findChild<QCheckBox *>();
    QVERIFY(!m_box->isChecked());
}

void tst_QNumericalWidgetToggleButton::values_data()
{
    QTest::addColumn<float>("onValue");
    QTest::addColumn<float>("offValue");
    QTest::addColumn<float>("pushed");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<float>("report");
    QTest::addColumn<float>("clickReport");
    const float nan = std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("within tolerance") << 1.0f << 0.0f << 0.999995f << true << 1.0f << 0.0f;
    QTest::newRow("just outside") << 1.0f << 0.0f << 0.9999f << false << 0.0f << 1.0f;
    QTest::newRow("nan") << 1.0f << 0.0f << nan << false << 0.0f << 1.0f;
    // Reports are whole numbers.
    QTest::newRow("on-value 1.9") << 1.9f << 0.0f << 1.9f << true << 1.0f << 0.0f;
    QTest::newRow("negative off-value") << 4.0f << -2.5f << 4.0f << true << 4.0f << -2.0f;
    QTest::newRow("huge") << 1e30f << -1e30f << 1e30f << true << float(INT_MAX) << float(INT_MIN);
}

void tst_QNumericalWidgetToggleButton::values()
{
    QFETCH(float, onValue);
    QFETCH(float, offValue);
    QFETCH(float, pushed);
    QFETCH(bool, checked);
    QFETCH(float, report);
    QFETCH(float, clickReport);
    m_widget->SetCheckedValue(onValue, offValue);
    // Start from the opposite state so that every row really moves the box.
    m_box->setChecked(!checked);
    EditLog log(m_widget);
    m_widget->SetValue(Vela::CVector4f(pushed, 1, 1, 1));
    QCOMPARE(m_box->isChecked(), checked);
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(report, 0, 0, 0));
    QVERIFY(log.entries.isEmpty());

    click();
    QCOMPARE(log.entries, oneEdit(clickReport));
}

void tst_QNumericalWidgetToggleButton::keyboardAndRedescribe()
{
    EditLog log(m_widget);
    m_box->setFocus();
    QTRY_VERIFY(m_box->hasFocus());
    QTest::keyClick(m_box, Qt::Key_Space);
    QCOMPARE(log.entries, oneEdit(1));

    // New values leave the box as it is.
    log.clear();
    m_widget->SetCheckedValue(3.0f, 1.0f);
    QVERIFY(m_widget->IsChecked());

    // Re-describing applies the record's value, silently.
    m_widget->SetDesc(variable(0, { 0.5f, 0, 0, 0 }), description(L"Flip Green"));
    QCOMPARE(m_box->text(), QStringLiteral("Flip Green"));
    QVERIFY(!m_widget->IsChecked());
    QVERIFY(log.entries.isEmpty());

    // Without a check box there is nothing to show a value in.
    QNumericalWidgetToggleButton bare;
    bare.SetDesc(variable(0, { 1, 0, 0, 0 }), Lu::CDynamicWidgetDescBase());
    bare.SetValue(Vela::CVector4f(1, 0, 0, 0));
    QVERIFY(!bare.IsChecked());
    QVERIFY(bare.children().isEmpty());
}

VELA_TEST_CLASS(tst_QNumericalWidgetToggleButton)
#include "tst_QNumericalWidgetToggleButton.moc"
