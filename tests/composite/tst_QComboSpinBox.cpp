#include "ComboEditorTestSupport.h"
#include "QComboSpinBox.h"
#include "VelaTest.h"

#include <QScopeGuard>
#include <QTemporaryDir>
#include <QtTest>

using namespace ComboEditorTest;

class tst_QComboSpinBox : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void setValueEmitsOnceWithoutChildSignals();
    void sliderDragIsOneSession();
    void typing();
    void wheelAndKeys();
    void rangeSetters();
    void mappings();
    void editedMarking();
    void doubleClickReset_data();
    void doubleClickReset();
    void forwardedProperties();
    void arrowImages();

private:
    std::unique_ptr<Harness<QComboSpinBox, QSpinBoxEx>> m_h;
};

void tst_QComboSpinBox::init()
{
    m_h.reset(new Harness<QComboSpinBox, QSpinBoxEx>(600));
    connect(m_h->editor, &QComboSpinBox::EditStarted, this,
            [this] { m_h->log << QStringLiteral("EditStarted"); });
    QVERIFY(m_h->show());
}

void tst_QComboSpinBox::cleanup()
{
    m_h.reset();
}

void tst_QComboSpinBox::setValueEmitsOnceWithoutChildSignals()
{
    QSignalSpy sliderRecord(m_h->slider, &QSliderEx::RecordEditingValue);
    m_h->checkSetValueIsSilent(42, 42);

    // The slider treats the programmatic value as recorded: a later focus change reports nothing.
    m_h->slider->setFocusPolicy(Qt::StrongFocus);
    m_h->slider->setFocus();
    QTRY_VERIFY(m_h->slider->hasFocus());
    m_h->other->setFocus();
    QTRY_VERIFY(m_h->other->hasFocus());
    QCOMPARE(sliderRecord.count(), 0);
    QCOMPARE(m_h->log, QStringList { "ValueChanged(42)" });
}

void tst_QComboSpinBox::sliderDragIsOneSession()
{
    m_h->editor->SetMaximum(50);
    m_h->log.clear();
    COMBO_DRAG_SLIDER_TO(m_h->slider, 30);
    QCOMPARE(m_h->editor->Value(), 30);
    // One start, first; one finish, last, right after the final value.
    QCOMPARE(m_h->log.filter(QStringLiteral("Edit")),
             (QStringList { "EditStarted", "EditFinished" }));
    QCOMPARE(m_h->log.first(), QStringLiteral("EditStarted"));
    QCOMPARE(m_h->log.mid(m_h->log.size() - 2),
             (QStringList { "ValueChanged(30)", "EditFinished" }));
    QCOMPARE(m_h->slider->objectName(), QStringLiteral("EditedWidget"));
}

// Beyond the range a typed number is clamped; with the independent flag the spin box takes numbers
// beyond the slider's range, which stops at its end.
void tst_QComboSpinBox::typing()
{
    m_h->editor->SetMaximum(150);
    COMBO_TYPE_INTO(m_h->spin, "999");
    QCOMPARE(m_h->editor->Value(), 150);
    QCOMPARE(m_h->slider->value(), 150);
    QCOMPARE(m_h->log, (QStringList { "EditStarted", "ValueChanged(150)", "EditFinished" }));

    m_h->editor->SetIndependentSpin(true);
    m_h->editor->SetMaximum(100);
    m_h->editor->SetSpinMaximum(200);
    QVERIFY(m_h->editor->UI()->qtRightArrowLabel->isVisible());
    QVERIFY(!m_h->editor->UI()->qtLeftArrowLabel->isVisible());
    m_h->log.clear();
    COMBO_TYPE_INTO(m_h->spin, "180");
    QCOMPARE(m_h->editor->Value(), 180);
    QCOMPARE(m_h->slider->value(), 100);
    QCOMPARE(m_h->log, (QStringList { "EditStarted", "ValueChanged(180)", "EditFinished" }));
}

