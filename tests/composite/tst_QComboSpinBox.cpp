#include "ComboEditorTestSupport.h"
#include "QComboSpinBox.h"
#include "VelaTest.h"

#include <QtTest>

using namespace ComboEditorTest;

class tst_QComboSpinBox : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void initialState();
    void setValueEmitsOnceWithoutChildSignals();
    void sliderDragIsOneSession();
    void typing();
    void wheelAndKeys();
    void rangeSetters();
    void mappings();
    void editedMarking();
    void doubleClickReset_data();
    void doubleClickReset();
    void forwardedProperties_data();
    void forwardedProperties();
    void arrowImages();

private:
    std::unique_ptr<Harness<QComboSpinBox, QSpinBoxEx>> m_h;
    QComboSpinBox *m_editor = nullptr;
    QSliderEx *m_slider = nullptr;
    QSpinBoxEx *m_spin = nullptr;
};

void tst_QComboSpinBox::init()
{
    m_h.reset(new Harness<QComboSpinBox, QSpinBoxEx>(600));
    m_editor = m_h->editor;
    m_slider = m_h->slider;
    m_spin = m_h->spin;
    connect(m_editor, &QComboSpinBox::EditStarted, this,
            [this] { m_h->log << QStringLiteral("EditStarted"); });
    QVERIFY(m_h->show());
}

void tst_QComboSpinBox::cleanup()
{
    m_h.reset();
}

// The defaults a host relies on: a 0 to 99 editor at 0 whose slider takes no focus.
void tst_QComboSpinBox::initialState()
{
    QComboSpinBox editor;
    QCOMPARE(editor.Value(), 0);
    QCOMPARE(editor.Minimum(), 0);
    QCOMPARE(editor.Maximum(), 99);
    QCOMPARE(editor.DefaultValue(), 0);
    QVERIFY(!editor.IndependentSpin());
    QVERIFY(!editor.ResetOnDoubleClick());
    QVERIFY(editor.UI()->qtLeftArrowLabel->isHidden());
    QVERIFY(editor.UI()->qtRightArrowLabel->isHidden());
    QCOMPARE(editor.UI()->qtHorizontalSlider->focusPolicy(), Qt::NoFocus);
    QVERIFY(!editor.UI()->qtSpinBox->keyboardTracking());
}

void tst_QComboSpinBox::setValueEmitsOnceWithoutChildSignals()
{
    QSignalSpy sliderRecord(m_slider, &QSliderEx::RecordEditingValue);
    m_h->checkSetValueIsSilent(42, 42);

    // The slider treats the programmatic value as recorded: a later focus change reports nothing.
    m_slider->setFocusPolicy(Qt::StrongFocus);
    m_slider->setFocus();
    QTRY_VERIFY(m_slider->hasFocus());
    m_h->other->setFocus();
    QTRY_VERIFY(m_h->other->hasFocus());
    QCOMPARE(sliderRecord.count(), 0);
    QCOMPARE(m_h->log, QStringList { "ValueChanged(42)" });
}

void tst_QComboSpinBox::sliderDragIsOneSession()
{
    m_editor->SetMaximum(50);
    m_h->log.clear();
    COMBO_DRAG_SLIDER_TO(m_slider, 30);
    QCOMPARE(m_editor->Value(), 30);
    QCOMPARE(m_spin->value(), 30);
    QVERIFY(m_h->log.size() >= 3);
    QCOMPARE(m_h->log.first(), QStringLiteral("EditStarted"));
    QCOMPARE(m_h->log.at(m_h->log.size() - 2), QStringLiteral("ValueChanged(30)"));
    QCOMPARE(m_h->log.last(), QStringLiteral("EditFinished"));
    QCOMPARE(m_h->log.count(QStringLiteral("EditStarted")), 1);
    QCOMPARE(m_h->log.count(QStringLiteral("EditFinished")), 1);
    QCOMPARE(m_slider->objectName(), QStringLiteral("EditedWidget"));
}

// Beyond the range a typed number is clamped; with the independent flag the spin box takes numbers
// beyond the slider's range, which stops at its end.
void tst_QComboSpinBox::typing()
{
    m_editor->SetMaximum(150);
    COMBO_TYPE_INTO(m_spin, "999");
    QCOMPARE(m_editor->Value(), 150);
    QCOMPARE(m_slider->value(), 150);
    QCOMPARE(m_spin->maximum(), 150);
    QCOMPARE(m_h->log, (QStringList { "EditStarted", "ValueChanged(150)", "EditFinished" }));

    m_editor->SetIndependentSpin(true);
    m_editor->SetMaximum(100);
    m_editor->SetSpinMaximum(200);
    QCOMPARE(m_slider->maximum(), 100);
    QCOMPARE(m_editor->Maximum(), 100);
    QVERIFY(m_editor->UI()->qtRightArrowLabel->isVisible());
    QVERIFY(!m_editor->UI()->qtLeftArrowLabel->isVisible());
    m_h->log.clear();
    COMBO_TYPE_INTO(m_spin, "180");
    QCOMPARE(m_editor->Value(), 180);
    QCOMPARE(m_slider->value(), 100);
    QCOMPARE(m_h->log, (QStringList { "EditStarted", "ValueChanged(180)", "EditFinished" }));
    QTRY_VERIFY(!m_spin->hasFocus());
}

