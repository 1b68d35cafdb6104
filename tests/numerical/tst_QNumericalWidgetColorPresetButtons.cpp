#include "NumericalTestSupport.h"
#include "QNumericalWidgetColorPresetButtons.h"

#include <QToolButton>

using namespace NumericalTest;

class tst_QNumericalWidgetColorPresetButtons : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void click_data();
    void click();
    void pushesChangeNothing();

private:
    std::unique_ptr<Panel> m_panel;
    QNumericalWidgetColorPresetButtons *m_widget = nullptr;
    QList<QToolButton *> m_swatches;
};

void tst_QNumericalWidgetColorPresetButtons::init()
{
    m_panel.reset(new Panel(m_widget = new QNumericalWidgetColorPresetButtons));
    // Nothing is read from the records: no swatch is chosen yet.
    QVERIFY(
        m_panel->build(m_widget, variable(0, { 2, 2, 2, 2 }), description(L"Skin", 0, 4, { 3 })));
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f());
    m_swatches = m_widget->findChildren<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(m_swatches.size(), 4);
}

void tst_QNumericalWidgetColorPresetButtons::click_data()
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<QColor>("color");
    QTest::newRow("light") << 1 << QColor(238, 238, 238);
    QTest::newRow("tan") << 2 << QColor(246, 178, 107);
    QTest::newRow("pink") << 3 << QColor(234, 153, 153);
    QTest::newRow("dark") << 4 << QColor(41, 41, 41);
}

void tst_QNumericalWidgetColorPresetButtons::click()
{
    QFETCH(int, preset);
    QFETCH(QColor, color);
    QToolButton *swatch = m_swatches.at(preset - 1);
    const QImage image = swatch->icon().pixmap(QSize(20, 20)).toImage();
    QCOMPARE(image.pixelColor(10, 10), color);

    EditLog log(m_widget);
    QTest::mouseClick(swatch, Qt::LeftButton);
    QTest::mouseClick(swatch, Qt::LeftButton);
    // A swatch reports its number only, never a value edit, and again on each click.
    const QString report = QStringLiteral("ClickedButton %1").arg(preset);
    QCOMPARE(log.entries, (QStringList { report, report }));
    const float f = float(preset);
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(f, f, f, f));
}

void tst_QNumericalWidgetColorPresetButtons::pushesChangeNothing()
{
    QTest::mouseClick(m_swatches.at(2), Qt::LeftButton);
    EditLog log(m_widget);
    m_widget->SetValue(Vela::CVector4f(1, 1, 1, 1));
    m_widget->UpdateInputValue(Vela::CVector4f(4, 4, 4, 4));
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(3, 3, 3, 3));

    // Re-describing renames the caption only.
    m_widget->SetDesc(Lu::CDynamicWidgetVariableBase(), description(L"Eyes"));
    QCOMPARE(m_widget->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly)->text(),
             QStringLiteral("Eyes"));
    QCOMPARE(m_widget->findChildren<QToolButton *>().size(), 4);
    QVERIFY(log.entries.isEmpty());
}

VELA_TEST_CLASS(tst_QNumericalWidgetColorPresetButtons)
#include "tst_QNumericalWidgetColorPresetButtons.moc"
