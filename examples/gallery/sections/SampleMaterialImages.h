#ifndef SAMPLEMATERIALIMAGES_H
#define SAMPLEMATERIALIMAGES_H

#include <QImage>
#include <QString>

// Material channel pictures the gallery draws itself (no image files ship with it).
namespace SampleMaterialImages {

// A square picture for the Substance channel 0 to 10 (base colour, normal, roughness, ...).
QImage ChannelImage(int nChannel, int nSize = 128);
// A square picture of an external texture, by its number.
QImage ExternImage(int nNumber, int nSize = 128);
// Writes ChannelImage(nChannel) as a PNG into dir and returns its path (empty on failure).
QString WriteChannelImage(const QString &strDir, int nChannel);

} // namespace SampleMaterialImages

#endif // SAMPLEMATERIALIMAGES_H
