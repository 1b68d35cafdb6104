#include "VelaImageLoader.h"

#include <QFileInfo>
#include <QImageReader>

namespace Vela {

namespace {
const char *const kFormats[] = { "png", "jpg", "jpeg", "bmp", "tga", "tif", "tiff", "gif", "svg" };

bool isWhitelisted(const QByteArray &format)
{
    for (const char *f : kFormats) {
        if (format == f)
            return true;
    }
    return false;
}
} // namespace

bool IsReadableImageSuffix(const QString &strSuffix)
{
    return isWhitelisted(strSuffix.toLower().toLatin1());
}

bool LoadImageFile(const QString &strPath, QImage &image)
{
    const QFileInfo info(strPath);
    if (strPath.isEmpty() || !info.isFile() || !info.isReadable() || info.size() <= 0
        || info.size() > kMaxImageFileBytes) {
        return false;
    }

    QImageReader reader(strPath);
    if (!isWhitelisted(reader.format().toLower()))
        return false;

    const QSize size = reader.size();
    if (!size.isValid() || size.isEmpty()
        || qint64(size.width()) * qint64(size.height()) > kMaxImagePixels) {
        return false;
    }

    QImage result;
    if (!reader.read(&result) || result.isNull())
        return false;
    image = result;
    return true;
}

} // namespace Vela
