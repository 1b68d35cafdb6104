#include "QDiphoneListWidget.h"
#include "VelaTest.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QtTest>

#include <functional>

class tst_QDiphoneListWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_list.reset(); }
    void deleteAsksForCurrentRow_data();
    void deleteAsksForCurrentRow();

private:
    // Sends a right-click context menu request at pos and lets `choose` act on the open menu;
    // returns whether a menu came up.
    bool requestMenu(QPoint pos, std::function<void(QMenu *)> choose);

    std::unique_ptr<QDiphoneListWidget> m_list;
};

void tst_QDiphoneListWidget::init()
{
    m_list.reset(new QDiphoneListWidget);
    m_list->resize(160, 240);
    m_list->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_list.get()));
}

bool tst_QDiphoneListWidget::requestMenu(QPoint pos, std::function<void(QMenu *)> choose)
{
    bool seen = false;
    QTimer::singleShot(0, this, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        seen = menu != nullptr;
        if (menu)
            choose(menu);
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, m_list->viewport()->mapToGlobal(pos));
    QApplication::sendEvent(m_list->viewport(), &event);
    if (!seen) // no menu ran: let the timer go by
        QCoreApplication::processEvents();
    return seen;
}

void tst_QDiphoneListWidget::deleteAsksForCurrentRow_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<QPoint>("pos");
    QTest::newRow("row 2, clicked on row 0") << 2 << QPoint(20, 5);
    QTest::newRow("row 1, over empty space") << 1 << QPoint(20, 200);
}

void tst_QDiphoneListWidget::deleteAsksForCurrentRow()
{
    QFETCH(int, current);
    QFETCH(QPoint, pos);
    QSignalSpy spy(m_list.get(), &QDiphoneListWidget::DeleteCurrentRow);
    // An empty list opens no menu.
    QVERIFY(!requestMenu(pos, [](QMenu *menu) { menu->close(); }));
    m_list->addItems(
        { QStringLiteral("AA-EE"), QStringLiteral("EE-OH"), QStringLiteral("OH-MBP") });
    m_list->setCurrentRow(current);
    QVERIFY(requestMenu(pos, [](QMenu *menu) {
        QCOMPARE(menu->actions().size(), 1);
        QAction *action = menu->actions().first();
        QCOMPARE(action->text(), QStringLiteral("Delete"));
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                          menu->actionGeometry(action).center());
    }));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), current);
    // The owner removes the row; the list itself keeps it.
    QCOMPARE(m_list->count(), 3);
}

VELA_TEST_CLASS(tst_QDiphoneListWidget)
#include "tst_QDiphoneListWidget.moc"
