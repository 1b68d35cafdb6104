#include "QVisemeButton.h"
#include "VelaTest.h"

#include <QDrag>
#include <QtTest>

class tst_QVisemeButton : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_button.reset(); }
    void leftPressesStartTheDrag();

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

// The start distance, the move-only drag and the left button's part are the list's
// (tst_QVisemeListWidget); here, which presses set the start, and the payload the viseme curves
// take to free a slot (tst_QVisemeCurveWidgetLite).
void tst_QVisemeButton::leftPressesStartTheDrag()
{
    const int distance = QApplication::startDragDistance();
    QTest::mouseClick(m_button.get(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QTest::mouseClick(m_button.get(), Qt::RightButton, Qt::NoModifier, QPoint(5 + distance, 5));
    VelaTest::mouseMove(m_button.get(), QPoint(5 + distance, 5));
    QCOMPARE(drags().size(), 1);
    const QDrag *drag = drags().first();
    QCOMPARE(drag->source(), m_button.get());
    QCOMPARE(drag->mimeData()->formats(), QStringList { "application/x-visemebutton" });
    QVERIFY(drag->mimeData()->data("application/x-visemebutton").isEmpty());
}

VELA_TEST_CLASS(tst_QVisemeButton)
#include "tst_QVisemeButton.moc"
