#include "FlowLayout.h"
#include "QGroupWidget.h"
#include "QNumericalWidgetBase.h"
#include "QSbsImageWidget.h"
#include "VelaTest.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

// A numerical widget without editors, enough to be placed by a group.
class PlainNumericalWidget : public QNumericalWidgetBase
{
    Q_OBJECT

public:
    using QNumericalWidgetBase::QNumericalWidgetBase;
    Vela::CVector4<float> GetValue() override { return {}; }

protected:
    void CreateUi(const Lu::CDynamicWidgetVariableBase &,
                  const Lu::CDynamicWidgetDescBase &) override
    { }
    void UpdateUi(const Vela::CVector4<float> &) override { }
};

static QPushButton *titleButton(QGroupWidget &group)
{
    return group.findChild<QPushButton *>(QString(), Qt::FindDirectChildrenOnly);
}

static QSbsImageWidget *imageWidget(const QString &name)
{
    auto *image = new QSbsImageWidget;
    image->Initialize(1, name);
    return image;
}

// Shows the group and clicks its title, as a user opens (or closes) it.
static bool showAndClick(QGroupWidget &group)
{
    group.show();
    if (!QTest::qWaitForWindowExposed(&group))
        return false;
    QTest::mouseClick(titleButton(group), Qt::LeftButton);
    return true;
}

// The widgets of the group's numerical layout, in order.
static QList<QWidget *> placed(QGroupWidget &group)
{
    QList<QWidget *> widgets;
    for (int i = 0; i < group.GetNumericalLayout()->count(); ++i)
        widgets.append(group.GetNumericalLayout()->itemAt(i)->widget());
    return widgets;
}

class tst_QGroupWidget : public QObject
{
    Q_OBJECT

private slots:
    void titleClickOpensAndCloses();
    void lazyCreation();
    void placement();
    void badCreators();
    void subGroups();
    void hasVisibleChildWidget();
};

void tst_QGroupWidget::titleClickOpensAndCloses()
{
    // Created closed: the first click opens.
    QGroupWidget group(nullptr, QStringLiteral("Surface"), false);
    group.show();
    QVERIFY(QTest::qWaitForWindowExposed(&group));
    QSignalSpy clicked(&group, &QGroupWidget::Clicked);

    for (bool open : { true, false }) {
        QTest::mouseClick(titleButton(group), Qt::LeftButton);
        QCOMPARE(clicked.takeFirst().at(0).toBool(), open);
        QVERIFY(clicked.isEmpty());
        QCOMPARE(group.GetNumericalContainer()->isVisible(), open);
        QCOMPARE(titleButton(group)->text(),
                 open ? QStringLiteral(" -  Surface") : QStringLiteral(" +  Surface"));
    }

    // The name without spaces names the group, its button and its container.
    group.setProperty("text", QStringLiteral("Detail  Normal"));
    QCOMPARE(titleButton(group)->text(), QStringLiteral(" +  Detail  Normal"));
    for (QObject *object :
         QList<QObject *> { &group, titleButton(group), group.GetNumericalContainer() })
        QCOMPARE(object->objectName(), QStringLiteral("DetailNormal"));

    // The group paints its style sheet's background.
    group.setStyleSheet(QStringLiteral("QGroupWidget { background-color: #123456; }"));
    group.resize(200, 80);
    QCOMPARE(group.grab().toImage().pixelColor(190, 75), QColor(0x12, 0x34, 0x56));
}

void tst_QGroupWidget::lazyCreation()
{
    QGroupWidget group(nullptr, QStringLiteral("Lazy"), false);
    QStringList calls;
    QList<bool> waitCursor;
    for (int i = 0; i < 3; ++i) {
        group.AddWidgetCreator(
            [&calls, &waitCursor, i]() -> QWidget * {
                calls.append(QString::number(i));
                const QCursor *cursor = QApplication::overrideCursor();
                waitCursor.append(cursor && cursor->shape() == Qt::WaitCursor);
                return new PlainNumericalWidget;
            },
            [i]() { return i != 1; });
    }
    QVERIFY(calls.isEmpty());

    QVERIFY(showAndClick(group));
    QCOMPARE(calls, (QStringList { "0", "1", "2" }));
    QCOMPARE(waitCursor, (QList<bool> { true, true, true }));
    QVERIFY(!QApplication::overrideCursor());
    const QList<QWidget *> widgets = placed(group);
    QCOMPARE(widgets.size(), 3);
    QVERIFY(!widgets.at(1)->isVisible()); // its visibility query said no
    QVERIFY(widgets.at(2)->isVisible());

    // Closing and opening again creates nothing new; a creator added while open runs at once.
    QTest::mouseClick(titleButton(group), Qt::LeftButton);
    QTest::mouseClick(titleButton(group), Qt::LeftButton);
    QCOMPARE(placed(group), widgets);
    group.AddWidgetCreator(
        [&calls]() -> QWidget * {
            calls.append(QStringLiteral("open"));
            return new PlainNumericalWidget;
        },
        nullptr);
    QCOMPARE(calls, (QStringList { "0", "1", "2", "open" }));
    QCOMPARE(placed(group).size(), 4);
}

