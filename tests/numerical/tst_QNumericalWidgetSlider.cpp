#include "../composite/ComboEditorTestSupport.h"
#include "NumericalTestSupport.h"
#include "QComboDoubleSpinBox.h"
#include "QGroupWidget.h"
#include "QNumericalWidgetSlider.h"

#include <QPushButton>

using namespace NumericalTest;

class tst_QNumericalWidgetSlider : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void scales_data();
    void scales();
    void independentSpin();
    void twoComponentsInGroup();
    void labelDoubleClick_data();
    void labelDoubleClick();
    void nonNumericType();
    void setDesc();
    void destroyWhileTyping();

private:
    bool build(int type, const Lu::CDynamicWidgetDescBase &d)
    {
        return m_panel->build(m_widget, variable(type), d);
    }
    QComboDoubleSpinBox *editor(int i = 0) const { return m_widget->GetComboSpins().at(i); }
    QLabel *caption() const { return m_widget->findChild<QLabel *>(QString(), direct); }
    QGroupWidget *group() const { return m_widget->findChild<QGroupWidget *>(QString(), direct); }
    static constexpr Qt::FindChildOptions direct = Qt::FindDirectChildrenOnly;

    std::unique_ptr<Panel> m_panel;
    QNumericalWidgetSlider *m_widget = nullptr;
};

void tst_QNumericalWidgetSlider::init()
{
    m_panel.reset(new Panel(m_widget = new QNumericalWidgetSlider));
    m_panel->window->resize(700, 300);
}

void tst_QNumericalWidgetSlider::scales_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("behavior");
    QTest::addColumn<float>("maximum");
    QTest::addColumn<int>("descDecimals");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("editorMaximum");
    QTest::addColumn<int>("sliderMaximum");
    QTest::addColumn<int>("sliderStep");
    QTest::addColumn<int>("sliderPageStep");
    // The page step is a tenth of the range in the fixed-point scale; the slider's single step
    // is scaled with a fresh editor's 2 decimals. The range is 0 to 10 or -5 to 50.
    QTest::newRow("float, no decimals") << 0 << 0 << 10.0f << 0 << 0 << 10.0 << 10 << 1 << 1;
    QTest::newRow("integer3, decimals ignored")
        << 6 << 0 << 10.0f << 3 << 0 << 10.0 << 10 << 100 << 1;
    // The unit slider keeps the editor's own page step.
    QTest::newRow("unit slider") << 0 << 3 << 50.0f << 2 << 2 << 1.0 << 100 << 1 << 1000;
    QTest::newRow("unit behaviour, two components")
        << 1 << 3 << 50.0f << 2 << 2 << 50.0 << 5000 << 1 << 550;
}

void tst_QNumericalWidgetSlider::scales()
{
    QFETCH(int, type);
    QFETCH(int, behavior);
    QFETCH(float, maximum);
    QFETCH(int, descDecimals);
    QFETCH(int, decimals);
    QFETCH(double, editorMaximum);
    QFETCH(int, sliderMaximum);
    QFETCH(int, sliderStep);
    QFETCH(int, sliderPageStep);

    const float minimum = maximum > 10.0f ? -5.0f : 0.0f;
    Lu::CDynamicWidgetDescBase desc = description(L"Amount", minimum, maximum, { 2, 3, 4, 5 });
    desc.uDecimals = static_cast<std::uint8_t>(descDecimals);
    desc.eBehaviorType = static_cast<Vela::EDynamicWidgetBehaviorType>(behavior);
    desc.mapLabels[1] = "H\xc3\xb6he";
    QVERIFY(build(type, desc));
    const QList<QComboDoubleSpinBox *> editors = m_widget->GetComboSpins();
    QCOMPARE(unsigned(editors.size()),
             QNumericalWidgetSlider::SliderCount(Vela::EDynamicWidgetVariableType(type)));
    for (QComboDoubleSpinBox *editor : editors) {
        // Component captions only in a group: index 0 is below the label count and added empty,
        // so index 1 still finds its UTF-8 text.
        const bool captioned = editors.size() > 1 && editor == editors.at(1);
        QCOMPARE(editor->text(), captioned ? QString::fromUtf8("H\xc3\xb6he") : QString());
        QCOMPARE(editor->Decimals(), decimals);
        QCOMPARE(editor->Maximum(), editorMaximum);
        QCOMPARE(editor->UI()->qtHorizontalSlider->maximum(), sliderMaximum);
        QCOMPARE(editor->UI()->qtHorizontalSlider->singleStep(), sliderStep);
        QCOMPARE(editor->UI()->qtHorizontalSlider->pageStep(), sliderPageStep);
    }
}

void tst_QNumericalWidgetSlider::independentSpin()
{
    Lu::CDynamicWidgetDescBase desc = description(L"Scale", 0.0f, 1.0f, { 0.5f });
    desc.bIndependentSpin = true;
    desc.afSpinMinimum[0] = -10.0f;
    desc.afSpinMaximum[0] = 10.0f;
    QVERIFY(build(0, desc));
    // New decimals keep both ranges, the slider's and the spin box's own beyond it.
    m_widget->SetDecimals(4);
    QCOMPARE(editor()->UI()->qtHorizontalSlider->maximum(), 10000);
    QCOMPARE(editor()->SpinMinimum(), -10.0);
    QCOMPARE(editor()->SpinMaximum(), 10.0);
}

