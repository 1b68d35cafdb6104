#include "QVisemeButton.h"
#include "QVisemeCurveWidgetLite.h"
#include "VelaDropTest.h"
#include "VelaTest.h"

#include <QDrag>
#include <QMimeData>
#include <QToolButton>
#include <QtTest>

#include <memory>

class tst_QVisemeButton : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void dragStartsAtTheStartDistance_data();
    void dragStartsAtTheStartDistance();
    void onlyLeftPressesSetTheStart();
    void dropOnCurveFreesSlot();

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

void tst_QVisemeButton::dragStartsAtTheStartDistance_data()
{
    VelaDropTest::addStartDistanceRows();
}

void tst_QVisemeButton::dragStartsAtTheStartDistance()
{
    QFETCH(QPoint, offset);
    QFETCH(bool, starts);
    const QPoint start(40, 40);
    QTest::mousePress(m_button.get(), Qt::LeftButton, Qt::NoModifier, start);
    VelaTest::mouseMove(m_button.get(), start + offset);
    QCOMPARE(drags().size(), starts ? 1 : 0);
    QTest::mouseRelease(m_button.get(), Qt::LeftButton, Qt::NoModifier, start + offset);
}

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

void tst_QVisemeButton::dropOnCurveFreesSlot()
{
    // Dropped on the viseme curves outside their buttons, the drag frees the current slot.
    QWidget host;
    auto *curve = new QVisemeCurveWidgetLite(&host);
    curve->setGeometry(0, 0, 300, 200);
    auto *slotButton = new QToolButton(curve);
    slotButton->setGeometry(240, 10, 50, 20);
    slotButton->setText(QStringLiteral("AA"));
    curve->Init();
    curve->AddVisemeData(0, QStringLiteral("AA"));
    curve->AddVisemeCurveEndPoints();

    QTest::mousePress(m_button.get(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    VelaTest::mouseMove(m_button.get(), QPoint(60, 60));
    QCOMPARE(drags().size(), 1);
    const QDrag *drag = drags().first();
    QCOMPARE(drag->source(), m_button.get());
    QCOMPARE(drag->supportedActions(), Qt::MoveAction);
    QVERIFY(!drag->mimeData()->hasText());
    QVERIFY(VelaTest::dropAt(curve, QPoint(100, 100), drag->mimeData(), nullptr, Qt::MoveAction));
    QVERIFY(slotButton->text().isEmpty());
    QVERIFY(curve->GetVisemeName(0).isEmpty());
    QVERIFY(!curve->GetVisemeUIData()[0].m_bInUse);
    QVERIFY(curve->GetVisemeUIData()[0].m_lstKeys.isEmpty());
    QTest::mouseRelease(m_button.get(), Qt::LeftButton, Qt::NoModifier, QPoint(60, 60));
}

VELA_TEST_CLASS(tst_QVisemeButton)
#include "tst_QVisemeButton.moc"
