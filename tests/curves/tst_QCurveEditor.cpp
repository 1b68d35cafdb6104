#include "QCurveeditor.h"
#include "VelaTest.h"

#include <QImage>
#include <QtTest>

#include <memory>

using CurveData = QMap<int, QList<QPoint>>;

namespace {

// With a 220 × 210 widget one data unit is 2 pixels on both axes: data (x, y) lies at canvas
// (2x + 10, 200 - 2y).
constexpr int kWidth = 220;
constexpr int kHeight = 210;

QPoint canvas(int x, int y)
{
    return QPoint(2 * x + 10, 200 - 2 * y);
}

const QList<QPoint> kDefaultCurve = { QPoint(0, 0),   QPoint(34, 0), QPoint(32, 80), QPoint(50, 80),
                                      QPoint(68, 80), QPoint(66, 0), QPoint(100, 0) };

// The columns of row 5 (above every control point) that hold black: the frame and the dividers.
QList<int> blackColumns(QWidget *widget)
{
    const QImage image = widget->grab().toImage();
    QList<int> columns;
    for (int x = 0; x < image.width(); ++x) {
        const QRgb pixel = image.pixel(x, 5);
        if (qRed(pixel) < 40 && qGreen(pixel) < 40 && qBlue(pixel) < 40)
            columns.append(x);
    }
    return columns;
}

QList<int> dividerColumns(int count)
{
    QList<int> columns { 0 };
    for (int i = 0; i <= count; ++i)
        columns.append((kWidth - 20) / count * i + 10);
    columns.append(kWidth - 1);
    return columns;
}

} // namespace

class tst_QCurveEditor : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void handleRules_data();
    void handleRules();
    void dragNeedsTheLeftButtonAloneAndReleaseCallsBack();
    void slotsInOrder();
    void dividersAndSymmetryByShortcut();
    void curveWeighting_data();
    void curveWeighting();
    void initFillsEveryPartAndResetRestoresCurrentOnly();
    void irregularDataIsSafe();

private:
    void drag(QPoint from, QPoint to);

    std::unique_ptr<QCurveEditor> m_editor;
    int m_finished = 0;
};

void tst_QCurveEditor::init()
{
    m_editor.reset(new QCurveEditor);
    m_editor->setFixedSize(kWidth, kHeight);
    m_editor->Init();
    m_finished = 0;
    m_editor->SetFinishedCallback([this] { ++m_finished; });
}

void tst_QCurveEditor::drag(QPoint from, QPoint to)
{
    QTest::mousePress(m_editor.get(), Qt::LeftButton, Qt::NoModifier, from);
    VelaTest::mouseMove(m_editor.get(), (from + to) / 2);
    VelaTest::mouseMove(m_editor.get(), to);
    QTest::mouseRelease(m_editor.get(), Qt::LeftButton, Qt::NoModifier, to);
}

void tst_QCurveEditor::handleRules_data()
{
    QTest::addColumn<bool>("symmetry");
    QTest::addColumn<QPoint>("from"); // in data units
    QTest::addColumn<QPoint>("to"); // in pixels
    QTest::addColumn<int>("index"); // the point that moves to expected, -1: none moves
    QTest::addColumn<QPoint>("expected");
    QTest::addColumn<QPoint>("mirror"); // where its mirror moves, null: it stays
    const auto row = [](const char *tag, bool symmetry, QPoint from, QPoint to, int index = -1,
                        QPoint expected = QPoint(), QPoint mirror = QPoint()) {
        QTest::newRow(tag) << symmetry << from << to << index << expected << mirror;
    };

    // The mirror is taken at (W - x - 5, y), so it lands a little right of the exact mirror.
    row("left handle", true, { 34, 0 }, canvas(20, 60), 1, { 20, 60 }, { 78, 60 });
    // x rounds up, y truncates.
    row("between units", true, { 34, 0 }, { 51, 45 }, 1, { 21, 77 }, { 77, 77 });
    row("below and left", true, { 34, 0 }, { -40, 300 }, 1, { 0, 0 }, { 100, 0 });
    row("above and right", true, { 32, 80 }, { 400, -20 }, 2, { 100, 100 }, { 0, 100 });
    row("apex moves only vertically", true, { 50, 80 }, canvas(20, 50), 3, { 50, 50 });
    // With symmetry the right handles only follow the left ones; without it they move freely.
    row("right handle follows only", true, { 68, 80 }, canvas(85, 50));
    row("right handle, free", false, { 68, 80 }, canvas(85, 50), 4, { 85, 50 });
    row("start stays", true, { 0, 0 }, canvas(50, 40));
    row("end stays, free", false, { 100, 0 }, canvas(50, 40));
}

