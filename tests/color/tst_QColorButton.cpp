// Mouse events go through the window system, as a user's do.
#define QTEST_QPA_MOUSE_HANDLING

#include "ColorTestSupport.h"
#include "VelaTest.h"

#include <QtTest>

using ColorTest::iconColor;

class tst_QColorButton : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }

    void colourAndIcon();
    void sessions();

private:
    // Clicks the button and lets `action` act on the modal dialog, then checks it came up.
    void runSession(const std::function<void(QColorDialog *)> &action)
    {
        ColorTest::runButtonSession(m_button, m_button->ColorDialogUi(), action);
    }

    std::unique_ptr<QWidget> m_window;
    QColorButton *m_button = nullptr;
    QStringList m_calls;
};

void tst_QColorButton::init()
{
    m_window.reset(new QWidget);
    m_button = new QColorButton(m_window.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_calls.clear();
    m_button->SetUndoRedoFunctions([this] { m_calls << QStringLiteral("begin"); },
                                   [this] { m_calls << QStringLiteral("end"); },
                                   [this] { m_calls << QStringLiteral("accepted"); },
                                   [this] { m_calls << QStringLiteral("reverted"); });
}

void tst_QColorButton::colourAndIcon()
{
    // A new button shows black although it has no colour yet; its dialog lives beside it.
    QVERIFY(!m_button->GetColor().isValid());
    QCOMPARE(iconColor(*m_button), QColor(Qt::black));
    QCOMPARE(m_button->ColorDialogUi()->parent(), m_window.get());

    // Both signals, in this order, and only on a change.
    QStringList order;
    connect(m_button, &QColorButton::ColorChanged, this, [&] { order << QStringLiteral("1"); });
    connect(m_button, &QColorButton::ColorChanged2, this,
            [&](QColor color) { order << color.name(); });
    m_button->SetColor(QColor(Qt::red));
    m_button->SetColor(QColor(Qt::red));
    m_button->SetColor(QColor(Qt::blue));
    QCOMPARE(order, QStringList({ "1", "#ff0000", "1", "#0000ff" }));
    m_button->setIconSize(QSize(60, 25));
    QCOMPARE(iconColor(*m_button), QColor(Qt::blue));

    // A huge icon size costs no more than a large icon.
    m_button->setIconSize(QSize(60000, 60000));
    QCOMPARE(m_button->icon().availableSizes(), QList<QSize> { QSize(256, 256) });
}

void tst_QColorButton::sessions()
{
    m_button->SetColor(QColor(Qt::red));
    QSignalSpy changed(m_button, &QColorButton::ColorChanged2);
    runSession([&](QColorDialog *dialog) { dialog->reject(); });
    QCOMPARE(m_calls, QStringList({ "begin", "end" }));
    QCOMPARE(changed.count(), 0);

    // After live changes the cancel restores the colour, with a signal.
    m_calls.clear();
    runSession([&](QColorDialog *dialog) {
        dialog->setCurrentColor(QColor(Qt::blue));
        dialog->setCurrentColor(QColor(Qt::yellow));
        dialog->reject();
    });
    QCOMPARE(m_calls, QStringList({ "begin", "end", "reverted" }));
    QCOMPARE(iconColor(*m_button), QColor(Qt::red));
    QCOMPARE(changed.count(), 3);

    // Moving away and back before cancelling still counts as a change.
    m_calls.clear();
    runSession([&](QColorDialog *dialog) {
        dialog->setCurrentColor(QColor(Qt::blue));
        dialog->setCurrentColor(QColor(Qt::red));
        dialog->reject();
    });
    QCOMPARE(m_calls, QStringList({ "begin", "end", "reverted" }));

    // Accepting keeps the live colour; only the live change was reported.
    m_calls.clear();
    changed.clear();
    QColor seenLive;
    runSession([&](QColorDialog *dialog) {
        QCOMPARE(dialog->currentColor(), QColor(Qt::red));
        QCOMPARE(m_calls, QStringList { QStringLiteral("begin") });
        dialog->setCurrentColor(QColor(Qt::green));
        seenLive = m_button->GetColor();
        dialog->accept();
    });
    QCOMPARE(seenLive, QColor(Qt::green));
    QCOMPARE(m_calls, QStringList({ "begin", "end", "accepted" }));
    QCOMPARE(iconColor(*m_button), QColor(Qt::green));
    QCOMPARE(changed.count(), 1);

    // Without callbacks or listeners (all disconnected, the spy too) the sessions still work.
    m_calls.clear();
    m_button->CustomDisconnect();
    m_button->SetUndoRedoFunctions({}, {}, {}, {});
    runSession([&](QColorDialog *dialog) {
        dialog->setCurrentColor(QColor(Qt::blue));
        dialog->reject();
    });
    QCOMPARE(m_button->GetColor(), QColor(Qt::green));
    runSession([&](QColorDialog *dialog) {
        dialog->setCurrentColor(QColor(Qt::blue));
        dialog->accept();
    });
    QCOMPARE(m_button->GetColor(), QColor(Qt::blue));
    QVERIFY(m_calls.isEmpty());
    QCOMPARE(changed.count(), 1);
}

VELA_TEST_CLASS(tst_QColorButton)
#include "tst_QColorButton.moc"
