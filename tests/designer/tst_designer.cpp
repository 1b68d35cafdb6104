// Loads the built library as Qt Designer and QUiLoader do, without linking against it.
#include <QDirIterator>
#include <QFile>
#include <QGridLayout>
#include <QLibrary>
#include <QPluginLoader>
#include <QPointer>
#include <QUiLoader>
#include <QXmlStreamReader>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace {

struct Row
{
    const char *name; // the descriptor is named after it with "Plugin" added (see descriptorName)
    const char *include;
    bool container;
    char style; // 'A', '1' (one-line form, 25 spaces) or '2' (one-line form, 26 spaces)
    const char *objectName;
    int width; // 0: no geometry
    int height;
};

const Row kRows[] = {
    { "QTransToolBtn", "QTransToolBtn.h", false, 'A', "QTransToolBtn", 100, 100 },
    { "QVelaContainer", "QVelaContainer.h", true, 'A', "QVelaContainer", 100, 100 },
    { "QMouseSpinBox", "QMouseSpinBox.h", false, 'A', "QMouseSpinBox", 100, 100 },
    { "QKdPickContainer", "QKdPickContainer.h", true, 'A', "QKdPickContainer", 100, 100 },
    { "QDragDropListWidget", "QDragDropListWidget.h", false, 'A', "QDragDropListWidget", 100, 100 },
    { "QDragDropTableWidget", "QDragDropTableWidget.h", false, 'A', "QDragDropTableWidget", 100,
      100 },
    { "QHoverToolBtn", "QHoverToolBtn.h", false, 'A', "QHoverToolBtn", 100, 100 },
    { "QKdFKModifyTableManager", "QKdFKModifyTableManager.h", true, 'A', "QKdFKModifyTableManager",
      100, 100 },
    { "QKdFKTemplateTableManager", "QKdFKTemplateTableManager.h", true, 'A',
      "QKdFKTemplateTableManager", 100, 100 },
    { "QLineEditWithClear", "QLineEditWithClear.h", false, 'A', "QLineEditWithClear", 16, 16 },
    { "QKdPlayWidget", "QKdPlayWidget.h", true, 'A', "QKdPlayWidget", 100, 100 },
    { "QStartEndIndicatorWidget", "QStartEndIndicatorWidget.h", true, 'A',
      "QStartEndIndicatorWidget", 100, 100 },
    { "QClickableLabel", "QClickableLabel.h", false, 'A', "QClickableLabel", 100, 100 },
    { "QKdCurveWidget", "QKdCurveWidget.h", true, 'A', "QKdCurveWidget", 100, 100 },
    { "QItemLabel", "QItemLabel.h", false, 'A', "qItemLabel", 100, 100 },
    { "QColorButton", "QColorButton.h", false, 'A', "qColorButton", 75, 23 },
    { "QColorButton2", "QColorButton2.h", false, 'A', "qColorButton2", 75, 23 },
    { "QComboSpinBox", "QComboSpinBox.h", true, '1', "combospinbox", 0, 0 },
    { "QComboDoubleSpinBox", "QComboDoubleSpinBox.h", false, '1', "combodoublespinbox", 0, 0 },
    { "QComboNonlinearDoubleSpinBox", "QComboNonlinearDoubleSpinBox.h", false, '1',
      "combononlineardoublespinbox", 0, 0 },
    { "QComboBoxEx", "QComboBoxEx.h", false, '2', "qtComboBoxEx", 69, 22 },
    { "QSpinBoxEx", "QSpinBoxEx.h", false, '2', "qtSpinBoxEx", 0, 0 },
    { "QDoubleSpinBoxEx", "QDoubleSpinBoxEx.h", false, '2', "qtDoubleSpinBoxEx", 0, 0 },
    { "QSliderEx", "QSliderEx.h", false, '2', "qtSliderEx", 160, 19 },
    { "QVisemeButton", "QVisemeButton.h", false, 'A', "QVisemeButton", 100, 100 },
    { "QVisemeCurveWidgetLite", "QVisemeCurveWidgetLite.h", false, 'A', "QVisemeCurveWidgetLite",
      100, 100 },
    { "QDiphoneListWidget", "QDiphoneListWidget.h", false, 'A', "QDiphoneListWidget", 100, 100 },
    { "QVisemeListWidget", "QVisemeListWidget.h", false, 'A', "QVisemeListWidget", 100, 100 },
    { "QCurveEditor", "QCurveeditor.h", false, 'A', "QCurveEditor", 100, 100 },
    { "QVelaPushButton", "QVelaPushbutton.h", false, 'A', "qVelaPushButton", 100, 100 },
    { "QGroupWidget", "QGroupWidget.h", false, 'A', "QGroupWidget", 100, 100 },
};

