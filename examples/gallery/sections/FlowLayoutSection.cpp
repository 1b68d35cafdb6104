// Gallery page of the flow layout: a panel of material thumbnails that reflows with its width.
#include "FlowLayout.h"
#include "GalleryRegistry.h"
#include "SampleMaterialImages.h"

#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

// A thumbnail panel that prefers a width of several columns. The flow layout's own size hint is
// its widest item, at whose width every thumbnail would get a row of its own.
class ThumbnailPanel : public QWidget
{
public:
    QSize sizeHint() const override { return QSize(640, heightForWidth(640)); }
};

static QWidget *createFlowLayoutPage(GalleryContext &ctx)
{
    auto *panel = new ThumbnailPanel;
    auto *flow = new FlowLayout(panel, 6, 8, 8);
    const char *const names[] = { "Bricks",  "Bumps",   "Rough",   "Metal", "Height",
                                  "Cavity",  "Opacity", "Glow",    "Sheen", "Gloss",
                                  "Diffuse", "Planks",  "Checker", "Tiles" };
    for (int i = 0; i < 14; ++i) {
        auto *thumb = new QWidget(panel);
        auto *box = new QVBoxLayout(thumb);
        box->setContentsMargins(0, 0, 0, 0);
        box->setSpacing(2);
        auto *picture = new QLabel(thumb);
        const QImage image = i < 11 ? SampleMaterialImages::ChannelImage(i, 72)
                                    : SampleMaterialImages::ExternImage(i - 11, 72);
        picture->setPixmap(QPixmap::fromImage(image));
        picture->setStyleSheet(QStringLiteral("border: 1px solid #505050"));
        auto *caption = new QLabel(QString::fromLatin1(names[i]), thumb);
        caption->setAlignment(Qt::AlignHCenter);
        box->addWidget(picture);
        box->addWidget(caption);
        flow->addWidget(thumb);
    }
    ctx.log(QStringLiteral("FlowLayout: %1 thumbnails; resize the window to see them reflow")
                .arg(flow->count()));
    return panel;
}

GALLERY_ENTRY({ 80, "Lists, containers and layout", "FlowLayout",
                "Places items left to right at their size hints and wraps into rows like words; "
                "its height follows its width.",
                createFlowLayoutPage })
