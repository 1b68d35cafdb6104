#include "BasicTestSupport.h"
#include "QMouseSpinBox.h"
#include "VelaTest.h"

#include <QtTest>

using VelaTest::mouseMove;

class tst_QMouseSpinBox : public QObject
{
    Q_OBJECT

private slots:
    void dragSteps_data();
    void dragSteps();
    void onlyALeftDragSteps();
    void displayedDecimals();

private:
    // A point over the text, away from the arrow buttons.
    static QPoint textPoint(const QMouseSpinBox &box) { return QPoint(10, box.height() / 2); }
};

void tst_QMouseSpinBox::dragSteps_data()
{
    QTest::addColumn<QList<int>>("dy"); // vertical offset of each move from the press
    QTest::addColumn<int>("dx");
    QTest::addColumn<double>("expected");

    QTest::newRow("down far in one move") << QList<int> { 80 } << 0 << 9.0;
    QTest::newRow("up one pixel") << QList<int> { -1 } << 0 << 11.0;
    QTest::newRow("three moves down") << QList<int> { 2, 4, 6 } << 0 << 7.0;
    QTest::newRow("up then down") << QList<int> { -3, -6, -2 } << 0 << 11.0;
    QTest::newRow("sideways steps up") << QList<int> { 0, 0, 0 } << 5 << 13.0;
}

// One step per move with the left button held, by the direction from the previous move.
void tst_QMouseSpinBox::dragSteps()
{
    QFETCH(QList<int>, dy);
    QFETCH(int, dx);
    QFETCH(double, expected);

    QMouseSpinBox box;
    box.resize(120, 30);
    box.setValue(10.0);
    QSignalSpy changed(&box, qOverload<double>(&QDoubleSpinBox::valueChanged));

    const QPoint start = textPoint(box);
    QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, start);
    QCOMPARE(box.value(), 10.0); // a press over the text does not step
    int x = start.x();
    for (int offset : dy) {
        x += dx;
        mouseMove(&box, QPoint(x, start.y() + offset));
    }
    QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, QPoint(x, start.y() + dy.last()));
    QCOMPARE(box.value(), expected);
    QCOMPARE(changed.count(), dy.size());
}

// Right drags, moves without a press, and moves after the left release step nothing; a right
// release does not end a left drag.
void tst_QMouseSpinBox::onlyALeftDragSteps()
{
    QMouseSpinBox box;
    box.resize(120, 30);
    box.setValue(5.0);
    const QPoint start = textPoint(box);

    QTest::mousePress(&box, Qt::RightButton, Qt::NoModifier, start);
    mouseMove(&box, start + QPoint(0, 10), Qt::RightButton);
    QTest::mouseRelease(&box, Qt::RightButton, Qt::NoModifier, start);
    mouseMove(&box, start + QPoint(0, 10));
    QCOMPARE(box.value(), 5.0);

    QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseRelease(&box, Qt::RightButton, Qt::NoModifier, start);
    mouseMove(&box, start + QPoint(0, 4));
    QCOMPARE(box.value(), 4.0);
    QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, start);
    mouseMove(&box, start + QPoint(0, 8));
    QCOMPARE(box.value(), 4.0);
}

// The shown digits are independent of decimals(), which still does the rounding.
void tst_QMouseSpinBox::displayedDecimals()
{
    QMouseSpinBox box;
    box.SetDecNum(4);
    box.setValue(1.23456);
    QCOMPARE(box.value(), 1.23);
    QCOMPARE(box.text(), QStringLiteral("1.2300"));

    QSignalSpy changed(&box, qOverload<double>(&QDoubleSpinBox::valueChanged));
    box.SetDecNum(0);
    QCOMPARE(box.text(), QStringLiteral("1"));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(box.textFromValue(-2.75), QStringLiteral("-3"));
    QCOMPARE(box.textFromValue(12345.0), QStringLiteral("12345")); // no group separators
}

VELA_TEST_CLASS(tst_QMouseSpinBox)
#include "tst_QMouseSpinBox.moc"
