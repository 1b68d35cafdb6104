#include "QVisemeButton.h"
#include "VelaTest.h"

#include <QDrag>
#include <QMimeData>
#include <QtTest>

#include <memory>

class tst_QVisemeButton : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void onlyLeftPressesSetTheStart();
    void payload();

private:
    QList<QDrag *> drags() const { return m_button->findChildren<QDrag *>(); }

    std::unique_ptr<QVisemeButton> m_button;
};

void tst_QVisemeButton::init()
{
    m_button.reset(new QVisemeButton);
    m_button->resize(80, 80);
    m_button->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_button.get()));
}

void tst_QVisemeButton::cleanup()
{
    m_button.reset();
}

// The start distance is the list's (tst_QVisemeListWidget); here, which presses set the start.
void tst_QVisemeButton::onlyLeftPressesSetTheStart()
{
    const int distance = QApplication::startDragDistance();
    QTest::mouseClick(m_button.get(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QTest::mouseClick(m_button.get(), Qt::RightButton, Qt::NoModifier, QPoint(5 + distance, 5));
    VelaTest::mouseMove(m_button.get(), QPoint(5 + distance, 5));
    QCOMPARE(drags().size(), 1);
    VelaTest::mouseMove(m_button.get(), QPoint(70, 70), Qt::MiddleButton);
    QCOMPARE(drags().size(), 1);
}

// The payload the viseme curves take to free a slot (tst_QVisemeCurveWidgetLite).
void tst_QVisemeButton::payload()
{
    QTest::mousePress(m_button.get(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    VelaTest::mouseMove(m_button.get(), QPoint(60, 60));
    QCOMPARE(drags().size(), 1);
    const QDrag *drag = drags().first();
    QCOMPARE(drag->source(), m_button.get());
    QCOMPARE(drag->supportedActions(), Qt::MoveAction);
    QCOMPARE(drag->mimeData()->formats(), QStringList { "application/x-visemebutton" });
    QVERIFY(drag->mimeData()->data("application/x-visemebutton").isEmpty());
    QTest::mouseRelease(m_button.get(), Qt::LeftButton, Qt::NoModifier, QPoint(60, 60));
}

VELA_TEST_CLASS(tst_QVisemeButton)
#include "tst_QVisemeButton.moc"
