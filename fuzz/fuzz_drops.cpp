// Random drags and drops (formats, text, URLs of random files, byte payloads) on every widget
// that accepts drops.
#include "FuzzSupport.h"

#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QMimeData>
#include <QTemporaryDir>
#include <QUrl>
#include <QWidget>

#include <memory>

using namespace VelaFuzz;

static const char *const kFormats[] = { "text/uri-list",
                                        "text/plain",
                                        "application/x-visemelistitem",
                                        "application/x-visemebutton",
                                        "application/x-qabstractitemmodeldatalist",
                                        "image/png" };
static const char *const kSuffixes[] = { "png", "jpg", "tga", "bmp", "txt", "PNG", "", "svg" };

static QMimeData *randomMimeData(Input &in, const QTemporaryDir &dir)
{
    auto *mime = new QMimeData;
    const int formats = in.index(4);
    for (int i = 0; i < formats; ++i) {
        const QString format = in.boolean() ? QLatin1String(kFormats[in.index(6)]) : in.text(16);
        mime->setData(format, in.bytes(64));
    }
    if (in.boolean())
        mime->setText(in.text(32));
    if (in.boolean()) {
        QList<QUrl> urls;
        const int count = in.index(4);
        for (int i = 0; i < count; ++i) {
            const QString path = dir.filePath(
                QStringLiteral("f%1.%2").arg(i).arg(QLatin1String(kSuffixes[in.index(8)])));
            if (in.boolean()) {
                QFile file(path);
                if (file.open(QIODevice::WriteOnly))
                    file.write(in.bytes(128));
            }
            urls.append(in.boolean() ? QUrl::fromLocalFile(path) : QUrl(in.text(24)));
        }
        mime->setUrls(urls);
    }
    return mime;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const RunScope scope;
    static QTemporaryDir dir;
    Input in(data, size);
    const QVector<VelaCatalog::Entry> &factories = VelaCatalog::Widgets();
    std::unique_ptr<QWidget> widget(factories.at(in.index(factories.size())).create());
    widget->resize(320, 200);
    widget->show();

    QList<QWidget *> targets = widget->findChildren<QWidget *>();
    targets.prepend(widget.get());
    targets.erase(std::remove_if(targets.begin(), targets.end(),
                                 [](QWidget *w) { return !w->acceptDrops(); }),
                  targets.end());
    if (targets.isEmpty())
        return 0;

    while (!in.atEnd()) {
        QWidget *target = targets.at(in.index(targets.size()));
        std::unique_ptr<QMimeData> mime(randomMimeData(in, dir));
        const QPoint pos(in.integer() % 400, in.integer() % 300);
        const Qt::DropActions actions = Qt::DropActions(in.byte() & 7);
        QDragEnterEvent enter(pos, actions, mime.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        QDragMoveEvent move(pos, actions, mime.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &move);
        if (in.boolean()) {
            QDropEvent drop(pos, actions, mime.get(), Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(target, &drop);
        } else {
            QDragLeaveEvent leave;
            QApplication::sendEvent(target, &leave);
        }
    }
    return 0;
}
