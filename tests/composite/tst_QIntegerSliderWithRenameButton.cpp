#include "ComboEditorTestSupport.h"
#include "QIntegerSliderWithRenameButton.h"
#include "VelaTest.h"

#include <QtTest>

using namespace ComboEditorTest;

class tst_QIntegerSliderWithRenameButton : public QObject
{
    Q_OBJECT

private slots:
    void childrenAreUsable();
};

// The form's children as a host finds them: the name, an editor at 50 in -50 to 100, and a rename
// button that greys out when disabled.
void tst_QIntegerSliderWithRenameButton::childrenAreUsable()
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
    QSignalSpy finished(editor, &QComboSpinBox::EditFinished);
    COMBO_TYPE_INTO(editor->UI()->qtSpinBox, "-20");
    QCOMPARE(editor->Value(), -20);
    QCOMPARE(editor->UI()->qtHorizontalSlider->value(), -20);
    QCOMPARE(finished.count(), 1);

    QToolButton *button = widget.GetRenameButton();
    const QPoint centre = button->rect().center();
    QCOMPARE(button->grab().toImage().pixelColor(centre), QColor(0x82, 0xbe, 0x0f));
    QSignalSpy renames(button, &QToolButton::clicked);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(renames.count(), 1);
    button->setEnabled(false);
    QCOMPARE(button->grab().toImage().pixelColor(centre), QColor(0x50, 0x50, 0x50));
}

VELA_TEST_CLASS(tst_QIntegerSliderWithRenameButton)
#include "tst_QIntegerSliderWithRenameButton.moc"
