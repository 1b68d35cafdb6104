#include "NumericalTestSupport.h"
#include "QComboBoxEx.h"
#include "QNumericalWidgetCombobox.h"

#include <limits>

using namespace NumericalTest;

namespace {

Lu::CDynamicWidgetDescBase choices(Vela::CMap<int, std::string> labels,
                                   const wchar_t *name = L"Quality")
{
    Lu::CDynamicWidgetDescBase desc = description(name);
    desc.mapLabels = std::move(labels);
    return desc;
}

// The entries as "text=value".
QStringList items(const QComboBox *combo)
{
    QStringList entries;
    for (int i = 0; i < combo->count(); ++i)
        entries << combo->itemText(i) + '=' + combo->itemData(i, Qt::UserRole).toString();
    return entries;
}

} // namespace

class tst_QNumericalWidgetCombobox : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void pushValue_data();
    void pushValue();
    void setDesc();

private:
    std::unique_ptr<Panel> m_panel;
    QNumericalWidgetCombobox *m_widget = nullptr;
    QComboBoxEx *m_combo = nullptr;
};

void tst_QNumericalWidgetCombobox::init()
{
    m_panel.reset(new Panel(m_widget = new QNumericalWidgetCombobox));
    EditLog log(m_widget);
    // The current value is not read: the first choice is current until the host pushes one.
    QVERIFY(m_panel->build(m_widget, variable(Vela::DynamicVariable_Integer1, { 5, 0, 0, 0 }),
                           choices({ { 5, "High" }, { 2, "Low" } })));
    QVERIFY(log.entries.isEmpty());
    m_combo = m_widget->findChild<QComboBoxEx *>();
}

void tst_QNumericalWidgetCombobox::pushValue_data()
{
    QTest::addColumn<float>("x");
    QTest::addColumn<int>("index");
    QTest::addColumn<float>("reported");
    QTest::newRow("truncated") << 5.9f << 1 << 5.0f;
    QTest::newRow("no such choice") << 3.0f << -1 << 0.0f;
    QTest::newRow("nan") << std::numeric_limits<float>::quiet_NaN() << -1 << 0.0f;
}

void tst_QNumericalWidgetCombobox::pushValue()
{
    QFETCH(float, x);
    QFETCH(int, index);
    QFETCH(float, reported);
    EditLog log(m_widget);
    m_widget->UpdateInputValue(Vela::CVector4f(x, 7, 7, 7));
    QCOMPARE(m_combo->currentIndex(), index);
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(reported, 0, 0, 0));
    // SetValue is as quiet.
    m_widget->SetValue(Vela::CVector4f(2, 0, 0, 0));
    QCOMPARE(m_combo->currentIndex(), 0);
    QVERIFY(log.entries.isEmpty());
}

void tst_QNumericalWidgetCombobox::setDesc()
{
    // Pushing into or re-describing an unbuilt widget builds nothing.
    QNumericalWidgetCombobox bare;
    bare.SetValue(Vela::CVector4f(2, 0, 0, 0));
    bare.SetDesc(Lu::CDynamicWidgetVariableBase(), choices({ { 1, "One" } }));
    QVERIFY(bare.children().isEmpty());

    // Sorted by value, the first one current.
    QCOMPARE(items(m_combo), (QStringList { "Low=2", "High=5" }));
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(2, 0, 0, 0));
    QCOMPARE(m_widget->findChild<QLabel *>()->text(), QStringLiteral("Quality"));

    // As many choices: the same drop-down is refilled, silently, the first one current.
    m_widget->SetValue(Vela::CVector4f(5, 0, 0, 0));
    EditLog log(m_widget);
    m_widget->SetDesc(Lu::CDynamicWidgetVariableBase(),
                      choices({ { 1, "Coarse" }, { 4, "Fine" } }, L"Detail"));
    QCOMPARE(items(m_combo), (QStringList { "Coarse=1", "Fine=4" }));
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(1, 0, 0, 0));
    QCOMPARE(m_widget->findChild<QLabel *>()->text(), QStringLiteral("Detail"));
    QVERIFY(log.entries.isEmpty());

    // The refilled drop-down still reports the user's choices, by key and, focused, by wheel.
    m_combo->setFocus();
    QTRY_VERIFY(m_combo->hasFocus());
    QTest::keyClick(m_combo, Qt::Key_Down);
    QCOMPARE(log.entries, oneEdit(4));
    log.clear();
    VelaTest::wheel(m_combo, 1);
    QCOMPARE(log.entries, oneEdit(1));

    // Another count: a second drop-down is built below the first one, which stays as it was.
    log.clear();
    m_widget->SetDesc(Lu::CDynamicWidgetVariableBase(),
                      choices({ { 1, "A" }, { 2, "B" }, { 3, "C" } }, L"Mode"));
    const QList<QComboBoxEx *> combos = m_widget->findChildren<QComboBoxEx *>();
    QCOMPARE(combos.size(), 2);
    QCOMPARE(items(m_combo), (QStringList { "Coarse=1", "Fine=4" }));
    QComboBoxEx *second = combos.at(0) == m_combo ? combos.at(1) : combos.at(0);
    QCOMPARE(items(second), (QStringList { "A=1", "B=2", "C=3" }));
    // The widget now follows the newer drop-down.
    m_widget->UpdateInputValue(Vela::CVector4f(3, 0, 0, 0));
    QCOMPARE(second->currentIndex(), 2);
    QVERIFY(log.entries.isEmpty());
}

VELA_TEST_CLASS(tst_QNumericalWidgetCombobox)
#include "tst_QNumericalWidgetCombobox.moc"