// Unfocused, neither child takes the wheel, and a click on the slider does not focus it; the
// focused spin box steps by keys and wheel in one session that ends with the focus.
void tst_QComboSpinBox::wheelAndKeys()
{
    m_editor->SetValue(10);
    m_h->log.clear();
    QVERIFY(!VelaTest::wheel(m_slider, 1));
    QVERIFY(!VelaTest::wheel(m_spin, 1));
    QTest::mouseClick(m_slider, Qt::LeftButton, Qt::NoModifier, handleRect(m_slider).center());
    QVERIFY(!m_slider->hasFocus());
    QVERIFY(!VelaTest::wheel(m_slider, -3));
    QCOMPARE(m_editor->Value(), 10);
    QVERIFY(m_h->log.filter(QStringLiteral("ValueChanged")).isEmpty());

    m_h->log.clear();
    m_spin->setFocus();
    QTRY_VERIFY(m_spin->hasFocus());
    QTest::keyClick(m_spin, Qt::Key_Up);
    QTest::keyClick(m_spin, Qt::Key_Up);
    QVERIFY(VelaTest::wheel(m_spin, 1));
    QCOMPARE(m_slider->value(), 13);
    m_h->other->setFocus();
    QTRY_VERIFY(m_h->other->hasFocus());
    QCOMPARE(m_h->log,
             (QStringList { "EditStarted", "ValueChanged(11)", "ValueChanged(12)",
                            "ValueChanged(13)", "EditFinished" }));
}

// Range changes that move the value are silent; without the independent flag the spin range
// drives the slider's; steps reach both children.
void tst_QComboSpinBox::rangeSetters()
{
    m_editor->SetValue(60);
    m_h->log.clear();
    m_editor->SetMaximum(20);
    m_editor->SetSpinMinimum(30);
    QCOMPARE(m_editor->Value(), 30);
    QVERIFY(m_h->log.isEmpty());

    m_editor->SetMinimum(-10);
    m_editor->SetMaximum(40);
    QCOMPARE(m_spin->minimum(), -10);
    QCOMPARE(m_slider->minimum(), -10);
    QCOMPARE(m_spin->maximum(), 40);
    QCOMPARE(m_slider->maximum(), 40);
    QVERIFY(m_editor->UI()->qtLeftArrowLabel->isHidden());
    QVERIFY(m_editor->UI()->qtRightArrowLabel->isHidden());
    m_editor->SetSpinMinimum(-20);
    QCOMPARE(m_slider->minimum(), -20);
    QCOMPARE(m_editor->Minimum(), -20);

    m_editor->SetIndependentSpin(true);
    m_editor->SetSpinMinimum(-30);
    QCOMPARE(m_slider->minimum(), -20);
    QCOMPARE(m_editor->Minimum(), -20);
    QCOMPARE(m_editor->SpinMinimum(), -30);
    QVERIFY(!m_editor->UI()->qtLeftArrowLabel->isHidden());
    m_editor->SetMinimum(-35);
    QCOMPARE(m_spin->minimum(), -30);
    QVERIFY(m_editor->UI()->qtLeftArrowLabel->isHidden());

    m_editor->SetSingleStep(5);
    QCOMPARE(m_spin->singleStep(), 5);
    QCOMPARE(m_slider->singleStep(), 5);
    m_editor->SetPageStep(20);
    QCOMPARE(m_slider->pageStep(), 20);
}

void tst_QComboSpinBox::mappings()
{
    m_editor->SetValue(20);
    m_editor->SetSpinToSlider([](int value) { return value * 2; });
    QCOMPARE(m_slider->maximum(), 198);
    QCOMPARE(m_slider->minimum(), 0);
    QCOMPARE(m_slider->value(), 40);
    m_editor->SetSliderToSpin([](int position) { return position / 2; });
    m_h->log.clear();

    COMBO_DRAG_SLIDER_TO(m_slider, 100);
    QCOMPARE(m_editor->Value(), 50);
    // The signal carries the slider position as it came.
    QCOMPARE(m_h->log.at(m_h->log.size() - 2), QStringLiteral("ValueChanged(100)"));

    COMBO_TYPE_INTO(m_spin, "70");
    QCOMPARE(m_slider->value(), 140);
    QVERIFY(m_h->log.contains(QStringLiteral("ValueChanged(70)")));

    // With the independent flag, a new mapping moves the slider but leaves its range.
    m_editor->SetIndependentSpin(true);
    m_editor->SetSpinToSlider([](int value) { return value + 1; });
    QCOMPARE(m_slider->maximum(), 198);
    QCOMPARE(m_slider->value(), 71);
}