static_assert(sizeof(kRows) / sizeof(kRows[0]) == 31, "the collection offers 31 widgets");

// A form loader that finds the collection in the build folder only.
class BuildLoader : public QUiLoader
{
public:
    BuildLoader()
    {
        clearPluginPaths();
        addPluginPath(QStringLiteral(VELA_LIBRARY_DIR));
    }
};

// The default XML of a row. Style A: the bare widget element, one element per line, indented by
// one space per level. The one-line forms: the elements separated by runs of 25 ('1', also before
// the first element) or 26 spaces ('2'), the widget declared as a custom widget extending QWidget
// with an addPage method ('1') or its standard base ('2', which also names its properties).
QString expectedDomXml(const Row &row)
{
    const QString name = QLatin1String(row.name);
    if (row.style == 'A')
        return QStringLiteral("<widget class=\"%1\" name=\"%2\">\n <property name=\"geometry\">\n"
                              "  <rect>\n   <x>0</x>\n   <y>0</y>\n   <width>%3</width>\n"
                              "   <height>%4</height>\n  </rect>\n </property>\n</widget>\n")
            .arg(name, QLatin1String(row.objectName))
            .arg(row.width)
            .arg(row.height);
    // '|' stands for a run of spaces.
    QString properties;
    if (row.width)
        properties = QStringLiteral("|<property name=\"geometry\">|<rect>|<x>0</x>|<y>0</y>"
                                    "|<width>%1</width>|<height>%2</height>|</rect>|</property>")
                         .arg(row.width)
                         .arg(row.height);
    if (qstrcmp(row.name, "QSliderEx") == 0)
        properties += QLatin1String(
            "|<property name=\"orientation\">|<enum>Qt::Horizontal</enum>|</property>");
    if (row.style == '2')
        properties += QLatin1String(
            "|<property name=\"focusPolicy\">|<enum>Qt::StrongFocus</enum>|</property>");
    const bool one = row.style == '1';
    QString xml =
        QStringLiteral("%1<ui language=\"c++\">|<widget class=\"%2\" name=\"%3\">%4|</widget>"
                       "|<customwidgets>|<customwidget>|<class>%2</class>|<extends>%5</extends>"
                       "%6|</customwidget>|</customwidgets>|</ui>")
            .arg(one ? QStringLiteral("|") : QString(), name, QLatin1String(row.objectName),
                 properties, one ? QStringLiteral("QWidget") : name.chopped(2),
                 one ? QStringLiteral("|<addpagemethod>addPage</addpagemethod>") : QString());
    return xml.replace(QLatin1Char('|'), QString(one ? 25 : 26, QLatin1Char(' ')));
}

} // namespace

class tst_Designer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void collection();
    void descriptors_data();
    void descriptors();
    void uiLoaderLoadsSavedForms();
    void uiLoaderLoadsLibraryForms_data();
    void uiLoaderLoadsLibraryForms();

private:
    QList<QDesignerCustomWidgetInterface *> widgets() const
    {
        return qobject_cast<QDesignerCustomWidgetCollectionInterface *>(m_collection)
            ->customWidgets();
    }

    QPluginLoader m_loader;
    QPointer<QObject> m_collection;
};

void tst_Designer::initTestCase()
{
    m_loader.setFileName(QStringLiteral(VELA_LIBRARY_FILE));
    QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
    m_collection = m_loader.instance();
    QVERIFY(m_collection);
}

void tst_Designer::cleanupTestCase()
{
    // The loader owns the instance; unloading deletes it.
    m_loader.unload();
}

