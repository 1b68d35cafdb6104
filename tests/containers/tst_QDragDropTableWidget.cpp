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

    void noParentRefusesEveryDrag();
    void noInterfaceAcceptsNothing();
    void dragEnterAsksInterface_data();
    void dragEnterAsksInterface();
    void dragWithoutLinksIsRefused();
    void dropWhereNoItemOffersAllFiles_data();
    void dropWhereNoItemOffersAllFiles();
    void dropOnItemOffersFirstFile();
    void refusedDropIsIgnored();
    void dragMoveKeepsEnterDecision();
    void rightPressKeepsSelection();
    void rightReleaseCallsInterface();

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
    m_files = QStringList { QStringLiteral("/tmp/assets/a.png"), QStringLiteral("/tmp/b.fbx"),
                            QStringLiteral("/tmp/c d.obj") };
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

void tst_QDragDropTableWidget::noParentRefusesEveryDrag()
{
    QDragDropTableWidget table;
    table.setAcceptDrops(true);
    table.setRowCount(1);
    table.setColumnCount(1);
    table.setItem(0, 0, new QTableWidgetItem(QStringLiteral("Hero.fbx")));
    table.resize(200, 200);
    table.SetInterface(&m_interface);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));

    const auto mimeData = VelaTest::fileMime(m_files);
    QVERIFY(!VelaTest::dragEnter(table.viewport(), QPoint(5, 5), mimeData.get()));
    QVERIFY(!VelaTest::dragEnter(table.viewport(), QPoint(150, 150), mimeData.get()));
    QVERIFY(m_interface.calls.isEmpty());
}

void tst_QDragDropTableWidget::noInterfaceAcceptsNothing()
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
    QCOMPARE(m_interface.calls, QStringList { QStringLiteral("CanDragEnter") });
    QCOMPARE(m_table->item(1, 0)->text(), QStringLiteral("Villain.fbx"));
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
    QCOMPARE(m_interface.calls, QStringList { QStringLiteral("CanDragEnter") });
    QCOMPARE(QStringList(m_interface.files.first()), files);
}

void tst_QDragDropTableWidget::dragWithoutLinksIsRefused()
{
    m_table->SetInterface(&m_interface);
    QMimeData text;
    text.setText(QStringLiteral("Hero.fbx"));
    QVERIFY(!VelaTest::dragEnter(m_table->viewport(), cellCenter(0, 0), &text));
    QVERIFY(m_interface.calls.isEmpty());
}

void tst_QDragDropTableWidget::dropWhereNoItemOffersAllFiles_data()
{
    QTest::addColumn<int>("fileCount");
    QTest::addColumn<bool>("belowRows");
    QTest::newRow("three files, empty cell") << 3 << false;
    QTest::newRow("one file, below the rows") << 1 << true;
}

void tst_QDragDropTableWidget::dropWhereNoItemOffersAllFiles()
{
    QFETCH(int, fileCount);
    QFETCH(bool, belowRows);
    VelaDropTest::expectWindowRaised(2);
    m_table->SetInterface(&m_interface);
    const QStringList files = m_files.mid(0, fileCount);
    const auto mimeData = VelaTest::fileMime(files);
    const QPoint pos = belowRows ? QPoint(10, m_table->viewport()->height() - 5) : cellCenter(0, 1);

    QVERIFY(VelaTest::dropAt(m_table->viewport(), pos, mimeData.get()));
    QCOMPARE(m_interface.calls,
             QStringList({ QStringLiteral("CanDragEnter"), QStringLiteral("CanDropFileList") }));
    QCOMPARE(QStringList(m_interface.files.at(1)), files);
}

void tst_QDragDropTableWidget::dropOnItemOffersFirstFile()
{
    VelaDropTest::expectWindowRaised(2);
    m_table->SetInterface(&m_interface);
    const auto mimeData = VelaTest::fileMime(m_files);

    QVERIFY(VelaTest::dropAt(m_table->viewport(), cellCenter(1, 1), mimeData.get()));
    QCOMPARE(m_interface.calls,
             QStringList({ QStringLiteral("CanDragEnter"), QStringLiteral("CanDropFile") }));
    QCOMPARE(QStringList(m_interface.files.at(1)), QStringList { m_files.first() });
    QCOMPARE(m_interface.item, m_table->item(1, 1));
}

void tst_QDragDropTableWidget::refusedDropIsIgnored()
{
    VelaDropTest::expectWindowRaised(4);
    m_table->SetInterface(&m_interface);
    m_interface.dropAnswer = false;
    const auto mimeData = VelaTest::fileMime(m_files);
    QVERIFY(!VelaTest::dropAt(m_table->viewport(), cellCenter(2, 0), mimeData.get()));
    QVERIFY(!VelaTest::dropAt(m_table->viewport(), cellCenter(0, 1), mimeData.get()));
    QCOMPARE(m_interface.calls,
             QStringList({ QStringLiteral("CanDragEnter"), QStringLiteral("CanDropFile"),
                           QStringLiteral("CanDragEnter"), QStringLiteral("CanDropFileList") }));
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
    QCOMPARE(m_interface.calls,
             QStringList({ QStringLiteral("CanDragEnter"), QStringLiteral("CanDropFile") }));
    QCOMPARE(m_interface.item, m_table->item(2, 0));
}

void tst_QDragDropTableWidget::rightPressKeepsSelection()
{
    m_table->setCurrentCell(0, 0);
    QTest::mouseClick(m_table->viewport(), Qt::RightButton, Qt::NoModifier, cellCenter(2, 0));
    QCOMPARE(m_table->currentRow(), 0);
    QCOMPARE(m_table->selectedItems(), QList<QTableWidgetItem *> { m_table->item(0, 0) });

    QTest::mouseClick(m_table->viewport(), Qt::LeftButton, Qt::NoModifier, cellCenter(2, 0));
    QCOMPARE(m_table->currentRow(), 2);
}

void tst_QDragDropTableWidget::rightReleaseCallsInterface()
{
    m_table->SetInterface(&m_interface);
    QTest::mouseClick(m_table->viewport(), Qt::LeftButton, Qt::NoModifier, cellCenter(1, 0));
    QVERIFY(m_interface.calls.isEmpty());
    QTest::mouseClick(m_table->viewport(), Qt::RightButton, Qt::NoModifier, cellCenter(1, 0));
    QCOMPARE(m_interface.calls, QStringList { QStringLiteral("MouseRButtonRelease") });

    m_table->SetInterface(nullptr);
    QTest::mouseClick(m_table->viewport(), Qt::RightButton, Qt::NoModifier, cellCenter(1, 0));
    QCOMPARE(m_interface.calls.size(), 1);
}

VELA_TEST_CLASS(tst_QDragDropTableWidget)
#include "tst_QDragDropTableWidget.moc"
