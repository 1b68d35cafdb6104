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
    void cleanup() { delete m_window; }

    void refusedWithoutInterfaceOrParent();
    void dropAsksInterface_data();
    void dropAsksInterface();
    void dragMoveMarksTarget();
    void rightButton();

private:
    QPoint itemCenter(int row) const { return m_list->visualItemRect(m_list->item(row)).center(); }
    QPoint emptySpace() const { return QPoint(20, m_list->viewport()->height() - 5); }
    bool marked(int row) const { return m_list->item(row)->data(kDropTargetRole).toBool(); }

    QWidget *m_window = nullptr;
    QDragDropListWidget *m_list = nullptr;
    RecordingListInterface m_interface;
    const QStringList m_files { "/tmp/assets/a.png", "/tmp/b.fbx", "/tmp/c d.obj" };
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
}

void tst_QDragDropListWidget::refusedWithoutInterfaceOrParent()
{
    VelaDropTest::expectWindowRaised(3);
    const auto mimeData = VelaTest::fileMime(m_files);
    QVERIFY(!VelaTest::dragEnter(m_list->viewport(), itemCenter(0), mimeData.get()));

    // A drag without links is refused without asking.
    m_list->SetInterface(&m_interface);
    QMimeData text;
    text.setText(m_files.first());
    QVERIFY(!VelaTest::dragEnter(m_list->viewport(), itemCenter(0), &text));

    // An interface withdrawn during the drag: the drop is ignored.
    {
        VelaDropTest::DragSession drag(m_list->viewport(), emptySpace(), mimeData.get());
        QVERIFY(drag.entered());
        m_list->SetInterface(nullptr);
        QVERIFY(!drag.drop(emptySpace()));
    }
    QCOMPARE(m_interface.calls, QStringList { "CanDragEnter" });

    // A list without a parent refuses every drag without asking.
    m_interface.calls.clear();
    QDragDropListWidget list;
    list.setAcceptDrops(true);
    list.resize(200, 200);
    list.SetInterface(&m_interface);
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    QVERIFY(!VelaTest::dragEnter(list.viewport(), QPoint(10, 190), mimeData.get()));
    QVERIFY(m_interface.calls.isEmpty());
}

void tst_QDragDropListWidget::dropAsksInterface_data()
{
    QTest::addColumn<int>("fileCount");
    QTest::addColumn<bool>("onItem");
    QTest::addColumn<bool>("enterAnswer");
    QTest::addColumn<bool>("dropAnswer");
    QTest::newRow("refused at the enter") << 1 << true << false << true;
    QTest::newRow("three files, empty space") << 3 << false << true << true;
    QTest::newRow("three files, on an item") << 3 << true << true << true;
    QTest::newRow("refused on an item") << 3 << true << true << false;
}

// The host is asked at the enter with every file; at the drop, on empty space with every file,
// on an item with the first file and the item. The list adds nothing itself.
void tst_QDragDropListWidget::dropAsksInterface()
{
    QFETCH(int, fileCount);
    QFETCH(bool, onItem);
    QFETCH(bool, enterAnswer);
    QFETCH(bool, dropAnswer);
    VelaDropTest::expectWindowRaised(enterAnswer ? 2 : 1);
    m_list->SetInterface(&m_interface);
    m_interface.enterAnswer = enterAnswer;
    m_interface.dropAnswer = dropAnswer;
    const QStringList files = m_files.mid(0, fileCount);
    const auto mimeData = VelaTest::fileMime(files);

    QCOMPARE(
        VelaTest::dropAt(m_list->viewport(), onItem ? itemCenter(1) : emptySpace(), mimeData.get()),
        enterAnswer && dropAnswer);
    QCOMPARE(QStringList(m_interface.files.first()), files);
    if (enterAnswer) {
        QCOMPARE(m_interface.calls,
                 QStringList({ "CanDragEnter", onItem ? "CanDropFile" : "CanDropFileList" }));
        QCOMPARE(QStringList(m_interface.files.at(1)),
                 onItem ? QStringList(files.mid(0, 1)) : files);
        QCOMPARE(m_interface.item, onItem ? m_list->item(1) : nullptr);
    } else {
        QCOMPARE(m_interface.calls, QStringList { "CanDragEnter" });
    }
    QCOMPARE(m_list->count(), 3);
}

void tst_QDragDropListWidget::dragMoveMarksTarget()
{
    VelaDropTest::expectWindowRaised(2);
    m_list->SetInterface(&m_interface);
    const auto mimeData = VelaTest::fileMime(m_files.mid(0, 1));
    VelaDropTest::DragSession drag(m_list->viewport(), emptySpace(), mimeData.get());
    QVERIFY(drag.move(itemCenter(1)));
    QVERIFY(drag.move(itemCenter(0)));
    QVERIFY(marked(0) && !marked(1));
    // An item of negative data refuses the drag, and unmarks the one before.
    QVERIFY(!drag.move(itemCenter(2)));
    QVERIFY(!marked(2) && !marked(0));
    // Empty space takes drops too; the mark of the last move stays after the drop.
    QVERIFY(drag.move(emptySpace()));
    QVERIFY(drag.move(itemCenter(1)));
    QVERIFY(drag.drop(itemCenter(1)));
    QVERIFY(marked(1));
}

void tst_QDragDropListWidget::rightButton()
{
    // A right click neither selects nor makes current; its release, not a left one, calls the
    // interface.
    m_list->setCurrentRow(0);
    QTest::mouseClick(m_list->viewport(), Qt::RightButton, Qt::NoModifier, itemCenter(1));
    m_list->SetInterface(&m_interface);
    QTest::mouseClick(m_list->viewport(), Qt::RightButton, Qt::NoModifier, itemCenter(2));
    QCOMPARE(m_list->currentRow(), 0);
    QCOMPARE(m_list->selectedItems(), QList<QListWidgetItem *> { m_list->item(0) });
    QTest::mouseClick(m_list->viewport(), Qt::LeftButton, Qt::NoModifier, itemCenter(2));
    QCOMPARE(m_list->currentRow(), 2);
    QCOMPARE(m_interface.calls, QStringList { "MouseRButtonRelease" });
}

VELA_TEST_CLASS(tst_QDragDropListWidget)
#include "tst_QDragDropListWidget.moc"
