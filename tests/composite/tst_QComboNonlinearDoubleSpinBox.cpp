#include "ComboEditorTestSupport.h"
#include "QComboDoubleSpinBox.h"
#include "QComboNonlinearDoubleSpinBox.h"
#include "VelaTest.h"

#include <QLineEdit>
#include <QVBoxLayout>
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
    void propertyOrder();
    void logarithmicRange();
    void setValueEmitsValueOnce();
    void dragEmitsExponent();
    void typingMovesSliderLogarithmically();
    void nonPositiveValuesGoToSliderMinimum();
    void steps();
    void independentMinimumIsExponent();
    void arrows();
    void editedMarkingInPositions();
    void doubleClickReset_data();
    void doubleClickReset();

private:
    QWidget *m_window = nullptr;
    QLineEdit *m_other = nullptr;
    QComboNonlinearDoubleSpinBox *m_editor = nullptr;
    QSliderEx *m_slider = nullptr;
    QDoubleSpinBoxEx *m_spin = nullptr;
    QStringList m_log;
};

void tst_QComboNonlinearDoubleSpinBox::init()
{
    m_window = new QWidget;
    auto *layout = new QVBoxLayout(m_window);
    m_other = new QLineEdit(m_window);
    m_editor = new QComboNonlinearDoubleSpinBox(m_window);
    m_editor->setText(QStringLiteral("Scale"));
    m_editor->setMinimumWidth(700);
    layout->addWidget(m_other);
    layout->addWidget(m_editor);
    m_slider = m_editor->UI()->qtHorizontalSlider;
    m_spin = m_editor->UI()->qtDoubleSpinBox;
    // The range that hosts give: 0.01 to 100, two decades either side of 1.
    m_editor->SetMinimum(0.01);
    m_editor->SetMaximum(100.0);
    m_editor->SetValue(1.0);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    m_other->setFocus();
    QTRY_VERIFY(m_other->hasFocus());
    m_log.clear();
    connect(m_editor, &QComboNonlinearDoubleSpinBox::ValueChanged, this,
            [this](double value) { m_log << QStringLiteral("ValueChanged(%1)").arg(value); });
    connect(m_editor, &QComboNonlinearDoubleSpinBox::EditFinished, this,
            [this] { m_log << QStringLiteral("EditFinished"); });
}

void tst_QComboNonlinearDoubleSpinBox::cleanup()
{
    delete m_window;
}

void tst_QComboNonlinearDoubleSpinBox::initialState()
{
    QComboNonlinearDoubleSpinBox editor;
    QSliderEx *slider = editor.UI()->qtHorizontalSlider;
    // The form's 0 has no logarithm: the smallest integer until a range is set.
    QCOMPARE(slider->minimum(), std::numeric_limits<int>::min());
    QCOMPARE(slider->maximum(), 199);
    QCOMPARE(slider->value(), std::numeric_limits<int>::min());
    QCOMPARE(slider->singleStep(), 1);
    QCOMPARE(slider->pageStep(), 1);
    QCOMPARE(editor.Decimals(), 2);
    QCOMPARE(editor.Value(), 0.0);
    QCOMPARE(editor.UI()->qtDoubleSpinBox->objectName(), QStringLiteral("qtDoubleSpinBox"));
    QCOMPARE(editor.objectName(), QStringLiteral("SliderDoubleSpinbox"));
    QVERIFY(editor.UI()->qtLeftArrowLabel->isHidden());
    QVERIFY(editor.UI()->qtRightArrowLabel->isHidden());
    // Painting and values stay sound at that extreme.
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    editor.SetValue(0.0);
    QCOMPARE(slider->value(), std::numeric_limits<int>::min());
}

void tst_QComboNonlinearDoubleSpinBox::propertyOrder()
{
    const QMetaObject *meta = &QComboNonlinearDoubleSpinBox::staticMetaObject;
    QStringList names;
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i)
        names << QLatin1String(meta->property(i).name());
    QCOMPARE(names.size(), 37);
    QCOMPARE(names.mid(0, 12),
             (QStringList { "decimals", "spacing", "value", "minimum", "maximum", "singleStep",
                            "pageStep", "independentSpin", "spinMinimum", "spinMaximum",
                            "resetOnDoubleClick", "defaultValue" }));
    QCOMPARE(names.at(12), QStringLiteral("labelVisible"));
    QCOMPARE(names.last(), QStringLiteral("sliderDown"));
    // The same forwarded list as the linear editor.
    const QMetaObject *linear = &QComboDoubleSpinBox::staticMetaObject;
    for (int i = 12; i < 37; ++i)
        QCOMPARE(names.at(i), QLatin1String(linear->property(linear->propertyOffset() + i).name()));
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
}

