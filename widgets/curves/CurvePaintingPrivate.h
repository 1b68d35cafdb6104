#ifndef CURVEPAINTINGPRIVATE_H
#define CURVEPAINTINGPRIVATE_H

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QPixmap>

#include <algorithm>
#include <cmath>

// Painting pieces shared by the curve widgets.
namespace CurvePainting {

// The checkerboard tile behind the curves: white with light grey top-left and bottom-right
// quarters, nSize pixels square.
inline QPixmap CheckerTile(int nSize)
{
    QPixmap kTile(nSize, nSize);
    kTile.fill(Qt::white);
    QPainter kPainter(&kTile);
    const int nHalf = nSize / 2;
    kPainter.fillRect(0, 0, nHalf, nHalf, QColor(230, 230, 230));
    kPainter.fillRect(nHalf, nHalf, nHalf, nHalf, QColor(230, 230, 230));
    return kTile;
}

// A solid line pen with flat caps and bevel joins.
inline QPen LinePen(const QColor &kColor, qreal fWidth)
{
    return QPen(QBrush(kColor), fWidth, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin);
}

// Truncates toward zero like a plain conversion, but keeps absurd values (unchecked data set by
// the host, a collapsed widget) inside the range that painting can handle.
inline int TruncToInt(double fValue)
{
    if (std::isnan(fValue))
        return 0;
    constexpr double kLimit = 1.0e8;
    return static_cast<int>(std::max(-kLimit, std::min(kLimit, fValue)));
}

} // namespace CurvePainting

#endif // CURVEPAINTINGPRIVATE_H
