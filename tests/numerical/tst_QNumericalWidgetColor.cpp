#include "../color/ColorTestSupport.h"
#include "NumericalTestSupport.h"
#include "QColorButton.h"
#include "QNumericalWidgetColor.h"

#include <limits>

using namespace NumericalTest;

class tst_QNumericalWidgetColor : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void valueRoundTrip_data();
    void valueRoundTrip();
    void dialogSessions();
    void pushesAreSilent();

private:
    // Clicks the colour button and lets `action` act on the open dialog.
    void runDialog(const std::function<void(QColorDialog *)> &action)
    {
        ColorTest::runButtonSession(m_button, m_button->ColorDialogUi(), action);
    }

    std::unique_ptr<Panel> m_panel;
    QNumericalWidgetColor *m_widget = nullptr;
    QColorButton *m_button = nullptr;
};

void tst_QNumericalWidgetColor::init()
{
    m_panel.reset(new Panel(m_widget = new QNumericalWidgetColor));
    QVERIFY(m_panel->build(m_widget,
                           variable(Vela::DynamicVariable_Float4, { 0.5f, 0.25f, 1.0f, 0.3f }),
                           description(L"Base Color")));
    m_button = m_widget->findChild<QColorButton *>();
}

void tst_QNumericalWidgetColor::valueRoundTrip_data()
{
    QTest::addColumn<Vela::CVector4f>("value");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<Vela::CVector4f>("readBack");
    QTest::newRow("truncated") << Vela::CVector4f(0.5f, 0.25f, 1.0f, 0.3f) << QColor(127, 63, 255)
                               << Vela::CVector4f(127 / 255.0f, 63 / 255.0f, 1.0f, 1.0f);
    QTest::newRow("out of range") << Vela::CVector4f(2.0f, -1.0f, 1e30f, -5.0f)
                                  << QColor(255, 0, 255) << Vela::CVector4f(1, 0, 1, 1);
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float inf = std::numeric_limits<float>::infinity();
    QTest::newRow("not finite") << Vela::CVector4f(nan, inf, -inf, nan) << QColor(0, 255, 0)
                                << Vela::CVector4f(0, 1, 0, 1);
}

void tst_QNumericalWidgetColor::valueRoundTrip()
{
    QFETCH(Vela::CVector4f, value);
    QFETCH(QColor, color);
    QFETCH(Vela::CVector4f, readBack);
    m_widget->UpdateInputValue(value);
    QCOMPARE(m_button->GetColor(), color);
    QCOMPARE(m_widget->GetValue(), readBack);
}

void tst_QNumericalWidgetColor::dialogSessions()
{
    QStringList calls;
    m_widget->SetUndoRedoFunctions(
        [&] { calls << QStringLiteral("begin"); }, [&] { calls << QStringLiteral("end"); },
        [&] { calls << QStringLiteral("accepted"); }, [&] { calls << QStringLiteral("reverted"); });
    const Vela::CVector4f before = m_widget->GetValue();
    EditLog log(m_widget);
    runDialog([&](QColorDialog *dialog) {
        dialog->setCurrentColor(QColor(Qt::red));
        dialog->reject();
    });
    // The live change and its reversal are both edits of their own.
    QCOMPARE(log.entries, oneEdit(1, 0, 0, 1) + oneEdit(before.x, before.y, before.z, before.w));
    QCOMPARE(m_widget->GetValue(), before);
    // The accepting end is tested with QNumericalWidgetColorWithToolButton, which hands the
    // callbacks to its button the same way.
    QCOMPARE(calls, (QStringList { "begin", "end", "reverted" }));
}

void tst_QNumericalWidgetColor::pushesAreSilent()
{
    // No button yet: black, opaque; re-describing only copies the fields.
    QNumericalWidgetColor bare;
    QCOMPARE(bare.GetValue(), Vela::CVector4f(0, 0, 0, 1));
    bare.SetDesc(Lu::CDynamicWidgetVariableBase(), Lu::CDynamicWidgetDescBase());
    QVERIFY(bare.children().isEmpty());

    EditLog log(m_widget);
    m_widget->SetValue(Vela::CVector4f(0, 0, 1, 0));
    QCOMPARE(m_button->GetColor(), QColor(Qt::blue));
    QVERIFY(log.entries.isEmpty());

    // Re-describing takes the new value, also silently, and drops the colon.
    auto *label = m_widget->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(label->text(), QStringLiteral("Base Color :"));
    m_widget->SetDesc(variable(0, { 0, 1, 0, 1 }), description(L"Tint"));
    QCOMPARE(label->text(), QStringLiteral("Tint"));
    QCOMPARE(m_button->GetColor(), QColor(Qt::green));
    QVERIFY(log.entries.isEmpty());
}

VELA_TEST_CLASS(tst_QNumericalWidgetColor)
#include "tst_QNumericalWidgetColor.moc"
