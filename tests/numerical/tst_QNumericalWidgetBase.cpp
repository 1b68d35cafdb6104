#include "QNumericalWidgetBase.h"
#include "VelaTest.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

#include <climits>

// The smallest concrete numerical widget: one plain spin box per numeric component. Its spin
// boxes raise their own signals when set, so SetValue and UpdateInputValue can be told apart.
class SpinNumericalWidget : public QNumericalWidgetBase
{
    Q_OBJECT

public:
    using QNumericalWidgetBase::QNumericalWidgetBase;

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
            connect(spin, &QDoubleSpinBox::editingFinished, this,
                    [this]() { emit EditFinished(GetValue()); });
            spins.append(spin);
        }
    }

    void UpdateUi(const Vela::CVector4<float> &v) override
    {
        for (int i = 0; i < spins.size(); ++i)
            spins.at(i)->setValue(double(v[i]));
    }
};

static Vela::CVector4f vectorAt(const QSignalSpy &spy, int index)
{
    return spy.at(index).at(0).value<Vela::CVector4f>();
}

class tst_QNumericalWidgetBase : public QObject
{
    Q_OBJECT

private slots:
    void componentCount_data();
    void componentCount();
    void initialize_data();
    void initialize();
    void initializeKeepsLayout();
    void pushedValues();
    void visibility();
    void destroyWhileEditing();
};

void tst_QNumericalWidgetBase::componentCount_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("isFloat");
    QTest::newRow("float1") << 0 << 1 << true;
    QTest::newRow("float4") << 3 << 4 << true;
    QTest::newRow("int4") << 7 << 4 << false;
    QTest::newRow("image") << 10 << 0 << false;
    QTest::newRow("huge") << INT_MAX << 0 << false;
    QTest::newRow("most negative") << INT_MIN << 0 << false;
}

void tst_QNumericalWidgetBase::componentCount()
{
    QFETCH(int, type);
    QFETCH(int, count);
    QFETCH(bool, isFloat);
    const auto eType = static_cast<Vela::EDynamicWidgetVariableType>(type);
    QCOMPARE(Vela::DynamicVariableComponentCount(eType), count);
    QCOMPARE(Vela::IsFloatVariableType(eType), isFloat);
}

void tst_QNumericalWidgetBase::initialize_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("behavior");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("bake");
    QTest::addColumn<int>("editors");
    QTest::newRow("one float") << 0 << 0 << "Roughness" << false << 1;
    QTest::newRow("four floats") << 3 << 9 << QString::fromUtf8("Färbung 色") << true << 4;
    QTest::newRow("type -1") << -1 << -7 << "Broken" << false << 0;
}

void tst_QNumericalWidgetBase::initialize()
{
    QFETCH(int, type);
    QFETCH(int, behavior);
    QFETCH(QString, name);
    QFETCH(bool, bake);
    QFETCH(int, editors);

    Lu::CDynamicWidgetVariableBase var;
    var.eType = static_cast<Vela::EDynamicWidgetVariableType>(type);
    Lu::CDynamicWidgetDescBase desc;
    desc.strName = name.toStdWString();
    desc.eBehaviorType = static_cast<Vela::EDynamicWidgetBehaviorType>(behavior);
    desc.bTriggerBake = bake;
    desc.afValue[0] = 0.5f;
    desc.afValue[3] = 4.0f;

    SpinNumericalWidget widget;
    QCOMPARE(widget.Initialize(var, desc).code(), 0u);
    QCOMPARE(int(widget.GetInputType()), type);
    QCOMPARE(int(widget.GetWidgetType()), behavior);
    QCOMPARE(widget.GetName(), name);
    QCOMPARE(widget.IsTriggerBake(), bake);
    QCOMPARE(widget.spins.size(), editors);
    QVERIFY(widget.layout());
    if (editors == 4)
        QVERIFY(widget.GetValue() == Vela::CVector4f(0.5f, 0.0f, 0.0f, 4.0f));

    // Re-describing copies the fields again without building anything.
    var.eType = Vela::DynamicVariable_Integer1;
    desc.strName = L"After";
    desc.bTriggerBake = !bake;
    widget.SetDesc(var, desc);
    QCOMPARE(widget.GetName(), QStringLiteral("After"));
    QCOMPARE(widget.GetInputType(), Vela::DynamicVariable_Integer1);
    QCOMPARE(widget.IsTriggerBake(), !bake);
    QCOMPARE(widget.createUiCalls, 1);
    QCOMPARE(widget.spins.size(), editors);
}

