#include "NumericalTestSupport.h"
#include "QMouseSpinBox.h"
#include "QNumericalMouseSpinbox.h"

using namespace NumericalTest;

class tst_QNumericalMouseSpinbox : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void userEdits();
    void pushedValuesAreSilent();

private:
    bool build(int type, const Lu::CDynamicWidgetDescBase &d)
    {
        return m_panel->build(m_widget, variable(type), d);
    }
    QMouseSpinBox *spinBox(int i) const { return m_widget->findChildren<QMouseSpinBox *>().at(i); }
    // Presses the left button in the middle of the spin box and moves the pointer by each offset
    // in turn, then releases it.
    void drag(QMouseSpinBox *spinBox, const QList<QPoint> &offsets);
    void type(QMouseSpinBox *spinBox, const QString &text, bool confirm = true);

    std::unique_ptr<Panel> m_panel;
    QNumericalMouseSpinbox *m_widget = nullptr;
};

void tst_QNumericalMouseSpinbox::init()
{
    m_panel.reset(new Panel(m_widget = new QNumericalMouseSpinbox));
}

void tst_QNumericalMouseSpinbox::drag(QMouseSpinBox *spinBox, const QList<QPoint> &offsets)
{
    QPoint at = spinBox->rect().center();
    QTest::mousePress(spinBox, Qt::LeftButton, Qt::NoModifier, at);
    for (const QPoint &offset : offsets) {
        at += offset;
        VelaTest::mouseMove(spinBox, at);
    }
    QTest::mouseRelease(spinBox, Qt::LeftButton, Qt::NoModifier, at);
}

void tst_QNumericalMouseSpinbox::type(QMouseSpinBox *spinBox, const QString &text, bool confirm)
{
    spinBox->setFocus();
    QTRY_VERIFY(spinBox->hasFocus());
    QTest::keyClick(spinBox, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(spinBox, text);
    if (confirm)
        QTest::keyClick(spinBox, Qt::Key_Return);
}

void tst_QNumericalMouseSpinbox::userEdits()
{
    QVERIFY(build(1, description(L"Tiling")));
    m_widget->UpdateInputValue(Vela::CVector4f(2, 3, 0, 0));
    EditLog log(m_widget);

    // Up, up, down: one step per move, each reported as a finished edit.
    drag(spinBox(1), { QPoint(0, -5), QPoint(0, -1), QPoint(0, 20) });
    QCOMPARE(log.entries,
             (QStringList { valueChanged(2, 4), editFinished(2, 4), valueChanged(2, 5),
                            editFinished(2, 5), valueChanged(2, 4), editFinished(2, 4) }));

    m_widget->UpdateInputValue(Vela::CVector4f());
    log.clear();
    type(spinBox(0), QStringLiteral("2.5"));
    // "2" and "2.5" change the value, "2." does not; Enter confirms the value once more.
    QCOMPARE(log.entries,
             (QStringList { valueChanged(2), editFinished(2), valueChanged(2.5f),
                            editFinished(2.5f), valueChanged(2.5f), editFinished(2.5f) }));

    // Below the minimum of 0: Enter brings the previous value back and confirms it.
    log.clear();
    type(spinBox(0), QStringLiteral("-1"));
    QVERIFY(!spinBox(0)->text().contains(QLatin1Char('-')));
    QCOMPARE(log.entries, oneEdit(2.5f));

    // Half-typed text is committed while the window goes away; nothing reaches the host.
    type(spinBox(1), QStringLiteral("4."), false);
    log.clear();
    m_panel.reset();
    m_widget = nullptr;
    QVERIFY(log.entries.isEmpty());
}

void tst_QNumericalMouseSpinbox::pushedValuesAreSilent()
{
    Lu::CDynamicWidgetDescBase desc = description(L"Tiling", 0.0f, 1.0f, { 4, 5, 6 });
    desc.mapLabels = { { 0, "X" }, { 2, "Z" } };
    QVERIFY(build(2, desc));
    QStringList captions;
    for (QLabel *label : m_widget->findChildren<QLabel *>())
        captions << label->text();
    QCOMPARE(captions, (QStringList { "Tiling", "X", "Z" }));
    // The spin boxes start at zero, whatever the description's values.
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f());

    EditLog log(m_widget);
    m_widget->UpdateInputValue(Vela::CVector4f(1.5f, 2.25f, 3, 9));
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(1.5f, 2.25f, 3, 0));
    m_widget->SetValue(Vela::CVector4f(0.125f, 7, -4, 0));
    // Negative values end at zero.
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(0.125f, 7, 0, 0));

    // Re-describing changes only the base fields.
    m_widget->SetDesc(variable(3), description(L"Offset", 0.0f, 1.0f, { 5, 5, 5, 5 }));
    QCOMPARE(m_widget->findChildren<QMouseSpinBox *>().size(), 3);
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(0.125f, 7, 0, 0));
    QVERIFY(log.entries.isEmpty());

    // A type without numbers has nothing to push into.
    QNumericalMouseSpinbox flag;
    QVERIFY(flag.Initialize(variable(8), description(L"Flag", 0.0f, 1.0f, {})).succeeded());
    QVERIFY(flag.findChildren<QMouseSpinBox *>().isEmpty());
    flag.UpdateInputValue(Vela::CVector4f(1, 2, 3, 4));
    QCOMPARE(flag.GetValue(), Vela::CVector4f());
}

VELA_TEST_CLASS(tst_QNumericalMouseSpinbox)
#include "tst_QNumericalMouseSpinbox.moc"