void tst_QGroupWidget::placement()
{
    // Consecutive images share a flowing row; a numerical widget ends the row.
    QGroupWidget group(nullptr, QStringLiteral("Maps"), false);
    QSbsImageWidget *image1 = imageWidget(QStringLiteral("Albedo"));
    QSbsImageWidget *image2 = imageWidget(QStringLiteral("Normal"));
    auto *numerical = new PlainNumericalWidget;
    QSbsImageWidget *image3 = imageWidget(QStringLiteral("Mask"));
    for (QWidget *w : QList<QWidget *> { image1, image2, numerical, image3 })
        group.AddWidgetCreator([w]() { return w; }, []() { return true; });
    QVERIFY(showAndClick(group));

    const QList<QWidget *> widgets = placed(group);
    QCOMPARE(widgets.size(), 3);
    QCOMPARE(widgets.at(1), numerical);
    auto *first = dynamic_cast<FlowLayout *>(widgets.at(0)->layout());
    auto *second = dynamic_cast<FlowLayout *>(widgets.at(2)->layout());
    QVERIFY(first && second);
    QCOMPARE(first->count(), 2);
    QCOMPARE(first->itemAt(0)->widget(), image1);
    QCOMPARE(first->itemAt(1)->widget(), image2);
    QCOMPARE(second->count(), 1);
    QCOMPARE(second->itemAt(0)->widget(), image3);

    // Removing takes a widget out of its row, or out of the group; the row container stays.
    group.RemoveSubWidget(image3);
    group.RemoveSubWidget(numerical);
    group.RemoveSubWidget(nullptr);
    QCOMPARE(placed(group), (QList<QWidget *> { widgets.at(0), widgets.at(2) }));
    QCOMPARE(second->count(), 0);
    delete numerical;
    delete image3;
}

void tst_QGroupWidget::badCreators()
{
    QGroupWidget group(nullptr, QStringLiteral("Bad"), false);
    group.AddWidgetCreator(nullptr, nullptr);
    group.AddWidgetCreator([]() -> QWidget * { return nullptr; }, []() { return true; });
    // A widget that is no parameter widget is deleted.
    QPointer<QLabel> label = new QLabel(QStringLiteral("not a parameter"));
    group.AddWidgetCreator([&label]() -> QWidget * { return label; }, []() { return true; });
    auto *shown = new PlainNumericalWidget;
    group.AddWidgetCreator([shown]() { return shown; }, nullptr);
    QVERIFY(group.HasVisibleChildWidget());
    QVERIFY(showAndClick(group));
    QCOMPARE(placed(group), QList<QWidget *> { shown });
    QVERIFY(shown->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!label);
    // A group cannot hold itself or what holds it.
    QWidget window;
    auto *holder = new QVBoxLayout(&window);
    auto *inner = new QGroupWidget(&window, QStringLiteral("Inner"), true);
    holder->addWidget(inner);
    inner->AddWidgetCreator([inner]() { return inner; }, nullptr);
    inner->AddWidgetCreator([&window]() { return &window; }, nullptr);
    QVERIFY(!inner->HasSubWidget());
    QCOMPARE(inner->parentWidget(), &window);
    group.AddSubGroup(&group);
    group.AddSubGroup(nullptr);
    QCOMPARE(placed(group).size(), 1);
    QVERIFY(!group.ParentGroup());
}

void tst_QGroupWidget::subGroups()
{
    QGroupWidget outer(nullptr, QStringLiteral("Outer"), false);
    auto *inner = new QGroupWidget(nullptr, QStringLiteral("Inner"), false);
    auto *emptyInner = new QGroupWidget(nullptr, QStringLiteral("Empty"), false);
    inner->AddWidgetCreator([]() { return new PlainNumericalWidget; }, []() { return true; });
    outer.AddSubGroup(inner);
    outer.AddSubGroup(emptyInner);
    QCOMPARE(inner->ParentGroup(), &outer);
    QVERIFY(outer.HasVisibleChildWidget());

    QVERIFY(showAndClick(outer));
    QCOMPARE(placed(outer), (QList<QWidget *> { inner, emptyInner }));
    QVERIFY(inner->isVisible());
    QVERIFY(!emptyInner->isVisible());
    // The inner group is still closed: its own creator waits for its first opening.
    QVERIFY(!inner->HasSubWidget());
    QTest::mouseClick(titleButton(*inner), Qt::LeftButton);
    QVERIFY(inner->HasSubWidget());
}

void tst_QGroupWidget::hasVisibleChildWidget()
{
    QGroupWidget group(nullptr, QStringLiteral("Query"), false);
    QVERIFY(!group.HasVisibleChildWidget());
    bool answer = false;
    group.AddWidgetCreator([]() { return new PlainNumericalWidget; },
                           [&answer]() { return answer; });
    QVERIFY(!group.HasVisibleChildWidget());
    answer = true;
    QVERIFY(group.HasVisibleChildWidget());

    // Once built, the host's visibility flags count, not the widgets' state on screen.
    answer = false;
    group.CreateSubWidgets();
    auto *numerical = qobject_cast<QNumericalWidgetBase *>(placed(group).at(0));
    QVERIFY(numerical);
    QVERIFY(group.HasVisibleChildWidget());
    numerical->SetWidgetVisibility(false);
    QVERIFY(!group.HasVisibleChildWidget());

    // Images count by their visible-if flag, only in the current image row.
    QSbsImageWidget *early = imageWidget(QStringLiteral("Early"));
    group.PlaceImageWidget(early);
    QVERIFY(group.HasVisibleChildWidget());
    early->SetSbsarVisibleif(false);
    QVERIFY(!group.HasVisibleChildWidget());
    early->SetSbsarVisibleif(true);
    group.PlaceNumericalWidget(new PlainNumericalWidget);
    qobject_cast<QNumericalWidgetBase *>(placed(group).last())->SetWidgetVisibility(false);
    QSbsImageWidget *late = imageWidget(QStringLiteral("Late"));
    late->SetSbsarVisibleif(false);
    group.PlaceImageWidget(late);
    QVERIFY(!group.HasVisibleChildWidget());
}

VELA_TEST_CLASS(tst_QGroupWidget)
#include "tst_QGroupWidget.moc"
