#include "../composite/ComboEditorTestSupport.h"
#include "CKdFKModifyCellWidget.h"
#include "QComboSpinBox.h"
#include "QIntegerSliderWithRenameButton.h"
#include "QKdFKModifyTableManager.h"
#include "VelaTest.h"

#include <QLabel>
#include <QSignalSpy>
#include <QSlider>
#include <QtTest>

namespace {

// The cell's signals in the order they arrive, as "started", "value 37", "finished".
class SessionRecorder : public QObject
{
public:
    explicit SessionRecorder(CKdFKModifyCellWidget *pkCell)
    {
        connect(pkCell, &CKdFKModifyCellWidget::SliderEditStarted, this,
                [this] { kEvents << QStringLiteral("started"); });
        connect(pkCell, &CKdFKModifyCellWidget::SliderValueChanged, this,
                [this](int nValue) { kEvents << QStringLiteral("value %1").arg(nValue); });
        connect(pkCell, &CKdFKModifyCellWidget::SliderEditFinished, this,
                [this] { kEvents << QStringLiteral("finished"); });
    }

    QStringList kEvents;
};

} // namespace

class tst_CKdFKModifyCellWidget : public QObject
{
    Q_OBJECT

private slots:
    void setItem();
    void setItemWithShortOrReversedRanges_data();
    void setItemWithShortOrReversedRanges();
    void wheelIsSwallowedAndSliderDragIsOneSession();
    void sessionRules();
    void doubleClickToggles_data();
    void doubleClickToggles();
};

void tst_CKdFKModifyCellWidget::setItem()
{
    QKdFKModifyTableManager kTable;
    CKdFKModifyCellWidget kCell;
    QSignalSpy kComboSpy(kCell.GetSlider(), &QComboSpinBox::ValueChanged);
    SessionRecorder kRecorder(&kCell);

    kCell.SetItem(7, 150, QStringLiteral("Smile L"), { 0, 100 }, { -50, 200 }, &kTable);

    // The value goes in first, into the old range up to 100, before the ranges widen.
    QCOMPARE(kCell.GetValue(), 100);
    QCOMPARE(kCell.GetSpinMinimum(), -50);
    QCOMPARE(kCell.GetSpinMaximum(), 200);
    QCOMPARE(kCell.GetSlider()->text(), QStringLiteral("Smile L"));
    int nID = 0;
    kCell.GetWeightWithID(nID);
    QCOMPARE(nID, 7);
    // The spin box keeps its own range, past the slider's end.
    kCell.SetValue(180);
    QCOMPARE(kCell.GetValue(), 180);
    QCOMPARE(kComboSpy.count(), 0);
    QVERIFY(kRecorder.kEvents.isEmpty());
}

void tst_CKdFKModifyCellWidget::setItemWithShortOrReversedRanges_data()
{
    QTest::addColumn<QVector<int>>("kSlider");
    QTest::addColumn<QVector<int>>("kSpin");
    QTest::addColumn<QVector<int>>("kRanges"); // slider min, max, spin min, max

    const auto row = [](const char *pcName, QVector<int> kSlider, QVector<int> kSpin,
                        QVector<int> kRanges) {
        QTest::newRow(pcName) << kSlider << kSpin << kRanges;
    };
    row("empty lists keep the ranges", {}, {}, { -50, 100, -50, 100 });
    row("minimum only", { 10 }, { -20 }, { 10, 100, -20, 100 });
    row("reversed pairs are put in order", { 100, 0 }, { 150, -150 }, { 0, 100, -150, 150 });
    row("extra elements ignored", { 1, 2, 3 }, { -1, 5, 9 }, { 1, 2, -1, 5 });
}

void tst_CKdFKModifyCellWidget::setItemWithShortOrReversedRanges()
{
    QFETCH(QVector<int>, kSlider);
    QFETCH(QVector<int>, kSpin);

    CKdFKModifyCellWidget kCell;
    kCell.SetItem(3, 0, QStringLiteral("Blink"),
                  Vela::CArrayList<int>(kSlider.cbegin(), kSlider.cend()),
                  Vela::CArrayList<int>(kSpin.cbegin(), kSpin.cend()), nullptr);
    QTEST(QVector<int>({ kCell.GetMinimum(), kCell.GetMaximum(), kCell.GetSpinMinimum(),
                         kCell.GetSpinMaximum() }),
          "kRanges");
}

