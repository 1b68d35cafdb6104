#include "QCurveeditor.h"
#include "VelaTest.h"

#include <QAction>
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

// A mouse move with the given buttons held, as the window system delivers it.
void moveMouse(QWidget *widget, QPoint pos, Qt::MouseButtons buttons = Qt::LeftButton)
{
    QMouseEvent move(QEvent::MouseMove, pos, widget->mapToGlobal(pos), Qt::NoButton, buttons,
                     Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

int countColor(const QImage &image, QRgb color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += (image.pixel(x, y) & 0xFFFFFF) == (color & 0xFFFFFF);
    return count;
}

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
    void cleanup();
    void constructedWithoutData();
    void initFillsEveryPart();
    void currentPartColor();
    void dragHandleWithSymmetry_data();
    void dragHandleWithSymmetry();
    void apexMovesOnlyVertically_data();
    void apexMovesOnlyVertically();
    void rightHandlesFollowOnly_data();
    void rightHandlesFollowOnly();
    void endPointsStayFixed_data();
    void endPointsStayFixed();
    void dragNeedsTheLeftButtonAlone();
    void releaseEndsTheSelectionAndCallsBack();
    void slotsInOrder();
    void keyboardActions();
    void dividerNumberCycles();
    void dividerAndSymmetryShortcuts();
    void curveWeighting_data();
    void curveWeighting();
    void setWeightingStoresAsGiven();
    void resetRestoresCurrentPartOnly();
    void setDataReplacesWithoutCallback();
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

void tst_QCurveEditor::cleanup()
{
    m_editor.reset();
}

void tst_QCurveEditor::drag(QPoint from, QPoint to)
{
    QTest::mousePress(m_editor.get(), Qt::LeftButton, Qt::NoModifier, from);
    moveMouse(m_editor.get(), (from + to) / 2);
    moveMouse(m_editor.get(), to);
    QTest::mouseRelease(m_editor.get(), Qt::LeftButton, Qt::NoModifier, to);
}

void tst_QCurveEditor::constructedWithoutData()
{
    QCurveEditor editor;
    QVERIFY(editor.GetData().isEmpty());
    QVERIFY(editor.actions().isEmpty());
    QCOMPARE(editor.GetPart(), 0);
    QCOMPARE(editor.GetCurveWeighting(), 1.0f);
    // Painting and pressing before Init do nothing harmful.
    editor.resize(100, 100);
    QVERIFY(!editor.grab().isNull());
    QTest::mouseClick(&editor, Qt::LeftButton, Qt::NoModifier, QPoint(50, 50));
    QVERIFY(editor.GetData().isEmpty());
}

void tst_QCurveEditor::initFillsEveryPart()
{
    const CurveData data = m_editor->GetData();
    QCOMPARE(data.keys(), QList<int>({ 0, 1, 2 }));
    for (const QList<QPoint> &points : data)
        QCOMPARE(points, kDefaultCurve);
    QCOMPARE(m_editor->GetPart(), 0);
}

void tst_QCurveEditor::currentPartColor()
{
    const QRgb part0 = qRgb(255, 0, 64), part1 = qRgb(64, 0, 255), part2 = qRgb(64, 196, 32);
    QImage image = m_editor->grab().toImage();
    QVERIFY(countColor(image, part0) > 100);
    QCOMPARE(countColor(image, part1), 0);

    m_editor->OnChangePart();
    QCOMPARE(m_editor->GetPart(), 1);
    image = m_editor->grab().toImage();
    QCOMPARE(countColor(image, part0), 0);
    QVERIFY(countColor(image, part1) > 100);

    m_editor->OnChangePart();
    QCOMPARE(m_editor->GetPart(), 2);
    QVERIFY(countColor(m_editor->grab().toImage(), part2) > 100);
    m_editor->OnChangePart();
    QCOMPARE(m_editor->GetPart(), 0);
    QCOMPARE(m_finished, 0);
}

void tst_QCurveEditor::dragHandleWithSymmetry_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QPoint>("expected");
    QTest::addColumn<QPoint>("expectedMirror");

    // The mirror is taken at (W - x - 5, y), so it lands a little right of the exact mirror.
    QTest::newRow("left handle") << 1 << canvas(20, 60) << QPoint(20, 60) << QPoint(78, 60);
    QTest::newRow("inner handle") << 2 << canvas(40, 70) << QPoint(40, 70) << QPoint(58, 70);
    // x rounds up, y truncates.
    QTest::newRow("between units") << 1 << QPoint(51, 45) << QPoint(21, 77) << QPoint(77, 77);
    QTest::newRow("below and left") << 1 << QPoint(-40, 300) << QPoint(0, 0) << QPoint(100, 0);
    QTest::newRow("above and right") << 2 << QPoint(400, -20) << QPoint(100, 100) << QPoint(0, 100);
}

void tst_QCurveEditor::dragHandleWithSymmetry()
{
    QFETCH(int, index);
    QFETCH(QPoint, to);
    QFETCH(QPoint, expected);
    QFETCH(QPoint, expectedMirror);

    drag(canvas(kDefaultCurve.at(index).x(), kDefaultCurve.at(index).y()), to);

    QList<QPoint> expectedCurve = kDefaultCurve;
    expectedCurve[index] = expected;
    expectedCurve[6 - index] = expectedMirror;
    const CurveData data = m_editor->GetData();
    QCOMPARE(data.value(0), expectedCurve);
    QCOMPARE(data.value(1), kDefaultCurve);
    QCOMPARE(m_finished, 1);
}

void tst_QCurveEditor::apexMovesOnlyVertically_data()
{
    QTest::addColumn<bool>("symmetry");
    QTest::newRow("symmetric") << true;
    QTest::newRow("free") << false;
}

void tst_QCurveEditor::apexMovesOnlyVertically()
{
    QFETCH(bool, symmetry);
    if (!symmetry)
        m_editor->OnSymmetry();
    drag(canvas(50, 80), canvas(20, 50));
    QList<QPoint> expected = kDefaultCurve;
    expected[3] = QPoint(50, 50);
    QCOMPARE(m_editor->GetData().value(0), expected);

    drag(canvas(50, 50), QPoint(300, -100));
    expected[3] = QPoint(50, 100);
    QCOMPARE(m_editor->GetData().value(0), expected);
}

void tst_QCurveEditor::rightHandlesFollowOnly_data()
{
    apexMovesOnlyVertically_data();
}

// With symmetry the right handles only follow the left ones; without it they move freely.
void tst_QCurveEditor::rightHandlesFollowOnly()
{
    QFETCH(bool, symmetry);
    if (!symmetry)
        m_editor->OnSymmetry();
    drag(canvas(68, 80), canvas(85, 50));
    drag(canvas(66, 0), canvas(90, 30));
    QList<QPoint> expected = kDefaultCurve;
    if (!symmetry) {
        expected[4] = QPoint(85, 50);
        expected[5] = QPoint(90, 30);
    }
    QCOMPARE(m_editor->GetData().value(0), expected);
    // A release ends every press, moved or not.
    QCOMPARE(m_finished, 2);
}

void tst_QCurveEditor::endPointsStayFixed_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("symmetry");
    QTest::newRow("start") << 0 << true;
    QTest::newRow("end") << 6 << true;
    QTest::newRow("start, free") << 0 << false;
    QTest::newRow("end, free") << 6 << false;
}

