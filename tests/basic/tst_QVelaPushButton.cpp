#include "QVelaPushbutton.h"
#include "VelaTest.h"

#include <QtTest>

Q_DECLARE_METATYPE(Qt::MouseButton)

class tst_QVelaPushButton : public QObject
{
    Q_OBJECT

private slots:
    void clicks_data();
    void clicks();
};

void tst_QVelaPushButton::clicks_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<QStringList>("click");
    QTest::addColumn<QStringList>("doubleClick");
    QTest::newRow("left") << Qt::LeftButton << QStringList({ "LeftClicked", "clicked" })
                          << QStringList({ "LeftDoubleClicked", "LeftClicked", "clicked" });
    QTest::newRow("right") << Qt::RightButton << QStringList({ "RightClicked" })
                           << QStringList({ "RightDoubleClicked", "RightClicked" });
    QTest::newRow("middle") << Qt::MiddleButton << QStringList() << QStringList();
}

// A click reports on the release, a double-click (which acts as a second press) before its
// release clicks again; released outside, a click still reports, without the standard clicked.
void tst_QVelaPushButton::clicks()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(QStringList, click);
    QFETCH(QStringList, doubleClick);
    QVelaPushButton pushButton;
    pushButton.resize(80, 30);
    QStringList events;
    connect(&pushButton, &QVelaPushButton::RightClicked, [&] { events << "RightClicked"; });
    connect(&pushButton, &QVelaPushButton::LeftClicked, [&] { events << "LeftClicked"; });
    connect(&pushButton, &QVelaPushButton::RightDoubleClicked,
            [&] { events << "RightDoubleClicked"; });
    connect(&pushButton, &QVelaPushButton::LeftDoubleClicked,
            [&] { events << "LeftDoubleClicked"; });
    connect(&pushButton, &QAbstractButton::clicked, [&] { events << "clicked"; });

    QTest::mousePress(&pushButton, button);
    QCOMPARE(events, QStringList());
    QTest::mouseRelease(&pushButton, button);
    QCOMPARE(events, click);
    QTest::mouseDClick(&pushButton, button);
    QTest::mouseRelease(&pushButton, button);
    QCOMPARE(events, click + doubleClick);

    events.clear();
    QTest::mousePress(&pushButton, button);
    QTest::mouseRelease(&pushButton, button, Qt::NoModifier, QPoint(200, 200));
    QCOMPARE(events, click.mid(0, 1));
}

VELA_TEST_CLASS(tst_QVelaPushButton)
#include "tst_QVelaPushButton.moc"
