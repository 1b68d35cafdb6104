#include "QDialEx.h"
#include "QSliderEx.h"
#include "VelaTest.h"

#include <QLineEdit>
#include <QStyleOptionSlider>
#include <QVBoxLayout>
#include <QtTest>

// Exposes the handle position that a user grabs.
class GrabbableSlider : public QSliderEx
{
public:
    using QSliderEx::QSliderEx;
    QPoint handleCenter() const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        return style()
            ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this)
            .center();
    }
};

class tst_QSliderEx : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void programmaticValueIsNotAnEdit();
    void dragRecordsOnRelease();
    void draggedFlagOutlivesRelease();
    void pagingClickRecords();
    void keyChangeRecordsOnFocusOut();
    void dialRecordsOnlyChanges();

private:
    void drag(QWidget *widget, QPoint from, QPoint to);

    QWidget *m_window = nullptr;
    GrabbableSlider *m_slider = nullptr;
    QLineEdit *m_other = nullptr;
};

void tst_QSliderEx::init()
{
    m_window = new QWidget;
    auto *layout = new QVBoxLayout(m_window);
    m_other = new QLineEdit(m_window);
    m_slider = new GrabbableSlider(Qt::Horizontal, m_window);
    m_slider->setFocusPolicy(Qt::StrongFocus);
    m_slider->setRange(0, 100);
    m_slider->setPageStep(10);
    m_slider->setFixedWidth(220);
    layout->addWidget(m_other);
    layout->addWidget(m_slider);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    m_other->setFocus();
    QTRY_VERIFY(m_other->hasFocus());
}

void tst_QSliderEx::cleanup()
{
    delete m_window;
}

void tst_QSliderEx::drag(QWidget *widget, QPoint from, QPoint to)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, to, widget->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, to);
}

void tst_QSliderEx::programmaticValueIsNotAnEdit()
{
    QSignalSpy records(m_slider, &QSliderEx::RecordEditingValue);
    QSignalSpy values(m_slider, &QSlider::valueChanged);
    m_slider->setFocus();
    QTRY_VERIFY(m_slider->hasFocus());
    m_slider->SetValue(5);
    QCOMPARE(values.count(), 1);
    m_other->setFocus();
    QTRY_VERIFY(m_other->hasFocus());
    QCOMPARE(records.count(), 0);
    QCOMPARE(m_slider->value(), 5);
}

void tst_QSliderEx::dragRecordsOnRelease()
{
    QSignalSpy records(m_slider, &QSliderEx::RecordEditingValue);
    const QPoint start = m_slider->handleCenter();
    // A click on the handle without a move is not an edit.
    QTest::mouseClick(m_slider, Qt::LeftButton, Qt::NoModifier, start);
    QCOMPARE(records.count(), 0);

    drag(m_slider, start, start + QPoint(100, 0));
    QVERIFY(m_slider->value() > 30);
    QCOMPARE(records.count(), 1);
    // Leaving afterwards records nothing more: the value was recorded on release.
    m_other->setFocus();
    QTRY_VERIFY(m_other->hasFocus());
    QCOMPARE(records.count(), 1);
}

// After a drag, every release records again until a move while pressed off the handle.
void tst_QSliderEx::draggedFlagOutlivesRelease()
{
    QSignalSpy records(m_slider, &QSliderEx::RecordEditingValue);
    drag(m_slider, m_slider->handleCenter(), m_slider->handleCenter() + QPoint(60, 0));
    QCOMPARE(records.count(), 1);
    QTest::mouseClick(m_slider, Qt::LeftButton, Qt::NoModifier, m_slider->handleCenter());
    QCOMPARE(records.count(), 2);

    // A paging press moved while pressed: the flag is reset (paging itself still records).
    const QPoint groove(m_slider->width() - 4, m_slider->height() / 2);
    drag(m_slider, groove, groove - QPoint(1, 0));
    QCOMPARE(records.count(), 3);
    QTest::mouseClick(m_slider, Qt::LeftButton, Qt::NoModifier, m_slider->handleCenter());
    QCOMPARE(records.count(), 3);
}

void tst_QSliderEx::pagingClickRecords()
{
    QSignalSpy records(m_slider, &QSliderEx::RecordEditingValue);
    m_slider->SetValue(0);
    QTest::mouseClick(m_slider, Qt::LeftButton, Qt::NoModifier,
                      QPoint(m_slider->width() - 4, m_slider->height() / 2));
    QCOMPARE(m_slider->value(), 10);
    QCOMPARE(records.count(), 1);
}

void tst_QSliderEx::keyChangeRecordsOnFocusOut()
{
    QSignalSpy records(m_slider, &QSliderEx::RecordEditingValue);
    m_slider->setFocus();
    QTRY_VERIFY(m_slider->hasFocus());
    QTest::keyClick(m_slider, Qt::Key_Right);
    QVERIFY(VelaTest::wheel(m_slider, 1));
    QCOMPARE(records.count(), 0);
    m_other->setFocus();
    QTRY_VERIFY(m_other->hasFocus());
    QCOMPARE(records.count(), 1);
}

// The dial records a release only when the value changed since the last record.
void tst_QSliderEx::dialRecordsOnlyChanges()
{
    auto *dial = new QDialEx(m_window);
    dial->setRange(0, 100);
    dial->setFixedSize(120, 120);
    m_window->layout()->addWidget(dial);
    QTRY_VERIFY(dial->isVisible());
    QSignalSpy records(dial, &QDialEx::RecordEditingValue);

    const QPoint left(10, 60);
    const QPoint top(60, 10);
    drag(dial, left, top);
    const int afterDrag = dial->value();
    QCOMPARE(records.count(), 1);
    // Pressing on the same spot again changes nothing: unlike the slider, nothing is recorded.
    QTest::mouseClick(dial, Qt::LeftButton, Qt::NoModifier, top);
    QCOMPARE(dial->value(), afterDrag);
    QCOMPARE(records.count(), 1);
}

VELA_TEST_CLASS(tst_QSliderEx)
#include "tst_QSliderEx.moc"
