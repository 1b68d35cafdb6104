#include "QLineEditWithClear.h"
#include "VelaTest.h"

#include <QPainter>
#include <QStyle>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

class tst_QLineEditWithClear : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void construction();
    void typingShowsButton();
    void clearButtonClearsThenSignals();
    void buttonPlacement();
    void textStaysClearOfButton();
    void missingPixmap();

private:
    static QToolButton *clearButton(QLineEditWithClear &edit)
    {
        return edit.findChild<QToolButton *>(QStringLiteral("qtClearButton"));
    }
    // Gives the edit the test cross, shows it at `size` and waits for it.
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
    QImage cross(12, 12, QImage::Format_ARGB32);
    cross.fill(Qt::transparent);
    QPainter painter(&cross);
    painter.setPen(QPen(Qt::white, 2));
    painter.drawLine(2, 2, 9, 9);
    painter.drawLine(9, 2, 2, 9);
    painter.end();
    m_crossPath = m_dir.filePath(QStringLiteral("cross.png"));
    QVERIFY(cross.save(m_crossPath));
}

void tst_QLineEditWithClear::construction()
{
    QLineEditWithClear edit;
    QToolButton *button = clearButton(edit);
    QVERIFY(button);
    QCOMPARE(button->parent(), &edit);
    QVERIFY(button->isHidden());
    QCOMPARE(button->cursor().shape(), Qt::ArrowCursor);

    const int fw = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    QToolButton probe; // the clear button's size hint before any pixmap is set
    QCOMPARE(edit.styleSheet(),
             QStringLiteral("QLineEdit { padding-right: %1px; } ")
                 .arg(probe.sizeHint().width() + fw + 1));
    QVERIFY(edit.minimumWidth() >= probe.sizeHint().height() + 2 * fw + 2);
    QVERIFY(edit.minimumHeight() >= probe.sizeHint().height() + 2 * fw + 2);
    QVERIFY(edit.minimumWidth() >= edit.minimumSizeHint().width());
}

void tst_QLineEditWithClear::typingShowsButton()
{
    QLineEditWithClear edit;
    QVERIFY(showWithCross(edit, QSize(200, 30)));
    QToolButton *button = clearButton(edit);
    QVERIFY(!button->isVisible());

    QTest::keyClicks(&edit, QStringLiteral("jaw"));
    QVERIFY(button->isVisible());
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QVERIFY(button->isVisible());
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QVERIFY(!button->isVisible());

    edit.setText(QStringLiteral("brow"));
    QVERIFY(button->isVisible());
    edit.updateCloseButton(QString());
    QVERIFY(!button->isVisible());
}

void tst_QLineEditWithClear::clearButtonClearsThenSignals()
{
    QLineEditWithClear edit;
    QVERIFY(showWithCross(edit, QSize(200, 30)));
    QTest::keyClicks(&edit, QStringLiteral("mouth"));

    QStringList events;
    connect(&edit, &QLineEdit::textChanged,
            [&](const QString &text) { events << QStringLiteral("textChanged:") + text; });
    connect(&edit, &QLineEditWithClear::ClearButtonClicked,
            [&] { events << QStringLiteral("ClearButtonClicked:") + edit.text(); });

    QToolButton *button = clearButton(edit);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(events, QStringList({ "textChanged:", "ClearButtonClicked:" }));
    QVERIFY(edit.text().isEmpty());
    QVERIFY(!button->isVisible());
}

void tst_QLineEditWithClear::buttonPlacement()
{
    QLineEditWithClear edit;
    edit.SetToolButtonCrossPixmap(m_crossPath);
    QToolButton *button = clearButton(edit);
    QCOMPARE(button->iconSize(), QSize(12, 12));
    QCOMPARE(button->minimumSize(), QSize(12, 12));
    QCOMPARE(button->maximumSize(), QSize(12, 12));

    edit.resize(180, 30);
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    const int fw = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    QCOMPARE(button->geometry(), QRect(edit.rect().right() - 12 - fw, 30 - 12, 12, 12));

    edit.resize(240, 40); // follows the size, flush with the bottom edge
    QCOMPARE(button->pos(), QPoint(edit.rect().right() - 12 - fw, 40 - 12));
}

void tst_QLineEditWithClear::textStaysClearOfButton()
{
    QLineEditWithClear edit;
    QVERIFY(showWithCross(edit, QSize(120, 30)));
    QTest::keyClicks(&edit, QStringLiteral("a rather long name for a facial key"));
    QTest::keyClick(&edit, Qt::Key_End);
    edit.repaint(); // scrolls the text to the cursor
    const QRect cursor = edit.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    QVERIFY(cursor.right() < clearButton(edit)->x());
}

void tst_QLineEditWithClear::missingPixmap()
{
    QLineEditWithClear edit;
    edit.SetToolButtonCrossPixmap(m_dir.filePath(QStringLiteral("missing.png")));
    QToolButton *button = clearButton(edit);
    QVERIFY(button->icon().isNull());
    QCOMPARE(button->maximumSize(), QSize(0, 0));
    edit.resize(100, 24);
    edit.setText(QStringLiteral("x"));
    QVERIFY(button->isVisibleTo(&edit));
    QCOMPARE(edit.text(), QStringLiteral("x"));
}

VELA_TEST_CLASS(tst_QLineEditWithClear)
#include "tst_QLineEditWithClear.moc"
