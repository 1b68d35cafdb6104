// A template folder with random file names and random or truncated PNG thumbnails.
#include "FuzzSupport.h"

#include "QKdFKTemplateTableManager.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

using namespace VelaFuzz;

// A valid PNG to cut short or corrupt.
static QByteArray samplePng()
{
    QImage image(24, 16, QImage::Format_ARGB32);
    image.fill(QColor(90, 140, 200, 255));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const RunScope scope;
    static const QByteArray png = samplePng();
    Input in(data, size);
    QTemporaryDir dir;
    QDir(dir.path()).mkpath(QStringLiteral("Icons"));
    const int count = in.index(12);
    for (int i = 0; i < count; ++i) {
        QString name = in.text(20).remove(QLatin1Char('/')).remove(QChar());
        if (name.isEmpty() || name == QLatin1String(".") || name == QLatin1String(".."))
            name = QStringLiteral("t%1").arg(i);
        QFile templateFile(
            dir.filePath(name + (in.boolean() ? QStringLiteral(".exp") : QString())));
        if (templateFile.open(QIODevice::WriteOnly))
            templateFile.write(in.bytes(8));
        QFile thumbnail(dir.filePath(QStringLiteral("Icons/") + name + QStringLiteral(".png")));
        if (!thumbnail.open(QIODevice::WriteOnly))
            continue;
        switch (in.byte() % 4) {
        case 0: // truncated
            thumbnail.write(png.left(in.index(png.size())));
            break;
        case 1: { // one byte changed
            QByteArray bytes = png;
            bytes[in.index(bytes.size())] = char(in.byte());
            thumbnail.write(bytes);
            break;
        }
        case 2:
            thumbnail.write(in.bytes(96));
            break;
        default:
            thumbnail.write(png);
            break;
        }
    }
    QKdFKTemplateTableManager table;
    table.InitManager(1 + in.index(8), in.integer() % 256, in.integer() % 256);
    table.UpdateTable(dir.path(), QString(), in.index(20));
    table.resize(400, 300);
    table.show();
    table.grab();
    return 0;
}
