#include "BasicTestSupport.h"
#include "QClickableLabel.h"
#include "VelaTest.h"

#include <QtTest>

Q_DECLARE_METATYPE(Qt::MouseButton)

class tst_QClickableLabel : public QObject
{
    Q_OBJECT

private slots:
    void clicks_data();
    void clicks();
    void doubleClick();
    void pressDoesNotSelectText();
};

void tst_QClickableLabel::clicks_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void tst_QClickableLabel::clicks()
{
    QFETCH(Qt::MouseButton, button);
    QClickableLabel label;
    label.setText(QStringLiteral("Jaw"));
    QSignalSpy clicked(&label, &QClickableLabel::clicked);
    QSignalSpy doubleClicked(&label, &QClickableLabel::doubleClicked);

    QTest::mousePress(&label, button);
    QCOMPARE(clicked.count(), 1); // on the press, not on the release
    QTest::mouseRelease(&label, button);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(doubleClicked.count(), 0);
}

void tst_QClickableLabel::doubleClick()
{
    QClickableLabel label;
    QStringList events;
    connect(&label, &QClickableLabel::clicked, [&] { events << QStringLiteral("clicked"); });
    connect(&label, &QClickableLabel::doubleClicked,
            [&] { events << QStringLiteral("doubleClicked"); });

    // The event sequence of a double-click: press, release, double-click, release.
    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QTest::mouseDClick(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QCOMPARE(events, QStringList({ "clicked", "doubleClicked" }));
}

void tst_QClickableLabel::pressDoesNotSelectText()
{
    QClickableLabel label;
    label.setText(QStringLiteral("Left brow raise"));
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    label.resize(200, 30);
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));

    BasicTest::drag(&label, QPoint(2, label.height() / 2),
                    QPoint(label.width() - 2, label.height() / 2));
    QVERIFY(!label.hasSelectedText());
}

VELA_TEST_CLASS(tst_QClickableLabel)
#include "tst_QClickableLabel.moc"
