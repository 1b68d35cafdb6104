// Gallery pages of the material-parameter widgets: the whole panel a host builds from its records
// (one widget per input, inside collapsible sections), and one page per widget class showing the
// inputs that class edits.
#include "GalleryRegistry.h"
#include "MaterialRecords.h"
#include "QGroupWidget.h"
#include "QNumericalWidgetBase.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const char kPanelStyle[] = "QGroupWidget > QPushButton { color: #d0d0d0; background-color: #1c1c1c;"
                           " border: 1px solid #505050; padding: 3px; text-align: left; }"
                           "QGroupWidget > QPushButton:hover { color: #82be0f; }";

// Opens every closed group below root as a user would, one level at a time: a group's widgets
// (and so its inner groups) are created when it is first opened.
void openGroups(QWidget *root)
{
    bool opened = true;
    while (opened) {
        opened = false;
        for (QGroupWidget *group : root->findChildren<QGroupWidget *>()) {
            auto *title = group->findChild<QPushButton *>(QString(), Qt::FindDirectChildrenOnly);
            if (title && title->isCheckable() && !title->isChecked()) {
                title->click();
                opened = true;
            }
        }
    }
}

QWidget *createMaterialPanel(GalleryContext &ctx)
{
    auto *panel = new QWidget;
    panel->setStyleSheet(QLatin1String(kPanelStyle));
    // Two columns of sections, so that the whole material fits on one screen.
    auto *columns = new QHBoxLayout(panel);
    QVBoxLayout *column[2] = { new QVBoxLayout, new QVBoxLayout };
    for (QVBoxLayout *c : column) {
        columns->addLayout(c, 1);
    }
    QVector<QGroupWidget *> sections;
    const auto always = [] { return true; };
    for (const MaterialInput &input : MaterialRecords::Inputs()) {
        QGroupWidget *section = nullptr;
        for (QGroupWidget *existing : sections) {
            if (existing->text() == input.section)
                section = existing;
        }
        if (!section) {
            section = new QGroupWidget(panel, input.section, false);
            sections.append(section);
            column[sections.size() == 1 ? 0 : 1]->addWidget(section);
        }
        section->AddWidgetCreator(
            [&ctx, &input]() -> QWidget * { return MaterialRecords::CreateWidget(input, ctx); },
            always);
    }
    for (QVBoxLayout *c : column)
        c->addStretch(1);
    openGroups(panel);
    panel->setMinimumWidth(960);
    return panel;
}

// The inputs of the sample material edited by one widget class, one under the other.
std::function<QWidget *(GalleryContext &)> pageOf(const char *className)
{
    return [className](GalleryContext &ctx) -> QWidget * {
        auto *page = new QWidget;
        auto *column = new QVBoxLayout(page);
        for (const MaterialInput &input : MaterialRecords::Inputs()) {
            QNumericalWidgetBase *widget = MaterialRecords::CreateWidget(input, ctx);
            if (qstrcmp(widget->metaObject()->className(), className) == 0)
                column->addWidget(widget);
            else
                delete widget;
        }
        column->addStretch(1);
        openGroups(page);
        return page;
    };
}

} // namespace

GALLERY_ENTRY({ 40, "Material parameters", "MaterialPanel",
                "A procedural material's inputs as a host shows them: one widget per input, "
                "made from the host's variable and description records through Initialize, in "
                "collapsible sections. Every ValueChanged / EditFinished appears in the log.",
                createMaterialPanel })
GALLERY_ENTRY({ 40, "Material parameters", "QNumericalWidgetSlider",
                "One slider-spin-box editor per component (1 to 4, float or integer) with "
                "component captions; a unit-range input edits 0 to 1 whatever its range.",
                pageOf("QNumericalWidgetSlider") })
GALLERY_ENTRY({ 40, "Material parameters", "QNumericalWidgetMultiLevelSlider",
                "Several components on one track: one indicator per component, the middle one "
                "placed above for three.",
                pageOf("QNumericalWidgetMultiLevelSlider") })
GALLERY_ENTRY({ 40, "Material parameters", "QNumericalMouseSpinbox",
                "Spin boxes changed by dragging the mouse over them, one per component.",
                pageOf("QNumericalMouseSpinbox") })
GALLERY_ENTRY({ 40, "Material parameters", "QNumericalWidgetColor",
                "A colour input: the button opens the colour dialog; the value is (r, g, b, 1).",
                pageOf("QNumericalWidgetColor") })
GALLERY_ENTRY({ 40, "Material parameters", "QNumericalWidgetColorWithToolButton",
                "A colour input with a tool button of the host's (\"Caption_Button\" names both).",
                pageOf("QNumericalWidgetColorWithToolButton") })
GALLERY_ENTRY({ 40, "Material parameters", "QNumericalWidgetColorPresetButtons",
                "Four preset swatches; the input reports which one was chosen (ClickedButton).",
                pageOf("QNumericalWidgetColorPresetButtons") })
GALLERY_ENTRY({ 40, "Material parameters", "QNumericalWidgetCombobox",
                "A choice among named integer values taken from the description record.",
                pageOf("QNumericalWidgetCombobox") })
GALLERY_ENTRY({ 40, "Material parameters", "QNumericalWidgetOutputSize",
                "The square output resolution, 8 x 8 to 4096 x 4096, reported as its exponent.",
                pageOf("QNumericalWidgetOutputSize") })
GALLERY_ENTRY({ 40, "Material parameters", "QNumericalWidgetToggleButton",
                "A check box switching the input between its on-value and its off-value.",
                pageOf("QNumericalWidgetToggleButton") })
GALLERY_ENTRY({ 40, "Material parameters", "QNumericalWidgetImage",
                "A texture slot: preview, name and six tool buttons whose clicks the host answers; "
                "image files dropped on the preview are handed to the host.",
                pageOf("QNumericalWidgetImage") })
