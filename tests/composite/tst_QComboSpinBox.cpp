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
    void formLayout();
    void propertyOrder();
    void setValueEmitsOnceWithoutChildSignals();
    void sliderDragIsOneSession();
    void typingInIndependentRange();
    void typingBeyondRangeIsClamped();
    void steppingByKeysAndWheel();
    void wheelNeverMovesSlider();
    void rangeSetters();
    void mappings();
    void editedMarking();
    void markingRepolishes();
    void doubleClickReset_data();
    void doubleClickReset();
    void labelOrientationIsStoredOnly();
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

void tst_QComboSpinBox::initialState()
{
    QComboSpinBox editor;
    QCOMPARE(editor.Value(), 0);
    QCOMPARE(editor.Minimum(), 0);
    QCOMPARE(editor.Maximum(), 99);
    QCOMPARE(editor.DefaultValue(), 0);
    QVERIFY(!editor.IndependentSpin());
    QVERIFY(!editor.ResetOnDoubleClick());
    QCOMPARE(editor.labelOrientation(), Qt::Vertical);
    QVERIFY(editor.UI()->qtLeftArrowLabel->isHidden());
    QVERIFY(editor.UI()->qtRightArrowLabel->isHidden());
    QCOMPARE(editor.UI()->qtHorizontalSlider->focusPolicy(), Qt::NoFocus);
    QCOMPARE(editor.UI()->qtSpinBox->focusPolicy(), Qt::StrongFocus);
    QVERIFY(!editor.UI()->qtSpinBox->keyboardTracking());
    QCOMPARE(editor.LabelName(), QStringLiteral("qtLabel"));

    // The label sits above the slider row.
    const QRect label = m_editor->UI()->qtLabel->geometry();
    QCOMPARE(m_editor->UI()->qtLabel->parentWidget(), m_editor);
    QVERIFY(label.bottom() <= m_slider->geometry().top());
    QVERIFY(m_editor->LabelVisible());
}

