#include "ComboEditorTestSupport.h"
#include "QComboNonlinearDoubleSpinBox.h"
#include "VelaTest.h"

#include <QtTest>

#include <limits>

using namespace ComboEditorTest;

class tst_QComboNonlinearDoubleSpinBox : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void initialState();
    void logarithmicRange();
    void dragEmitsExponent();
    void nonPositiveValuesGoToSliderMinimum();
    void rangesAndSteps();
    void editedMarkingInPositions();
    void doubleClickReset();

private:
    std::unique_ptr<Harness<QComboNonlinearDoubleSpinBox, QDoubleSpinBoxEx>> m_h;
};

void tst_QComboNonlinearDoubleSpinBox::init()
{
    m_h.reset(new Harness<QComboNonlinearDoubleSpinBox, QDoubleSpinBoxEx>(700));
    // The range that hosts give: 0.01 to 100, two decades either side of 1.
    m_h->editor->SetMinimum(0.01);
    m_h->editor->SetMaximum(100.0);
    m_h->editor->SetValue(1.0);
    QVERIFY(m_h->show());
}

void tst_QComboNonlinearDoubleSpinBox::cleanup()
{
    m_h.reset();
}

void tst_QComboNonlinearDoubleSpinBox::initialState()
{
    QComboNonlinearDoubleSpinBox editor;
    QSliderEx *slider = editor.UI()->qtHorizontalSlider;
    // The form's 0 has no logarithm: the smallest integer until a range is set.
    QCOMPARE(slider->minimum(), std::numeric_limits<int>::min());
    QCOMPARE(slider->maximum(), 199);
    QCOMPARE(slider->value(), std::numeric_limits<int>::min());
    // Painting stays sound at that extreme.
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
}

// Positions are 100 * log10(value), truncated toward zero; SetValue reports once and silently.
void tst_QComboNonlinearDoubleSpinBox::logarithmicRange()
{
    QCOMPARE(m_h->slider->minimum(), -200);
    QCOMPARE(m_h->slider->maximum(), 200);
    QCOMPARE(m_h->slider->value(), 0);

    m_h->checkSetValueIsSilent(10.0, 100);
    m_h->editor->SetValue(0.5); // -30.1 truncated toward zero
    QCOMPARE(m_h->slider->value(), -30);

    m_h->log.clear();
    COMBO_TYPE_INTO(m_h->spin, "50");
    QCOMPARE(m_h->slider->value(), 169); // 100 * log10(50) = 169.89...
    QCOMPARE(m_h->log, (QStringList { "ValueChanged(50)", "EditFinished" }));
}

void tst_QComboNonlinearDoubleSpinBox::dragEmitsExponent()
{
    COMBO_DRAG_SLIDER_TO(m_h->slider, 100);
    QCOMPARE(m_h->editor->Value(), 10.0);
    // A change from the slider carries the exponent.
    QCOMPARE(m_h->log.mid(m_h->log.size() - 2),
             (QStringList { "ValueChanged(1)", "EditFinished" }));
    QCOMPARE(m_h->log.count(QStringLiteral("EditFinished")), 1);
}

void tst_QComboNonlinearDoubleSpinBox::nonPositiveValuesGoToSliderMinimum()
{
    m_h->editor->SetIndependentSpin(true);
    m_h->editor->SetSpinMinimum(-5.0);
    m_h->editor->SetValue(3.0);
    COMBO_TYPE_INTO(m_h->spin, "0");
    QCOMPARE(m_h->editor->Value(), 0.0);
    QCOMPARE(m_h->slider->value(), -200);
    QVERIFY(m_h->log.contains(QStringLiteral("ValueChanged(0)")));

    // SetValue has no guard of its own, yet the slider stays within its range.
    m_h->editor->SetValue(-1.0);
    QCOMPARE(m_h->slider->value(), -200);
}

// The slider steps one position whatever the steps asked; with the independent flag the editor's
// range reads as exponents; only the left arrow ever shows, for an independent spin minimum of 0.
void tst_QComboNonlinearDoubleSpinBox::rangesAndSteps()
{
    m_h->editor->SetPageStep(5.0);
    QCOMPARE(m_h->slider->pageStep(), 1);
    QCOMPARE(m_h->editor->PageStep(), 0.01);
    m_h->editor->SetSingleStep(0.5);
    QCOMPARE(m_h->spin->singleStep(), 0.5);
    QCOMPARE(m_h->slider->singleStep(), 1);

    m_h->editor->SetSpinMinimum(0.0);
    QVERIFY(m_h->editor->UI()->qtLeftArrowLabel->isHidden());
    m_h->editor->SetIndependentSpin(true);
    QCOMPARE(m_h->editor->Minimum(), -2.0);
    QCOMPARE(m_h->editor->Maximum(), 2.0);
    m_h->editor->SetSpinMaximum(1000.0);
    QVERIFY(!m_h->editor->UI()->qtLeftArrowLabel->isHidden());
    QVERIFY(m_h->editor->UI()->qtRightArrowLabel->isHidden());
    m_h->editor->SetSpinMinimum(0.05);
    QVERIFY(m_h->editor->UI()->qtLeftArrowLabel->isHidden());
    m_h->editor->SetMinimum(0.1);
    QCOMPARE(m_h->slider->minimum(), -100);
    QCOMPARE(m_h->spin->minimum(), 0.05);
}

void tst_QComboNonlinearDoubleSpinBox::editedMarkingInPositions()
{
    m_h->editor->SetDefaultValue(1.0);
    m_h->editor->SetValue(1.004);
    QCOMPARE(m_h->slider->objectName(), QStringLiteral("UneditedWidget"));
    m_h->editor->SetValue(1.05);
    QCOMPARE(m_h->slider->objectName(), QStringLiteral("EditedWidget"));
}

// A left double-click resets the value and the slider to the default's position.
void tst_QComboNonlinearDoubleSpinBox::doubleClickReset()
{
    m_h->doubleClickReset(20.0, 1.0, 0);
}

VELA_TEST_CLASS(tst_QComboNonlinearDoubleSpinBox)
#include "tst_QComboNonlinearDoubleSpinBox.moc"
