#include "BasicTestSupport.h"
#include "QClickableLabel.h"
#include "VelaTest.h"

#include <QtTest>

class tst_QClickableLabel : public QObject
{
    Q_OBJECT

private slots:
    void clicks();
    void pressDoesNotSelectText();
};

// Any button clicks on the press; a double-click adds doubleClicked and no second click.
void tst_QClickableLabel::clicks()
{
    QClickableLabel label;
    QStringList events;
    connect(&label, &QClickableLabel::clicked, [&] { events << QStringLiteral("clicked"); });
    connect(&label, &QClickableLabel::doubleClicked,
            [&] { events << QStringLiteral("doubleClicked"); });

    for (Qt::MouseButton button : { Qt::LeftButton, Qt::RightButton }) {
        events.clear();
        QTest::mousePress(&label, button);
        QCOMPARE(events, QStringList({ "clicked" }));
        QTest::mouseRelease(&label, button);
        QTest::mouseDClick(&label, button);
        QTest::mouseRelease(&label, button);
        QCOMPARE(events, QStringList({ "clicked", "doubleClicked" }));
    }
}

void tst_QClickableLabel::pressDoesNotSelectText()
{
    QClickableLabel label;
    label.setText(QStringLiteral("Left brow raise"));
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    label.resize(200, 30);
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    BasicTest::drag(&label, QPoint(2, 15), QPoint(198, 15));
    QVERIFY(!label.hasSelectedText());
}

VELA_TEST_CLASS(tst_QClickableLabel)
#include "tst_QClickableLabel.moc"
