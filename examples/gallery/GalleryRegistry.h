#ifndef GALLERYREGISTRY_H
#define GALLERYREGISTRY_H

#include <QString>
#include <QVector>

#include <functional>

class QWidget;

// What a gallery page can ask of the gallery: a place for its sample files and the event log.
class GalleryContext
{
public:
    virtual ~GalleryContext() = default;

    // A folder that lives as long as the gallery, for sample files the pages write themselves.
    virtual QString sampleDir() const = 0;
    // Appends one line to the event log shown beside the widget.
    virtual void log(const QString &line) = 0;
    // The gallery's main window (dialogs are placed relative to it).
    virtual QWidget *mainWindow() const = 0;
};

// One widget shown by the gallery; also one screenshot, named after `name`.
struct GalleryEntry
{
    int order; // position of the group: 10 basic, 20 composite, 30 colour, 40 numerical,
               // 50 curves, 60 facial, 70 timeline, 80 containers
    QString group;
    QString name;
    QString description;
    std::function<QWidget *(GalleryContext &context)> create;
};

int RegisterGalleryEntry(const GalleryEntry &entry);
QVector<GalleryEntry> GalleryEntries(); // sorted by order, then registration

#define GALLERY_CONCAT2(a, b) a##b
#define GALLERY_CONCAT(a, b) GALLERY_CONCAT2(a, b)
// Registers a gallery page from a section file: GALLERY_ENTRY({ 10, "Basic", "QSpinBoxEx", ... });
#define GALLERY_ENTRY(...)                                                                         \
    static const int GALLERY_CONCAT(galleryEntry, __LINE__) = RegisterGalleryEntry(__VA_ARGS__);

#endif // GALLERYREGISTRY_H