void tst_CKdFKModifyCellWidget::wheelIsSwallowedAndSliderDragIsOneSession()
{
    CKdFKModifyCellWidget kCell;
    kCell.SetItem(4, 40, QStringLiteral("Jaw Open"), { 0, 100 }, { 0, 100 }, nullptr);
    kCell.resize(400, 70);
    kCell.show();
    QVERIFY(QTest::qWaitForWindowExposed(&kCell));
    SessionRecorder kRecorder(&kCell);
    QSlider *pkSlider = kCell.GetSlider()->UI()->qtHorizontalSlider;

    QWidget *pkWrapper = kCell.findChild<QIntegerSliderWithRenameButton *>();
    VelaTest::wheel(pkWrapper, 3);
    QCOMPARE(kCell.GetValue(), 40);
    QVERIFY(kRecorder.kEvents.isEmpty());

    const QPoint kStart = ComboEditorTest::handleRect(pkSlider).center();
    const QPoint kEnd = kStart + QPoint(pkSlider->width() / 2, 0);
    QTest::mousePress(pkSlider, Qt::LeftButton, Qt::NoModifier, kStart);
    QVERIFY(kCell.IsEditing());
    VelaTest::mouseMove(pkSlider, kStart + QPoint(pkSlider->width() / 4, 0));
    VelaTest::mouseMove(pkSlider, kEnd);
    QTest::mouseRelease(pkSlider, Qt::LeftButton, Qt::NoModifier, kEnd);

    const QStringList &kEvents = kRecorder.kEvents;
    // One session: started, only values in between, the last one the final value, finished.
    QVERIFY(kEvents.size() >= 4);
    QCOMPARE(kEvents.filter(QStringLiteral("value ")).size(), kEvents.size() - 2);
    QCOMPARE(
        QStringList({ kEvents.first(), kEvents.at(kEvents.size() - 2), kEvents.last() }),
        QStringList({ "started", QStringLiteral("value %1").arg(kCell.GetValue()), "finished" }));
    QVERIFY(kCell.GetValue() > 40);
    QVERIFY(!kCell.IsEditing());
}

void tst_CKdFKModifyCellWidget::sessionRules()
{
    CKdFKModifyCellWidget kCell;
    SessionRecorder kRecorder(&kCell);

    kCell.OnSliderEditFinished(); // nothing to finish
    kCell.OnSliderValueChanged(12); // a change outside a session opens one
    kCell.OnSliderEditStarted(); // already open
    kCell.OnSliderValueChanged(13);
    QVERIFY(kCell.IsEditing());
    kCell.OnSliderEditFinished();
    kCell.OnSliderEditFinished();
    QVERIFY(!kCell.IsEditing());
    kCell.OnSliderEditStarted();
    // A double-click during a session sets its value and closes it.
    QMouseEvent kEvent(QEvent::MouseButtonDblClick, QPoint(5, 5), Qt::LeftButton, Qt::LeftButton,
                       Qt::NoModifier);
    QApplication::sendEvent(&kCell, &kEvent);
    QVERIFY(!kCell.IsEditing());

    QCOMPARE(kRecorder.kEvents,
             QStringList({ "started", "value 12", "value 13", "finished", "started", "value 0",
                           "finished" }));
}

void tst_CKdFKModifyCellWidget::doubleClickToggles_data()
{
    QTest::addColumn<int>("nBefore");
    QTest::addColumn<int>("nAfter");
    QTest::newRow("0 -> 100") << 0 << 100;
    QTest::newRow("100 -> 0") << 100 << 0;
}

void tst_CKdFKModifyCellWidget::doubleClickToggles()
{
    QFETCH(int, nBefore);
    QFETCH(int, nAfter);

    CKdFKModifyCellWidget kCell;
    kCell.SetItem(0, 0, QStringLiteral("Smile"), { -50, 100 }, { -50, 150 }, nullptr);
    kCell.SetValue(nBefore);
    QSignalSpy kComboSpy(kCell.GetSlider(), &QComboSpinBox::ValueChanged);
    SessionRecorder kRecorder(&kCell);

    // On the wrapper's name label, which passes the double-click up to the cell.
    QTest::mouseDClick(kCell.GetNameLabel(), Qt::LeftButton);

    QCOMPARE(kCell.GetValue(), nAfter);
    QCOMPARE(kRecorder.kEvents,
             QStringList({ "started", QStringLiteral("value %1").arg(nAfter), "finished" }));
    QCOMPARE(kComboSpy.count(), 0);
    QVERIFY(!kCell.IsEditing());
    QVERIFY(!kCell.GetSlider()->signalsBlocked());
}

VELA_TEST_CLASS(tst_CKdFKModifyCellWidget)
#include "tst_CKdFKModifyCellWidget.moc"
