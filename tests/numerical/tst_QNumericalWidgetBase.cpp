#include "NumericalTestSupport.h"

#include <QDoubleSpinBox>
#include <QSignalSpy>

using namespace NumericalTest;

// The smallest concrete numerical widget: one plain spin box per numeric component. Its spin
// boxes raise their own signals when set, so SetValue and UpdateInputValue can be told apart.
class SpinNumericalWidget : public QNumericalWidgetBase
{
    Q_OBJECT

public:
    Vela::CVector4<float> GetValue() override
    {
        Vela::CVector4f v;
        for (int i = 0; i < spins.size(); ++i)
            v.Set(i, float(spins.at(i)->value()));
        return v;
    }

    QList<QDoubleSpinBox *> spins;
    int createUiCalls = 0;

protected:
    void CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                  const Lu::CDynamicWidgetDescBase &desc) override
    {
        ++createUiCalls;
        for (int i = 0; i < Vela::DynamicVariableComponentCount(var.eType); ++i) {
            auto *spin = new QDoubleSpinBox(this);
            spin->setRange(-1000.0, 1000.0);
            spin->setValue(double(desc.afValue[i]));
            layout()->addWidget(spin);
            connect(spin, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                    [this]() { emit ValueChanged(GetValue()); });
            spins.append(spin);
        }
    }

    void UpdateUi(const Vela::CVector4<float> &v) override
    {
        for (int i = 0; i < spins.size(); ++i)
            spins.at(i)->setValue(double(v[i]));
    }
};

class tst_QNumericalWidgetBase : public QObject
{
    Q_OBJECT

private slots:
    void vectorComponents();
    void initialize();
    void pushedValues();
};

void tst_QNumericalWidgetBase::vectorComponents()
{
    // Indices outside 0 to 3 read 0 and write nothing.
    Vela::CVector4f v(1.5f, -2.0f, 9.0f, 4.0f);
    QCOMPARE(v[-1], 0.0f);
    QCOMPARE(v[4], 0.0f);
    v.Set(4, 7.0f);
    v.Set(-1, 7.0f);
    QCOMPARE(v, Vela::CVector4f(1.5f, -2.0f, 9.0f, 4.0f));
}

void tst_QNumericalWidgetBase::initialize()
{
    Lu::CDynamicWidgetDescBase desc = description(L"F\u00e4rbung \u8272", 0, 1, { 0.5f, 0, 0, 4 });
    desc.eBehaviorType = Vela::DynamicBehavior_UnitSlider;
    desc.bTriggerBake = true;
    SpinNumericalWidget widget;
    QCOMPARE(widget.Initialize(variable(Vela::DynamicVariable_Float4), desc).code(), 0u);
    QCOMPARE(widget.GetInputType(), Vela::DynamicVariable_Float4);
    QCOMPARE(widget.GetWidgetType(), Vela::DynamicBehavior_UnitSlider);
    QCOMPARE(widget.GetName(), QString::fromUtf8("Färbung 色"));
    QVERIFY(widget.IsTriggerBake());
    QCOMPARE(widget.GetValue(), Vela::CVector4f(0.5f, 0.0f, 0.0f, 4.0f));

    // Re-describing copies the fields again without building anything.
    desc.strName = L"After";
    widget.SetDesc(variable(Vela::DynamicVariable_Integer1), desc);
    QCOMPARE(widget.GetName(), QStringLiteral("After"));
    QCOMPARE(widget.GetInputType(), Vela::DynamicVariable_Integer1);
    QCOMPARE(widget.createUiCalls, 1);
}

void tst_QNumericalWidgetBase::pushedValues()
{
    SpinNumericalWidget widget;
    widget.Initialize(variable(Vela::DynamicVariable_Float3), Lu::CDynamicWidgetDescBase());
    QSignalSpy changed(&widget, &QNumericalWidgetBase::ValueChanged);
    widget.UpdateInputValue(Vela::CVector4f(1.5f, 2.5f, 3.5f, 9.0f));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(widget.GetValue(), Vela::CVector4f(1.5f, 2.5f, 3.5f, 0.0f));

    // SetValue passes the editors' reports on; hosts connect by the type's name as well.
    QSignalSpy byName(&widget, SIGNAL(ValueChanged(Vela::CVector4f)));
    widget.SetValue(Vela::CVector4f(1.0f, 2.5f, 3.5f, 0.0f));
    QCOMPARE(byName.count(), 1);
    QCOMPARE(byName.at(0).at(0).value<Vela::CVector4f>(), Vela::CVector4f(1, 2.5f, 3.5f, 0));

    // The flag alone shows and hides nothing; the update hides.
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    widget.SetWidgetVisibility(false);
    QVERIFY(widget.isVisible());
    widget.UpdateWidgetVisibibility(false);
    QVERIFY(!widget.isVisible());
    QVERIFY(!widget.GetWidgetVisibility());
}

VELA_TEST_CLASS(tst_QNumericalWidgetBase)
#include "tst_QNumericalWidgetBase.moc"
