#include "QVelaPushbutton.h"
#include "VelaTest.h"

#include <QtTest>

Q_DECLARE_METATYPE(Qt::MouseButton)

class tst_QVelaPushButton : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void clicks_data();
    void clicks();
    void releaseOutsideStillReports();
    void doubleClicks_data();
    void doubleClicks();

private:
    QVelaPushButton *m_button = nullptr;
    QStringList m_events;
};

void tst_QVelaPushButton::init()
{
    m_button = new QVelaPushButton;
    m_button->setText(QStringLiteral("Key"));
    m_button->resize(80, 30);
    m_events.clear();
    connect(m_button, &QVelaPushButton::RightClicked, [this] { m_events << "RightClicked"; });
    connect(m_button, &QVelaPushButton::LeftClicked, [this] { m_events << "LeftClicked"; });
    connect(m_button, &QVelaPushButton::RightDoubleClicked,
            [this] { m_events << "RightDoubleClicked"; });
    connect(m_button, &QVelaPushButton::LeftDoubleClicked,
            [this] { m_events << "LeftDoubleClicked"; });
    connect(m_button, &QAbstractButton::clicked, [this] { m_events << "clicked"; });
}

void tst_QVelaPushButton::cleanup()
{
    delete m_button;
    m_button = nullptr;
}

void tst_QVelaPushButton::clicks_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("left") << Qt::LeftButton << QStringList({ "LeftClicked", "clicked" });
    QTest::newRow("right") << Qt::RightButton << QStringList({ "RightClicked" });
    QTest::newRow("middle") << Qt::MiddleButton << QStringList();
}

void tst_QVelaPushButton::clicks()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(QStringList, expected);
    QTest::mousePress(m_button, button);
    QCOMPARE(m_events, QStringList());
    QTest::mouseRelease(m_button, button);
    QCOMPARE(m_events, expected);
}

void tst_QVelaPushButton::releaseOutsideStillReports()
{
    const QPoint outside(200, 200);
    QTest::mousePress(m_button, Qt::LeftButton);
    QTest::mouseRelease(m_button, Qt::LeftButton, Qt::NoModifier, outside);
    QCOMPARE(m_events, QStringList({ "LeftClicked" })); // no standard clicked outside
    QTest::mousePress(m_button, Qt::RightButton);
    QTest::mouseRelease(m_button, Qt::RightButton, Qt::NoModifier, outside);
    QCOMPARE(m_events, QStringList({ "LeftClicked", "RightClicked" }));
}

void tst_QVelaPushButton::doubleClicks_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("left") << Qt::LeftButton
                          << QStringList({ "LeftClicked", "clicked", "LeftDoubleClicked",
                                           "LeftClicked", "clicked" });
    QTest::newRow("right") << Qt::RightButton
                           << QStringList({ "RightClicked", "RightDoubleClicked", "RightClicked" });
    QTest::newRow("middle") << Qt::MiddleButton << QStringList();
}

void tst_QVelaPushButton::doubleClicks()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(QStringList, expected);
    // A double-click: press, release, double-click (which acts as a second press), release.
    QTest::mousePress(m_button, button);
    QTest::mouseRelease(m_button, button);
    QTest::mouseDClick(m_button, button);
    QTest::mouseRelease(m_button, button);
    QCOMPARE(m_events, expected);
}

VELA_TEST_CLASS(tst_QVelaPushButton)
#include "tst_QVelaPushButton.moc"
