#include "NumericalTestSupport.h"
#include "QComboBoxEx.h"
#include "QNumericalWidgetOutputSize.h"

using namespace NumericalTest;

class tst_QNumericalWidgetOutputSize : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void pushValue_data();
    void pushValue();
    void setDescKeepsEntries();

private:
    std::unique_ptr<Panel> m_panel;
    QNumericalWidgetOutputSize *m_widget = nullptr;
    QComboBoxEx *m_combo = nullptr;
};

void tst_QNumericalWidgetOutputSize::init()
{
    m_panel.reset(new Panel(m_widget = new QNumericalWidgetOutputSize));
    EditLog log(m_widget);
    // Choices and ranges of the description are not read.
    Lu::CDynamicWidgetDescBase desc = description(L"$outputsize", -5.0f, 50.0f);
    desc.mapLabels = { { 1, "Ignored" } };
    QVERIFY(
        m_panel->build(m_widget, variable(Vela::DynamicVariable_Integer2, { 10, 10, 0, 0 }), desc));
    QVERIFY(log.entries.isEmpty());
    m_combo = m_widget->findChild<QComboBoxEx *>();
    QVERIFY(m_combo);
}

void tst_QNumericalWidgetOutputSize::pushValue_data()
{
    QTest::addColumn<Vela::CVector4f>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<Vela::CVector4f>("reported");
    QTest::newRow("512") << Vela::CVector4f(9, 0, 0, 0) << "512x512" << Vela::CVector4f(9, 9, 0, 0);
    QTest::newRow("y ignored") << Vela::CVector4f(11.7f, 4, 0, 0) << "2048x2048"
                               << Vela::CVector4f(11, 11, 0, 0);
    QTest::newRow("too small") << Vela::CVector4f(2, 2, 0, 0) << QString() << Vela::CVector4f();
    QTest::newRow("too large") << Vela::CVector4f(13, 13, 0, 0) << QString() << Vela::CVector4f();
}

void tst_QNumericalWidgetOutputSize::pushValue()
{
    QFETCH(Vela::CVector4f, value);
    QFETCH(QString, text);
    QFETCH(Vela::CVector4f, reported);
    EditLog log(m_widget);
    m_widget->SetValue(value);
    QCOMPARE(m_combo->currentText(), text);
    QCOMPARE(m_widget->GetValue(), reported);
    QVERIFY(log.entries.isEmpty());
}

void tst_QNumericalWidgetOutputSize::setDescKeepsEntries()
{
    auto *label = m_widget->findChild<QLabel *>();
    QCOMPARE(label->text(), QStringLiteral("Output Size :"));
    QCOMPARE(label->objectName(), QStringLiteral("SbsNumericalOutputSizeLabel"));
    QCOMPARE(m_combo->count(), 10);
    // The first entry is current until the host pushes a value.
    QCOMPARE(m_combo->currentText(), QStringLiteral("8x8"));
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(3, 3, 0, 0));

    m_widget->SetValue(Vela::CVector4f(9, 9, 0, 0));
    EditLog log(m_widget);
    Lu::CDynamicWidgetDescBase desc = description(L"Resolution");
    desc.mapLabels = { { 1, "A" }, { 2, "B" } };
    desc.bTriggerBake = true;
    m_widget->SetDesc(Lu::CDynamicWidgetVariableBase(), desc);
    QCOMPARE(m_widget->findChildren<QComboBoxEx *>().size(), 1);
    QCOMPARE(m_combo->currentText(), QStringLiteral("512x512"));
    QCOMPARE(label->text(), QStringLiteral("Output Size :"));
    QVERIFY(log.entries.isEmpty());

    // The user chooses from the same list.
    m_combo->setFocus();
    QTRY_VERIFY(m_combo->hasFocus());
    QTest::keyClick(m_combo, Qt::Key_End);
    QCOMPARE(m_combo->currentText(), QStringLiteral("4096x4096"));
    QCOMPARE(log.entries, oneEdit(12, 12));
}

VELA_TEST_CLASS(tst_QNumericalWidgetOutputSize)
#include "tst_QNumericalWidgetOutputSize.moc"
