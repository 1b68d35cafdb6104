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

    void setColorAlwaysEmits();
    void modelessEdits();
    void resetReportsOpeningColour();
    void screenPicking();
    void modalSessions();

private:
    // Opens the modeless dialog with the button's colour set to `color`.
    void openModeless(const QColor &color);

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

void tst_QColorButton2::openModeless(const QColor &color)
{
    m_button->SetModeless();
    m_button->SetPosition(m_window.get(), ECDP_BottomRight, QPoint(10, 10));
    m_button->SetColor(color);
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog));
}

void tst_QColorButton2::setColorAlwaysEmits()
{
    QCOMPARE(m_dialog->parent(), m_window.get());
    QSignalSpy changed2(m_button, &QColorButton2::ColorChanged2);
    QSignalSpy dialogChanged(m_dialog, &QColorDialog::currentColorChanged);
    m_button->SetColor(QColor(Qt::red));
    m_button->SetColor(QColor(Qt::red));
    QCOMPARE(changed2.count(), 2);
    QCOMPARE(lastColor(changed2), QColor(Qt::red));
    QCOMPARE(iconColor(*m_button), QColor(Qt::red));
    // The dialog follows silently and keeps its own blocking state.
    QCOMPARE(m_dialog->currentColor(), QColor(Qt::red));
    QCOMPARE(dialogChanged.count(), 0);
    m_dialog->blockSignals(true);
    m_button->SetColor(QColor(Qt::blue));
    QVERIFY(m_dialog->signalsBlocked());
    m_dialog->blockSignals(false);
}

void tst_QColorButton2::modelessEdits()
{
    QSignalSpy clicked(m_button, &QColorButton2::Clicked);
    QSignalSpy live(m_button, &QColorButton2::CurrentColorChanged);
    QSignalSpy finished(m_button, &QColorButton2::EditFinished);
    QSignalSpy changed(m_button, &QColorButton2::ColorChanged);
    openModeless(QColor(Qt::red));
    QCOMPARE(clicked.count(), 1);
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(m_dialog->currentColor(), QColor(Qt::red));
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
    m_button->Close();
    QVERIFY(!m_dialog->isVisible());

    // Disconnected, a click still opens the dialog and the button still follows it; only the
    // button's own listeners are gone.
    m_button->CustomDisconnect();
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog));
    m_dialog->setCurrentColor(QColor(Qt::blue));
    QCOMPARE(m_button->GetColor(), QColor(Qt::blue));
    QCOMPARE(finished.count(), 2);
    QCOMPARE(clicked.count(), 1);
}

void tst_QColorButton2::resetReportsOpeningColour()
{
    openModeless(QColor(Qt::red));
    m_dialog->setCurrentColor(QColor(Qt::green));
    m_dialog->setCurrentColor(QColor(Qt::blue));

    QSignalSpy finished(m_button, &QColorButton2::EditFinished);
    QAbstractButton *reset = m_dialog->findChild<QDialogButtonBox *>()->buttons().value(0);
    QVERIFY(reset);
    QTest::mouseClick(reset, Qt::LeftButton);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(lastColor(finished), QColor(Qt::red));
    QCOMPARE(m_button->GetColor(), QColor(Qt::red));

    // A later opening takes the colour of that moment as the one to reset to.
    m_button->Close();
    m_button->SetColor(QColor(Qt::yellow));
    QTest::mouseClick(m_button, Qt::LeftButton);
    m_dialog->setCurrentColor(QColor(Qt::green));
    QTest::mouseClick(reset, Qt::LeftButton);
    QCOMPARE(lastColor(finished), QColor(Qt::yellow));
}

void tst_QColorButton2::screenPicking()
{
    openModeless(QColor(Qt::red));
    QSignalSpy live(m_button, &QColorButton2::CurrentColorChanged);
    QSignalSpy finished(m_button, &QColorButton2::EditFinished);
    QPushButton *pick = m_dialog->findChildren<QPushButton *>().value(0);
    QVERIFY(pick);

    QTest::mouseClick(pick, Qt::LeftButton);
    m_dialog->setCurrentColor(QColor(Qt::magenta));
    QCOMPARE(live.count(), 0);
    QCOMPARE(finished.count(), 0);
    QCOMPARE(m_button->GetColor(), QColor(Qt::red));
    // The click that ends the picker is one finished edit, with the picked colour.
    QTest::mouseClick(m_dialog, Qt::LeftButton, Qt::NoModifier, QPoint(30, 12));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(m_button->GetColor(), m_dialog->currentColor());

    // A picker left running (its button stayed disabled) is forgotten on the next open; without
    // placement the show leaves the flag alone, so the click clears it.
    m_button->Close();
    m_dialog->SetPosition(ECDP_None);
    pick->setEnabled(false);
    QVERIFY(m_dialog->IsPickingScreenColor());
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(!m_dialog->IsPickingScreenColor());
    pick->setEnabled(true);
    m_dialog->setCurrentColor(QColor(Qt::green));
    QCOMPARE(finished.count(), 2);
}

void tst_QColorButton2::modalSessions()
{
    m_button->SetColor(QColor(Qt::red));
    QSignalSpy clicked(m_button, &QColorButton2::Clicked);
    QSignalSpy changed(m_button, &QColorButton2::ColorChanged2);
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
