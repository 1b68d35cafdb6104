#include "QVisemeListWidget.h"
#include "VelaTest.h"

#include <QDrag>
#include <QtTest>

class tst_QVisemeListWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_list.reset(); }
    void dragStartsAtTheStartDistance_data();
    void dragStartsAtTheStartDistance();
    void onlyLeftPressesOnAnItemStartDrags();

private:
    // The drags the list has started; each is deleted once the event loop runs again.
    QList<QDrag *> drags() const { return m_list->findChildren<QDrag *>(); }
    QPoint itemCenter(int row) const { return m_list->visualItemRect(m_list->item(row)).center(); }

    std::unique_ptr<QVisemeListWidget> m_list;
};

void tst_QVisemeListWidget::init()
{
    m_list.reset(new QVisemeListWidget);
    m_list->resize(160, 300);
    m_list->addItems({ QStringLiteral("AA"), QStringLiteral("EE"), QStringLiteral("OH") });
    m_list->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_list.get()));
}

// Pointer offsets from a press, with whether a drag starts there: one pixel short of the
// start-drag distance, and exactly at it diagonally (the distance is the Manhattan length).
void tst_QVisemeListWidget::dragStartsAtTheStartDistance_data()
{
    const int distance = QApplication::startDragDistance();
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<bool>("starts");
    QTest::newRow("one pixel short") << QPoint(0, -(distance - 1)) << false;
    QTest::newRow("exactly the distance, diagonal")
        << QPoint(-(distance / 2), -(distance - distance / 2)) << true;
}

void tst_QVisemeListWidget::dragStartsAtTheStartDistance()
{
    QFETCH(QPoint, offset);
    QFETCH(bool, starts);
    const QPoint start = itemCenter(1);
    QTest::mousePress(m_list->viewport(), Qt::LeftButton, Qt::NoModifier, start);
    VelaTest::mouseMove(m_list->viewport(), start + offset);
    QCOMPARE(drags().size(), starts ? 1 : 0);
    QTest::mouseRelease(m_list->viewport(), Qt::LeftButton, Qt::NoModifier, start + offset);
}

void tst_QVisemeListWidget::onlyLeftPressesOnAnItemStartDrags()
{
    // A press below the last item makes no item current: no drag.
    m_list->setCurrentItem(nullptr);
    const QPoint empty(20, m_list->viewport()->height() - 10);
    QTest::mousePress(m_list->viewport(), Qt::LeftButton, Qt::NoModifier, empty);
    VelaTest::mouseMove(m_list->viewport(), empty - QPoint(0, 40));
    QVERIFY(drags().isEmpty());
    QTest::mouseRelease(m_list->viewport(), Qt::LeftButton, Qt::NoModifier, empty);

    // A right press far away leaves the start where the left press put it. The drag carries the
    // payload the viseme curves take to name a slot (tst_QVisemeCurveWidgetLite).
    const int distance = QApplication::startDragDistance();
    const QPoint start = itemCenter(0);
    QTest::mouseClick(m_list->viewport(), Qt::LeftButton, Qt::NoModifier, start);
    const QPoint far = start + QPoint(0, distance);
    QTest::mouseClick(m_list->viewport(), Qt::RightButton, Qt::NoModifier, far);
    VelaTest::mouseMove(m_list->viewport(), far);
    QCOMPARE(drags().size(), 1);
    const QDrag *drag = drags().first();
    QCOMPARE(drag->source(), m_list.get());
    QCOMPARE(drag->supportedActions(), Qt::MoveAction);
    QCOMPARE(drag->mimeData()->formats(),
             QStringList({ "application/x-visemelistitem", "text/plain" }));
    QVERIFY(drag->mimeData()->data("application/x-visemelistitem").isEmpty());
    QCOMPARE(drag->mimeData()->text(), m_list->currentItem()->text());
    // Moving without the left button starts nothing.
    VelaTest::mouseMove(m_list->viewport(), far + QPoint(0, 30), Qt::RightButton);
    QCOMPARE(drags().size(), 1);
}

VELA_TEST_CLASS(tst_QVisemeListWidget)
#include "tst_QVisemeListWidget.moc"
