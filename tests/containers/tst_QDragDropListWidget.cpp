#include "QDragDropListWidget.h"
#include "VelaDropTest.h"
#include "VelaTest.h"

#include <QtTest>

namespace {

using RecordingListInterface =
    VelaDropTest::RecordingInterface<QDragDropListWidgetInterface, QListWidgetItem>;

constexpr int kDropTargetRole = Qt::UserRole + 10;

} // namespace

class tst_QDragDropListWidget : public QObject
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
    void dragMoveMarksTarget();
    void rightButton();

private:
    QPoint itemCenter(int row) const;
    QPoint emptySpace() const;

    QWidget *m_window = nullptr;
    QDragDropListWidget *m_list = nullptr;
    RecordingListInterface m_interface;
    QStringList m_files;
};

void tst_QDragDropListWidget::init()
{
    m_window = new QWidget;
    m_window->resize(240, 300);
    m_list = new QDragDropListWidget(m_window);
    m_list->setGeometry(0, 0, 240, 300);
    m_list->setAcceptDrops(true);
    m_list->addItems(
        { QStringLiteral("Walk.fbx"), QStringLiteral("Run.fbx"), QStringLiteral("Idle.fbx") });
    m_list->item(0)->setData(Qt::UserRole, 0);
    m_list->item(1)->setData(Qt::UserRole, 7);
    m_list->item(2)->setData(Qt::UserRole, -1);
    m_interface = RecordingListInterface();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
    m_files = QStringList { "/tmp/assets/a.png", "/tmp/b.fbx", "/tmp/c d.obj" };
}

void tst_QDragDropListWidget::cleanup()
{
    delete m_window;
    m_window = nullptr;
    m_list = nullptr;
}

QPoint tst_QDragDropListWidget::itemCenter(int row) const
{
    return m_list->visualItemRect(m_list->item(row)).center();
}

QPoint tst_QDragDropListWidget::emptySpace() const
{
    return QPoint(20, m_list->viewport()->height() - 5);
}

void tst_QDragDropListWidget::refusedWithoutInterfaceOrParent()
{
    VelaDropTest::expectWindowRaised(6);
    const auto mimeData = VelaTest::fileMime(m_files);
    QVERIFY(!VelaTest::dragEnter(m_list->viewport(), itemCenter(0), mimeData.get()));
    QVERIFY(!VelaTest::dragEnter(m_list->viewport(), emptySpace(), mimeData.get()));

    // An interface withdrawn during the drag: the drop is ignored, on an item and on empty space.
    for (const QPoint &pos : { itemCenter(0), emptySpace() }) {
        m_list->SetInterface(&m_interface);
        VelaDropTest::DragSession drag(m_list->viewport(), pos, mimeData.get());
        QVERIFY(drag.entered());
        m_list->SetInterface(nullptr);
        QVERIFY(!drag.drop(pos));
    }
    QCOMPARE(m_interface.calls, QStringList({ "CanDragEnter", "CanDragEnter" }));
    QCOMPARE(m_list->count(), 3);

    // A list without a parent refuses every drag, interface or not.
    m_interface.calls.clear();
    QDragDropListWidget list;
    list.setAcceptDrops(true);
    list.addItem(QStringLiteral("Walk.fbx"));
    list.resize(200, 200);
    list.SetInterface(&m_interface);
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));

    QVERIFY(!VelaTest::dragEnter(list.viewport(), list.visualItemRect(list.item(0)).center(),
                                 mimeData.get()));
    QVERIFY(!VelaTest::dragEnter(list.viewport(), QPoint(10, 190), mimeData.get()));
    QVERIFY(m_interface.calls.isEmpty());
}

void tst_QDragDropListWidget::dragEnterAsksInterface_data()
{
    QTest::addColumn<int>("fileCount");
    QTest::addColumn<bool>("answer");
    QTest::newRow("one file, accepted") << 1 << true;
    QTest::newRow("three files, refused") << 3 << false;
}

void tst_QDragDropListWidget::dragEnterAsksInterface()
{
    VelaDropTest::expectWindowRaised(1);
    QFETCH(int, fileCount);
    QFETCH(bool, answer);
    m_list->SetInterface(&m_interface);
    m_interface.enterAnswer = answer;

    const QStringList files = m_files.mid(0, fileCount);
    const auto mimeData = VelaTest::fileMime(files);
    QCOMPARE(VelaTest::dragEnter(m_list->viewport(), itemCenter(1), mimeData.get()), answer);
    QCOMPARE(m_interface.calls, QStringList { "CanDragEnter" });
    QCOMPARE(QStringList(m_interface.files.first()), files);

    // A drag without links is refused without asking.
    QMimeData text;
    text.setText(QStringLiteral("/tmp/a.png"));
    QVERIFY(!VelaTest::dragEnter(m_list->viewport(), itemCenter(0), &text));
    QCOMPARE(m_interface.calls.size(), 1);
}

