#include "FlowLayout.h"
#include "QGroupWidget.h"
#include "QNumericalWidgetBase.h"
#include "QSbsImageWidget.h"
#include "VelaTest.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
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
    void construction_data();
    void construction();
    void designerConstruction();
    void objectNames();
    void clickToggles();
    void lazyCreation();
    void creatorWhileOpen();
    void placement();
    void otherWidgetsAreDeleted();
    void badCreators();
    void visibilityQueries();
    void subGroups();
    void hasVisibleChildWidget();
    void removeSubWidget();
    void marginsAndSpacing();
};

void tst_QGroupWidget::construction_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QString>("title");
    QTest::newRow("open") << true << " -  Surface";
    QTest::newRow("closed") << false << " +  Surface";
}

void tst_QGroupWidget::construction()
{
    QFETCH(bool, checked);
    QFETCH(QString, title);
    QGroupWidget group(nullptr, QStringLiteral("Surface"), checked);
    QPushButton *button = titleButton(group);
    QVERIFY(button);
    QCOMPARE(button->text(), title);
    QVERIFY(button->isFlat());
    QCOMPARE(button->isChecked(), checked);
    QCOMPARE(button->styleSheet(), QStringLiteral("text-align: left"));
    QCOMPARE(group.GetNumericalContainer()->isVisibleTo(&group), checked);
    QVERIFY(!group.HasSubWidget());
    QCOMPARE(group.property("text").toString(), QStringLiteral("Surface"));
    // Title button above the container, both without margins.
    QCOMPARE(group.layout()->itemAt(0)->widget(), button);
    QCOMPARE(group.layout()->itemAt(1)->widget(), group.GetNumericalContainer());
    QCOMPARE(group.layout()->spacing(), 5);
    QCOMPARE(group.GetNumericalLayout()->spacing(), 5);
    QCOMPARE(group.GetNumericalLayout()->contentsMargins(), QMargins(0, 0, 0, 0));
}

void tst_QGroupWidget::designerConstruction()
{
    QWidget parent;
    auto *group = new QGroupWidget(&parent, QString(), false);
    QCOMPARE(titleButton(*group)->text(), QStringLiteral(" +  "));
    QVERIFY(group->objectName().isEmpty());
    QVERIFY(!group->HasVisibleChildWidget());
}

void tst_QGroupWidget::objectNames()
{
    // The name without spaces names the group, its button and its container.
    QGroupWidget group(nullptr, QStringLiteral("Base Color Maps"), true);
    QCOMPARE(group.objectName(), QStringLiteral("BaseColorMaps"));
    QCOMPARE(titleButton(group)->objectName(), QStringLiteral("BaseColorMaps"));
    QCOMPARE(group.GetNumericalContainer()->objectName(), QStringLiteral("BaseColorMaps"));

    // A new text keeps the open/closed marker and renames all three.
    group.setProperty("text", QStringLiteral("Detail  Normal"));
    QCOMPARE(titleButton(group)->text(), QStringLiteral(" -  Detail  Normal"));
    QCOMPARE(group.objectName(), QStringLiteral("DetailNormal"));
    QCOMPARE(titleButton(group)->objectName(), QStringLiteral("DetailNormal"));
    QCOMPARE(group.GetNumericalContainer()->objectName(), QStringLiteral("DetailNormal"));
    QGroupWidget closed(nullptr, QStringLiteral("Old"), false);
    closed.setText(QStringLiteral("New"));
    QCOMPARE(titleButton(closed)->text(), QStringLiteral(" +  New"));
}

void tst_QGroupWidget::clickToggles()
{
    QGroupWidget group(nullptr, QStringLiteral("Surface"), false);
    group.show();
    QVERIFY(QTest::qWaitForWindowExposed(&group));
    QSignalSpy clicked(&group, &QGroupWidget::Clicked);
    QPushButton *button = titleButton(group);

    for (bool open : { true, false }) {
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(clicked.takeFirst().at(0).toBool(), open);
        QVERIFY(clicked.isEmpty());
        QCOMPARE(group.GetNumericalContainer()->isVisible(), open);
        QCOMPARE(button->text(),
                 open ? QStringLiteral(" -  Surface") : QStringLiteral(" +  Surface"));
    }
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
            []() { return true; });
    }
    QVERIFY(calls.isEmpty());
    QVERIFY(!group.HasSubWidget());

    QVERIFY(showAndClick(group));
    QCOMPARE(calls, (QStringList { "0", "1", "2" }));
    QCOMPARE(waitCursor, (QList<bool> { true, true, true }));
    QVERIFY(!QApplication::overrideCursor());
    QCOMPARE(group.GetNumericalLayout()->count(), 3);

    // Closing and opening again creates nothing new.
    QTest::mouseClick(titleButton(group), Qt::LeftButton);
    QTest::mouseClick(titleButton(group), Qt::LeftButton);
    QCOMPARE(calls.size(), 3);
    QCOMPARE(group.GetNumericalLayout()->count(), 3);
    for (QWidget *w : placed(group))
        QCOMPARE(w->parentWidget(), group.GetNumericalContainer());
}

