#include "QDragDropTableWidget.h"
#include "VelaDropTest.h"
#include "VelaTest.h"

#include <QtTest>

using RecordingTableInterface =
    VelaDropTest::RecordingInterface<QDragDropTableWidgetInterface, QTableWidgetItem>;

class tst_QDragDropTableWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { delete m_window; }

    void dropAsksInterface_data();
    void dropAsksInterface();
    void rightButton();

private:
    QPoint cellCenter(int row, int column) const
    {
        return m_table->visualRect(m_table->model()->index(row, column)).center();
    }

    QWidget *m_window = nullptr;
    QDragDropTableWidget *m_table = nullptr;
    RecordingTableInterface m_interface;
    const QStringList m_files { "/tmp/assets/a.png", "/tmp/b.fbx", "/tmp/c d.obj" };
};

void tst_QDragDropTableWidget::init()
{
    m_window = new QWidget;
    m_window->resize(320, 300);
    m_table = new QDragDropTableWidget(m_window);
    m_table->setGeometry(0, 0, 320, 300);
    m_table->setAcceptDrops(true);
    m_table->setRowCount(3);
    m_table->setColumnCount(2);
    // Cells (0, 1) and (2, 1) stay without an item.
    m_table->setItem(0, 0, new QTableWidgetItem(QStringLiteral("Hero.fbx")));
    m_table->setItem(1, 0, new QTableWidgetItem(QStringLiteral("Villain.fbx")));
    m_table->setItem(1, 1, new QTableWidgetItem(QStringLiteral("villain_diffuse.png")));
    m_table->setItem(2, 0, new QTableWidgetItem(QStringLiteral("Crowd.fbx")));
    m_interface = RecordingTableInterface();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
}

// The rules for files and the host's answers are the list's (tst_QDragDropListWidget); here, which
// cell a drop lands on: the host is offered every file on a cell without an item, the first file
// and the item on an item.
void tst_QDragDropTableWidget::dropAsksInterface_data()
{
    QTest::addColumn<QPoint>("cell");
    QTest::newRow("empty cell") << QPoint(0, 1);
    QTest::newRow("on an item") << QPoint(1, 1);
}

void tst_QDragDropTableWidget::dropAsksInterface()
{
    QFETCH(QPoint, cell);
    VelaDropTest::expectWindowRaised(2);
    m_table->SetInterface(&m_interface);
    const auto mimeData = VelaTest::fileMime(m_files);
    QTableWidgetItem *item = m_table->item(cell.x(), cell.y());

    // The moves before the drop keep the decision of the enter, wherever they go.
    VelaDropTest::DragSession drag(m_table->viewport(), cellCenter(0, 1), mimeData.get());
    QVERIFY(drag.move(cellCenter(0, 0)));
    QVERIFY(drag.move(cellCenter(2, 1)));
    QVERIFY(drag.drop(cellCenter(cell.x(), cell.y())));
    QCOMPARE(m_interface.calls,
             QStringList({ "CanDragEnter", item ? "CanDropFile" : "CanDropFileList" }));
    QCOMPARE(QStringList(m_interface.files.at(1)), item ? QStringList(m_files.first()) : m_files);
    QCOMPARE(m_interface.item, item);
}

void tst_QDragDropTableWidget::rightButton()
{
    // A right click neither selects nor makes current; its release, never a left one, calls the
    // interface while it is set.
    m_table->setCurrentCell(0, 0);
    QTest::mouseClick(m_table->viewport(), Qt::RightButton, Qt::NoModifier, cellCenter(2, 0));
    QCOMPARE(m_table->currentRow(), 0);
    QCOMPARE(m_table->selectedItems(), QList<QTableWidgetItem *> { m_table->item(0, 0) });
    m_table->SetInterface(&m_interface);
    QTest::mouseClick(m_table->viewport(), Qt::LeftButton, Qt::NoModifier, cellCenter(2, 0));
    QCOMPARE(m_table->currentRow(), 2);
    QTest::mouseClick(m_table->viewport(), Qt::RightButton, Qt::NoModifier, cellCenter(1, 0));
    m_table->SetInterface(nullptr);
    QTest::mouseClick(m_table->viewport(), Qt::RightButton, Qt::NoModifier, cellCenter(1, 0));
    QCOMPARE(m_interface.calls, QStringList { "MouseRButtonRelease" });
}

VELA_TEST_CLASS(tst_QDragDropTableWidget)
#include "tst_QDragDropTableWidget.moc"
