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
    void programmaticValueIsNotAnEdit();
    void dragRecordsOnRelease();
    void draggedFlagOutlivesRelease();
    void pagingClickRecords();
    void keyChangeRecordsOnFocusOut();
    void dialRecordsOnlyChanges();
    void spanOfTwoToThe31IsNarrowed();

private:
    BasicTest::FocusWindow *m_window = nullptr;
    GrabbableSlider *m_slider = nullptr;
    QLineEdit *m_other = nullptr;
};

void tst_QSliderEx::init()
{
    m_window = new BasicTest::FocusWindow;
    m_other = m_window->other;
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

void tst_QSliderEx::programmaticValueIsNotAnEdit()
{
    QSignalSpy records(m_slider, &QSliderEx::RecordEditingValue);
    QSignalSpy values(m_slider, &QSlider::valueChanged);
    QVERIFY(BasicTest::FocusWindow::focus(m_slider));
    m_slider->SetValue(5);
    QCOMPARE(values.count(), 1);
    QVERIFY(BasicTest::FocusWindow::focus(m_other));
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

    BasicTest::drag(m_slider, start, start + QPoint(100, 0));
    QVERIFY(m_slider->value() > 30);
    QCOMPARE(records.count(), 1);
    // Leaving afterwards records nothing more: the value was recorded on release.
    QVERIFY(BasicTest::FocusWindow::focus(m_other));
    QCOMPARE(records.count(), 1);
}

// After a drag, every release records again until a move while pressed off the handle.
void tst_QSliderEx::draggedFlagOutlivesRelease()
{
    QSignalSpy records(m_slider, &QSliderEx::RecordEditingValue);
    BasicTest::drag(m_slider, m_slider->handleCenter(), m_slider->handleCenter() + QPoint(60, 0));
    QCOMPARE(records.count(), 1);
    QTest::mouseClick(m_slider, Qt::LeftButton, Qt::NoModifier, m_slider->handleCenter());
    QCOMPARE(records.count(), 2);

    // A paging press moved while pressed: the flag is reset (paging itself still records).
    const QPoint groove(m_slider->width() - 4, m_slider->height() / 2);
    BasicTest::drag(m_slider, groove, groove - QPoint(1, 0));
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
    QVERIFY(BasicTest::FocusWindow::focus(m_slider));
    QTest::keyClick(m_slider, Qt::Key_Right);
    QVERIFY(VelaTest::wheel(m_slider, 1));
    QCOMPARE(records.count(), 0);
    QVERIFY(BasicTest::FocusWindow::focus(m_other));
    QCOMPARE(records.count(), 1);
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
    QCOMPARE(m_slider->maximum(), 0);
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
