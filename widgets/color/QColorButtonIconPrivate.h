#ifndef QCOLORBUTTONICONPRIVATE_H
#define QCOLORBUTTONICONPRIVATE_H

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QSize>

namespace Vela {

// The icon of a colour button: a pixmap of the icon size filled with the colour. A button whose
// colour has not been set yet shows black. The pixmap is never made larger than kMaxColorIconSide
// on a side (the icon is scaled up when drawn larger): an icon size set by mistake to tens of
// thousands of pixels must not cost gigabytes.
constexpr int kMaxColorIconSide = 256;

inline QIcon ColorButtonIcon(const QSize &kSize, const QColor &kColor)
{
    QPixmap kPixmap(kSize.boundedTo(QSize(kMaxColorIconSide, kMaxColorIconSide)));
    kPixmap.fill(kColor.isValid() ? kColor : QColor(Qt::black));
    return QIcon(kPixmap);
}

} // namespace Vela

#endif // QCOLORBUTTONICONPRIVATE_H
