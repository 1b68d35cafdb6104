#include "NumericalTestSupport.h"
#include "QMultiLevelSlider.h"
#include "QNumericalWidgetMultiLevelSlider.h"

using namespace NumericalTest;

// The slider is shown 411 pixels wide with the 10 x 10 test images (multilevel_icons.qrc): its
// track runs from x = 5 to x = 405, so level L of a 0 to 10000 range sits at x = 5 + L / 25. The
// indicators hang 3 pixels below the track at y = 8, or at y = 13 when a middle indicator is
// drawn above it.
static const int kWidth = 411;

class tst_QNumericalWidgetMultiLevelSlider : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void levelRoundTrip_data();
    void levelRoundTrip();
    void fallingValuesMayPass_data();
    void fallingValuesMayPass();
    void dragLevel();
    void middleFollowsDraggedEnd();
    void setDescClampsAgainstOldRange();

private:
    bool build(int type, const Lu::CDynamicWidgetDescBase &desc);
    QLabel *caption() const
    {
        return m_widget->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    }
    // Presses on the indicator drawn at `level` of a 0 to 10000 range, drags it to the track
    // position of `toLevel` and releases it.
    void drag(int level, int toLevel, bool upperMiddle);

    std::unique_ptr<QNumericalWidgetMultiLevelSlider> m_widget;
};

void tst_QNumericalWidgetMultiLevelSlider::init()
{
    m_widget.reset(new QNumericalWidgetMultiLevelSlider);
}

bool tst_QNumericalWidgetMultiLevelSlider::build(int type, const Lu::CDynamicWidgetDescBase &desc)
{
    if (m_widget->Initialize(variable(type), desc).failed())
        return false;
    m_widget->setFixedWidth(kWidth);
    m_widget->show();
    return QTest::qWaitForWindowExposed(m_widget.get());
}

void tst_QNumericalWidgetMultiLevelSlider::drag(int level, int toLevel, bool upperMiddle)
{
    QMultiLevelSlider *slider = m_widget->GetMultiLevelSlider();
    const int y = 3 + (upperMiddle ? 13 : 8) + 5;
    const QPoint from(5 + level / 25, y);
    const QPoint to(5 + toLevel / 25, y);
    QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, from);
    for (int step = 1; step <= 3; ++step) {
        const QPoint at = from + (to - from) * step / 3;
        VelaTest::mouseMove(slider, at);
    }
    QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, to);
}

void tst_QNumericalWidgetMultiLevelSlider::levelRoundTrip_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<int>("level");
    QTest::addColumn<float>("readBack");
    QTest::newRow("truncated to four decimals") << 0.33335f << 3333 << 0.3333f;
    QTest::newRow("toward zero") << -0.00019f << -1 << -0.0001f;
}

void tst_QNumericalWidgetMultiLevelSlider::levelRoundTrip()
{
    QFETCH(float, value);
    QFETCH(int, level);
    QFETCH(float, readBack);
    QVERIFY(build(0, description(L"Level", -1.0f, 1.0f, { value })));
    QCOMPARE(m_widget->GetMultiLevelSlider()->GetIndicatorValue(0), level);
    QCOMPARE(m_widget->GetValue().x, readBack);
}

void tst_QNumericalWidgetMultiLevelSlider::fallingValuesMayPass_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<Vela::CVector4f>("values");
    QTest::addColumn<unsigned int>("count");
    QTest::addColumn<Vela::CVector4f>("expected");
    QTest::newRow("rising") << 2 << Vela::CVector4f(0.2f, 0.5f, 0.8f, 0) << 3u
                            << Vela::CVector4f(0.2f, 0.5f, 0.8f, 0);
    // Falling first values turn free order on, so the slider accepts them as they are.
    QTest::newRow("falling") << 1 << Vela::CVector4f(0.6f, 0.4f, 0, 0) << 2u
                             << Vela::CVector4f(0.6f, 0.4f, 0, 0);
    // A middle indicator needs ordered ends: the slider refuses and stays empty.
    QTest::newRow("falling with middle")
        << 2 << Vela::CVector4f(0.6f, 0.4f, 0.8f, 0) << 0u << Vela::CVector4f();
    QTest::newRow("no numbers") << 8 << Vela::CVector4f(1, 1, 1, 1) << 0u << Vela::CVector4f();
}

