#include "NumericalTestSupport.h"
#include "QComboBoxEx.h"
#include "QNumericalWidgetOutputSize.h"

using namespace NumericalTest;

class tst_QNumericalWidgetOutputSize : public QObject
{
    Q_OBJECT

private slots:
    void entriesKeptOnSetDesc();
};

// Pushed values find their entry as in QNumericalWidgetCombobox, whose test covers that.
void tst_QNumericalWidgetOutputSize::entriesKeptOnSetDesc()
{
    auto *widget = new QNumericalWidgetOutputSize;
    Panel panel(widget);
    EditLog log(widget);
    // Choices and ranges of the description are not read.
    Lu::CDynamicWidgetDescBase desc = description(L"$outputsize", -5.0f, 50.0f);
    desc.mapLabels = { { 1, "Ignored" } };
    QVERIFY(panel.build(widget, variable(Vela::DynamicVariable_Integer2, { 10, 10, 0, 0 }), desc));
    auto *combo = widget->findChild<QComboBoxEx *>();
    auto *label = widget->findChild<QLabel *>();
    QCOMPARE(label->text(), QStringLiteral("Output Size :"));
    QCOMPARE(label->objectName(), QStringLiteral("SbsNumericalOutputSizeLabel"));
    QCOMPARE(combo->count(), 10);
    // The first entry is current until the host pushes a value; both components carry it.
    QCOMPARE(combo->currentText(), QStringLiteral("8x8"));
    QCOMPARE(widget->GetValue(), Vela::CVector4f(3, 3, 0, 0));

    widget->SetValue(Vela::CVector4f(9, 9, 0, 0));
    desc = description(L"Resolution");
    desc.mapLabels = { { 1, "A" }, { 2, "B" } };
    widget->SetDesc(Lu::CDynamicWidgetVariableBase(), desc);
    QCOMPARE(widget->findChildren<QComboBoxEx *>().size(), 1);
    QCOMPARE(combo->currentText(), QStringLiteral("512x512"));
    QCOMPARE(label->text(), QStringLiteral("Output Size :"));
    QVERIFY(log.entries.isEmpty());

    // The user chooses from the same list.
    combo->setFocus();
    QTRY_VERIFY(combo->hasFocus());
    QTest::keyClick(combo, Qt::Key_End);
    QCOMPARE(combo->currentText(), QStringLiteral("4096x4096"));
    QCOMPARE(log.entries, oneEdit(12, 12));
}

VELA_TEST_CLASS(tst_QNumericalWidgetOutputSize)
#include "tst_QNumericalWidgetOutputSize.moc"
