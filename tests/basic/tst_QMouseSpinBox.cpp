#include "BasicTestSupport.h"
#include "QMouseSpinBox.h"
#include "VelaTest.h"

#include <QtTest>

class tst_QMouseSpinBox : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void dragSteps_data();
    void dragSteps();
    void otherButtonsDoNotStep();
    void releaseEndsDrag();
    void stepsStayInRange();
    void displayedDecimals();

private:
    // A point over the text, away from the arrow buttons.
    static QPoint textPoint(const QMouseSpinBox &box) { return QPoint(10, box.height() / 2); }
    static void move(QWidget *widget, const QPoint &pos, Qt::MouseButtons buttons)
    {
        BasicTest::moveHeld(widget, pos, buttons);
    }
};

void tst_QMouseSpinBox::defaults()
{
    QMouseSpinBox box;
    QDoubleSpinBox plain;
    QCOMPARE(box.decimals(), plain.decimals());
    QCOMPARE(box.minimum(), plain.minimum());
    QCOMPARE(box.maximum(), plain.maximum());
    QCOMPARE(box.singleStep(), plain.singleStep());
    QCOMPARE(box.focusPolicy(), plain.focusPolicy());
    QCOMPARE(box.textFromValue(0.0), QStringLiteral("0.00"));
}

void tst_QMouseSpinBox::dragSteps_data()
{
    QTest::addColumn<QList<int>>("dy"); // vertical offset of each move from the press
    QTest::addColumn<int>("dx");
    QTest::addColumn<double>("expected");

    QTest::newRow("down one pixel") << QList<int> { 1 } << 0 << 9.0;
    QTest::newRow("down far in one move") << QList<int> { 80 } << 0 << 9.0;
    QTest::newRow("up one pixel") << QList<int> { -1 } << 0 << 11.0;
    QTest::newRow("up far in one move") << QList<int> { -50 } << 0 << 11.0;
    QTest::newRow("three moves down") << QList<int> { 2, 4, 6 } << 0 << 7.0;
    QTest::newRow("up then down") << QList<int> { -3, -6, -2 } << 0 << 11.0;
    QTest::newRow("sideways steps up") << QList<int> { 0, 0, 0 } << 5 << 13.0;
}

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
        move(&box, QPoint(x, start.y() + offset), Qt::LeftButton);
    }
    QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, QPoint(x, start.y() + dy.last()));

    QCOMPARE(box.value(), expected);
    QCOMPARE(changed.count(), dy.size());
}

void tst_QMouseSpinBox::otherButtonsDoNotStep()
{
    QMouseSpinBox box;
    box.resize(120, 30);
    box.setValue(5.0);
    const QPoint start = textPoint(box);

    QTest::mousePress(&box, Qt::RightButton, Qt::NoModifier, start);
    move(&box, start + QPoint(0, 10), Qt::RightButton);
    move(&box, start + QPoint(0, -10), Qt::RightButton);
    QTest::mouseRelease(&box, Qt::RightButton, Qt::NoModifier, start);
    QCOMPARE(box.value(), 5.0);

    // Moves with the left button held but without a press on the box are not a drag either.
    move(&box, start + QPoint(0, 10), Qt::LeftButton);
    QCOMPARE(box.value(), 5.0);
}

void tst_QMouseSpinBox::releaseEndsDrag()
{
    QMouseSpinBox box;
    box.resize(120, 30);
    box.setValue(5.0);
    const QPoint start = textPoint(box);

    QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, start);
    move(&box, start + QPoint(0, 4), Qt::LeftButton);
    QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, start + QPoint(0, 4));
    QCOMPARE(box.value(), 4.0);

    // A right-button release during a drag does not end it.
    QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseRelease(&box, Qt::RightButton, Qt::NoModifier, start);
    move(&box, start + QPoint(0, -4), Qt::LeftButton);
    QCOMPARE(box.value(), 5.0);
    QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, start);
    move(&box, start + QPoint(0, -8), Qt::LeftButton);
    QCOMPARE(box.value(), 5.0);
}

void tst_QMouseSpinBox::stepsStayInRange()
{
    QMouseSpinBox box;
    box.resize(120, 30);
    box.setRange(0.0, 1.0);
    box.setSingleStep(0.4);
    box.setValue(0.5);
    const QPoint start = textPoint(box);

    QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, start);
    for (int i = 1; i <= 4; ++i)
        move(&box, start + QPoint(0, -i), Qt::LeftButton);
    QCOMPARE(box.value(), 1.0);
    for (int i = 1; i <= 6; ++i)
        move(&box, start + QPoint(0, i), Qt::LeftButton);
    QCOMPARE(box.value(), 0.0);
    QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, start);
}

void tst_QMouseSpinBox::displayedDecimals()
{
    QMouseSpinBox box;
    box.SetDecNum(4);
    box.setValue(1.5);
    QCOMPARE(box.text(), QStringLiteral("1.5000"));
    QCOMPARE(box.decimals(), 2);

    // Rounding still follows decimals().
    box.setValue(1.23456);
    QCOMPARE(box.value(), 1.23);
    QCOMPARE(box.text(), QStringLiteral("1.2300"));

    QSignalSpy changed(&box, qOverload<double>(&QDoubleSpinBox::valueChanged));
    box.SetDecNum(0);
    QCOMPARE(box.text(), QStringLiteral("1"));
    QCOMPARE(box.value(), 1.23);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(box.textFromValue(-2.75), QStringLiteral("-3"));
    QCOMPARE(box.textFromValue(12345.0), QStringLiteral("12345")); // no group separators
}

VELA_TEST_CLASS(tst_QMouseSpinBox)
#include "tst_QMouseSpinBox.moc"