void tst_QGroupWidget::creatorWhileOpen()
{
    // A panel is usually filled before it is shown: an open group creates at once all the same.
    QGroupWidget group(nullptr, QStringLiteral("Open"), true);
    int calls = 0;
    group.AddWidgetCreator(
        [&calls]() -> QWidget * {
            ++calls;
            return new PlainNumericalWidget;
        },
        nullptr);
    QCOMPARE(calls, 1);
    QVERIFY(group.HasSubWidget());
    QVERIFY(showAndClick(group));
    QTest::mouseClick(titleButton(group), Qt::LeftButton);
    QCOMPARE(calls, 1);
}

void tst_QGroupWidget::placement()
{
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
    QCOMPARE(image1->parentWidget(), widgets.at(0));
    // The image rows flow: both images of the first row side by side when there is room.
    group.resize(600, group.heightForWidth(600) > 0 ? group.heightForWidth(600) : 400);
    QTRY_COMPARE(image2->geometry().top(), image1->geometry().top());
    QVERIFY(image2->geometry().left() > image1->geometry().right());
}

void tst_QGroupWidget::otherWidgetsAreDeleted()
{
    QGroupWidget group(nullptr, QStringLiteral("Other"), true);
    QPointer<QLabel> label = new QLabel(QStringLiteral("not a parameter"));
    bool queried = false;
    group.AddWidgetCreator([&label]() -> QWidget * { return label; },
                           [&queried]() {
                               queried = true;
                               return true;
                           });
    QVERIFY(!group.HasSubWidget());
    QVERIFY(!queried);
    QVERIFY(label);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!label);
}

void tst_QGroupWidget::badCreators()
{
    QGroupWidget group(nullptr, QStringLiteral("Bad"), false);
    group.AddWidgetCreator(nullptr, nullptr);
    group.AddWidgetCreator([]() -> QWidget * { return nullptr; }, []() { return true; });
    auto *shown = new PlainNumericalWidget;
    group.AddWidgetCreator([shown]() { return shown; }, nullptr);
    QVERIFY(group.HasVisibleChildWidget());
    QVERIFY(showAndClick(group));
    QCOMPARE(placed(group), QList<QWidget *> { shown });
    QVERIFY(shown->isVisible());
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

void tst_QGroupWidget::visibilityQueries()
{
    QGroupWidget group(nullptr, QStringLiteral("Visible"), false);
    auto *hidden = new PlainNumericalWidget;
    auto *visible = new PlainNumericalWidget;
    group.AddWidgetCreator([hidden]() { return hidden; }, []() { return false; });
    group.AddWidgetCreator([visible]() { return visible; }, []() { return true; });
    QVERIFY(showAndClick(group));
    QCOMPARE(placed(group), (QList<QWidget *> { hidden, visible }));
    QVERIFY(!hidden->isVisible());
    QVERIFY(visible->isVisible());
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
    QVERIFY(inner->isHidden());
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
    QVERIFY(numerical->GetWidgetVisibility());
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
    // The visible image sits in an earlier row, which is not examined.
    QVERIFY(!group.HasVisibleChildWidget());
}

void tst_QGroupWidget::removeSubWidget()
{
    QGroupWidget group(nullptr, QStringLiteral("Remove"), true);
    auto *numerical = new PlainNumericalWidget;
    QSbsImageWidget *image = imageWidget(QStringLiteral("Image"));
    group.PlaceNumericalWidget(numerical);
    group.PlaceImageWidget(image);
    QCOMPARE(group.GetNumericalLayout()->count(), 2);
    group.RemoveSubWidget(image);
    group.RemoveSubWidget(numerical);
    QCOMPARE(group.GetNumericalLayout()->count(), 1); // the image row container stays
    QCOMPARE(placed(group).at(0)->layout()->count(), 0);
    group.RemoveSubWidget(nullptr);
    delete numerical;
    delete image;
}

void tst_QGroupWidget::marginsAndSpacing()
{
    QGroupWidget group(nullptr, QStringLiteral("Margins"), true);
    group.SetTitleButtonMargins(1, 2, 3, 4);
    QCOMPARE(titleButton(group)->contentsMargins(), QMargins(1, 2, 3, 4));
    group.SetNumericalContainerMargins(5, 6, 7, 8);
    QCOMPARE(group.GetNumericalLayout()->contentsMargins(), QMargins(5, 6, 7, 8));
    group.SetNumericalContainerSpacing(12);
    QCOMPARE(group.GetNumericalLayout()->spacing(), 12);

    // A style sheet's background is painted.
    group.setStyleSheet(QStringLiteral("QGroupWidget { background-color: #123456; }"));
    group.resize(200, 80);
    const QImage image = group.grab().toImage();
    QCOMPARE(image.pixelColor(190, 75), QColor(0x12, 0x34, 0x56));
}

VELA_TEST_CLASS(tst_QGroupWidget)
#include "tst_QGroupWidget.moc"