// The slider never takes the wheel, nor the focus on a click; the focused spin box steps by keys
// and wheel in one session that ends with the focus.
void tst_QComboSpinBox::wheelAndKeys()
{
    m_h->editor->SetValue(10);
    m_h->log.clear();
    QVERIFY(!VelaTest::wheel(m_h->slider, 1));
    QTest::mouseClick(m_h->slider, Qt::LeftButton, Qt::NoModifier,
                      handleRect(m_h->slider).center());
    QVERIFY(!m_h->slider->hasFocus());
    QVERIFY(!VelaTest::wheel(m_h->slider, -3));
    QCOMPARE(m_h->editor->Value(), 10);
    QVERIFY(m_h->log.filter(QStringLiteral("ValueChanged")).isEmpty());

    m_h->log.clear();
    m_h->spin->setFocus();
    QTRY_VERIFY(m_h->spin->hasFocus());
    QTest::keyClick(m_h->spin, Qt::Key_Up);
    QTest::keyClick(m_h->spin, Qt::Key_Up);
    QVERIFY(VelaTest::wheel(m_h->spin, 1));
    QCOMPARE(m_h->slider->value(), 13);
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
    // Matching ranges show no arrow from the start.
    QVERIFY(m_h->editor->UI()->qtLeftArrowLabel->isHidden());
    QVERIFY(m_h->editor->UI()->qtRightArrowLabel->isHidden());
    m_h->editor->SetValue(60);
    m_h->log.clear();
    m_h->editor->SetMaximum(20);
    m_h->editor->SetSpinMinimum(30);
    QCOMPARE(m_h->editor->Value(), 30);
    QVERIFY(m_h->log.isEmpty());

    m_h->editor->SetMinimum(-10);
    m_h->editor->SetMaximum(40);
    QCOMPARE(m_h->spin->minimum(), -10);
    QCOMPARE(m_h->slider->minimum(), -10);
    m_h->editor->SetSpinMinimum(-20);
    QCOMPARE(m_h->slider->minimum(), -20);

    m_h->editor->SetIndependentSpin(true);
    m_h->editor->SetSpinMinimum(-30);
    QCOMPARE(m_h->editor->Minimum(), -20);
    QVERIFY(!m_h->editor->UI()->qtLeftArrowLabel->isHidden());
    m_h->editor->SetMinimum(-35);
    QCOMPARE(m_h->spin->minimum(), -30);
    QVERIFY(m_h->editor->UI()->qtLeftArrowLabel->isHidden());

    m_h->editor->SetSingleStep(5);
    QCOMPARE(m_h->spin->singleStep(), 5);
    QCOMPARE(m_h->slider->singleStep(), 5);
}

void tst_QComboSpinBox::mappings()
{
    m_h->editor->SetValue(20);
    m_h->editor->SetSpinToSlider([](int value) { return value * 2; });
    QCOMPARE(m_h->slider->maximum(), 198);
    QCOMPARE(m_h->slider->value(), 40);
    m_h->editor->SetSliderToSpin([](int position) { return position / 2; });
    m_h->log.clear();

    COMBO_DRAG_SLIDER_TO(m_h->slider, 100);
    QCOMPARE(m_h->editor->Value(), 50);
    // The signal carries the slider position as it came.
    QCOMPARE(m_h->log.at(m_h->log.size() - 2), QStringLiteral("ValueChanged(100)"));

    COMBO_TYPE_INTO(m_h->spin, "70");
    QCOMPARE(m_h->slider->value(), 140);
    QVERIFY(m_h->log.contains(QStringLiteral("ValueChanged(70)")));

    // With the independent flag, a new mapping moves the slider but leaves its range.
    m_h->editor->SetIndependentSpin(true);
    m_h->editor->SetSpinToSlider([](int value) { return value + 1; });
    QCOMPARE(m_h->slider->maximum(), 198);
    QCOMPARE(m_h->slider->value(), 71);
}

