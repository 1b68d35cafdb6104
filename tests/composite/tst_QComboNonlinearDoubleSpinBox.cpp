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
    void setValueEmitsValueOnce();
    void dragEmitsExponent();
    void nonPositiveValuesGoToSliderMinimum();
    void rangesAndSteps();
    void editedMarkingInPositions();
    void doubleClickReset_data();
    void doubleClickReset();

private:
    std::unique_ptr<Harness<QComboNonlinearDoubleSpinBox, QDoubleSpinBoxEx>> m_h;
    QComboNonlinearDoubleSpinBox *m_editor = nullptr;
    QSliderEx *m_slider = nullptr;
    QDoubleSpinBoxEx *m_spin = nullptr;
};

void tst_QComboNonlinearDoubleSpinBox::init()
{
    m_h.reset(new Harness<QComboNonlinearDoubleSpinBox, QDoubleSpinBoxEx>(700));
    m_editor = m_h->editor;
    m_slider = m_h->slider;
    m_spin = m_h->spin;
    // The range that hosts give: 0.01 to 100, two decades either side of 1.
    m_editor->SetMinimum(0.01);
    m_editor->SetMaximum(100.0);
    m_editor->SetValue(1.0);
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
    QVERIFY(editor.UI()->qtLeftArrowLabel->isHidden());
    QVERIFY(editor.UI()->qtRightArrowLabel->isHidden());
    // Painting and values stay sound at that extreme.
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    editor.SetValue(0.0);
    QCOMPARE(slider->value(), std::numeric_limits<int>::min());
}

void tst_QComboNonlinearDoubleSpinBox::logarithmicRange()
{
    QCOMPARE(m_slider->minimum(), -200);
    QCOMPARE(m_slider->maximum(), 200);
    QCOMPARE(m_slider->value(), 0);
    QCOMPARE(m_editor->Minimum(), 0.01);
    QCOMPARE(m_editor->Maximum(), 100.0);

    m_editor->SetValue(10.0);
    QCOMPARE(m_slider->value(), 100);
    m_editor->SetValue(0.5); // -30.1 truncated toward zero
    QCOMPARE(m_slider->value(), -30);
    m_editor->SetValue(99.0);
    QCOMPARE(m_slider->value(), 199);

    m_h->log.clear();
    COMBO_TYPE_INTO(m_spin, "50");
    QCOMPARE(m_slider->value(), 169); // 100 * log10(50) = 169.89...
    QCOMPARE(m_h->log, (QStringList { "ValueChanged(50)", "EditFinished" }));
}

void tst_QComboNonlinearDoubleSpinBox::setValueEmitsValueOnce()
{
    m_h->checkSetValueIsSilent(10.0, 100);
}

void tst_QComboNonlinearDoubleSpinBox::dragEmitsExponent()
{
    COMBO_DRAG_SLIDER_TO(m_slider, 100);
    QCOMPARE(m_editor->Value(), 10.0);
    // A change from the slider carries the exponent.
    QCOMPARE(m_h->log.at(m_h->log.size() - 2), QStringLiteral("ValueChanged(1)"));
    QCOMPARE(m_h->log.last(), QStringLiteral("EditFinished"));
    QCOMPARE(m_h->log.count(QStringLiteral("EditFinished")), 1);

    m_h->log.clear();
    COMBO_DRAG_SLIDER_TO(m_slider, -30);
    QCOMPARE(m_editor->Value(), 0.5); // 10^-0.3 = 0.501..., shown with 2 decimals
    QCOMPARE(m_h->log.at(m_h->log.size() - 2), QStringLiteral("ValueChanged(-0.3)"));
}

void tst_QComboNonlinearDoubleSpinBox::nonPositiveValuesGoToSliderMinimum()
{
    m_editor->SetIndependentSpin(true);
    m_editor->SetSpinMinimum(-5.0);
    m_editor->SetValue(3.0);
    COMBO_TYPE_INTO(m_spin, "0");
    QCOMPARE(m_editor->Value(), 0.0);
    QCOMPARE(m_slider->value(), -200);
    QVERIFY(m_h->log.contains(QStringLiteral("ValueChanged(0)")));

    // SetValue has no guard of its own, yet the slider stays within its range.
    m_editor->SetValue(-1.0);
    QCOMPARE(m_slider->value(), -200);
}

// The slider steps one position whatever the steps asked; with the independent flag the editor's
// range reads as exponents; only the left arrow ever shows, for an independent spin minimum of 0.
void tst_QComboNonlinearDoubleSpinBox::rangesAndSteps()
{
    m_editor->SetPageStep(5.0);
    QCOMPARE(m_slider->pageStep(), 1);
    QCOMPARE(m_editor->PageStep(), 0.01);
    m_editor->SetSingleStep(0.5);
    QCOMPARE(m_spin->singleStep(), 0.5);
    QCOMPARE(m_slider->singleStep(), 1);

    m_editor->SetSpinMinimum(0.0);
    QVERIFY(m_editor->UI()->qtLeftArrowLabel->isHidden());
    m_editor->SetIndependentSpin(true);
    QCOMPARE(m_editor->Minimum(), -2.0);
    QCOMPARE(m_editor->Maximum(), 2.0);
    m_editor->SetSpinMaximum(1000.0);
    QVERIFY(!m_editor->UI()->qtLeftArrowLabel->isHidden());
    QVERIFY(m_editor->UI()->qtRightArrowLabel->isHidden());
    m_editor->SetSpinMinimum(0.05);
    QVERIFY(m_editor->UI()->qtLeftArrowLabel->isHidden());
    m_editor->SetMinimum(0.1);
    QCOMPARE(m_slider->minimum(), -100);
    QCOMPARE(m_spin->minimum(), 0.05);
}

void tst_QComboNonlinearDoubleSpinBox::editedMarkingInPositions()
{
    m_editor->SetDefaultValue(1.0);
    m_editor->SetValue(1.004);
    QCOMPARE(m_slider->objectName(), QStringLiteral("UneditedWidget"));
    m_editor->SetValue(1.05);
    QCOMPARE(m_slider->objectName(), QStringLiteral("EditedWidget"));
}

void tst_QComboNonlinearDoubleSpinBox::doubleClickReset_data()
{
    addDoubleClickRows();
}

void tst_QComboNonlinearDoubleSpinBox::doubleClickReset()
{
    m_h->doubleClickReset(20.0, 1.0, 0);
}

VELA_TEST_CLASS(tst_QComboNonlinearDoubleSpinBox)
#include "tst_QComboNonlinearDoubleSpinBox.moc"