// The metadata names the interface and the class and carries no user data. One collection per
// library, made again after Designer deletes it; its descriptors go with it, and the new one
// lists all of them again in the same order.
void tst_Designer::collection()
{
    const QJsonObject meta = m_loader.metaData();
    QCOMPARE(meta.value(QLatin1String("IID")).toString(),
             QStringLiteral("org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface"));
    QCOMPARE(meta.value(QLatin1String("className")).toString(),
             QStringLiteral("VelaQtCustomWidgetsPlugin"));
    QVERIFY(meta.value(QLatin1String("MetaData")).toObject().isEmpty());
    QCOMPARE(meta.value(QLatin1String("debug")).toBool(), false);

    QLibrary library(QStringLiteral(VELA_LIBRARY_FILE));
    using InstanceFunction = QObject *(*)();
    auto instance = reinterpret_cast<InstanceFunction>(library.resolve("qt_plugin_instance"));
    QVERIFY(instance);
    QObject *first = instance();
    QCOMPARE(first, m_collection.data());
    QPointer<QObject> oldDescriptor = dynamic_cast<QObject *>(widgets().first());
    delete first;
    QVERIFY(oldDescriptor.isNull());
    QObject *second = instance();
    QVERIFY(second);
    QCOMPARE(instance(), second);
    m_collection = second;

    QStringList descriptors, expected;
    for (QDesignerCustomWidgetInterface *widget : widgets())
        descriptors << widget->name() + QLatin1Char(' ')
                + QLatin1String(dynamic_cast<QObject *>(widget)->metaObject()->className());
    for (const Row &row : kRows) {
        const QString name = QLatin1String(row.name);
        expected << name + QLatin1Char(' ')
                + (name == QLatin1String("QColorButton2") ? QStringLiteral("QColorButtonPlugin2")
                                                          : name + QLatin1String("Plugin"));
    }
    QCOMPARE(descriptors, expected);
}

void tst_Designer::descriptors_data()
{
    QTest::addColumn<int>("index");
    for (const Row &row : kRows)
        QTest::newRow(row.name) << int(&row - kRows);
}

// Each descriptor as Designer uses it, then its default XML placed on a form by QUiLoader.
void tst_Designer::descriptors()
{
    QFETCH(int, index);
    const Row &row = kRows[index];
    QDesignerCustomWidgetInterface *d = widgets().value(index);
    QCOMPARE(
        dynamic_cast<QObject *>(d)->qt_metacast("org.qt-project.QDesignerCustomWidgetInterface"),
        static_cast<void *>(d));
    QCOMPARE(d->group(), QStringLiteral("Vela Plugins"));
    QCOMPARE(d->includeFile(), QLatin1String(row.include));
    QCOMPARE(d->isContainer(), row.container);
    QVERIFY(d->toolTip().isEmpty() && d->whatsThis().isEmpty() && d->codeTemplate().isEmpty());
    QVERIFY(d->icon().isNull());
    QVERIFY(!d->isInitialized());
    d->initialize(nullptr);
    QVERIFY(d->isInitialized());

    const QString xml = d->domXml();
    QCOMPARE(xml, expectedDomXml(row));
    if (row.style == '1') {
        const int lengths[] = { 510, 528, 555 };
        QCOMPARE(xml.size(), lengths[index - 17]);
    }

    QScopedPointer<QWidget> widget(d->createWidget(nullptr));
    QVERIFY(widget->isWindow());
    QCOMPARE(widget->metaObject()->className(), row.name);
    QWidget parent;
    QWidget *child = d->createWidget(&parent);
    QCOMPARE(child->parentWidget(), &parent);
    QVERIFY(child != widget.data());

    // Style A is a bare widget element: Designer puts it inside a form.
    QByteArray form = (row.style != 'A' ? xml
                                        : QStringLiteral("<ui version=\"4.0\"><class>Form</class>"
                                                         "<widget class=\"QWidget\" name=\"Form\">"
                                                         "%1</widget></ui>")
                                              .arg(xml))
                          .toUtf8();
    QBuffer buffer(&form);
    BuildLoader loader;
    QScopedPointer<QWidget> root(loader.load(&buffer));
    QVERIFY2(root, qPrintable(loader.errorString()));
    QWidget *placed = root->objectName() == QLatin1String(row.objectName)
        ? root.data()
        : root->findChild<QWidget *>(QLatin1String(row.objectName));
    QVERIFY(placed);
    QCOMPARE(placed->metaObject()->className(), row.name);
    // The form's geometry, as far as the widget's own minimum size allows.
    if (row.width && row.style == 'A')
        QCOMPARE(
            placed->geometry(),
            QRect(QPoint(0, 0), QSize(row.width, row.height).expandedTo(placed->minimumSize())));
}