void tst_QDragDropListWidget::dropOffersFiles_data()
{
    QTest::addColumn<int>("fileCount");
    QTest::addColumn<bool>("onItem");
    QTest::addColumn<bool>("answer");
    QTest::newRow("one file, empty space") << 1 << false << true;
    QTest::newRow("three files, empty space") << 3 << false << true;
    QTest::newRow("three files, on an item") << 3 << true << true;
    QTest::newRow("refused on empty space") << 3 << false << false;
    QTest::newRow("refused on an item") << 3 << true << false;
}

// On empty space the host is offered every file; on an item, the first file and the item. The
// drop is taken as the host answers.
void tst_QDragDropListWidget::dropOffersFiles()
{
    VelaDropTest::expectWindowRaised(2);
    QFETCH(int, fileCount);
    QFETCH(bool, onItem);
    QFETCH(bool, answer);
    m_list->SetInterface(&m_interface);
    m_interface.dropAnswer = answer;
    const QStringList files = m_files.mid(0, fileCount);
    const auto mimeData = VelaTest::fileMime(files);

    QCOMPARE(
        VelaTest::dropAt(m_list->viewport(), onItem ? itemCenter(1) : emptySpace(), mimeData.get()),
        answer);
    QCOMPARE(m_interface.calls,
             QStringList({ "CanDragEnter", onItem ? "CanDropFile" : "CanDropFileList" }));
    QCOMPARE(QStringList(m_interface.files.at(1)), onItem ? QStringList(files.mid(0, 1)) : files);
    QCOMPARE(m_interface.item, onItem ? m_list->item(1) : nullptr);
    // The list adds nothing itself: that is the host's business.
    QCOMPARE(m_list->count(), 3);
}

void tst_QDragDropListWidget::dragMoveMarksTarget()
{
    VelaDropTest::expectWindowRaised(3);
    m_list->SetInterface(&m_interface);
    const auto mimeData = VelaTest::fileMime(m_files.mid(0, 1));
    VelaDropTest::DragSession drag(m_list->viewport(), emptySpace(), mimeData.get());

    QVERIFY(drag.move(itemCenter(1)));
    QCOMPARE(m_list->item(1)->data(kDropTargetRole).toBool(), true);
    QCOMPARE(m_list->item(0)->data(kDropTargetRole).toBool(), false);

    QVERIFY(drag.move(itemCenter(0)));
    QCOMPARE(m_list->item(0)->data(kDropTargetRole).toBool(), true);
    QCOMPARE(m_list->item(1)->data(kDropTargetRole).toBool(), false);

    // Empty space takes drops too, and no item stays marked.
    QVERIFY(drag.move(emptySpace()));
    for (int row = 0; row < m_list->count(); ++row)
        QCOMPARE(m_list->item(row)->data(kDropTargetRole).toBool(), false);

    // The mark of the last move stays after the drop.
    QVERIFY(drag.move(itemCenter(1)));
    QVERIFY(drag.drop(itemCenter(1)));
    QCOMPARE(m_list->item(1)->data(kDropTargetRole).toBool(), true);

    // An item of negative data refuses the drag, and unmarks the one before.
    const auto second = VelaTest::fileMime(m_files.mid(0, 1));
    VelaDropTest::DragSession other(m_list->viewport(), emptySpace(), second.get());
    QVERIFY(other.move(itemCenter(1)));
    QVERIFY(!other.move(itemCenter(2)));
    QCOMPARE(m_list->item(2)->data(kDropTargetRole).toBool(), false);
    QCOMPARE(m_list->item(1)->data(kDropTargetRole).toBool(), false);
    QVERIFY(other.move(itemCenter(0)));
}

void tst_QDragDropListWidget::rightButton()
{
    m_list->setCurrentRow(0);
    // Without an interface as with one.
    QTest::mouseClick(m_list->viewport(), Qt::RightButton, Qt::NoModifier, itemCenter(1));
    m_list->SetInterface(&m_interface);
    QTest::mousePress(m_list->viewport(), Qt::RightButton, Qt::NoModifier, itemCenter(2));
    QCOMPARE(m_list->currentRow(), 0);
    QTest::mouseRelease(m_list->viewport(), Qt::RightButton, Qt::NoModifier, itemCenter(2));
    QCOMPARE(m_list->currentRow(), 0);
    QCOMPARE(m_list->selectedItems(), QList<QListWidgetItem *> { m_list->item(0) });

    QTest::mouseClick(m_list->viewport(), Qt::LeftButton, Qt::NoModifier, itemCenter(2));
    QCOMPARE(m_list->currentRow(), 2);
    // The right release, not the left one, called the interface.
    QCOMPARE(m_interface.calls, QStringList { "MouseRButtonRelease" });
}

VELA_TEST_CLASS(tst_QDragDropListWidget)
#include "tst_QDragDropListWidget.moc"
