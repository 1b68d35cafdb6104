#include "../color/ColorTestSupport.h"
#include "NumericalTestSupport.h"
#include "QColorButton.h"
#include "QNumericalWidgetColorWithToolButton.h"

#include <QToolButton>

using namespace NumericalTest;

namespace {

// The text button beside the colour.
QToolButton *actionButton(QWidget *widget)
{
    const QList<QToolButton *> buttons =
        widget->findChildren<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
    for (QToolButton *button : buttons) {
        if (!qobject_cast<QColorButton *>(button))
            return button;
    }
    return nullptr;
}

} // namespace

class tst_QNumericalWidgetColorWithToolButton : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void splitName_data();
    void splitName();
    void session();

private:
    std::unique_ptr<Panel> m_panel;
    QNumericalWidgetColorWithToolButton *m_widget = nullptr;
    QColorButton *m_button = nullptr;
    QToolButton *m_action = nullptr;
};

void tst_QNumericalWidgetColorWithToolButton::init()
{
    m_panel.reset(new Panel(m_widget = new QNumericalWidgetColorWithToolButton));
    QVERIFY(m_panel->build(m_widget, variable(0, { 0.5f, 0.25f, 1.0f, 0.3f }),
                           description(L"Base_Fill")));
    m_button = m_widget->findChild<QColorButton *>();
    m_action = actionButton(m_widget);
}

void tst_QNumericalWidgetColorWithToolButton::splitName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("buttonText");
    QTest::newRow("two parts") << "Base_Fill"
                               << "Base"
                               << "Fill";
    QTest::newRow("three parts") << "A_B_C"
                                 << "A_B_C"
                                 << "Auto Color";
    QTest::newRow("underscore only") << "_" << QString() << QString();
}

void tst_QNumericalWidgetColorWithToolButton::splitName()
{
    QFETCH(QString, name);
    QFETCH(QString, caption);
    QFETCH(QString, buttonText);

    QNumericalWidgetColorWithToolButton widget;
    const Lu::CDynamicWidgetDescBase desc = description(name.toStdWString().c_str());
    widget.Initialize(Lu::CDynamicWidgetVariableBase(), desc);
    QCOMPARE(widget.findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly)->text(),
             caption + QStringLiteral(" :"));
    QCOMPARE(actionButton(&widget)->text(), buttonText);

    // Re-describing shows the same split, without the colon.
    widget.SetDesc(Lu::CDynamicWidgetVariableBase(), desc);
    QCOMPARE(widget.findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly)->text(), caption);
    QCOMPARE(actionButton(&widget)->text(), buttonText);
}

void tst_QNumericalWidgetColorWithToolButton::session()
{
    QStringList calls;
    m_widget->SetUndoRedoFunctions(
        [&] { calls << QStringLiteral("begin"); }, [&] { calls << QStringLiteral("end"); },
        [&] { calls << QStringLiteral("accepted"); }, [&] { calls << QStringLiteral("reverted"); });
    EditLog log(m_widget);
    // The action button reports a click only.
    QTest::mouseClick(m_action, Qt::LeftButton);
    QCOMPARE(log.entries, QStringList { "Clicked" });
    log.clear();
    ColorTest::runButtonSession(m_button, m_button->ColorDialogUi(), [](QColorDialog *dialog) {
        dialog->setCurrentColor(QColor(255, 0, 0));
        dialog->accept();
    });
    QCOMPARE(log.entries, oneEdit(1, 0, 0, 1));
    QCOMPARE(calls, (QStringList { "begin", "end", "accepted" }));

    // Pushed and re-described values are shown silently.
    log.clear();
    m_widget->SetValue(Vela::CVector4f(1, 1, 0, 0));
    QCOMPARE(m_button->GetColor(), QColor(Qt::yellow));
    m_widget->SetDesc(variable(0, { 0, 0, 1, 1 }), description(L"Hair_Randomize"));
    QCOMPARE(m_button->GetColor(), QColor(Qt::blue));
    QVERIFY(log.entries.isEmpty());
}

VELA_TEST_CLASS(tst_QNumericalWidgetColorWithToolButton)
#include "tst_QNumericalWidgetColorWithToolButton.moc"