// The forms as a user saves them from Designer: several Ex controls in a layout with their own
// properties, and all 31 widgets from their default XML, as dragged from the widget box.
void tst_Designer::uiLoaderLoadsSavedForms()
{
    BuildLoader loader;
    QFile controls(QStringLiteral(":/forms/controls.ui"));
    QVERIFY(controls.open(QIODevice::ReadOnly));
    QScopedPointer<QWidget> form(loader.load(&controls));
    QVERIFY2(form, qPrintable(loader.errorString()));
    QCOMPARE(form->findChild<QWidget *>(QStringLiteral("countSpin"))->metaObject()->className(),
             "QSpinBoxEx");
    QCOMPARE(form->findChild<QWidget *>(QStringLiteral("volumeSlider"))->property("maximum"),
             QVariant(200));
    auto *combo = form->findChild<QWidget *>(QStringLiteral("modeCombo"));
    QCOMPARE(combo->metaObject()->className(), "QComboBoxEx");
    QCOMPARE(combo->property("ignoreWheelEvent").toBool(), true);
    QCOMPARE(combo->property("count").toInt(), 2);

    QFile all(QStringLiteral(":/forms/allwidgets.ui"));
    QVERIFY(all.open(QIODevice::ReadOnly));
    form.reset(loader.load(&all));
    QVERIFY2(form, qPrintable(loader.errorString()));
    auto *grid = qobject_cast<QGridLayout *>(form->layout());
    QVERIFY(grid);
    QCOMPARE(grid->count(), 31);
    for (int i = 0; i < grid->count(); ++i)
        QCOMPARE(grid->itemAt(i)->widget()->metaObject()->className(), kRows[i].name);
    form->show();
    QVERIFY(QTest::qWaitForWindowExposed(form.data()));
}

void tst_Designer::uiLoaderLoadsLibraryForms_data()
{
    QTest::addColumn<QString>("path");
    QDirIterator it(QStringLiteral(VELA_SOURCE_DIR "/widgets"), { QStringLiteral("*.ui") },
                    QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        QTest::newRow(qPrintable(QFileInfo(path).fileName())) << path;
    }
}

// The library's own forms, loaded as Designer shows them: every widget of the form is created as
// its class (the library's through this collection) and keeps the integer properties it names.
void tst_Designer::uiLoaderLoadsLibraryForms()
{
    QFETCH(QString, path);
    BuildLoader loader;
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QScopedPointer<QWidget> root(loader.load(&file));
    QVERIFY2(root, qPrintable(loader.errorString()));

    QVERIFY(file.seek(0));
    QXmlStreamReader reader(&file);
    QVector<QWidget *> widgets; // the open widget elements
    QStringList elements;
    QString property; // an integer property of the innermost widget, while inside it
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isEndElement()) {
            if (elements.takeLast() == QLatin1String("widget"))
                widgets.removeLast();
            property.clear();
            continue;
        }
        if (!reader.isStartElement())
            continue;
        const QString name = reader.name().toString();
        const QString parent = elements.isEmpty() ? QString() : elements.last();
        elements.append(name);
        if (name == QLatin1String("widget")) {
            const QString className = reader.attributes().value(QLatin1String("class")).toString();
            const QString objectName = reader.attributes().value(QLatin1String("name")).toString();
            QWidget *widget =
                widgets.isEmpty() ? root.data() : root->findChild<QWidget *>(objectName);
            QVERIFY2(widget, qPrintable(objectName));
            if (!widgets.isEmpty())
                QCOMPARE(QLatin1String(widget->metaObject()->className()), className);
            widgets.append(widget);
        } else if (name == QLatin1String("property") && parent == QLatin1String("widget")) {
            property = reader.attributes().value(QLatin1String("name")).toString();
        } else if (name == QLatin1String("number") && !property.isEmpty()) {
            const int number = reader.readElementText().toInt();
            elements.removeLast();
            QCOMPARE(widgets.last()->property(property.toLatin1()).toInt(), number);
        }
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
}

QTEST_MAIN(tst_Designer)
#include "tst_designer.moc"