void tst_QComboNonlinearDoubleSpinBox::setValueEmitsValueOnce()
{
    QSignalSpy spinSpy(m_spin, QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    QSignalSpy sliderSpy(m_slider, &QSlider::valueChanged);
    m_editor->SetValue(10.0);
    QCOMPARE(m_log, QStringList { "ValueChanged(10)" });
    QCOMPARE(spinSpy.count(), 0);
    QCOMPARE(sliderSpy.count(), 0);
}

void tst_QComboNonlinearDoubleSpinBox::dragEmitsExponent()
{
    COMBO_DRAG_SLIDER_TO(m_slider, 100);
    QCOMPARE(m_editor->Value(), 10.0);
    // A change from the slider carries the exponent.
    QCOMPARE(m_log.at(m_log.size() - 2), QStringLiteral("ValueChanged(1)"));
    QCOMPARE(m_log.last(), QStringLiteral("EditFinished"));
    QCOMPARE(m_log.count(QStringLiteral("EditFinished")), 1);

    m_log.clear();
    COMBO_DRAG_SLIDER_TO(m_slider, -30);
    QCOMPARE(m_editor->Value(), 0.5); // 10^-0.3 = 0.501..., shown with 2 decimals
    QCOMPARE(m_log.at(m_log.size() - 2), QStringLiteral("ValueChanged(-0.3)"));
}

void tst_QComboNonlinearDoubleSpinBox::typingMovesSliderLogarithmically()
{
    COMBO_TYPE_INTO(m_spin, "50");
    QCOMPARE(m_editor->Value(), 50.0);
    QCOMPARE(m_slider->value(), 169); // 100 * log10(50) = 169.89...
    QCOMPARE(m_log, (QStringList { "ValueChanged(50)", "EditFinished" }));
}

void tst_QComboNonlinearDoubleSpinBox::nonPositiveValuesGoToSliderMinimum()
{
    m_editor->SetIndependentSpin(true);
    m_editor->SetSpinMinimum(-5.0);
    m_editor->SetValue(3.0);
    COMBO_TYPE_INTO(m_spin, "0");
    QCOMPARE(m_editor->Value(), 0.0);
    QCOMPARE(m_slider->value(), -200);
    QVERIFY(m_log.contains(QStringLiteral("ValueChanged(0)")));

    m_editor->SetValue(3.0);
    COMBO_TYPE_INTO(m_spin, "-2");
    QCOMPARE(m_editor->Value(), -2.0);
    QCOMPARE(m_slider->value(), -200);

    // SetValue has no guard of its own, yet the slider stays within its range.
    m_editor->SetValue(-1.0);
    QCOMPARE(m_slider->value(), -200);
}

void tst_QComboNonlinearDoubleSpinBox::steps()
{
    m_editor->SetPageStep(5.0);
    QCOMPARE(m_slider->pageStep(), 1);
    QCOMPARE(m_editor->PageStep(), 0.01);
    m_editor->SetSingleStep(0.5);
    QCOMPARE(m_spin->singleStep(), 0.5);
    QCOMPARE(m_slider->singleStep(), 1);
    QCOMPARE(m_editor->SingleStep(), 0.5);
}

void tst_QComboNonlinearDoubleSpinBox::independentMinimumIsExponent()
{
    m_editor->SetIndependentSpin(true);
    QCOMPARE(m_editor->Minimum(), -2.0);
    QCOMPARE(m_editor->Maximum(), 2.0);
    m_editor->SetMinimum(0.1);
    QCOMPARE(m_slider->minimum(), -100);
    QCOMPARE(m_spin->minimum(), 0.01);
}

void tst_QComboNonlinearDoubleSpinBox::arrows()
{
    m_editor->SetSpinMinimum(0.0);
    QVERIFY(m_editor->UI()->qtLeftArrowLabel->isHidden());
    m_editor->SetIndependentSpin(true);
    m_editor->SetSpinMaximum(1000.0);
    QVERIFY(!m_editor->UI()->qtLeftArrowLabel->isHidden());
    QVERIFY(m_editor->UI()->qtRightArrowLabel->isHidden());
    m_editor->SetSpinMinimum(0.05);
    QVERIFY(m_editor->UI()->qtLeftArrowLabel->isHidden());
    QVERIFY(m_editor->UI()->qtRightArrowLabel->isHidden());
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
    QTest::addColumn<bool>("onLabel");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("resets");
    QTest::newRow("left on label") << true << int(Qt::LeftButton) << true << true;
    QTest::newRow("left on slider") << false << int(Qt::LeftButton) << true << true;
    QTest::newRow("right on label") << true << int(Qt::RightButton) << true << false;
    QTest::newRow("disabled") << false << int(Qt::LeftButton) << false << false;
}

void tst_QComboNonlinearDoubleSpinBox::doubleClickReset()
{
    QFETCH(bool, onLabel);
    QFETCH(int, button);
    QFETCH(bool, enabled);
    QFETCH(bool, resets);

    m_editor->SetDefaultValue(1.0);
    m_editor->SetResetOnDoubleClick(true);
    m_editor->SetValue(20.0);
    m_editor->setEnabled(enabled);
    m_log.clear();

    QWidget *target = onLabel ? static_cast<QWidget *>(m_editor->UI()->qtLabel) : m_slider;
    doubleClick(target, Qt::MouseButton(button),
                onLabel ? QPoint() : handleRect(m_slider).center());
    if (resets) {
        QCOMPARE(m_log, (QStringList { "ValueChanged(1)", "EditFinished" }));
        QCOMPARE(m_editor->Value(), 1.0);
        QCOMPARE(m_slider->value(), 0);
        QCOMPARE(m_slider->objectName(), QStringLiteral("UneditedWidget"));
    } else {
        QVERIFY(m_log.isEmpty());
        QCOMPARE(m_editor->Value(), 20.0);
    }
}

VELA_TEST_CLASS(tst_QComboNonlinearDoubleSpinBox)
#include "tst_QComboNonlinearDoubleSpinBox.moc"
