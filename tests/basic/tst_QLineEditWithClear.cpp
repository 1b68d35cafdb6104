#include "QLineEditWithClear.h"
#include "VelaTest.h"

#include <QStyle>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

class tst_QLineEditWithClear : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void clearButton();
    void buttonSitsInTheCornerClearOfText();
    void missingPixmap();

private:
    static QToolButton *clearButtonOf(QLineEditWithClear &edit)
    {
        return edit.findChild<QToolButton *>(QStringLiteral("qtClearButton"));
    }
    // Gives the edit the 12 x 12 test cross, shows it at `size` and waits for it.
    bool showWithCross(QLineEditWithClear &edit, const QSize &size)
    {
        edit.SetToolButtonCrossPixmap(m_crossPath);
        edit.resize(size);
        edit.show();
        return QTest::qWaitForWindowExposed(&edit);
    }

    QTemporaryDir m_dir;
    QString m_crossPath;
};

void tst_QLineEditWithClear::initTestCase()
{
    QVERIFY(m_dir.isValid());
    m_crossPath =
        VelaTest::writeImage(m_dir.path(), QStringLiteral("cross.png"), Qt::white, QSize(12, 12));
    QVERIFY(!m_crossPath.isEmpty());
}

// The button shows while there is text; a click on it clears the text, then reports.
void tst_QLineEditWithClear::clearButton()
{
    QLineEditWithClear edit;
    QVERIFY(showWithCross(edit, QSize(200, 30)));
    QToolButton *button = clearButtonOf(edit);
    QVERIFY(!button->isVisible());
    QTest::keyClicks(&edit, QStringLiteral("jaw"));
    QVERIFY(button->isVisible());
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&edit, Qt::Key_Backspace);
    QVERIFY(!button->isVisible());
    edit.setText(QStringLiteral("mouth"));
    QVERIFY(button->isVisible());

    QStringList events;
    connect(&edit, &QLineEdit::textChanged,
            [&](const QString &text) { events << QStringLiteral("textChanged:") + text; });
    connect(&edit, &QLineEditWithClear::ClearButtonClicked,
            [&] { events << QStringLiteral("ClearButtonClicked:") + edit.text(); });
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(events, QStringList({ "textChanged:", "ClearButtonClicked:" }));
    QVERIFY(!button->isVisible());
}

// Flush with the bottom right corner inside the frame, following resizes; long text scrolls
// rather than running under it.
void tst_QLineEditWithClear::buttonSitsInTheCornerClearOfText()
{
    QLineEditWithClear edit;
    QVERIFY(showWithCross(edit, QSize(120, 30)));
    QToolButton *button = clearButtonOf(edit);
    const int fw = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    QCOMPARE(button->geometry(), QRect(edit.rect().right() - 12 - fw, 30 - 12, 12, 12));

    QTest::keyClicks(&edit, QStringLiteral("a rather long name for a facial key"));
    QTest::keyClick(&edit, Qt::Key_End);
    edit.repaint(); // scrolls the text to the cursor
    const QRect cursor = edit.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    QVERIFY(cursor.right() < button->x());

    edit.resize(240, 40);
    QCOMPARE(button->pos(), QPoint(edit.rect().right() - 12 - fw, 40 - 12));
}

void tst_QLineEditWithClear::missingPixmap()
{
    QLineEditWithClear edit;
    edit.SetToolButtonCrossPixmap(m_dir.filePath(QStringLiteral("missing.png")));
    QToolButton *button = clearButtonOf(edit);
    QVERIFY(button->icon().isNull());
    QCOMPARE(button->maximumSize(), QSize(0, 0));
    edit.resize(100, 24);
    edit.setText(QStringLiteral("x"));
    QVERIFY(button->isVisibleTo(&edit));
}

VELA_TEST_CLASS(tst_QLineEditWithClear)
#include "tst_QLineEditWithClear.moc"