// The slider is named after whether the value differs from the default, and repolished so that a
// style sheet shows it.
void tst_QComboSpinBox::editedMarking()
{
    m_h->window->setStyleSheet(
        QStringLiteral("QSlider#EditedWidget { background-color: #82be0f; }"
                       "QSlider#UneditedWidget { background-color: #505050; }"));
    const auto background = [this] {
        return m_slider->palette().color(m_slider->backgroundRole());
    };
    m_editor->SetDefaultValue(5);
    QCOMPARE(m_slider->objectName(), QStringLiteral("qtHorizontalSlider"));
    m_editor->SetValue(5);
    QCOMPARE(m_slider->objectName(), QStringLiteral("UneditedWidget"));
    QCOMPARE(background(), QColor(0x50, 0x50, 0x50));
    m_editor->SetValue(6);
    QCOMPARE(m_slider->objectName(), QStringLiteral("EditedWidget"));
    QCOMPARE(background(), QColor(0x82, 0xbe, 0x0f));
    // Changing the default alone does not re-mark.
    m_editor->SetDefaultValue(6);
    QCOMPARE(m_slider->objectName(), QStringLiteral("EditedWidget"));
    m_editor->MarkUsedSlider();
    QCOMPARE(m_slider->objectName(), QStringLiteral("UneditedWidget"));
    // A typed value marks as well.
    COMBO_TYPE_INTO(m_spin, "7");
    QCOMPARE(m_slider->objectName(), QStringLiteral("EditedWidget"));
}

void tst_QComboSpinBox::doubleClickReset_data()
{
    addDoubleClickRows();
}

void tst_QComboSpinBox::doubleClickReset()
{
    m_h->doubleClickReset(30, 5, 5);
}

void tst_QComboSpinBox::forwardedProperties_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("child");
    QTest::addColumn<QString>("childProperty");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *property, const char *child, const QVariant &value,
                        const char *childProperty = nullptr) {
        QTest::newRow(property) << QString(property) << QString(child)
                                << QString(childProperty ? childProperty : property) << value;
    };
    row("text", "label", QStringLiteral("Weight"));
    row("labelName", "label", QStringLiteral("captionLabel"), "objectName");
    row("wrapping", "spin", true);
    row("specialValueText", "spin", QStringLiteral("auto"));
    row("tickPosition", "slider", QVariant::fromValue(QSlider::TicksBelow));
    row("invertedAppearance", "slider", true);
}

void tst_QComboSpinBox::forwardedProperties()
{
    QFETCH(QString, property);
    QFETCH(QString, child);
    QFETCH(QString, childProperty);
    QFETCH(QVariant, value);

    QObject *target = child == QLatin1String("label")
        ? static_cast<QObject *>(m_editor->UI()->qtLabel)
        : child == QLatin1String("spin") ? static_cast<QObject *>(m_spin)
                                         : m_slider;
    const QByteArray name = property.toLatin1();
    const QByteArray childName = childProperty.toLatin1();
    QVERIFY(m_editor->property(name) != value);
    QVERIFY(m_editor->setProperty(name, value));
    QCOMPARE(target->property(childName), m_editor->property(name));
    QVERIFY(target->property(childName) == value);
}

void tst_QComboSpinBox::arrowImages()
{
    {
        CurrentFolder folder;
        QVERIFY(folder.write(QStringLiteral("left.svg"), arrowSvg(10, "10,0 0,5 10,10")));
        // A file claiming an enormous picture is refused rather than allocated.
        QVERIFY(folder.write(QStringLiteral("right.svg"), arrowSvg(60000, "0,0 10,5 0,10")));
        QComboSpinBox editor;
        QVERIFY(!editor.UI()->qtLeftArrowLabel->pixmap(Qt::ReturnByValue).isNull());
        QVERIFY(editor.UI()->qtRightArrowLabel->pixmap(Qt::ReturnByValue).isNull());
    }
    {
        CurrentFolder empty;
        QComboSpinBox editor;
        QVERIFY(editor.UI()->qtLeftArrowLabel->pixmap(Qt::ReturnByValue).isNull());
        QVERIFY(editor.UI()->qtRightArrowLabel->pixmap(Qt::ReturnByValue).isNull());
    }
}

VELA_TEST_CLASS(tst_QComboSpinBox)
#include "tst_QComboSpinBox.moc"
