#include "QDiphoneListWidget.h"
#include "VelaTest.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

class tst_QDiphoneListWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void menu();
    void deleteAsksForCurrentRow_data();
    void deleteAsksForCurrentRow();
    void menuIsMadeForEveryRequest();

private:
    // Sends a right-click context menu request at pos and lets `choose` act on the open menu.
    void requestMenu(QPoint pos, std::function<void(QMenu *)> choose);

    std::unique_ptr<QDiphoneListWidget> m_list;
};

void tst_QDiphoneListWidget::init()
{
    m_list.reset(new QDiphoneListWidget);
    m_list->resize(160, 240);
    m_list->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_list.get()));
}

void tst_QDiphoneListWidget::cleanup()
{
    m_list.reset();
}

void tst_QDiphoneListWidget::requestMenu(QPoint pos, std::function<void(QMenu *)> choose)
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
}

void tst_QDiphoneListWidget::menu()
{
    QSignalSpy spy(m_list.get(), &QDiphoneListWidget::DeleteCurrentRow);
    bool opened = false;
    requestMenu(QPoint(20, 20), [&](QMenu *menu) {
        opened = true;
        menu->close();
    });
    QVERIFY(!opened);
    QVERIFY(m_list->findChildren<QMenu *>().isEmpty());
    QCOMPARE(spy.count(), 0);

    // With a row, the menu offers Delete.
    m_list->addItems({ QStringLiteral("AA-EE") });
    QString styleSheet;
    QStringList texts;
    requestMenu(QPoint(20, 20), [&](QMenu *menu) {
        styleSheet = menu->styleSheet();
        for (const QAction *action : menu->actions())
            texts << action->text();
        QCOMPARE(menu->parent(), m_list.get());
        menu->close();
    });
    QCOMPARE(
        styleSheet,
        QStringLiteral("QMenu { color:black; background-color:#EEE;}")
            + QString(31, QLatin1Char(' '))
            + QStringLiteral("QMenu::item:selected { color:white; background-color:#717171;}"));
    QCOMPARE(texts, QStringList(QStringLiteral("Delete")));
}

void tst_QDiphoneListWidget::deleteAsksForCurrentRow_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<QPoint>("pos");
    QTest::newRow("row 2, clicked on row 0") << 2 << QPoint(20, 5);
    QTest::newRow("row 1, over empty space") << 1 << QPoint(20, 200);
    QTest::newRow("no current row") << -1 << QPoint(20, 5);
}

void tst_QDiphoneListWidget::deleteAsksForCurrentRow()
{
    QFETCH(int, current);
    QFETCH(QPoint, pos);
    m_list->addItems(
        { QStringLiteral("AA-EE"), QStringLiteral("EE-OH"), QStringLiteral("OH-MBP") });
    if (current < 0) {
        // A focused list makes its first row current when focus comes back from the menu.
        m_list->setFocusPolicy(Qt::NoFocus);
        m_list->clearFocus();
    }
    m_list->setCurrentRow(current);
    QSignalSpy spy(m_list.get(), &QDiphoneListWidget::DeleteCurrentRow);
    requestMenu(pos, [](QMenu *menu) {
        QAction *action = menu->actions().value(0);
        QVERIFY(action);
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                          menu->actionGeometry(action).center());
    });
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), current);
    // The owner removes the row; the list itself keeps it.
    QCOMPARE(m_list->count(), 3);
}

void tst_QDiphoneListWidget::menuIsMadeForEveryRequest()
{
    m_list->addItems({ QStringLiteral("AA-EE") });
    m_list->setCurrentRow(0);
    QSignalSpy spy(m_list.get(), &QDiphoneListWidget::DeleteCurrentRow);
    // A dismissed menu asks nothing.
    QMenu *first = nullptr;
    requestMenu(QPoint(20, 5), [&](QMenu *menu) {
        first = menu;
        QTest::keyClick(menu, Qt::Key_Escape);
    });
    QCOMPARE(spy.count(), 0);
    requestMenu(QPoint(20, 5), [&](QMenu *menu) {
        QVERIFY(menu != first);
        menu->actions().value(0)->trigger();
        menu->close();
    });
    QCOMPARE(m_list->findChildren<QMenu *>().size(), 2);
    // Each menu's action reaches the list once.
    QCOMPARE(spy.count(), 1);
}

VELA_TEST_CLASS(tst_QDiphoneListWidget)
#include "tst_QDiphoneListWidget.moc"
