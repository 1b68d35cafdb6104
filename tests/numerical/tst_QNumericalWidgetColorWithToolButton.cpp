#include "../color/ColorTestSupport.h"
#include "NumericalTestSupport.h"
#include "QColorButton.h"
#include "QNumericalWidgetColorWithToolButton.h"
#include "VelaTest.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

using NumericalTest::EditLog;

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

Lu::CDynamicWidgetDescBase describe(const QString &name)
{
    Lu::CDynamicWidgetDescBase desc;
    desc.strName = name.toStdWString();
    desc.eBehaviorType = Vela::DynamicBehavior_ColorWithToolButton;
    return desc;
}

} // namespace

class tst_QNumericalWidgetColorWithToolButton : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void splitName_data();
    void splitName();
    void createUi();
    void toolButtonClick();
    void dialogEdit();
    void pushesAreSilent();

private:
    std::unique_ptr<NumericalTest::Panel> m_panel;
    QNumericalWidgetColorWithToolButton *m_widget = nullptr;
    QColorButton *m_button = nullptr;
    QToolButton *m_action = nullptr;
};

void tst_QNumericalWidgetColorWithToolButton::init()
{
    m_widget = new QNumericalWidgetColorWithToolButton;
    m_panel.reset(new NumericalTest::Panel(m_widget));
    Lu::CDynamicWidgetVariableBase var;
    var.vValue = Vela::CVector4f(0.5f, 0.25f, 1.0f, 0.3f);
    QCOMPARE(m_widget->Initialize(var, describe(QStringLiteral("Base_Fill"))).code(), 0u);
    m_button = m_widget->findChild<QColorButton *>();
    m_action = actionButton(m_widget);
    QVERIFY(m_button);
    QVERIFY(m_action);
    QVERIFY(m_panel->show());
}

void tst_QNumericalWidgetColorWithToolButton::cleanup()
{
    m_panel.reset();
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
    QTest::newRow("no underscore") << "Skin Tone"
                                   << "Skin Tone"
                                   << "Auto Color";
    QTest::newRow("empty caption") << "_Fill" << QString() << "Fill";
    QTest::newRow("underscore only") << "_" << QString() << QString();
    QTest::newRow("empty name") << QString() << QString() << "Auto Color";
}

void tst_QNumericalWidgetColorWithToolButton::splitName()
{
    QFETCH(QString, name);
    QFETCH(QString, caption);
    QFETCH(QString, buttonText);

    QNumericalWidgetColorWithToolButton widget;
    widget.Initialize(Lu::CDynamicWidgetVariableBase(), describe(name));
    QCOMPARE(widget.findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly)->text(),
             caption + QStringLiteral(" :"));
    QCOMPARE(actionButton(&widget)->text(), buttonText);
    QCOMPARE(widget.GetName(), name);

    // Re-describing shows the same split, without the colon.
    widget.SetDesc(Lu::CDynamicWidgetVariableBase(), describe(name));
    QCOMPARE(widget.findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly)->text(), caption);
    QCOMPARE(actionButton(&widget)->text(), buttonText);
}

void tst_QNumericalWidgetColorWithToolButton::createUi()
{
    auto *label = m_widget->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(label->text(), QStringLiteral("Base :"));
    QCOMPARE(m_action->text(), QStringLiteral("Fill"));
    QCOMPARE(m_action->width(), 80);
    QCOMPARE(m_action->maximumWidth(), 80);
    QCOMPARE(m_button->GetColor(), QColor(127, 63, 255));
    QVERIFY(NumericalTest::nearlyEqual(m_widget->GetValue(),
                                       Vela::CVector4f(0.498f, 0.247f, 1.0f, 1.0f)));
    // Caption, spacer, colour, action button.
    auto *row = qobject_cast<QHBoxLayout *>(m_widget->layout()->itemAt(0)->layout());
    QVERIFY(row);
    QCOMPARE(row->count(), 4);
    QCOMPARE(row->itemAt(0)->widget(), label);
    QCOMPARE(row->itemAt(2)->widget(), m_button);
    QCOMPARE(row->itemAt(3)->widget(), m_action);
}

void tst_QNumericalWidgetColorWithToolButton::toolButtonClick()
{
    EditLog log(m_widget);
    QTest::mouseClick(m_action, Qt::LeftButton);
    QCOMPARE(log.names, QStringList { "Clicked" });
    QTest::mouseClick(m_action, Qt::LeftButton);
    QCOMPARE(log.names.size(), 2);
}

void tst_QNumericalWidgetColorWithToolButton::dialogEdit()
{
    QStringList calls;
    m_widget->SetUndoRedoFunctions(
        [&] { calls << QStringLiteral("begin"); }, [&] { calls << QStringLiteral("end"); },
        [&] { calls << QStringLiteral("accepted"); }, [&] { calls << QStringLiteral("reverted"); });
    EditLog log(m_widget);
    bool ran = false;
    ColorTest::onModal(
        [&](QDialog *dialog) {
            auto *colorDialog = qobject_cast<QColorDialog *>(dialog);
            QVERIFY(colorDialog);
            colorDialog->setCurrentColor(QColor(255, 0, 0));
            colorDialog->accept();
        },
        &ran);
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(ran);
    QCOMPARE(log.names, NumericalTest::oneEdit());
    NUMERICAL_COMPARE_VECTOR(log.values.at(0), Vela::CVector4f(1, 0, 0, 1));
    NUMERICAL_COMPARE_VECTOR(log.values.at(1), Vela::CVector4f(1, 0, 0, 1));
    QCOMPARE(calls, (QStringList { "begin", "end", "accepted" }));
}

void tst_QNumericalWidgetColorWithToolButton::pushesAreSilent()
{
    EditLog log(m_widget);
    m_widget->UpdateInputValue(Vela::CVector4f(0, 1, 0, 0.5f));
    QCOMPARE(m_button->GetColor(), QColor(Qt::green));
    m_widget->SetValue(Vela::CVector4f(1, 1, 0, 0));
    QCOMPARE(m_button->GetColor(), QColor(Qt::yellow));
    NUMERICAL_COMPARE_VECTOR(m_widget->GetValue(), Vela::CVector4f(1, 1, 0, 1));
    QVERIFY(log.names.isEmpty());

    // Re-describing takes the new value and name, also silently.
    Lu::CDynamicWidgetVariableBase var;
    var.vValue = Vela::CVector4f(0, 0, 1, 1);
    m_widget->SetDesc(var, describe(QStringLiteral("Hair_Randomize")));
    QCOMPARE(m_action->text(), QStringLiteral("Randomize"));
    QCOMPARE(m_button->GetColor(), QColor(Qt::blue));
    QCOMPARE(m_widget->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
    QVERIFY(log.names.isEmpty());
}

VELA_TEST_CLASS(tst_QNumericalWidgetColorWithToolButton)
#include "tst_QNumericalWidgetColorWithToolButton.moc"