void tst_QNumericalWidgetMultiLevelSlider::fallingValuesMayPass()
{
    QFETCH(int, type);
    QFETCH(Vela::CVector4f, values);
    QFETCH(unsigned int, count);
    QFETCH(Vela::CVector4f, expected);
    QVERIFY(
        build(type, description(L"Range", 0.0f, 1.0f, { values.x, values.y, values.z, values.w })));
    QCOMPARE(m_widget->GetMultiLevelSlider()->GetCount(), count);
    QCOMPARE(m_widget->GetValue(), expected);
    // An empty slider takes pushed values and drags without complaint.
    m_widget->UpdateInputValue(Vela::CVector4f(0.1f, 0.2f, 0.3f, 0.4f));
    EditLog log(m_widget.get());
    if (count == 0)
        drag(5000, 9000, false);
    QVERIFY(count != 0 || log.entries.isEmpty());
}

void tst_QNumericalWidgetMultiLevelSlider::dragLevel()
{
    QVERIFY(build(1, description(L"Range", 0.0f, 1.0f, { 0.2f, 0.4f })));
    EditLog log(m_widget.get());
    drag(4000, 7500, false);

    QCOMPARE(log.entries.last(), editFinished(0.2f, 0.75f));
    QCOMPARE(log.entries.at(log.entries.size() - 2), valueChanged(0.2f, 0.75f));
    QCOMPARE(log.entries.filter(QStringLiteral("EditFinished")).size(), 1);

    // Pushed values are clamped to the range and raise nothing.
    log.clear();
    m_widget->SetValue(Vela::CVector4f(-1.0f, 5.0f, 7, 7));
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(0, 1, 0, 0));
    m_widget->UpdateInputValue(Vela::CVector4f(0.3f, 0.7f, 0, 0));

    // New decimals change nothing, and the caption resets nothing on a double-click.
    m_widget->SetDecimals(0);
    QTest::mouseDClick(caption(), Qt::LeftButton);
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(0.3f, 0.7f, 0, 0));
    QVERIFY(log.entries.isEmpty());
}

void tst_QNumericalWidgetMultiLevelSlider::middleFollowsDraggedEnd()
{
    QVERIFY(build(2, description(L"Levels", 0.0f, 1.0f, { 0.0f, 0.5f, 1.0f })));
    // The middle ratio follows pushed values: 0.25 of the way from the first to the last.
    m_widget->UpdateInputValue(Vela::CVector4f(0.0f, 0.25f, 1.0f, 0));
    EditLog log(m_widget.get());
    drag(10000, 6000, true);
    QCOMPARE(log.entries.last(), editFinished(0.0f, 0.15f, 0.6f));
    QCOMPARE(log.entries.at(log.entries.size() - 2), valueChanged(0.0f, 0.15f, 0.6f));
}

void tst_QNumericalWidgetMultiLevelSlider::setDescClampsAgainstOldRange()
{
    // Nothing to update before Initialize.
    m_widget->UpdateInputValue(Vela::CVector4f(1, 1, 1, 1));
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f());

    QVERIFY(build(0, description(L"Level", 0.0f, 1.0f, { 0.5f })));
    QMultiLevelSlider *first = m_widget->GetMultiLevelSlider();
    m_widget->SetDesc(variable(0), description(L"Wider Level", 0.0f, 2.0f, { 1.5f }));
    QCOMPARE(caption()->text(), QStringLiteral("Wider Level"));
    // The value is clamped before the range grows.
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(1.0f, 0, 0, 0));
    // The new range holds from now on.
    m_widget->UpdateInputValue(Vela::CVector4f(3.0f, 0, 0, 0));
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(2.0f, 0, 0, 0));
    QCOMPARE(m_widget->GetMultiLevelSlider(), first);

    // Another count of components builds a new slider.
    m_widget->SetDesc(variable(1), description(L"Range", 0.0f, 1.0f, { 0.1f, 0.9f }));
    QVERIFY(m_widget->GetMultiLevelSlider() != first);
    QCOMPARE(m_widget->GetMultiLevelSlider()->GetCount(), 2u);
    QCOMPARE(m_widget->GetValue(), Vela::CVector4f(0.1f, 0.9f, 0, 0));
}

VELA_TEST_CLASS(tst_QNumericalWidgetMultiLevelSlider)
#include "tst_QNumericalWidgetMultiLevelSlider.moc"
