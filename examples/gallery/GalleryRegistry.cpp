#include "GalleryRegistry.h"

#include <algorithm>

static QVector<GalleryEntry> &registry()
{
    static QVector<GalleryEntry> entries;
    return entries;
}

int RegisterGalleryEntry(const GalleryEntry &entry)
{
    registry().append(entry);
    return registry().size();
}

QVector<GalleryEntry> GalleryEntries()
{
    QVector<GalleryEntry> entries = registry();
    std::stable_sort(
        entries.begin(), entries.end(),
        [](const GalleryEntry &a, const GalleryEntry &b) { return a.order < b.order; });
    return entries;
}