// The slider is named after whether the value differs from the default, and repolished so that a
// style sheet shows it.
void tst_QComboSpinBox::editedMarking()
{
    m_h->window->setStyleSheet(
        QStringLiteral("QSlider#EditedWidget { background-color: #82be0f; }"
                       "QSlider#UneditedWidget { background-color: #505050; }"));
    const auto background = [this] {
        return m_h->slider->palette().color(m_h->slider->backgroundRole());
    };
    m_h->editor->SetDefaultValue(5);
    QCOMPARE(m_h->slider->objectName(), QStringLiteral("qtHorizontalSlider"));
    m_h->editor->SetValue(5);
    QCOMPARE(m_h->slider->objectName(), QStringLiteral("UneditedWidget"));
    QCOMPARE(background(), QColor(0x50, 0x50, 0x50));
    m_h->editor->SetValue(6);
    QCOMPARE(m_h->slider->objectName(), QStringLiteral("EditedWidget"));
    QCOMPARE(background(), QColor(0x82, 0xbe, 0x0f));
    // Changing the default alone does not re-mark.
    m_h->editor->SetDefaultValue(6);
    QCOMPARE(m_h->slider->objectName(), QStringLiteral("EditedWidget"));
    m_h->editor->MarkUsedSlider();
    QCOMPARE(m_h->slider->objectName(), QStringLiteral("UneditedWidget"));
    // A typed value marks as well.
    COMBO_TYPE_INTO(m_h->spin, "7");
    QCOMPARE(m_h->slider->objectName(), QStringLiteral("EditedWidget"));
}

// Where a double-click lands, with which button, on an enabled editor or not, with the reset
// switched on or not, and whether the value returns to its default.
void tst_QComboSpinBox::doubleClickReset_data()
{
    QTest::addColumn<bool>("onLabel");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("resetFlag");
    QTest::addColumn<bool>("resets");
    QTest::newRow("left on slider") << false << int(Qt::LeftButton) << true << true << true;
    QTest::newRow("left on label") << true << int(Qt::LeftButton) << true << true << true;
    QTest::newRow("right button") << false << int(Qt::RightButton) << true << true << false;
    QTest::newRow("disabled") << false << int(Qt::LeftButton) << false << true << false;
    QTest::newRow("flag off") << true << int(Qt::LeftButton) << true << false << false;
}

void tst_QComboSpinBox::doubleClickReset()
{
    QFETCH(bool, onLabel);
    QFETCH(int, button);
    QFETCH(bool, enabled);
    QFETCH(bool, resetFlag);
    QFETCH(bool, resets);
    m_h->doubleClickReset(30, 5, 5, onLabel, Qt::MouseButton(button), enabled, resetFlag, resets);
}

// Properties of the caption, the spin box and the slider are set and read through the editor.
void tst_QComboSpinBox::forwardedProperties()
{
    QLabel *label = m_h->editor->UI()->qtLabel;
    QVERIFY(m_h->editor->setProperty("labelName", QStringLiteral("captionLabel")));
    QCOMPARE(label->objectName(), QStringLiteral("captionLabel"));
    QCOMPARE(m_h->editor->property("labelName").toString(), label->objectName());
    QVERIFY(m_h->editor->setProperty("specialValueText", QStringLiteral("auto")));
    QCOMPARE(m_h->spin->specialValueText(), QStringLiteral("auto"));
    QCOMPARE(m_h->editor->property("specialValueText").toString(), m_h->spin->specialValueText());
    QVERIFY(m_h->editor->setProperty("tickPosition", QVariant::fromValue(QSlider::TicksBelow)));
    QCOMPARE(m_h->slider->tickPosition(), QSlider::TicksBelow);
    QCOMPARE(m_h->editor->property("tickPosition").value<QSlider::TickPosition>(),
             m_h->slider->tickPosition());
}

// The arrows are read from the current folder; a missing file leaves its arrow empty.
void tst_QComboSpinBox::arrowImages()
{
    QTemporaryDir dir;
    const QString previous = QDir::currentPath();
    QVERIFY(QDir::setCurrent(dir.path()));
    const auto restore = qScopeGuard([&] { QDir::setCurrent(previous); });
    const auto loaded = [] {
        QComboSpinBox editor;
        return QPair<bool, bool>(
            !editor.UI()->qtLeftArrowLabel->pixmap(Qt::ReturnByValue).isNull(),
            !editor.UI()->qtRightArrowLabel->pixmap(Qt::ReturnByValue).isNull());
    };
    QVERIFY(!VelaTest::writeFile(dir.path(), "left.svg",
                                 "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"10\" "
                                 "height=\"10\"><polygon points=\"10,0 0,5 10,10\" "
                                 "fill=\"#82be0f\"/></svg>")
                 .isEmpty());
    QCOMPARE(loaded(), qMakePair(true, false));
}

VELA_TEST_CLASS(tst_QComboSpinBox)
#include "tst_QComboSpinBox.moc"
