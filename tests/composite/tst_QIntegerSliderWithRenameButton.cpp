#include "ComboEditorTestSupport.h"
#include "QIntegerSliderWithRenameButton.h"
#include "VelaTest.h"

#include <QtTest>

using namespace ComboEditorTest;

class tst_QIntegerSliderWithRenameButton : public QObject
{
    Q_OBJECT

private slots:
    void initialState();
    void formLayout();
    void disabledRenameButtonShowsDisabledIcon();
    void editorIsUsable();
};

void tst_QIntegerSliderWithRenameButton::initialState()
{
    QIntegerSliderWithRenameButton widget;
    QCOMPARE(widget.GetNameLabel()->text(), QStringLiteral("name"));
    QCOMPARE(widget.GetRenameButton()->minimumSize(), QSize(10, 10));
    QCOMPARE(widget.GetRenameButton()->maximumSize(), QSize(10, 10));
    QCOMPARE(widget.GetRenameButton()->iconSize(), QSize(10, 10));
    QCOMPARE(widget.GetRenameButton()->toolTip(), QStringLiteral("Edit"));
    QCOMPARE(widget.GetRenameButton()->text(), QStringLiteral("..."));
    QVERIFY(widget.GetRenameButton()->autoRaise());

    QComboSpinBox *editor = widget.GetSlider();
    QCOMPARE(editor->Value(), 50);
    QCOMPARE(editor->Minimum(), -50);
    QCOMPARE(editor->Maximum(), 100);
    QCOMPARE(editor->objectName(), QStringLiteral("qtCombospinbox"));
    QCOMPARE(editor->baseSize(), QSize(0, 23));
    QCOMPARE(widget.UI()->qtCombospinbox, editor);
    QCOMPARE(widget.UI()->qtNameLabel, widget.GetNameLabel());
    QCOMPARE(widget.UI()->qtRenameButton, widget.GetRenameButton());
}

void tst_QIntegerSliderWithRenameButton::formLayout()
{
    QIntegerSliderWithRenameButton widget;
    Ui::IntegerSliderWithRenameButtonWidget *ui = widget.UI();
    QCOMPARE(widget.objectName(), QStringLiteral("IntegerSliderWithRenameButtonWidget"));
    QCOMPARE(widget.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(widget.size(), QSize(431, 70));
    QCOMPARE(widget.minimumSize(), QSize(270, 20));
    QCOMPARE(widget.maximumSize(), QSize(16777215, 120));
    QCOMPARE(widget.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(widget.sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(widget.layout(), ui->verticalLayout_2);
    QCOMPARE(ui->verticalLayout_2->spacing(), 0);
    const QMargins outer = ui->verticalLayout_2->contentsMargins();
    QCOMPARE(outer.left(), 15);
    QCOMPARE(outer.right(), 0);
    QCOMPARE(outer.bottom(), 0);
    QCOMPARE(ui->horizontalLayout->spacing(), 0);
    QCOMPARE(ui->horizontalLayout->sizeConstraint(), QLayout::SetMinAndMaxSize);
    QCOMPARE(ui->horizontalLayout->contentsMargins().right(), 0);
    QCOMPARE(ui->horizontalLayout->indexOf(ui->qtNameLabel), 0);
    QCOMPARE(ui->horizontalLayout->indexOf(ui->qtRenameButton), 1);
    QCOMPARE(ui->qtNameLabel->maximumSize(), QSize(16777215, 12));
    QCOMPARE(ui->qtNameLabel->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(ui->verticalWidget->layout(), ui->verticalLayout);
    QCOMPARE(ui->verticalLayout->spacing(), 0);
    QCOMPARE(ui->verticalLayout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(ui->verticalLayout->indexOf(ui->qtCombospinbox), 0);
    QCOMPARE(ui->verticalLayout->count(), 2);
    QVERIFY(ui->verticalLayout->itemAt(1)->spacerItem());
    QCOMPARE(ui->verticalLayout->itemAt(1)->spacerItem()->sizePolicy().verticalPolicy(),
             QSizePolicy::Expanding);
    QCOMPARE(widget.Spacing(), 0);
    widget.SetSpacing(6);
    QCOMPARE(ui->verticalLayout_2->spacing(), 6);
}

void tst_QIntegerSliderWithRenameButton::disabledRenameButtonShowsDisabledIcon()
{
    QIntegerSliderWithRenameButton widget;
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QToolButton *button = widget.GetRenameButton();
    const QPoint centre = button->rect().center();
    QCOMPARE(button->grab().toImage().pixelColor(centre), QColor(0x82, 0xbe, 0x0f));
    button->setEnabled(false);
    QCOMPARE(button->grab().toImage().pixelColor(centre), QColor(0x50, 0x50, 0x50));
}

void tst_QIntegerSliderWithRenameButton::editorIsUsable()
{
    QIntegerSliderWithRenameButton widget;
    widget.resize(800, 70);
    widget.show();
    QVERIFY(QTest::qWaitForWindowActive(&widget));
    QComboSpinBox *editor = widget.GetSlider();
    QSignalSpy values(editor, &QComboSpinBox::ValueChanged);
    QSignalSpy finished(editor, &QComboSpinBox::EditFinished);
    QSignalSpy renames(widget.GetRenameButton(), &QToolButton::clicked);

    COMBO_DRAG_SLIDER_TO(editor->UI()->qtHorizontalSlider, 80);
    QCOMPARE(editor->Value(), 80);
    QCOMPARE(values.last().at(0).toInt(), 80);
    QCOMPARE(finished.count(), 1);

    COMBO_TYPE_INTO(editor->UI()->qtSpinBox, "-20");
    QCOMPARE(editor->Value(), -20);
    QCOMPARE(editor->UI()->qtHorizontalSlider->value(), -20);
    QCOMPARE(finished.count(), 2);

    QTest::mouseClick(widget.GetRenameButton(), Qt::LeftButton);
    QCOMPARE(renames.count(), 1);
}

VELA_TEST_CLASS(tst_QIntegerSliderWithRenameButton)
#include "tst_QIntegerSliderWithRenameButton.moc"