void tst_QCurveEditor::endPointsStayFixed()
{
    QFETCH(int, index);
    QFETCH(bool, symmetry);
    if (!symmetry)
        m_editor->OnSymmetry();
    drag(canvas(kDefaultCurve.at(index).x(), 0), canvas(50, 40));
    QCOMPARE(m_editor->GetData().value(0), kDefaultCurve);
}

void tst_QCurveEditor::dragNeedsTheLeftButtonAlone()
{
    const QPoint from = canvas(34, 0);
    const QPoint to = canvas(20, 60);
    // The press selects whatever button it comes from, but only a left-button drag moves.
    QTest::mousePress(m_editor.get(), Qt::RightButton, Qt::NoModifier, from);
    moveMouse(m_editor.get(), to, Qt::RightButton);
    QCOMPARE(m_editor->GetData().value(0), kDefaultCurve);
    moveMouse(m_editor.get(), to, Qt::LeftButton | Qt::RightButton);
    QCOMPARE(m_editor->GetData().value(0), kDefaultCurve);

    moveMouse(m_editor.get(), to, Qt::LeftButton);
    QCOMPARE(m_editor->GetData().value(0).at(1), QPoint(20, 60));
    QTest::mouseRelease(m_editor.get(), Qt::RightButton, Qt::NoModifier, to);
}

void tst_QCurveEditor::releaseEndsTheSelectionAndCallsBack()
{
    QTest::mouseClick(m_editor.get(), Qt::LeftButton, Qt::NoModifier, QPoint(180, 120));
    QCOMPARE(m_finished, 1);

    QTest::mousePress(m_editor.get(), Qt::LeftButton, Qt::NoModifier, canvas(34, 0));
    moveMouse(m_editor.get(), canvas(20, 60));
    QCOMPARE(m_finished, 1);
    QTest::mouseRelease(m_editor.get(), Qt::LeftButton, Qt::NoModifier, canvas(20, 60));
    QCOMPARE(m_finished, 2);

    // After the release a drag from empty space moves nothing.
    const CurveData before = m_editor->GetData();
    drag(QPoint(180, 120), canvas(70, 70));
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

void tst_QCurveEditor::keyboardActions()
{
    const QList<QAction *> actions = m_editor->actions();
    QCOMPARE(actions.size(), 3);
    const char *texts[] = { "DividerNum", "ShowDivider", "Symmetry" };
    const char *keys[] = { "Ctrl+W", "Ctrl+Q", "Ctrl+E" };
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(actions.at(i)->text(), QLatin1String(texts[i]));
        QCOMPARE(actions.at(i)->shortcut(), QKeySequence(QLatin1String(keys[i])));
        QCOMPARE(actions.at(i)->shortcutContext(), Qt::WidgetWithChildrenShortcut);
        QCOMPARE(actions.at(i)->parent(), m_editor.get());
    }
    // A second Init makes no second set.
    m_editor->Init();
    QCOMPARE(m_editor->actions().size(), 3);
}

