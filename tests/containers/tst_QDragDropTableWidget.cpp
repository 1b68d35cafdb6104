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
    void cleanup();

    void refusedWithoutInterfaceOrParent();
    void dropAsksInterface_data();
    void dropAsksInterface();
    void dragMoveKeepsEnterDecision();
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

void tst_QDragDropTableWidget::cleanup()
{
    delete m_window;
    m_window = nullptr;
    m_table = nullptr;
}

void tst_QDragDropTableWidget::refusedWithoutInterfaceOrParent()
{
    VelaDropTest::expectWindowRaised(3);
    const auto mimeData = VelaTest::fileMime(m_files);
    QVERIFY(!VelaTest::dragEnter(m_table->viewport(), cellCenter(0, 0), mimeData.get()));

    // A drag without links is refused without asking.
    m_table->SetInterface(&m_interface);
    QMimeData text;
    text.setText(QStringLiteral("Hero.fbx"));
    QVERIFY(!VelaTest::dragEnter(m_table->viewport(), cellCenter(0, 0), &text));

    // An interface withdrawn during the drag: the drop is ignored.
    {
        VelaDropTest::DragSession drag(m_table->viewport(), cellCenter(1, 0), mimeData.get());
        QVERIFY(drag.entered());
        m_table->SetInterface(nullptr);
        QVERIFY(!drag.drop(cellCenter(1, 0)));
    }
    QCOMPARE(m_interface.calls, QStringList { "CanDragEnter" });

    // A table without a parent refuses every drag without asking.
    m_interface.calls.clear();
    QDragDropTableWidget table;
    table.setAcceptDrops(true);
    table.resize(200, 200);
    table.SetInterface(&m_interface);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    QVERIFY(!VelaTest::dragEnter(table.viewport(), QPoint(150, 150), mimeData.get()));
    QVERIFY(m_interface.calls.isEmpty());
}

void tst_QDragDropTableWidget::dropAsksInterface_data()
{
    QTest::addColumn<int>("fileCount");
    QTest::addColumn<QPoint>("cell"); // (-1, -1): below the rows
    QTest::addColumn<bool>("enterAnswer");
    QTest::addColumn<bool>("dropAnswer");
    QTest::newRow("refused at the enter") << 1 << QPoint(1, 1) << false << true;
    QTest::newRow("three files, empty cell") << 3 << QPoint(0, 1) << true << true;
    QTest::newRow("one file, below the rows") << 1 << QPoint(-1, -1) << true << true;
    QTest::newRow("three files, on an item") << 3 << QPoint(1, 1) << true << true;
    QTest::newRow("refused on an item") << 3 << QPoint(2, 0) << true << false;
    QTest::newRow("refused on an empty cell") << 3 << QPoint(0, 1) << true << false;
}

// The host is asked at the enter with every file; at the drop, where there is no item with every
// file, on an item with the first file and the item.
void tst_QDragDropTableWidget::dropAsksInterface()
{
    QFETCH(int, fileCount);
    QFETCH(QPoint, cell);
    QFETCH(bool, enterAnswer);
    QFETCH(bool, dropAnswer);
    VelaDropTest::expectWindowRaised(enterAnswer ? 2 : 1);
    m_table->SetInterface(&m_interface);
    m_interface.enterAnswer = enterAnswer;
    m_interface.dropAnswer = dropAnswer;
    const QStringList files = m_files.mid(0, fileCount);
    const auto mimeData = VelaTest::fileMime(files);
    const QPoint pos = cell.x() < 0 ? QPoint(10, m_table->viewport()->height() - 5)
                                    : cellCenter(cell.x(), cell.y());
    QTableWidgetItem *item = cell.x() < 0 ? nullptr : m_table->item(cell.x(), cell.y());

    QCOMPARE(VelaTest::dropAt(m_table->viewport(), pos, mimeData.get()), enterAnswer && dropAnswer);
    QCOMPARE(QStringList(m_interface.files.first()), files);
    if (enterAnswer) {
        QCOMPARE(m_interface.calls,
                 QStringList({ "CanDragEnter", item ? "CanDropFile" : "CanDropFileList" }));
        QCOMPARE(QStringList(m_interface.files.at(1)), item ? QStringList(files.mid(0, 1)) : files);
        QCOMPARE(m_interface.item, item);
    } else {
        QCOMPARE(m_interface.calls, QStringList { "CanDragEnter" });
    }
}

void tst_QDragDropTableWidget::dragMoveKeepsEnterDecision()
{
    VelaDropTest::expectWindowRaised(2);
    m_table->SetInterface(&m_interface);
    const auto mimeData = VelaTest::fileMime(m_files.mid(0, 1));
    VelaDropTest::DragSession drag(m_table->viewport(), cellCenter(0, 1), mimeData.get());
    QVERIFY(drag.move(cellCenter(0, 0)));
    QVERIFY(drag.move(cellCenter(2, 1)));
    QVERIFY(drag.drop(cellCenter(2, 0)));
    QCOMPARE(m_interface.calls, QStringList({ "CanDragEnter", "CanDropFile" }));
    QCOMPARE(m_interface.item, m_table->item(2, 0));
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
