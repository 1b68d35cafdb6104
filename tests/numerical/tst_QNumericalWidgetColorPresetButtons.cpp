#include "NumericalTestSupport.h"
#include "QNumericalWidgetColorPresetButtons.h"
#include "VelaTest.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

using NumericalTest::EditLog;

class tst_QNumericalWidgetColorPresetButtons : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void createUi();
    void click_data();
    void click();
    void pushesChangeNothing();

private:
    std::unique_ptr<NumericalTest::Panel> m_panel;
    QNumericalWidgetColorPresetButtons *m_widget = nullptr;
    QList<QToolButton *> m_swatches;
};

void tst_QNumericalWidgetColorPresetButtons::init()
{
    m_widget = new QNumericalWidgetColorPresetButtons;
    m_panel.reset(new NumericalTest::Panel(m_widget));
    Lu::CDynamicWidgetVariableBase var;
    var.vValue = Vela::CVector4f(2, 2, 2, 2);
    Lu::CDynamicWidgetDescBase desc;
    desc.strName = L"Skin";
    desc.eBehaviorType = Vela::DynamicBehavior_ColorPresetButtons;
    desc.afValue[0] = 3.0f;
    QCOMPARE(m_widget->Initialize(var, desc).code(), 0u);
    m_swatches = m_widget->findChildren<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(m_swatches.size(), 4);
    QVERIFY(m_panel->show());
}

void tst_QNumericalWidgetColorPresetButtons::cleanup()
{
    m_panel.reset();
    m_swatches.clear();
}

void tst_QNumericalWidgetColorPresetButtons::createUi()
{
    auto *label = m_widget->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(label->text(), QStringLiteral("Skin :"));
    // Nothing is read from the records: no swatch is chosen yet.
    NUMERICAL_COMPARE_VECTOR(m_widget->GetValue(), Vela::CVector4f());

    auto *row = qobject_cast<QHBoxLayout *>(m_widget->layout()->itemAt(0)->layout());
    QVERIFY(row);
    QCOMPARE(row->count(), 6);
    QCOMPARE(row->itemAt(0)->widget(), label);

    const QColor colors[] = { QColor(238, 238, 238), QColor(246, 178, 107), QColor(234, 153, 153),
                              QColor(41, 41, 41) };
    for (int i = 0; i < 4; ++i) {
        auto *swatch = qobject_cast<QToolButton *>(row->itemAt(2 + i)->widget());
        QVERIFY(swatch);
        QCOMPARE(swatch->icon().availableSizes(), QList<QSize> { QSize(20, 20) });
        const QImage image = swatch->icon().pixmap(QSize(20, 20)).toImage();
        QCOMPARE(image.pixelColor(10, 10), colors[i]);
    }
}

void tst_QNumericalWidgetColorPresetButtons::click_data()
{
    QTest::addColumn<int>("preset");
    for (int n = 1; n <= 4; ++n)
        QTest::addRow("swatch %d", n) << n;
}

void tst_QNumericalWidgetColorPresetButtons::click()
{
    QFETCH(int, preset);
    auto *row = m_widget->layout()->itemAt(0)->layout();
    auto *swatch = qobject_cast<QToolButton *>(row->itemAt(1 + preset)->widget());
    EditLog log(m_widget);
    QTest::mouseClick(swatch, Qt::LeftButton);
    // A swatch reports its number only, never a value edit.
    QCOMPARE(log.names, QStringList { QStringLiteral("ClickedButton %1").arg(preset) });
    const float f = float(preset);
    NUMERICAL_COMPARE_VECTOR(m_widget->GetValue(), Vela::CVector4f(f, f, f, f));

    // The same swatch again reports again.
    QTest::mouseClick(swatch, Qt::LeftButton);
    QCOMPARE(log.names.size(), 2);
    QCOMPARE(log.names.last(), QStringLiteral("ClickedButton %1").arg(preset));
}

void tst_QNumericalWidgetColorPresetButtons::pushesChangeNothing()
{
    auto *row = m_widget->layout()->itemAt(0)->layout();
    QTest::mouseClick(row->itemAt(4)->widget(), Qt::LeftButton);
    EditLog log(m_widget);
    m_widget->SetValue(Vela::CVector4f(1, 1, 1, 1));
    m_widget->UpdateInputValue(Vela::CVector4f(4, 4, 4, 4));
    NUMERICAL_COMPARE_VECTOR(m_widget->GetValue(), Vela::CVector4f(3, 3, 3, 3));
    QVERIFY(log.names.isEmpty());

    // Re-describing renames the caption only.
    Lu::CDynamicWidgetDescBase desc;
    desc.strName = L"Eyes";
    m_widget->SetDesc(Lu::CDynamicWidgetVariableBase(), desc);
    QCOMPARE(m_widget->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly)->text(),
             QStringLiteral("Eyes"));
    QCOMPARE(m_widget->findChildren<QToolButton *>().size(), 4);
    QVERIFY(log.names.isEmpty());

    // An unbuilt widget only copies the fields.
    QNumericalWidgetColorPresetButtons bare;
    bare.SetDesc(Lu::CDynamicWidgetVariableBase(), desc);
    QCOMPARE(bare.GetName(), QStringLiteral("Eyes"));
    QVERIFY(bare.children().isEmpty());
}

VELA_TEST_CLASS(tst_QNumericalWidgetColorPresetButtons)
#include "tst_QNumericalWidgetColorPresetButtons.moc"
