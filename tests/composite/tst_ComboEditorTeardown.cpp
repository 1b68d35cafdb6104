// Found by fuzzing: the combo editors must survive being destroyed mid-edit (the sanitized suite
// checks that no call reaches a half-destroyed editor) and extreme ranges.
#include "QComboDoubleSpinBox.h"
#include "QComboNonlinearDoubleSpinBox.h"
#include "QComboSpinBox.h"
#include "VelaTest.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

#include <functional>
#include <limits>

using EditorFactory = std::function<QWidget *()>;
Q_DECLARE_METATYPE(EditorFactory)

// Counts every signal of an editor that arrives while it is being destroyed.
class SignalCounter : public QObject
{
    Q_OBJECT
public:
    bool deleting = false;
    int count = 0;
public slots:
    void record()
    {
        if (deleting)
            ++count;
    }
};

class tst_ComboEditorTeardown : public QObject
{
    Q_OBJECT

private slots:
    void destroyedWhileTyping_data();
    void destroyedWhileTyping();
    void extremeRangesStillPaint_data();
    void extremeRangesStillPaint();
};

static void addEditors()
{
    QTest::addColumn<EditorFactory>("create");
    QTest::newRow("QComboSpinBox") << EditorFactory([] { return new QComboSpinBox; });
    QTest::newRow("QComboDoubleSpinBox") << EditorFactory([] { return new QComboDoubleSpinBox; });
    QTest::newRow("QComboNonlinearDoubleSpinBox")
        << EditorFactory([] { return new QComboNonlinearDoubleSpinBox; });
}

void tst_ComboEditorTeardown::destroyedWhileTyping_data()
{
    addEditors();
}

// Deleting an editor whose spin box has focus and unfinished text: the spin box still reports
// its edit while Qt tears it down, after the editor itself is gone. Nothing may reach the editor
// then (the sanitized suite checks the calls), and the host hears nothing from a dead editor.
void tst_ComboEditorTeardown::destroyedWhileTyping()
{
    QFETCH(EditorFactory, create);
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    QWidget *editor = create();
    layout->addWidget(new QLineEdit);
    layout->addWidget(editor);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto *spin = editor->findChild<QAbstractSpinBox *>();
    QVERIFY(spin);
    spin->setFocus();
    QTRY_VERIFY(spin->hasFocus());
    spin->selectAll();
    QTest::keyClicks(spin, "7");

    SignalCounter counter;
    const QMetaMethod record =
        counter.metaObject()->method(counter.metaObject()->indexOfSlot("record()"));
    const QMetaObject *mo = editor->metaObject();
    int connected = 0;
    for (int i = mo->methodOffset(); i < mo->methodCount(); ++i) {
        if (mo->method(i).methodType() == QMetaMethod::Signal)
            connected += QObject::connect(editor, mo->method(i), &counter, record) ? 1 : 0;
    }
    QVERIFY(connected > 0);
    counter.deleting = true;
    delete editor;
    QCOMPARE(counter.count, 0);
}

void tst_ComboEditorTeardown::extremeRangesStillPaint_data()
{
    addEditors();
}

void tst_ComboEditorTeardown::extremeRangesStillPaint()
{
    QFETCH(EditorFactory, create);
    QScopedPointer<QWidget> editor(create());
    editor->resize(300, 60);
    editor->show();
    const bool floating = editor->metaObject()->indexOfProperty("decimals") >= 0;
    if (floating) {
        QVERIFY(editor->setProperty("decimals", std::numeric_limits<int>::min()));
        QVERIFY(editor->setProperty("minimum", -1e300));
        QVERIFY(editor->setProperty("maximum", 1e300));
        QVERIFY(editor->setProperty("value", std::numeric_limits<double>::quiet_NaN()));
        editor->grab();
        QVERIFY(editor->setProperty("decimals", std::numeric_limits<int>::max()));
        QVERIFY(editor->setProperty("minimum", std::numeric_limits<double>::lowest()));
    } else {
        QVERIFY(editor->setProperty("minimum", std::numeric_limits<int>::min()));
        QVERIFY(editor->setProperty("maximum", std::numeric_limits<int>::max()));
        QVERIFY(editor->setProperty("value", std::numeric_limits<int>::max()));
    }
    editor->grab();
    if (floating) {
        // A minimum of 0 has no logarithm: the slider reaches down to the smallest integer, and a
        // maximum of 1 then spans exactly 2^31 positions, which Qt's styles cannot paint.
        QVERIFY(editor->setProperty("decimals", 2));
        QVERIFY(editor->setProperty("minimum", 0.0));
        QVERIFY(editor->setProperty("maximum", 1.0));
        editor->grab();
    }
    QCOMPARE(editor->findChildren<QSlider *>().size(), 1);
}

VELA_TEST_CLASS(tst_ComboEditorTeardown)
#include "tst_ComboEditorTeardown.moc"
