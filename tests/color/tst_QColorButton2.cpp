// Mouse events go through the window system, as a user's do.
#define QTEST_QPA_MOUSE_HANDLING

#include "ColorTestSupport.h"
#include "QColorButton2.h"
#include "VelaTest.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QtTest>

using ColorTest::iconColor;

namespace {

QColor lastColor(const QSignalSpy &spy)
{
    return spy.isEmpty() ? QColor() : spy.last().first().value<QColor>();
}

} // namespace

class tst_QColorButton2 : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }

    void modelessSession();
    void setColorAndModalSessions();

private:
    std::unique_ptr<QWidget> m_window;
    QColorButton2 *m_button = nullptr;
    VelaColorDialog2 *m_dialog = nullptr;
};

void tst_QColorButton2::init()
{
    m_window.reset(new QWidget);
    m_window->setGeometry(50, 50, 900, 700);
    m_button = new QColorButton2(m_window.get());
    m_dialog = m_button->GetColorDialog();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_QColorButton2::modelessSession()
{
    QSignalSpy clicked(m_button, &QColorButton2::Clicked);
    QSignalSpy live(m_button, &QColorButton2::CurrentColorChanged);
    QSignalSpy finished(m_button, &QColorButton2::EditFinished);
    QSignalSpy changed(m_button, &QColorButton2::ColorChanged);
    m_button->SetModeless();
    m_button->SetPosition(m_window.get(), ECDP_BottomRight, QPoint(10, 10));
    m_button->SetColor(QColor(Qt::red));
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog));
    QCOMPARE(clicked.count(), 1);
    QVERIFY(!QApplication::activeModalWidget());
    changed.clear();

    // A drag in the colour field reports live colours, then one finished edit on the release.
    QWidget *field = ColorTest::childOfClass(m_dialog, "QColorPicker");
    QVERIFY(field);
    QTest::mousePress(field, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    QTest::mouseMove(field, QPoint(30, 40));
    QTest::mouseMove(field, QPoint(50, 60));
    QCOMPARE(live.count(), 3);
    QCOMPARE(finished.count(), 0);
    QCOMPARE(m_button->GetColor(), lastColor(live));
    QTest::mouseRelease(field, Qt::LeftButton, Qt::NoModifier, QPoint(50, 60));
    QCOMPARE(live.count(), 3);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(lastColor(finished), m_dialog->currentColor());
    // The host updates the icon itself, through SetColor.
    QCOMPARE(iconColor(*m_button), QColor(Qt::red));
    QCOMPARE(changed.count(), 0);

    // A change outside a drag (a stored colour, a typed value) is a finished edit at once.
    m_dialog->setCurrentColor(QColor(Qt::green));
    QCOMPARE(live.count(), 3);
    QCOMPARE(finished.count(), 2);
    QCOMPARE(m_button->GetColor(), QColor(Qt::green));

    // The reset button goes back to the colour of the opening, as a finished edit.
    QAbstractButton *reset = m_dialog->findChild<QDialogButtonBox *>()->buttons().first();
    QTest::mouseClick(reset, Qt::LeftButton);
    QCOMPARE(finished.count(), 3);
    QCOMPARE(lastColor(finished), QColor(Qt::red));
    QCOMPARE(m_button->GetColor(), QColor(Qt::red));

    // While the screen picker runs the button ignores the dialog's colour; the click that ends
    // the picker is one finished edit, with the picked colour.
    QPushButton *pick = m_dialog->findChildren<QPushButton *>().first();
    QTest::mouseClick(pick, Qt::LeftButton);
    m_dialog->setCurrentColor(QColor(Qt::magenta));
    QCOMPARE(live.count(), 3);
    QCOMPARE(finished.count(), 3);
    QCOMPARE(m_button->GetColor(), QColor(Qt::red));
    QTest::mouseClick(m_dialog, Qt::LeftButton, Qt::NoModifier, QPoint(30, 12));
    QCOMPARE(finished.count(), 4);
    QCOMPARE(m_button->GetColor(), m_dialog->currentColor());
    m_button->Close();
    QVERIFY(!m_dialog->isVisible());

    // A picker left running (its button stayed disabled) is forgotten on the next opening; without
    // placement the show leaves the flag alone, so the click clears it. Disconnected, a click
    // still opens the dialog and the button still follows it; only the button's own listeners are
    // gone. That opening's colour is the one to reset to.
    m_dialog->SetPosition(ECDP_None);
    pick->setEnabled(false);
    QVERIFY(m_dialog->IsPickingScreenColor());
    m_button->SetColor(QColor(Qt::yellow));
    m_button->CustomDisconnect();
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog));
    QVERIFY(!m_dialog->IsPickingScreenColor());
    pick->setEnabled(true);
    m_dialog->setCurrentColor(QColor(Qt::blue));
    QCOMPARE(m_button->GetColor(), QColor(Qt::blue));
    QTest::mouseClick(reset, Qt::LeftButton);
    QCOMPARE(m_button->GetColor(), QColor(Qt::yellow));
    QCOMPARE(finished.count(), 4);
    QCOMPARE(clicked.count(), 1);
}

// SetColor always reports, and the dialog follows silently, keeping its own blocking state.
void tst_QColorButton2::setColorAndModalSessions()
{
    QCOMPARE(m_dialog->parent(), m_window.get());
    QSignalSpy changed(m_button, &QColorButton2::ColorChanged2);
    QSignalSpy dialogChanged(m_dialog, &QColorDialog::currentColorChanged);
    m_button->SetColor(QColor(Qt::red));
    m_button->SetColor(QColor(Qt::red));
    QCOMPARE(changed.count(), 2);
    QCOMPARE(lastColor(changed), QColor(Qt::red));
    QCOMPARE(iconColor(*m_button), QColor(Qt::red));
    QCOMPARE(m_dialog->currentColor(), QColor(Qt::red));
    QCOMPARE(dialogChanged.count(), 0);
    m_dialog->blockSignals(true);
    m_button->SetColor(QColor(Qt::red));
    QVERIFY(m_dialog->signalsBlocked());
    m_dialog->blockSignals(false);

    changed.clear();
    QSignalSpy clicked(m_button, &QColorButton2::Clicked);
    QSignalSpy finished(m_button, &QColorButton2::EditFinished);
    // Closing the dialog reverts nothing: the change was reported as it happened.
    ColorTest::runButtonSession(m_button, m_dialog, [](QColorDialog *dialog) {
        dialog->setCurrentColor(QColor(Qt::blue));
        dialog->reject();
    });
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(m_button->GetColor(), QColor(Qt::blue));
    QCOMPARE(iconColor(*m_button), QColor(Qt::red));

    // Accepting sets the colour, with its signals.
    ColorTest::runButtonSession(m_button, m_dialog, [](QColorDialog *dialog) {
        QCOMPARE(dialog->currentColor(), QColor(Qt::blue));
        dialog->setCurrentColor(QColor(Qt::green));
        dialog->accept();
    });
    QCOMPARE(changed.count(), 1);
    QCOMPARE(lastColor(changed), QColor(Qt::green));
    QCOMPARE(iconColor(*m_button), QColor(Qt::green));
}

VELA_TEST_CLASS(tst_QColorButton2)
#include "tst_QColorButton2.moc"