void tst_QComboSpinBox::formLayout()
{
    QComboSpinBox editor;
    Ui::SliderSpinbox *ui = editor.UI();
    QCOMPARE(editor.objectName(), QStringLiteral("SliderSpinbox"));
    QCOMPARE(editor.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(editor.size(), QSize(262, 33));
    QCOMPARE(ui->horizontalLayoutWidget->geometry(), QRect(0, 0, 261, 31));
    QCOMPARE(editor.layout(), ui->verticalLayout);
    QCOMPARE(ui->verticalLayout->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(ui->verticalLayout->spacing(), 0);
    QCOMPARE(ui->verticalLayout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(ui->horizontalLayout->spacing(), 10);
    QCOMPARE(ui->horizontalLayout_2->spacing(), 0);
    QCOMPARE(ui->horizontalLayout_2->contentsMargins().left(), 0);
    QCOMPARE(ui->horizontalLayout_2->contentsMargins().right(), 0);
    QCOMPARE(ui->horizontalLayout_2->indexOf(ui->qtLeftArrowLabel), 0);
    QCOMPARE(ui->horizontalLayout_2->indexOf(ui->qtHorizontalSlider), 1);
    QCOMPARE(ui->horizontalLayout_2->indexOf(ui->qtRightArrowLabel), 2);
    QCOMPARE(ui->horizontalLayout->indexOf(ui->qtSpinBox), 1);
    for (QLabel *arrow : { ui->qtLeftArrowLabel, ui->qtRightArrowLabel }) {
        QCOMPARE(arrow->minimumSize(), QSize(10, 10));
        QCOMPARE(arrow->maximumSize(), QSize(10, 10));
        QVERIFY(arrow->hasScaledContents());
        QVERIFY(arrow->text().isEmpty());
    }
    QCOMPARE(ui->qtLeftArrowLabel->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(ui->qtHorizontalSlider->orientation(), Qt::Horizontal);
    for (QWidget *child :
         { static_cast<QWidget *>(ui->qtLabel), static_cast<QWidget *>(ui->qtHorizontalSlider),
           static_cast<QWidget *>(ui->qtSpinBox) })
        QCOMPARE(child->parentWidget(), &editor);
    QCOMPARE(editor.Spacing(), 0);
    editor.SetSpacing(4);
    QCOMPARE(ui->verticalLayout->spacing(), 4);
}

void tst_QComboSpinBox::propertyOrder()
{
    const QMetaObject *meta = &QComboSpinBox::staticMetaObject;
    const QStringList names = propertyNames(meta);
    const QString expected = "spacing value minimum maximum singleStep pageStep independentSpin "
                             "spinMinimum spinMaximum resetOnDoubleClick defaultValue labelVisible "
                             "labelName text textFormat pixmap scaledContents wordWrap "
                             "labelOrientation wrapping frame alignment readOnly buttonSymbols "
                             "specialValueText accelerated correctionMode keyboardTracking "
                             "showGroupSeparator tickPosition tickInterval tracking orientation "
                             "invertedAppearance invertedControls sliderDown";
    QCOMPARE(names, expected.split(QLatin1Char(' ')));
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i)
        QVERIFY2(meta->property(i).isWritable(), meta->property(i).name());
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

void tst_QComboSpinBox::typingInIndependentRange()
{
    m_editor->SetIndependentSpin(true);
    m_editor->SetMaximum(100);
    m_editor->SetSpinMaximum(200);
    QCOMPARE(m_slider->maximum(), 100);
    QCOMPARE(m_editor->Maximum(), 100);
    QCOMPARE(m_editor->SpinMaximum(), 200);
    QVERIFY(m_editor->UI()->qtRightArrowLabel->isVisible());
    QVERIFY(!m_editor->UI()->qtLeftArrowLabel->isVisible());

    COMBO_TYPE_INTO(m_spin, "150");
    QCOMPARE(m_editor->Value(), 150);
    QCOMPARE(m_slider->value(), 100);
    QCOMPARE(m_h->log, (QStringList { "EditStarted", "ValueChanged(150)", "EditFinished" }));
    QTRY_VERIFY(!m_spin->hasFocus());
}

void tst_QComboSpinBox::typingBeyondRangeIsClamped()
{
    m_editor->SetMaximum(150);
    COMBO_TYPE_INTO(m_spin, "999");
    QCOMPARE(m_editor->Value(), 150);
    QCOMPARE(m_slider->value(), 150);
    QCOMPARE(m_spin->maximum(), 150);
    QCOMPARE(m_h->log.count(QStringLiteral("EditFinished")), 1);
    QCOMPARE(m_h->log.last(), QStringLiteral("EditFinished"));
    QVERIFY(m_h->log.contains(QStringLiteral("ValueChanged(150)")));
}

void tst_QComboSpinBox::steppingByKeysAndWheel()
{
    m_spin->setFocus();
    QTRY_VERIFY(m_spin->hasFocus());
    QTest::keyClick(m_spin, Qt::Key_Up);
    QTest::keyClick(m_spin, Qt::Key_Up);
    QVERIFY(VelaTest::wheel(m_spin, 1));
    QCOMPARE(m_editor->Value(), 3);
    QCOMPARE(m_slider->value(), 3);
    m_h->other->setFocus();
    QTRY_VERIFY(m_h->other->hasFocus());
    QCOMPARE(m_h->log,
             (QStringList { "EditStarted", "ValueChanged(1)", "ValueChanged(2)", "ValueChanged(3)",
                            "EditFinished" }));
}

void tst_QComboSpinBox::wheelNeverMovesSlider()
{
    m_editor->SetValue(10);
    m_h->log.clear();
    QVERIFY(!VelaTest::wheel(m_slider, 1));
    QVERIFY(!VelaTest::wheel(m_spin, 1));
    QTest::mouseClick(m_slider, Qt::LeftButton, Qt::NoModifier, handleRect(m_slider).center());
    QVERIFY(!m_slider->hasFocus());
    QVERIFY(!VelaTest::wheel(m_slider, -3));
    QCOMPARE(m_slider->value(), 10);
    QCOMPARE(m_editor->Value(), 10);
    QVERIFY(m_h->log.filter(QStringLiteral("ValueChanged")).isEmpty());
}

void tst_QComboSpinBox::rangeSetters()
{
    // Range changes that move the value are silent.
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

    // Without the independent flag the spin range drives the slider's.
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
    QCOMPARE(m_editor->SingleStep(), 5);
    m_editor->SetPageStep(20);
    QCOMPARE(m_slider->pageStep(), 20);
    QCOMPARE(m_editor->PageStep(), 20);
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

void tst_QComboSpinBox::editedMarking()
{
    m_editor->SetDefaultValue(5);
    QCOMPARE(m_slider->objectName(), QStringLiteral("qtHorizontalSlider"));
    m_editor->SetValue(5);
    QCOMPARE(m_slider->objectName(), QStringLiteral("UneditedWidget"));
    m_editor->SetValue(6);
    QCOMPARE(m_slider->objectName(), QStringLiteral("EditedWidget"));
    // Changing the default alone does not re-mark.
    m_editor->SetDefaultValue(6);
    QCOMPARE(m_slider->objectName(), QStringLiteral("EditedWidget"));
    m_editor->MarkUsedSlider();
    QCOMPARE(m_slider->objectName(), QStringLiteral("UneditedWidget"));
    // A typed value marks as well.
    COMBO_TYPE_INTO(m_spin, "7");
    QCOMPARE(m_slider->objectName(), QStringLiteral("EditedWidget"));
}

void tst_QComboSpinBox::markingRepolishes()
{
    m_h->window->setStyleSheet(
        QStringLiteral("QSlider#EditedWidget { background-color: #82be0f; }"
                       "QSlider#UneditedWidget { background-color: #505050; }"));
    m_editor->SetValue(3);
    QCOMPARE(m_slider->palette().color(m_slider->backgroundRole()), QColor(0x82, 0xbe, 0x0f));
    m_editor->SetValue(0);
    QCOMPARE(m_slider->palette().color(m_slider->backgroundRole()), QColor(0x50, 0x50, 0x50));
}

void tst_QComboSpinBox::doubleClickReset_data()
{
    addDoubleClickRows();
}

void tst_QComboSpinBox::doubleClickReset()
{
    m_h->doubleClickReset(30, 5, 5);
}

void tst_QComboSpinBox::labelOrientationIsStoredOnly()
{
    QLayout *before = m_editor->layout();
    const QRect label = m_editor->UI()->qtLabel->geometry();
    m_editor->setLabelOrientation(Qt::Horizontal);
    QCOMPARE(m_editor->labelOrientation(), Qt::Horizontal);
    QCOMPARE(m_editor->layout(), before);
    QApplication::processEvents();
    QCOMPARE(m_editor->UI()->qtLabel->geometry(), label);
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
    row("textFormat", "label", QVariant::fromValue(Qt::RichText));
    row("scaledContents", "label", true);
    row("wordWrap", "label", true);
    row("labelName", "label", QStringLiteral("captionLabel"), "objectName");
    row("wrapping", "spin", true);
    row("frame", "spin", false);
    row("alignment", "spin", QVariant::fromValue(Qt::Alignment(Qt::AlignRight)));
    row("readOnly", "spin", true);
    row("buttonSymbols", "spin", QVariant::fromValue(QAbstractSpinBox::NoButtons));
    row("specialValueText", "spin", QStringLiteral("auto"));
    row("accelerated", "spin", true);
    row("correctionMode", "spin", QVariant::fromValue(QAbstractSpinBox::CorrectToNearestValue));
    row("keyboardTracking", "spin", true);
    row("showGroupSeparator", "spin", true);
    row("tickPosition", "slider", QVariant::fromValue(QSlider::TicksBelow));
    row("tickInterval", "slider", 7);
    row("tracking", "slider", false);
    row("orientation", "slider", QVariant::fromValue(Qt::Vertical));
    row("invertedAppearance", "slider", true);
    row("invertedControls", "slider", true);
    row("sliderDown", "slider", true);
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
