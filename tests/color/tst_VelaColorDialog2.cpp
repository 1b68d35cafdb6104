// Mouse events go through the window system, as a user's do.
#define QTEST_QPA_MOUSE_HANDLING

#include "ColorTestSupport.h"
#include "VelaColorDialog2.h"
#include "VelaTest.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

class tst_VelaColorDialog2 : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_dialog.reset(); }

    void editsAndButtons();
    void placement_data();
    void placement();

private:
    void showDialog()
    {
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    }

    std::unique_ptr<VelaColorDialog2> m_dialog;
};

void tst_VelaColorDialog2::init()
{
    m_dialog.reset(new VelaColorDialog2(nullptr));
}

// Editing lasts from a press in a spin box or a colour field to the release, which is one finished
// edit (the colour field: tst_QColorButton2); the reset button and the end of a screen pick are the
// other reports.
void tst_VelaColorDialog2::editsAndButtons()
{
    auto *box = m_dialog->findChild<QDialogButtonBox *>();
    QCOMPARE(box->buttons().size(), 1);
    QAbstractButton *reset = box->buttons().first();
    QCOMPARE(reset->text(), QStringLiteral("Reset Color"));

    // With a main window but no position, the show places nothing and reports nothing.
    QWidget mainWindow;
    m_dialog->SetMainWnd(&mainWindow);
    m_dialog->SetPosition(ECDP_None);
    m_dialog->setCurrentColor(QColor(10, 20, 30));
    QSignalSpy shown(m_dialog.get(), &VelaColorDialog2::ColorChanged2);
    showDialog();
    QCOMPARE(shown.count(), 0);
    for (QPushButton *button : box->findChildren<QPushButton *>())
        QCOMPARE(button->isVisible(), button == reset);
    QSignalSpy resetSpy(m_dialog.get(), &VelaColorDialog2::ResetColor);
    QSignalSpy finished(m_dialog.get(), &VelaColorDialog2::EditFinished);
    QTest::mouseClick(reset, Qt::LeftButton);
    QCOMPARE(resetSpy.count(), 1);
    QCOMPARE(finished.count(), 0);
    // Neither accepted nor rejected: the dialog stays open.
    QVERIFY(m_dialog->isVisible());

    QSpinBox *spin = m_dialog->findChildren<QSpinBox *>().value(3); // red
    QWidget *field = ColorTest::childOfClass(m_dialog.get(), "QColorLuminancePicker");
    QVERIFY(spin && field);
    // The step-up arrow at the spin box's top right.
    const QPoint up(spin->width() - 4, 3);
    QTest::mousePress(spin, Qt::LeftButton, Qt::NoModifier, up);
    QVERIFY(m_dialog->IsEditing());
    QCOMPARE(finished.count(), 0);
    QTest::mouseRelease(spin, Qt::LeftButton, Qt::NoModifier, up);
    QVERIFY(!m_dialog->IsEditing());
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.at(0).at(0).value<QColor>(), QColor(11, 20, 30));

    QList<bool> editingWhenChanged;
    connect(m_dialog.get(), &QColorDialog::currentColorChanged, this,
            [&]() { editingWhenChanged << m_dialog->IsEditing(); });
    const int x = field->width() / 2;
    QTest::mousePress(field, Qt::LeftButton, Qt::NoModifier, QPoint(x, 10));
    QTest::mouseMove(field, QPoint(x, 30));
    QTest::mouseMove(field, QPoint(x, 50));
    QTest::mouseRelease(field, Qt::LeftButton, Qt::NoModifier, QPoint(x, 50));
    QCOMPARE(editingWhenChanged, (QList<bool> { true, true, true }));
    QCOMPARE(finished.count(), 2);
    QCOMPARE(finished.at(1).at(0).value<QColor>(), m_dialog->currentColor());

    // Escape ends the screen picker: one finished edit, and the dialog stays open.
    QPushButton *pick = m_dialog->findChildren<QPushButton *>().first();
    QTest::mouseClick(pick, Qt::LeftButton);
    QVERIFY(m_dialog->IsPickingScreenColor());
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    QVERIFY(!m_dialog->IsPickingScreenColor());
    QCOMPARE(finished.count(), 3);
    QVERIFY(m_dialog->isVisible());

    // Enabling the button again without a requested pick reports nothing.
    pick->setEnabled(false);
    pick->setEnabled(true);
    QVERIFY(m_dialog->IsPickingScreenColor());
    QCOMPARE(finished.count(), 3);
}

void tst_VelaColorDialog2::placement_data()
{
    QTest::addColumn<int>("position");
    QTest::newRow("top left") << 1;
    QTest::newRow("top right") << 2;
    QTest::newRow("bottom left") << 3;
    QTest::newRow("bottom right") << 4;
}

void tst_VelaColorDialog2::placement()
{
    QFETCH(int, position);
    QWidget mainWindow;
    mainWindow.setGeometry(100, 80, 1000, 800);
    mainWindow.show();
    QVERIFY(QTest::qWaitForWindowExposed(&mainWindow));
    const QRect M = mainWindow.geometry();

    m_dialog->adjustSize();
    m_dialog->move(300, 200);
    const QRect G = m_dialog->geometry();
    m_dialog->SetMainWnd(&mainWindow);
    m_dialog->SetPosition(EColorDialogPosition(position));
    m_dialog->SetMargin(QPoint(10, 12));
    m_dialog->setCurrentColor(QColor(9, 8, 7));
    QSignalSpy changed(m_dialog.get(), &VelaColorDialog2::ColorChanged2);

    showDialog();
    // Only the left and top edges are moved.
    int left = M.left() + 10;
    int top = M.top() + 12;
    if (position == 2 || position == 4)
        left = G.left() + M.right() - 10 - G.right();
    if (position == 3 || position == 4)
        top = G.top() + M.bottom() - G.bottom() - 12;
    QCOMPARE(m_dialog->geometry().topLeft(), QPoint(left, top));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<QColor>(), QColor(9, 8, 7));

    // Placement happens once; every later show still reports the colour.
    const QRect placed = m_dialog->geometry();
    mainWindow.move(0, 0);
    m_dialog->hide();
    showDialog();
    QCOMPARE(m_dialog->geometry(), placed);
    QCOMPARE(changed.count(), 2);
}

VELA_TEST_CLASS(tst_VelaColorDialog2)
#include "tst_VelaColorDialog2.moc"
