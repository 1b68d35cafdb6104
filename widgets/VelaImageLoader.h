#ifndef VELAIMAGELOADER_H
#define VELAIMAGELOADER_H

#include "VelaExport.h"

#include <QImage>
#include <QString>

namespace Vela {

// Reads an image file that comes from outside the library (a dropped file, a template thumbnail,
// a custom channel image). Qt 5 would allocate whatever size a file header claims, so the header is
// checked first: the file must exist, be at most kMaxImageFileBytes long, be of a whitelisted
// format and claim at most kMaxImagePixels pixels. Only a successful read fills `image`; on any
// failure `image` is left as it was and false is returned.
constexpr qint64 kMaxImageFileBytes = 64ll * 1024 * 1024;
constexpr qint64 kMaxImagePixels = 16ll * 1024 * 1024;

VELA_WIDGETS_EXPORT bool LoadImageFile(const QString &strPath, QImage &image);

// True for the suffixes of the formats LoadImageFile reads (case-insensitive, without the dot).
VELA_WIDGETS_EXPORT bool IsReadableImageSuffix(const QString &strSuffix);

} // namespace Vela

#endif // VELAIMAGELOADER_H
