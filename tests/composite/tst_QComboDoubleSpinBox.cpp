#include "ComboEditorTestSupport.h"
#include "QComboDoubleSpinBox.h"
#include "VelaTest.h"

#include <QtTest>

using namespace ComboEditorTest;

class tst_QComboDoubleSpinBox : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void sliderCountsHundredths();
    void truncationTowardZero();
    void dragWithThreeDecimals();
    void independentRange();
    void rangeAndStepsScale();
    void editedMarking();
    void doubleClickReset();

private:
    std::unique_ptr<Harness<QComboDoubleSpinBox, QDoubleSpinBoxEx>> m_h;
};

void tst_QComboDoubleSpinBox::init()
{
    // Wide enough for every position of a 0 to 1000 slider to lie under some pixel.
    m_h.reset(new Harness<QComboDoubleSpinBox, QDoubleSpinBoxEx>(1300));
    QVERIFY(m_h->show());
}

void tst_QComboDoubleSpinBox::cleanup()
{
    m_h.reset();
}

// The slider counts hundredths, steps included: the default 0 to 99.99 spin box lies beyond its
// 99.00.
void tst_QComboDoubleSpinBox::sliderCountsHundredths()
{
    QComboDoubleSpinBox editor;
    QSliderEx *slider = editor.UI()->qtHorizontalSlider;
    QCOMPARE(slider->maximum(), 9900);
    QCOMPARE(slider->singleStep(), 100);
    QCOMPARE(slider->pageStep(), 1000);
    QVERIFY(!editor.UI()->qtRightArrowLabel->isHidden());
}

// SetValue reports once and silently; typed or set, 100 * 0.29 is 28.999999999999996 in double
// precision: the slider stays at 28.
void tst_QComboDoubleSpinBox::truncationTowardZero()
{
    m_h->checkSetValueIsSilent(0.29, 28);
    m_h->editor->SetValue(0.299999);
    QCOMPARE(m_h->slider->value(), 29);
    QCOMPARE(m_h->editor->Value(), 0.3);

    m_h->editor->SetMinimum(-5.0);
    m_h->editor->SetValue(-0.29);
    QCOMPARE(m_h->slider->value(), -28);

    m_h->log.clear();
    COMBO_TYPE_INTO(m_h->spin, "0.29");
    QCOMPARE(m_h->editor->Value(), 0.29);
    QCOMPARE(m_h->slider->value(), 28);
    QCOMPARE(m_h->log, (QStringList { "ValueChanged(0.29)", "EditFinished" }));
}

void tst_QComboDoubleSpinBox::dragWithThreeDecimals()
{
    m_h->editor->SetDecimals(3);
    m_h->editor->SetMinimum(0.0);
    m_h->editor->SetMaximum(1.0);
    m_h->log.clear();

    COMBO_DRAG_SLIDER_TO(m_h->slider, 250);
    QCOMPARE(m_h->editor->Value(), 0.25);
    QCOMPARE(m_h->log.mid(m_h->log.size() - 2),
             (QStringList { "ValueChanged(0.25)", "EditFinished" }));
    QCOMPARE(m_h->log.count(QStringLiteral("EditFinished")), 1);
    QCOMPARE(m_h->slider->objectName(), QStringLiteral("EditedWidget"));
}

void tst_QComboDoubleSpinBox::independentRange()
{
    m_h->editor->SetMaximum(50.0);
    QCOMPARE(m_h->slider->maximum(), 5000);
    QVERIFY(m_h->editor->UI()->qtRightArrowLabel->isHidden());

    m_h->editor->SetIndependentSpin(true);
    m_h->editor->SetMaximum(20.0);
    QCOMPARE(m_h->editor->Maximum(), 20.0);
    QVERIFY(!m_h->editor->UI()->qtRightArrowLabel->isHidden());

    m_h->editor->SetSpinMaximum(15.0);
    QVERIFY(m_h->editor->UI()->qtRightArrowLabel->isHidden());
    m_h->editor->SetSpinMinimum(-1.0);
    QVERIFY(!m_h->editor->UI()->qtLeftArrowLabel->isHidden());
    QCOMPARE(m_h->slider->minimum(), 0);

    m_h->editor->SetSpinMaximum(50.0);
    COMBO_TYPE_INTO(m_h->spin, "35");
    QCOMPARE(m_h->editor->Value(), 35.0);
    QCOMPARE(m_h->slider->value(), 2000);
    QVERIFY(m_h->log.contains(QStringLiteral("ValueChanged(35)")));
}

// A range that moves the value moves both children; steps scale to slider positions, at the
// scale of the decimals when the range was set.
void tst_QComboDoubleSpinBox::rangeAndStepsScale()
{
    m_h->editor->SetValue(60.0);
    m_h->editor->SetMaximum(20.0);
    QCOMPARE(m_h->editor->Value(), 20.0);
    QCOMPARE(m_h->slider->value(), 2000);
    QCOMPARE(m_h->log.last(), QStringLiteral("ValueChanged(20)"));
    m_h->editor->SetMinimum(1.0);
    QCOMPARE(m_h->slider->minimum(), 100);

    m_h->editor->SetSingleStep(0.5);
    QCOMPARE(m_h->slider->singleStep(), 50);
    m_h->editor->SetPageStep(2.5);
    QCOMPARE(m_h->slider->pageStep(), 250);
    m_h->editor->SetDecimals(3);
    QCOMPARE(m_h->slider->maximum(), 2000);
    m_h->editor->SetValue(1.5);
    QCOMPARE(m_h->slider->value(), 1500);
}

void tst_QComboDoubleSpinBox::editedMarking()
{
    m_h->editor->SetDefaultValue(0.25);
    m_h->editor->SetValue(0.25);
    QCOMPARE(m_h->slider->objectName(), QStringLiteral("UneditedWidget"));
    m_h->editor->SetValue(0.26);
    QCOMPARE(m_h->slider->objectName(), QStringLiteral("EditedWidget"));
    // The comparison is made in slider positions.
    m_h->editor->SetValue(0.259);
    QCOMPARE(m_h->slider->objectName(), QStringLiteral("UneditedWidget"));
}

// A left double-click resets the value and the slider to the default's position.
void tst_QComboDoubleSpinBox::doubleClickReset()
{
    m_h->doubleClickReset(40.0, 2.5, 250);
}

VELA_TEST_CLASS(tst_QComboDoubleSpinBox)
#include "tst_QComboDoubleSpinBox.moc"
