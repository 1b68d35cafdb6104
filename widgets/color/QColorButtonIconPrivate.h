#ifndef QCOLORBUTTONICONPRIVATE_H
#define QCOLORBUTTONICONPRIVATE_H

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QSize>

namespace Vela {

// The icon of a colour button: a pixmap of the icon size filled with the colour. A button whose
// colour has not been set yet shows black.
inline QIcon ColorButtonIcon(const QSize &kSize, const QColor &kColor)
{
    QPixmap kPixmap(kSize);
    kPixmap.fill(kColor.isValid() ? kColor : QColor(Qt::black));
    return QIcon(kPixmap);
}

} // namespace Vela

#endif // QCOLORBUTTONICONPRIVATE_H
