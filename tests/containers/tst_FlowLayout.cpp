#include "FlowLayout.h"
#include "VelaTest.h"

#include <QStyle>
#include <QVBoxLayout>
#include <QtTest>

// A layout item of fixed size that counts its own destruction.
class CountedItem : public QSpacerItem
{
public:
    CountedItem(int w, int h, int *deleted)
        : QSpacerItem(w, h, QSizePolicy::Fixed, QSizePolicy::Fixed)
        , m_deleted(deleted)
    { }
    ~CountedItem() override { ++*m_deleted; }

private:
    int *m_deleted;
};

static QWidget *fixedWidget(QWidget *parent, const QSize &size)
{
    auto *w = new QWidget(parent);
    w->setFixedSize(size);
    return w;
}

class tst_FlowLayout : public QObject
{
    Q_OBJECT

private slots:
    void itemAccessAndOwnership();
    void rowsAtWidths_data();
    void rowsAtWidths();
    void spacingFromStyleOrParent();
};

void tst_FlowLayout::itemAccessAndOwnership()
{
    QCOMPARE(FlowLayout(7, 4, 6).heightForWidth(300), 14); // empty: the margins only
    int deleted = 0;
    {
        FlowLayout layout(0, 2, 2);
        auto *a = new CountedItem(10, 10, &deleted);
        auto *b = new CountedItem(20, 10, &deleted);
        layout.addItem(a);
        layout.addItem(b);
        layout.addItem(new CountedItem(5, 5, &deleted));
        QVERIFY(!layout.itemAt(-1));
        QVERIFY(!layout.itemAt(3));
        QVERIFY(!layout.takeAt(-1));
        QVERIFY(!layout.takeAt(3));
        QCOMPARE(layout.takeAt(0), a);
        QCOMPARE(layout.itemAt(0), b);
        delete a;
    }
    QCOMPARE(deleted, 3);
}

void tst_FlowLayout::rowsAtWidths_data()
{
    QTest::addColumn<int>("width");
    for (int width : { 1, 61, 62, 137, 333, 1000 })
        QTest::addRow("%d", width) << width;
}

// Whatever the width, placed in a rectangle away from the origin: reading order is kept, no two
// items overlap, a row breaks only where the next item would cross the right edge (an item wider
// than the row sits alone in it), rows are spaced by the tallest item plus the vertical spacing,
// and heightForWidth is the height the placement uses. The minimum is the largest item plus the
// margins, and the hint is the minimum.
void tst_FlowLayout::rowsAtWidths()
{
    QFETCH(int, width);
    const int margin = 5, hSpace = 4, vSpace = 6;
    const QList<QSize> sizes = { { 40, 20 }, { 20, 30 }, { 55, 10 }, { 30, 30 }, { 12, 12 },
                                 { 60, 25 }, { 25, 25 }, { 8, 40 },  { 33, 15 } };
    QWidget host;
    auto *layout = new FlowLayout(&host, margin, hSpace, vSpace);
    QList<QWidget *> widgets;
    for (const QSize &size : sizes) {
        widgets.append(fixedWidget(&host, size));
        layout->addWidget(widgets.last());
    }
    const QRect rect(10, 20, width, 10000);
    layout->setGeometry(rect);
    const QRect effective = rect.adjusted(margin, margin, -margin, -margin);

    int rowTop = effective.top();
    int rowHeight = 0;
    int rowRight = -1; // right edge of the previous item in the row, -1 at a row start
    for (int i = 0; i < widgets.size(); ++i) {
        const QRect g = widgets.at(i)->geometry();
        QCOMPARE(g.size(), sizes.at(i));
        for (int j = 0; j < i; ++j)
            QVERIFY2(!g.intersects(widgets.at(j)->geometry()), qPrintable(QString::number(i)));
        if (rowRight >= 0 && g.top() == rowTop) {
            QCOMPARE(g.left(), rowRight + 1 + hSpace);
            QVERIFY(g.right() <= effective.right());
        } else if (rowRight >= 0) {
            QVERIFY(rowRight + 1 + hSpace + g.width() - 1 > effective.right());
            QCOMPARE(g.top(), rowTop + rowHeight + vSpace);
            QCOMPARE(g.left(), effective.left());
            rowTop = g.top();
            rowHeight = 0;
        } else {
            QCOMPARE(g.topLeft(), effective.topLeft());
        }
        rowRight = g.right();
        rowHeight = qMax(rowHeight, g.height());
    }
    QCOMPARE(layout->heightForWidth(width), rowTop + rowHeight + margin - rect.top());
    QCOMPARE(host.heightForWidth(width), layout->heightForWidth(width));
    QCOMPARE(layout->minimumSize(), QSize(70, 50));
    QCOMPARE(layout->sizeHint(), layout->minimumSize());
}

void tst_FlowLayout::spacingFromStyleOrParent()
{
    // Without a parent, the items' style gives push-button spacing.
    QWidget host;
    FlowLayout orphan(0, -1, -1);
    QCOMPARE(orphan.horizontalSpacing(), -1);
    QWidget *a = fixedWidget(&host, { 20, 20 });
    QWidget *b = fixedWidget(&host, { 20, 20 });
    QWidget *c = fixedWidget(&host, { 20, 20 });
    for (QWidget *w : { a, b, c })
        orphan.addItem(new QWidgetItem(w));
    QStyle *style = a->style();
    const int h =
        style->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, Qt::Horizontal);
    const int v =
        style->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, Qt::Vertical);
    orphan.setGeometry(QRect(0, 0, 40 + h + 1, 200));
    QCOMPARE(b->geometry().topLeft(), QPoint(20 + h, 0));
    QCOMPARE(c->geometry().topLeft(), QPoint(0, 20 + v));

    // On a widget: the style's layout spacing; explicit spacings, 0 included, win.
    auto *onWidget = new FlowLayout(&host, 0, -1, 9);
    QCOMPARE(onWidget->horizontalSpacing(),
             host.style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, &host));
    QCOMPARE(onWidget->verticalSpacing(), 9);
    QCOMPARE(FlowLayout(0, 0, -1).horizontalSpacing(), 0);

    // In a parent layout: that layout's spacing.
    QWidget other;
    auto *outer = new QVBoxLayout(&other);
    outer->setSpacing(11);
    auto *flow = new FlowLayout(0, -1, -1);
    outer->addLayout(flow);
    QCOMPARE(flow->verticalSpacing(), 11);
}

VELA_TEST_CLASS(tst_FlowLayout)
#include "tst_FlowLayout.moc"
