#include "ComboEditorTestSupport.h"
#include "QIntegerSliderWithRenameButton.h"
#include "VelaTest.h"

#include <QtTest>

using namespace ComboEditorTest;

class tst_QIntegerSliderWithRenameButton : public QObject
{
    Q_OBJECT

private slots:
    void disabledRenameButtonShowsDisabledIcon();
    void editorIsUsable();
};

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
    QCOMPARE(widget.GetNameLabel()->text(), QStringLiteral("name"));
    QCOMPARE(editor->Minimum(), -50);
    QCOMPARE(editor->Maximum(), 100);
    QCOMPARE(editor->Value(), 50);
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
