// Gallery page of the group widget: a material panel whose sections build their parameter and
// image widgets only when first opened.
#include "GalleryRegistry.h"
#include "MaterialRecords.h"
#include "QGroupWidget.h"
#include "QNumericalWidgetBase.h"
#include "QSbsImageWidget.h"
#include "SampleMaterialImages.h"

#include <QPushButton>
#include <QVBoxLayout>

static std::function<QWidget *()> parameterCreator(GalleryContext &ctx, const QString &name,
                                                   Vela::EDynamicWidgetVariableType eType,
                                                   float fValue)
{
    return [&ctx, name, eType, fValue]() -> QWidget * {
        ctx.log(QStringLiteral("creating parameter \"%1\"").arg(name));
        MaterialInput input;
        input.var.eType = eType;
        input.desc.strName = name.toStdWString();
        for (float &value : input.desc.afValue)
            value = fValue;
        return MaterialRecords::CreateWidget(input, ctx);
    };
}

static std::function<QWidget *()> imageCreator(GalleryContext &ctx, const QString &name,
                                               int nChannel)
{
    return [&ctx, name, nChannel]() -> QWidget * {
        ctx.log(QStringLiteral("creating image slot \"%1\"").arg(name));
        auto *slot = new QSbsImageWidget;
        slot->Initialize(uint32_t(nChannel), name);
        slot->SetImage(SampleMaterialImages::ChannelImage(nChannel));
        return slot;
    };
}

static QWidget *createGroupWidgetPage(GalleryContext &ctx)
{
    auto *panel = new QWidget;
    // Title buttons as a host's dark panel styles them.
    panel->setStyleSheet(
        QStringLiteral("QGroupWidget > QPushButton { color: #d0d0d0; background-color: #1c1c1c;"
                       " border: 1px solid #505050; padding: 3px; }"
                       "QGroupWidget > QPushButton:hover { color: #82be0f; }"));
    auto *column = new QVBoxLayout(panel);
    const auto always = []() { return true; };

    auto *surface = new QGroupWidget(panel, QStringLiteral("Surface"), false);
    surface->AddWidgetCreator(
        parameterCreator(ctx, QStringLiteral("Roughness"), Vela::DynamicVariable_Float1, 0.45f),
        always);
    surface->AddWidgetCreator(imageCreator(ctx, QStringLiteral("Base Color"), 0), always);
    surface->AddWidgetCreator(imageCreator(ctx, QStringLiteral("Normal"), 1), always);
    surface->AddWidgetCreator(imageCreator(ctx, QStringLiteral("Height"), 4), always);
    surface->AddWidgetCreator(
        parameterCreator(ctx, QStringLiteral("Tiling"), Vela::DynamicVariable_Float2, 0.5f),
        always);
    surface->AddWidgetCreator(imageCreator(ctx, QStringLiteral("Occlusion"), 5), always);

    auto *detail = new QGroupWidget(nullptr, QStringLiteral("Detail Layer"), false);
    detail->AddWidgetCreator(parameterCreator(ctx, QStringLiteral("Detail Strength"),
                                              Vela::DynamicVariable_Float1, 0.3f),
                             always);
    detail->AddWidgetCreator(imageCreator(ctx, QStringLiteral("Detail Mask"), 6), always);
    surface->AddSubGroup(detail);

    auto *emission = new QGroupWidget(panel, QStringLiteral("Emission"), false);
    emission->AddWidgetCreator(
        parameterCreator(ctx, QStringLiteral("Intensity"), Vela::DynamicVariable_Float1, 0.8f),
        always);
    emission->AddWidgetCreator(imageCreator(ctx, QStringLiteral("Emissive"), 7), always);

    for (QGroupWidget *group : { surface, detail, emission }) {
        QObject::connect(group, &QGroupWidget::Clicked, group, [&ctx, group](bool bOpen) {
            ctx.log(
                QStringLiteral("%1: Clicked(%2)")
                    .arg(group->text(), bOpen ? QStringLiteral("true") : QStringLiteral("false")));
        });
    }
    column->addWidget(surface);
    column->addWidget(emission);
    column->addStretch(1);

    // Open the first section as a user would: its content is created now, exactly once.
    if (auto *title = surface->findChild<QPushButton *>(QString(), Qt::FindDirectChildrenOnly))
        title->click();
    return panel;
}

GALLERY_ENTRY({ 80, "Lists, containers and layout", "QGroupWidget",
                "A collapsible material section; its parameter and image widgets are created "
                "through creator functions on first opening (image slots flow in rows).",
                createGroupWidgetPage })
