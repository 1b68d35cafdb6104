#include "QIntegerSliderWithRenameButton.h"
#include "VelaTest.h"

#include <QtTest>

class tst_QIntegerSliderWithRenameButton : public QObject
{
    Q_OBJECT

private slots:
    void childrenAreUsable();
};

// The form's children as a host finds them: the name, the editor, and a rename button that greys
// out when disabled.
void tst_QIntegerSliderWithRenameButton::childrenAreUsable()
{
    QIntegerSliderWithRenameButton widget;
    widget.resize(800, 70);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QCOMPARE(widget.GetNameLabel()->text(), QStringLiteral("name"));
    QCOMPARE(widget.GetSlider()->objectName(), QStringLiteral("qtCombospinbox"));

    QToolButton *button = widget.GetRenameButton();
    const QPoint centre = button->rect().center();
    QCOMPARE(button->grab().toImage().pixelColor(centre), QColor(0x82, 0xbe, 0x0f));
    button->setEnabled(false);
    QCOMPARE(button->grab().toImage().pixelColor(centre), QColor(0x50, 0x50, 0x50));
}

VELA_TEST_CLASS(tst_QIntegerSliderWithRenameButton)
#include "tst_QIntegerSliderWithRenameButton.moc"
