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
    QTest::addColumn<QStringList>("click");
    QTest::addColumn<QStringList>("doubleClick");
    QTest::newRow("left") << Qt::LeftButton << QStringList({ "LeftClicked", "clicked" })
                          << QStringList({ "LeftDoubleClicked", "LeftClicked", "clicked" });
    QTest::newRow("right") << Qt::RightButton << QStringList({ "RightClicked" })
                           << QStringList({ "RightDoubleClicked", "RightClicked" });
    QTest::newRow("middle") << Qt::MiddleButton << QStringList() << QStringList();
}

// A click reports on the release; a double-click (which acts as a second press) reports, then
// its release clicks again.
void tst_QVelaPushButton::clicks()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(QStringList, click);
    QFETCH(QStringList, doubleClick);
    QTest::mousePress(m_button, button);
    QCOMPARE(m_events, QStringList());
    QTest::mouseRelease(m_button, button);
    QCOMPARE(m_events, click);
    QTest::mouseDClick(m_button, button);
    QTest::mouseRelease(m_button, button);
    QCOMPARE(m_events, click + doubleClick);
}

void tst_QVelaPushButton::releaseOutsideStillReports()
{
    const QPoint outside(200, 200);
    QTest::mousePress(m_button, Qt::LeftButton);
    QTest::mouseRelease(m_button, Qt::LeftButton, Qt::NoModifier, outside);
    QTest::mousePress(m_button, Qt::RightButton);
    QTest::mouseRelease(m_button, Qt::RightButton, Qt::NoModifier, outside);
    QCOMPARE(m_events, QStringList({ "LeftClicked", "RightClicked" })); // no standard clicked
}

VELA_TEST_CLASS(tst_QVelaPushButton)
#include "tst_QVelaPushButton.moc"