void tst_QNumericalWidgetBase::initializeKeepsLayout()
{
    SpinNumericalWidget widget;
    widget.SetKey(L"material/base_color");
    auto *own = new QHBoxLayout(&widget);
    Lu::CDynamicWidgetVariableBase var;
    var.eType = Vela::DynamicVariable_Float2;
    QCOMPARE(widget.Initialize(var, Lu::CDynamicWidgetDescBase()).code(), 0u);
    QCOMPARE(widget.layout(), own);
    QCOMPARE(own->count(), 2);
    // Initialize does not touch the key.
    QCOMPARE(widget.GetKey(), std::wstring(L"material/base_color"));
}

static SpinNumericalWidget *makeWidget(Vela::EDynamicWidgetVariableType eType)
{
    auto *widget = new SpinNumericalWidget;
    Lu::CDynamicWidgetVariableBase var;
    var.eType = eType;
    widget->Initialize(var, Lu::CDynamicWidgetDescBase());
    return widget;
}

void tst_QNumericalWidgetBase::pushedValues()
{
    QScopedPointer<SpinNumericalWidget> widget(makeWidget(Vela::DynamicVariable_Float3));
    QSignalSpy changed(widget.data(), &QNumericalWidgetBase::ValueChanged);
    widget->UpdateInputValue(Vela::CVector4f(1.5f, 2.5f, 3.5f, 9.0f));
    QCOMPARE(changed.count(), 0);
    QVERIFY(widget->GetValue() == Vela::CVector4f(1.5f, 2.5f, 3.5f, 0.0f));
    // The widget's own signals are enabled again afterwards.
    QVERIFY(!widget->signalsBlocked());
    // SetValue passes the editors' own reports on.
    widget->SetValue(Vela::CVector4f(1.0f, 2.5f, 3.5f, 0.0f));
    QCOMPARE(changed.count(), 1);
    QVERIFY(vectorAt(changed, 0) == Vela::CVector4f(1.0f, 2.5f, 3.5f, 0.0f));
}

void tst_QNumericalWidgetBase::visibility()
{
    QScopedPointer<SpinNumericalWidget> widget(makeWidget(Vela::DynamicVariable_Float1));
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.data()));
    // The flag alone shows and hides nothing.
    widget->SetWidgetVisibility(false);
    QVERIFY(widget->isVisible());
    widget->UpdateWidgetVisibibility(false);
    QVERIFY(!widget->isVisible());
    QVERIFY(!widget->GetWidgetVisibility());
    QVERIFY(!widget->signalsBlocked());
}

void tst_QNumericalWidgetBase::destroyWhileEditing()
{
    // A focused editor ends its edit while the widget is torn down: nothing may reach the host.
    QWidget window;
    auto *box = new QVBoxLayout(&window);
    SpinNumericalWidget *widget = makeWidget(Vela::DynamicVariable_Float2);
    box->addWidget(widget);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    widget->spins.at(0)->setFocus();
    QTRY_VERIFY(widget->spins.at(0)->hasFocus());
    QTest::keyClicks(widget->spins.at(0), QStringLiteral("3"));
    QSignalSpy finished(widget, &QNumericalWidgetBase::EditFinished);
    delete widget;
    QCOMPARE(finished.count(), 0);
}

VELA_TEST_CLASS(tst_QNumericalWidgetBase)
#include "tst_QNumericalWidgetBase.moc"