void tst_QNumericalWidgetSlider::twoComponentsInGroup()
{
    const auto desc = description(L"Base Color Tint", 0.0f, 1.0f, { 0.2f, 0.4f });
    QVERIFY(build(1, desc));
    QVERIFY(!caption());
    // Created closed, named with underscores; the user opens it.
    QCOMPARE(group()->text(), QStringLiteral("Base_Color_Tint"));
    QVERIFY(group()->GetNumericalContainer()->isHidden());
    QTest::mouseClick(group()->findChild<QPushButton *>(), Qt::LeftButton);

    EditLog log(m_widget);
    COMBO_DRAG_SLIDER_TO(editor(1)->UI()->qtHorizontalSlider, 70);
    QCOMPARE(log.entries.mid(log.entries.size() - 2), oneEdit(0.2f, 0.7f));
    QCOMPARE(log.entries.filter(QStringLiteral("EditFinished")).size(), 1);

    // Pushed values reach the editors quietly; out of range, the spin boxes clamp.
    log.clear();
    m_widget->UpdateInputValue(Vela::CVector4f(0.3f, 0.6f, 9, 9));
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(0.3f, 0.6f, 0, 0));
    m_widget->SetValue(Vela::CVector4f(5, -5, 0, 0));
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(1, 0, 0, 0));
    QVERIFY(log.entries.isEmpty());

    // Re-described with the same type, the same group shows the name as it is.
    QGroupWidget *before = group();
    m_widget->SetDesc(variable(1), desc);
    QCOMPARE(group(), before);
    QCOMPARE(group()->text(), QStringLiteral("Base Color Tint"));
}

void tst_QNumericalWidgetSlider::labelDoubleClick_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("resets");
    QTest::newRow("left button") << true << int(Qt::LeftButton) << true;
    QTest::newRow("disabled widget") << false << int(Qt::LeftButton) << false;
    QTest::newRow("right button") << true << int(Qt::RightButton) << false;
}

void tst_QNumericalWidgetSlider::labelDoubleClick()
{
    QFETCH(bool, enabled);
    QFETCH(int, button);
    QFETCH(bool, resets);

    QVERIFY(build(0, description(L"Height", 0.0f, 10.0f, { 3.0f })));
    editor()->SetValue(10.0);
    m_widget->setEnabled(enabled);
    EditLog log(m_widget);
    QTest::mouseDClick(caption(), Qt::MouseButton(button));
    QCOMPARE(log.entries, resets ? oneEdit(3.0f) : QStringList());
    QCOMPARE(editor()->UI()->qtHorizontalSlider->value(), resets ? 300 : 1000);
}

void tst_QNumericalWidgetSlider::nonNumericType()
{
    // Nothing to reset or push into before Initialize.
    QNumericalWidgetSlider bare;
    bare.SetDecimals(4);
    bare.UpdateInputValue(Vela::CVector4f(1, 2, 3, 4));
    QCOMPARE(bare.GetValue(), Vela::CVector4f());

    QVERIFY(build(-1, description(L"Flag", 0.0f, 1.0f, { 1, 1, 1, 1 })));
    // No editors is not one editor: an empty group.
    QCOMPARE(group()->GetNumericalLayout()->count(), 0);

    EditLog log(m_widget);
    m_widget->SetValue(Vela::CVector4f(1, 2, 3, 4));
    m_widget->SetDecimals(3);
    QTest::mouseDClick(group(), Qt::LeftButton);
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f());
    QVERIFY(log.entries.isEmpty());
}

void tst_QNumericalWidgetSlider::setDesc()
{
    QVERIFY(build(0, description(L"Height", 0.0f, 1.0f, { 0.5f })));
    QComboDoubleSpinBox *first = editor();
    m_widget->SetDesc(variable(0), description(L"New Height", -4.0f, 4.0f, { 3.0f }));
    QCOMPARE(m_widget->GetComboSpins(), QList<QComboDoubleSpinBox *> { first });
    QCOMPARE(caption()->text(), QStringLiteral("New Height"));
    QCOMPARE(first->Minimum(), -4.0);
    QCOMPARE(first->Value(), 3.0);
    QCOMPARE(first->DefaultValue(), 3.0);

    m_widget->SetDesc(variable(1), description(L"Size", 0.0f, 1.0f, { 0.1f, 0.2f }));
    // Another count of components: the old editor stays first, the new ones follow in a group.
    QCOMPARE(m_widget->GetComboSpins().size(), 3);
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(3.0f, 0.1f, 0.2f, 0));
    QVERIFY(group());

    // Each editor still reports once per change.
    EditLog log(m_widget);
    COMBO_TYPE_INTO(editor(0)->UI()->qtDoubleSpinBox, "0.75");
    QCOMPARE(log.entries.filter(QStringLiteral("EditFinished")).size(), 1);
    QCOMPARE(log.entries.last(), editFinished(0.75f, 0.1f, 0.2f));
}

void tst_QNumericalWidgetSlider::destroyWhileTyping()
{
    QVERIFY(build(1, description(L"Offset", 0.0f, 10.0f, { 1, 2 })));
    QDoubleSpinBoxEx *spin = editor(1)->UI()->qtDoubleSpinBox;
    spin->setFocus();
    QTRY_VERIFY(spin->hasFocus());
    QTest::keyClick(spin, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(spin, QStringLiteral("4."));
    EditLog log(m_widget);
    // Hiding the window commits the text while everything is still whole, once; nothing
    // arrives while the widget is torn down.
    m_panel.reset();
    m_widget = nullptr;
    QCOMPARE(log.entries, oneEdit(1, 4));
}

VELA_TEST_CLASS(tst_QNumericalWidgetSlider)
#include "tst_QNumericalWidgetSlider.moc"
