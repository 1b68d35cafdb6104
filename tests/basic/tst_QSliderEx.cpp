#include "BasicTestSupport.h"
#include "QDialEx.h"
#include "QSliderEx.h"
#include "VelaTest.h"

#include <QStyleOptionSlider>
#include <QtTest>

#include <limits>

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
    void focusedEditsRecordOnFocusOut();
    void mouseRecordsOnRelease();
    void dialRecordsOnlyChanges();
    void spanOfTwoToThe31IsNarrowed();

private:
    BasicTest::FocusWindow *m_window = nullptr;
    GrabbableSlider *m_slider = nullptr;
};

void tst_QSliderEx::init()
{
    m_window = new BasicTest::FocusWindow;
    m_slider = m_window->add(new GrabbableSlider(Qt::Horizontal));
    m_slider->setFocusPolicy(Qt::StrongFocus);
    m_slider->setRange(0, 100);
    m_slider->setPageStep(10);
    m_slider->setFixedWidth(220);
    QVERIFY(m_window->showWithFocusElsewhere());
}

void tst_QSliderEx::cleanup()
{
    delete m_window;
}

// Keys and the wheel record once on leaving; SetValue is no edit, even while focused.
void tst_QSliderEx::focusedEditsRecordOnFocusOut()
{
    QSignalSpy records(m_slider, &QSliderEx::RecordEditingValue);
    QVERIFY(m_window->focus(m_slider));
    m_slider->SetValue(5);
    QTest::keyClick(m_slider, Qt::Key_Right);
    QVERIFY(VelaTest::wheel(m_slider, 1));
    QCOMPARE(records.count(), 0);
    QVERIFY(m_window->focus(m_window->other));
    QCOMPARE(records.count(), 1);

    QVERIFY(m_window->focus(m_slider));
    m_slider->SetValue(20);
    QVERIFY(m_window->focus(m_window->other));
    QCOMPARE(records.count(), 1);
}

// A drag or a paging click records on release; after a drag every release records again, until
// a move while pressed off the handle.
void tst_QSliderEx::mouseRecordsOnRelease()
{
    QSignalSpy records(m_slider, &QSliderEx::RecordEditingValue);
    QTest::mouseClick(m_slider, Qt::LeftButton, Qt::NoModifier, m_slider->handleCenter());
    QCOMPARE(records.count(), 0);

    BasicTest::drag(m_slider, m_slider->handleCenter(), m_slider->handleCenter() + QPoint(100, 0));
    const int dragged = m_slider->value();
    QVERIFY(dragged > 30);
    QCOMPARE(records.count(), 1);
    QTest::mouseClick(m_slider, Qt::LeftButton, Qt::NoModifier, m_slider->handleCenter());
    QCOMPARE(records.count(), 2);

    const QPoint groove(m_slider->width() - 4, m_slider->height() / 2);
    BasicTest::drag(m_slider, groove, groove - QPoint(1, 0));
    QCOMPARE(m_slider->value(), dragged + 10);
    QCOMPARE(records.count(), 3);
    QTest::mouseClick(m_slider, Qt::LeftButton, Qt::NoModifier, m_slider->handleCenter());
    QVERIFY(m_window->focus(m_window->other));
    QCOMPARE(records.count(), 3);
}

// The dial records a release only when the value changed since the last record.
void tst_QSliderEx::dialRecordsOnlyChanges()
{
    auto *dial = m_window->add(new QDialEx);
    dial->setRange(0, 100);
    dial->setFixedSize(120, 120);
    QTRY_VERIFY(dial->isVisible());
    QSignalSpy records(dial, &QDialEx::RecordEditingValue);

    const QPoint left(10, 60);
    const QPoint top(60, 10);
    BasicTest::drag(dial, left, top);
    const int afterDrag = dial->value();
    QCOMPARE(records.count(), 1);
    // Pressing on the same spot again changes nothing: unlike the slider, nothing is recorded.
    QTest::mouseClick(dial, Qt::LeftButton, Qt::NoModifier, top);
    QCOMPARE(dial->value(), afterDrag);
    QCOMPARE(records.count(), 1);
}

// Qt's styles divide by zero when painting a slider whose span is exactly 2^31, and draw one tick
// per interval however many that is.
void tst_QSliderEx::spanOfTwoToThe31IsNarrowed()
{
    m_slider->setRange(std::numeric_limits<int>::min(), 0);
    QCOMPARE(m_slider->minimum(), std::numeric_limits<int>::min() + 1);
    m_slider->grab();
    m_slider->setRange(std::numeric_limits<int>::min(), 199);
    QCOMPARE(m_slider->minimum(), std::numeric_limits<int>::min());
    m_slider->grab();
    // Tick marks over such a range would be billions of strokes: painting must still finish.
    m_slider->setTickPosition(QSlider::TicksBelow);
    m_slider->setTickInterval(1);
    const QImage withoutTicks = m_slider->grab().toImage();
    m_slider->setRange(0, 10);
    QVERIFY(m_slider->grab().toImage() != withoutTicks);
    // Without a tick interval the styles tick every single step, or every page step when single
    // steps are closer than three pixels: a page step of 1 over a billion is a billion strokes.
    m_slider->setTickInterval(0);
    m_slider->setRange(0, 1000000000);
    m_slider->setSingleStep(10000000);
    m_slider->setPageStep(1);
    m_slider->grab();
    // The styles' "too close" test overflows for a range of nearly 2^31 and keeps the single step.
    m_slider->setRange(std::numeric_limits<int>::min() + 1, 0);
    m_slider->setSingleStep(100);
    m_slider->setPageStep(std::numeric_limits<int>::max());
    m_slider->grab();
}

VELA_TEST_CLASS(tst_QSliderEx)
#include "tst_QSliderEx.moc"