void tst_QCurveEditor::dividerNumberCycles()
{
    QCOMPARE(blackColumns(m_editor.get()), dividerColumns(4));
    for (int expected : { 6, 8, 10, 12, 2, 4 }) {
        m_editor->OnDividerNum();
        QCOMPARE(blackColumns(m_editor.get()), dividerColumns(expected));
    }
    m_editor->OnShowDivider();
    QCOMPARE(blackColumns(m_editor.get()), QList<int>({ 0, kWidth - 1 }));
    m_editor->OnShowDivider();
    QCOMPARE(blackColumns(m_editor.get()), dividerColumns(4));
}

void tst_QCurveEditor::dividerAndSymmetryShortcuts()
{
    m_editor->show();
    QVERIFY(QTest::qWaitForWindowActive(m_editor.get()));
    m_editor->setFocus();
    QTRY_VERIFY(m_editor->hasFocus());

    QTest::keyClick(m_editor.get(), Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(blackColumns(m_editor.get()), dividerColumns(6));
    QTest::keyClick(m_editor.get(), Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(blackColumns(m_editor.get()), QList<int>({ 0, kWidth - 1 }));

    // Symmetry off: the left handle moves alone.
    QTest::keyClick(m_editor.get(), Qt::Key_E, Qt::ControlModifier);
    drag(canvas(34, 0), canvas(20, 60));
    QList<QPoint> expected = kDefaultCurve;
    expected[1] = QPoint(20, 60);
    QCOMPARE(m_editor->GetData().value(0), expected);

    // And on again: the right handle follows.
    QTest::keyClick(m_editor.get(), Qt::Key_E, Qt::ControlModifier);
    drag(canvas(20, 60), canvas(30, 40));
    expected[1] = QPoint(30, 40);
    expected[5] = QPoint(68, 40);
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
}

void tst_QCurveEditor::setWeightingStoresAsGiven()
{
    m_editor->SetWeighting(1.7f);
    QCOMPARE(m_editor->GetCurveWeighting(), 1.7f);
    QCOMPARE(m_finished, 0);
}

void tst_QCurveEditor::resetRestoresCurrentPartOnly()
{
    CurveData data = m_editor->GetData();
    for (int part = 0; part < 3; ++part)
        data[part][3] = QPoint(50, 10 + part);
    m_editor->SetData(data);
    m_editor->OnChangePart();
    m_editor->OnChangePart();
    m_editor->OnReset();
    QCOMPARE(m_finished, 1);
    const CurveData after = m_editor->GetData();
    QCOMPARE(after.value(2), kDefaultCurve);
    QCOMPARE(after.value(0).at(3), QPoint(50, 10));
    QCOMPARE(after.value(1).at(3), QPoint(50, 11));
}

void tst_QCurveEditor::setDataReplacesWithoutCallback()
{
    CurveData data;
    data[0] = { QPoint(0, 0), QPoint(10, 90), QPoint(20, 90), QPoint(30, 50) };
    data[5] = { QPoint(1, 1) };
    m_editor->SetData(data);
    QCOMPARE(m_editor->GetData(), data);
    QCOMPARE(m_finished, 0);
}

void tst_QCurveEditor::irregularDataIsSafe()
{
    // Lists of other lengths, out-of-range values and a missing part: painting and dragging
    // never read past a list, and the fixed-index rule stays.
    CurveData data;
    data[0] = { QPoint(0, 0), QPoint(500, -300), QPoint(30, 50) };
    data[1] = {};
    m_editor->SetData(data);
    QVERIFY(!m_editor->grab().isNull());

    m_editor->OnSymmetry();
    drag(canvas(30, 50), canvas(40, 60));
    QCOMPARE(m_editor->GetData().value(0).at(2), QPoint(40, 60));

    m_editor->OnChangePart();
    QVERIFY(!m_editor->grab().isNull());
    drag(canvas(30, 50), canvas(40, 60));
    QVERIFY(m_editor->GetData().value(1).isEmpty());

    m_editor->OnChangePart(); // the third curve is missing from the map
    QVERIFY(!m_editor->grab().isNull());
    drag(canvas(30, 50), canvas(40, 60));
    QVERIFY(!m_editor->GetData().contains(2));

    // A collapsed widget still releases without trouble.
    m_editor->setFixedSize(10, 5);
    QTest::mouseClick(m_editor.get(), Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    QVERIFY(!m_editor->grab().isNull());
}

VELA_TEST_CLASS(tst_QCurveEditor)
#include "tst_QCurveEditor.moc"
