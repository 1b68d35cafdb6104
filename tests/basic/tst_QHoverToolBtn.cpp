#include "QHoverToolBtn.h"
#include "VelaTest.h"

#include <QtTest>

class tst_QHoverToolBtn : public QObject
{
    Q_OBJECT

private slots:
    void enterAndLeave();
    void setHovered();
};

void tst_QHoverToolBtn::enterAndLeave()
{
    QWidget window;
    window.resize(200, 100);
    QHoverToolBtn button(&window);
    button.setGeometry(20, 20, 40, 40);
    QStringList events;
    connect(&button, &QHoverToolBtn::hovered, [&] { events << QStringLiteral("hovered"); });
    connect(&button, &QHoverToolBtn::left, [&] { events << QStringLiteral("left"); });

    QTest::mouseMove(&window, QPoint(150, 80));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    events.clear();

    QTest::mouseMove(&window, QPoint(40, 40));
    QTRY_COMPARE(events, QStringList({ "hovered" }));
    QTest::mouseMove(&window, QPoint(45, 35)); // moving within the button is no new hover
    QTest::mouseMove(&window, QPoint(150, 80));
    QTRY_COMPARE(events, QStringList({ "hovered", "left" }));
}

// Either way round, setHovered reports a hover (never a leave) and sets the hover attribute.
void tst_QHoverToolBtn::setHovered()
{
    QHoverToolBtn button;
    QSignalSpy hovered(&button, &QHoverToolBtn::hovered);
    QSignalSpy left(&button, &QHoverToolBtn::left);
    button.setHovered(true);
    QVERIFY(button.testAttribute(Qt::WA_Hover));
    button.setHovered(false);
    QVERIFY(!button.testAttribute(Qt::WA_Hover));
    QCOMPARE(hovered.count(), 2);
    QCOMPARE(left.count(), 0);
}

VELA_TEST_CLASS(tst_QHoverToolBtn)
#include "tst_QHoverToolBtn.moc"