void tst_QCurveEditor::handleRules()
{
    QFETCH(bool, symmetry);
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(int, index);
    QFETCH(QPoint, expected);
    QFETCH(QPoint, mirror);
    if (!symmetry)
        m_editor->OnSymmetry();
    drag(canvas(from.x(), from.y()), to);
    QList<QPoint> curve = kDefaultCurve;
    if (index >= 0)
        curve[index] = expected;
    if (!mirror.isNull())
        curve[6 - index] = mirror;
    QCOMPARE(m_editor->GetData().value(0), curve);
    QCOMPARE(m_editor->GetData().value(1), kDefaultCurve);
    // A release ends every press, moved or not.
    QCOMPARE(m_finished, 1);
}

void tst_QCurveEditor::dragNeedsTheLeftButtonAloneAndReleaseCallsBack()
{
    const QPoint to = canvas(20, 60);
    // The press selects whatever button it comes from, but only a left-button drag moves.
    QTest::mousePress(m_editor.get(), Qt::RightButton, Qt::NoModifier, canvas(34, 0));
    VelaTest::mouseMove(m_editor.get(), to, Qt::LeftButton | Qt::RightButton);
    QCOMPARE(m_editor->GetData().value(0), kDefaultCurve);
    VelaTest::mouseMove(m_editor.get(), to, Qt::LeftButton);
    QCOMPARE(m_editor->GetData().value(0).at(1), QPoint(20, 60));
    QCOMPARE(m_finished, 0);
    QTest::mouseRelease(m_editor.get(), Qt::RightButton, Qt::NoModifier, to);
    QCOMPARE(m_finished, 1);

    // After the release a drag from empty space moves nothing; a click without a drag calls back
    // too.
    const CurveData before = m_editor->GetData();
    drag(QPoint(180, 120), canvas(70, 70));
    QTest::mouseClick(m_editor.get(), Qt::LeftButton, Qt::NoModifier, QPoint(180, 120));
    QCOMPARE(m_editor->GetData(), before);
    QCOMPARE(m_finished, 3);

    // Without a callback a release is harmless.
    m_editor->SetFinishedCallback({});
    QTest::mouseClick(m_editor.get(), Qt::LeftButton, Qt::NoModifier, QPoint(180, 120));
    QCOMPARE(m_finished, 3);
}

void tst_QCurveEditor::slotsInOrder()
{
    // Hosts reach the slots by index too: the order is part of the interface, and there are no
    // signals.
    const QMetaObject &meta = QCurveEditor::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        methods << QString::fromLatin1(meta.method(i).methodSignature());
    }
    QCOMPARE(methods,
             QStringList({ "OnDividerNum()", "OnShowDivider()", "OnSymmetry()", "OnReset()",
                           "OnChangePart()", "OnCurveWeighting(double)" }));
}

