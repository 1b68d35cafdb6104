// Gallery page of the Substance image slot: four slots answered by a small host that draws the
// channel pictures itself and loads custom and dropped files through the library's image loader.
#include "GalleryRegistry.h"
#include "QSbsImageWidget.h"
#include "SampleMaterialImages.h"
#include "VelaImageLoader.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

static Vela::CMap<Vela::ESubstanceUiChannel, QString> sampleChannelNames()
{
    const char *const names[] = { "Base Color", "Normal",   "Roughness",
                                  "Metallic",   "Height",   "Ambient Occlusion",
                                  "Opacity",    "Emissive", "Specular",
                                  "Glossiness", "Diffuse" };
    Vela::CMap<Vela::ESubstanceUiChannel, QString> map;
    for (int i = 0; i < 11; ++i)
        map[Vela::ESubstanceUiChannel(i)] = QString::fromLatin1(names[i]);
    map[Vela::SubstanceChannel_Custom] = QStringLiteral("Custom Image...");
    map[Vela::SubstanceChannel_None] = QStringLiteral("None");
    return map;
}

// Answers one slot's requests the way a material editor would.
static void connectHost(QSbsImageWidget *slot, GalleryContext &ctx)
{
    const QString name = slot->GetName();
    QObject::connect(
        slot, &QSbsImageWidget::ImportImageFromChannel, slot,
        [slot, &ctx, name](uint32_t, Vela::ESubstanceUiChannel eChannel) {
            slot->SetImage(SampleMaterialImages::ChannelImage(int(eChannel)));
            ctx.log(QStringLiteral("%1: ImportImageFromChannel(%2)").arg(name).arg(int(eChannel)));
        });
    QObject::connect(slot, &QSbsImageWidget::ImportImageFromExtern, slot,
                     [slot, &ctx, name](uint32_t, int nNumber, const QString &strTexture) {
                         slot->SetImage(SampleMaterialImages::ExternImage(nNumber));
                         ctx.log(QStringLiteral("%1: ImportImageFromExtern(%2, \"%3\")")
                                     .arg(name)
                                     .arg(nNumber)
                                     .arg(strTexture));
                     });
    QObject::connect(slot, &QSbsImageWidget::RemoveImage, slot, [slot, &ctx, name](uint32_t) {
        slot->SetImage(QImage());
        ctx.log(name + QStringLiteral(": RemoveImage"));
    });
    QObject::connect(
        slot, &QSbsImageWidget::OpenCustomImageFileDialog, slot, [slot, &ctx, name](uint32_t) {
            // Instead of a file dialog, load the next sample file the gallery wrote.
            static int next = 0;
            const QString path =
                SampleMaterialImages::WriteChannelImage(ctx.sampleDir(), next++ % 11);
            QImage image;
            if (Vela::LoadImageFile(path, image))
                slot->SetImage(image);
            ctx.log(QStringLiteral("%1: OpenCustomImageFileDialog, loaded %2").arg(name, path));
        });
    QObject::connect(slot, &QSbsImageWidget::DropFileCustomImageFile, slot,
                     [slot, &ctx, name](uint32_t, const QString &strFile) {
                         QImage image;
                         const bool loaded = Vela::LoadImageFile(strFile, image);
                         if (loaded)
                             slot->SetImage(image);
                         ctx.log(QStringLiteral("%1: DropFileCustomImageFile(%2) %3")
                                     .arg(name, strFile,
                                          loaded ? QStringLiteral("loaded")
                                                 : QStringLiteral("refused by the loader")));
                     });
    QObject::connect(slot, &QSbsImageWidget::ChannelChanged, slot,
                     [&ctx, name]() { ctx.log(name + QStringLiteral(": ChannelChanged")); });
    QObject::connect(slot, &QSbsImageWidget::OpenCustomImageMenu, slot, [&ctx, name](uint32_t) {
        ctx.log(name + QStringLiteral(": OpenCustomImageMenu"));
    });
    QObject::connect(slot, &QSbsImageWidget::MouseHoverEnterInImageLabel, slot, [&ctx, name]() {
        ctx.log(name + QStringLiteral(": MouseHoverEnterInImageLabel"));
    });
}

static QWidget *createSbsImagePage(GalleryContext &ctx)
{
    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    auto *row = new QHBoxLayout;
    column->addLayout(row);

    const Vela::CArrayList<std::wstring> externs { L"Wood Planks", L"Checker" };
    struct SlotSample
    {
        const char *name;
        int channel;
        bool withMap;
    };
    const SlotSample samples[] = { { "Base Color", 0, true },
                                   { "Normal", 1, true },
                                   { "Detail Mask", int(Vela::SubstanceChannel_Custom), true },
                                   { "Height", 4, false } };
    unsigned int uid = 100;
    for (const SlotSample &sample : samples) {
        auto *slot = new QSbsImageWidget(page);
        if (sample.withMap)
            slot->Initialize(uid++, QString::fromLatin1(sample.name), sampleChannelNames(), externs,
                             true);
        else
            slot->Initialize(uid++, QString::fromLatin1(sample.name));
        slot->SetFileTypeFilter(QStringLiteral("png;jpg;jpeg;tga;bmp"));
        if (sample.channel == Vela::SubstanceChannel_Custom)
            slot->SetLabelColor(QStringLiteral("color: #82be0f"));
        slot->SetImageTip(QStringLiteral("Double-click for a custom image, or drop an image file"));
        connectHost(slot, ctx);
        if (sample.channel == Vela::SubstanceChannel_Custom) {
            QImage image;
            if (Vela::LoadImageFile(SampleMaterialImages::WriteChannelImage(ctx.sampleDir(), 6),
                                    image))
                slot->SetImage(image);
        } else if (sample.withMap) {
            slot->SetSelectedChannel(sample.channel);
        } else {
            slot->SetImage(SampleMaterialImages::ChannelImage(sample.channel));
        }
        row->addWidget(slot, 0, Qt::AlignTop);
    }
    row->addStretch(1);
    auto *hint = new QLabel(
        QStringLiteral("Choose a source in the drop-downs, double-click a preview for a custom "
                       "image, right-click it for the slot menu, or drop png/jpg/tga/bmp files."),
        page);
    hint->setWordWrap(true);
    column->addWidget(hint);
    return page;
}

GALLERY_ENTRY({ 40, "Material parameters", "QSbsImageWidget",
                "The image slot of a Substance input: preview, source drop-down (channels, "
                "external textures, custom image, none) and name.",
                createSbsImagePage })
