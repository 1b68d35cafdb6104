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
    void dragEnterAsksInterface_data();
    void dragEnterAsksInterface();
    void dropOffersFiles_data();
    void dropOffersFiles();
    void dragMoveKeepsEnterDecision();
    void rightButton();

private:
    QPoint cellCenter(int row, int column) const;

    QWidget *m_window = nullptr;
    QDragDropTableWidget *m_table = nullptr;
    RecordingTableInterface m_interface;
    QStringList m_files;
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
    // Cell (0, 1) stays without an item.
    m_table->setItem(0, 0, new QTableWidgetItem(QStringLiteral("Hero.fbx")));
    m_table->setItem(1, 0, new QTableWidgetItem(QStringLiteral("Villain.fbx")));
    m_table->setItem(1, 1, new QTableWidgetItem(QStringLiteral("villain_diffuse.png")));
    m_table->setItem(2, 0, new QTableWidgetItem(QStringLiteral("Crowd.fbx")));
    m_interface = RecordingTableInterface();
    m_files = QStringList { "/tmp/assets/a.png", "/tmp/b.fbx", "/tmp/c d.obj" };
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
}

void tst_QDragDropTableWidget::cleanup()
{
    delete m_window;
    m_window = nullptr;
    m_table = nullptr;
}

QPoint tst_QDragDropTableWidget::cellCenter(int row, int column) const
{
    return m_table->visualRect(m_table->model()->index(row, column)).center();
}

void tst_QDragDropTableWidget::refusedWithoutInterfaceOrParent()
{
    VelaDropTest::expectWindowRaised(3);
    const auto mimeData = VelaTest::fileMime(m_files);
    QVERIFY(!VelaTest::dragEnter(m_table->viewport(), cellCenter(0, 0), mimeData.get()));

    // An interface withdrawn during the drag: the drop is ignored.
    m_table->SetInterface(&m_interface);
    VelaDropTest::DragSession drag(m_table->viewport(), cellCenter(1, 0), mimeData.get());
    QVERIFY(drag.entered());
    m_table->SetInterface(nullptr);
    QVERIFY(!drag.drop(cellCenter(1, 0)));
    QCOMPARE(m_interface.calls, QStringList { "CanDragEnter" });
    QCOMPARE(m_table->item(1, 0)->text(), QStringLiteral("Villain.fbx"));

    // A table without a parent refuses every drag, interface or not.
    m_interface.calls.clear();
    QDragDropTableWidget table;
    table.setAcceptDrops(true);
    table.setRowCount(1);
    table.setColumnCount(1);
    table.setItem(0, 0, new QTableWidgetItem(QStringLiteral("Hero.fbx")));
    table.resize(200, 200);
    table.SetInterface(&m_interface);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));

    QVERIFY(!VelaTest::dragEnter(table.viewport(), QPoint(5, 5), mimeData.get()));
    QVERIFY(!VelaTest::dragEnter(table.viewport(), QPoint(150, 150), mimeData.get()));
    QVERIFY(m_interface.calls.isEmpty());
}

void tst_QDragDropTableWidget::dragEnterAsksInterface_data()
{
    QTest::addColumn<int>("fileCount");
    QTest::addColumn<bool>("answer");
    QTest::newRow("three files, accepted") << 3 << true;
    QTest::newRow("one file, refused") << 1 << false;
}

void tst_QDragDropTableWidget::dragEnterAsksInterface()
{
    QFETCH(int, fileCount);
    QFETCH(bool, answer);
    VelaDropTest::expectWindowRaised(1);
    m_table->SetInterface(&m_interface);
    m_interface.enterAnswer = answer;

    const QStringList files = m_files.mid(0, fileCount);
    const auto mimeData = VelaTest::fileMime(files);
    QCOMPARE(VelaTest::dragEnter(m_table->viewport(), cellCenter(0, 0), mimeData.get()), answer);
    QCOMPARE(m_interface.calls, QStringList { "CanDragEnter" });
    QCOMPARE(QStringList(m_interface.files.first()), files);

    // A drag without links is refused without asking.
    QMimeData text;
    text.setText(QStringLiteral("Hero.fbx"));
    QVERIFY(!VelaTest::dragEnter(m_table->viewport(), cellCenter(0, 0), &text));
    QCOMPARE(m_interface.calls.size(), 1);
}

void tst_QDragDropTableWidget::dropOffersFiles_data()
{
    QTest::addColumn<int>("fileCount");
    QTest::addColumn<QPoint>("cell"); // (-1, -1): below the rows
    QTest::addColumn<bool>("answer");
    QTest::newRow("three files, empty cell") << 3 << QPoint(0, 1) << true;
    QTest::newRow("one file, below the rows") << 1 << QPoint(-1, -1) << true;
    QTest::newRow("three files, on an item") << 3 << QPoint(1, 1) << true;
    QTest::newRow("refused on an item") << 3 << QPoint(2, 0) << false;
    QTest::newRow("refused on an empty cell") << 3 << QPoint(0, 1) << false;
}

// Where there is no item the host is offered every file; on an item, the first file and the
// item. The drop is taken as the host answers.
void tst_QDragDropTableWidget::dropOffersFiles()
{
    QFETCH(int, fileCount);
    QFETCH(QPoint, cell);
    QFETCH(bool, answer);
    VelaDropTest::expectWindowRaised(2);
    m_table->SetInterface(&m_interface);
    m_interface.dropAnswer = answer;
    const QStringList files = m_files.mid(0, fileCount);
    const auto mimeData = VelaTest::fileMime(files);
    const QPoint pos = cell.x() < 0 ? QPoint(10, m_table->viewport()->height() - 5)
                                    : cellCenter(cell.x(), cell.y());
    QTableWidgetItem *item = cell.x() < 0 ? nullptr : m_table->item(cell.x(), cell.y());

    QCOMPARE(VelaTest::dropAt(m_table->viewport(), pos, mimeData.get()), answer);
    QCOMPARE(m_interface.calls,
             QStringList({ "CanDragEnter", item ? "CanDropFile" : "CanDropFileList" }));
    QCOMPARE(QStringList(m_interface.files.at(1)), item ? QStringList(files.mid(0, 1)) : files);
    QCOMPARE(m_interface.item, item);
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
    m_table->setCurrentCell(0, 0);
    QTest::mouseClick(m_table->viewport(), Qt::RightButton, Qt::NoModifier, cellCenter(2, 0));
    QCOMPARE(m_table->currentRow(), 0);
    QCOMPARE(m_table->selectedItems(), QList<QTableWidgetItem *> { m_table->item(0, 0) });

    QTest::mouseClick(m_table->viewport(), Qt::LeftButton, Qt::NoModifier, cellCenter(2, 0));
    QCOMPARE(m_table->currentRow(), 2);

    // A right release, never a left one, calls the interface while it is set.
    QVERIFY(m_interface.calls.isEmpty());
    m_table->SetInterface(&m_interface);
    QTest::mouseClick(m_table->viewport(), Qt::RightButton, Qt::NoModifier, cellCenter(1, 0));
    QCOMPARE(m_interface.calls, QStringList { "MouseRButtonRelease" });

    m_table->SetInterface(nullptr);
    QTest::mouseClick(m_table->viewport(), Qt::RightButton, Qt::NoModifier, cellCenter(1, 0));
    QCOMPARE(m_interface.calls.size(), 1);
}

VELA_TEST_CLASS(tst_QDragDropTableWidget)
#include "tst_QDragDropTableWidget.moc"