void tst_QCurveEditor::dividersAndSymmetryByShortcut()
{
    m_editor->Init(); // a second Init makes no second set of shortcuts
    QCOMPARE(m_editor->actions().size(), 3);
    m_editor->show();
    QVERIFY(QTest::qWaitForWindowActive(m_editor.get()));
    m_editor->setFocus();
    QTRY_VERIFY(m_editor->hasFocus());

    // The number of dividers cycles through 4, 6, ..., 12, 2.
    QCOMPARE(blackColumns(m_editor.get()), dividerColumns(4));
    for (int expected : { 6, 8, 10, 12, 2, 4 }) {
        QTest::keyClick(m_editor.get(), Qt::Key_W, Qt::ControlModifier);
        QCOMPARE(blackColumns(m_editor.get()), dividerColumns(expected));
    }
    QTest::keyClick(m_editor.get(), Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(blackColumns(m_editor.get()), QList<int>({ 0, kWidth - 1 }));
    m_editor->OnShowDivider();
    QCOMPARE(blackColumns(m_editor.get()), dividerColumns(4));

    // Symmetry off: the left handle moves alone.
    QTest::keyClick(m_editor.get(), Qt::Key_E, Qt::ControlModifier);
    drag(canvas(34, 0), canvas(20, 60));
    QList<QPoint> expected = kDefaultCurve;
    expected[1] = QPoint(20, 60);
    QCOMPARE(m_editor->GetData().value(0), expected);
}

void tst_QCurveEditor::curveWeighting_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<float>("expected");
    QTest::newRow("inside") << 0.25 << 0.25f;
    QTest::newRow("above") << 1.7 << 1.0f;
    QTest::newRow("below") << -0.5 << 0.0f;
}

void tst_QCurveEditor::curveWeighting()
{
    QFETCH(double, value);
    QFETCH(float, expected);
    m_editor->OnCurveWeighting(value);
    QCOMPARE(m_editor->GetCurveWeighting(), expected);
    QCOMPARE(m_finished, 1);
    // The host's own setter stores as given and calls nothing back.
    m_editor->SetWeighting(float(value));
    QCOMPARE(m_editor->GetCurveWeighting(), float(value));
    QCOMPARE(m_finished, 1);
}

void tst_QCurveEditor::initFillsEveryPartAndResetRestoresCurrentOnly()
{
    CurveData data = m_editor->GetData();
    QCOMPARE(data.keys(), QList<int>({ 0, 1, 2 }));
    for (const QList<QPoint> &points : data)
        QCOMPARE(points, kDefaultCurve);

    for (int part = 0; part < 3; ++part)
        data[part][3] = QPoint(50, 10 + part);
    m_editor->SetData(data);
    m_editor->OnChangePart();
    m_editor->OnChangePart();
    QCOMPARE(m_editor->GetPart(), 2);
    m_editor->OnReset();
    QCOMPARE(m_finished, 1);
    const CurveData after = m_editor->GetData();
    QCOMPARE(after.value(2), kDefaultCurve);
    QCOMPARE(after.value(0).at(3), QPoint(50, 10));
    QCOMPARE(after.value(1).at(3), QPoint(50, 11));
}

void tst_QCurveEditor::irregularDataIsSafe()
{
    // Lists of other lengths, out-of-range values and a missing part: painting and dragging
    // never read past a list, and the fixed-index rule stays.
    CurveData data;
    data[0] = { QPoint(0, 0), QPoint(500, -300), QPoint(30, 50) };
    data[1] = {};
    m_editor->SetData(data);
    QCOMPARE(m_editor->GetData(), data);
    m_editor->grab();

    m_editor->OnSymmetry();
    drag(canvas(30, 50), canvas(40, 60));
    QCOMPARE(m_editor->GetData().value(0).at(2), QPoint(40, 60));

    m_editor->OnChangePart();
    m_editor->OnChangePart(); // the third curve is missing from the map
    m_editor->grab();
    drag(canvas(30, 50), canvas(40, 60));
    QVERIFY(!m_editor->GetData().contains(2));
    m_editor->OnChangePart();
    QCOMPARE(m_editor->GetPart(), 0);

    // A collapsed widget still paints and releases, and so does one never initialised.
    m_editor->setFixedSize(10, 5);
    m_editor->grab();
    QTest::mouseClick(m_editor.get(), Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    QCurveEditor bare;
    bare.resize(100, 100);
    bare.grab();
    QTest::mouseClick(&bare, Qt::LeftButton, Qt::NoModifier, QPoint(50, 50));
    QVERIFY(bare.GetData().isEmpty());
}

VELA_TEST_CLASS(tst_QCurveEditor)
#include "tst_QCurveEditor.moc"
