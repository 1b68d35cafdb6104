#include "SampleMaterialImages.h"

#include <QDir>
#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>
#include <QtMath>

namespace SampleMaterialImages {

static const char *const kChannelNames[] = { "basecolor", "normal",     "roughness", "metallic",
                                             "height",    "ao",         "opacity",   "emissive",
                                             "specular",  "glossiness", "diffuse" };

QImage ChannelImage(int nChannel, int nSize)
{
    QImage image(nSize, nSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(40, 40, 40));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area(0, 0, nSize, nSize);
    switch (nChannel) {
    case 0: { // base colour: warm bricks
        painter.fillRect(area, QColor(150, 70, 45));
        painter.setPen(QPen(QColor(210, 200, 185), nSize / 32.0));
        const int rows = 6;
        for (int r = 0; r <= rows; ++r) {
            const qreal y = r * nSize / qreal(rows);
            painter.drawLine(QPointF(0, y), QPointF(nSize, y));
            for (int c = 0; c < 4; ++c) {
                const qreal x = (c + (r % 2) * 0.5) * nSize / 3.0;
                painter.drawLine(QPointF(x, y), QPointF(x, y + nSize / qreal(rows)));
            }
        }
        break;
    }
    case 1: { // normal: bumps on the flat blue
        painter.fillRect(area, QColor(128, 128, 255));
        for (int i = 0; i < 9; ++i) {
            const QPointF centre((i % 3 + 0.5) * nSize / 3.0, (i / 3 + 0.5) * nSize / 3.0);
            QRadialGradient bump(centre, nSize / 7.0, centre - QPointF(nSize / 16.0, nSize / 16.0));
            bump.setColorAt(0, QColor(90, 170, 255));
            bump.setColorAt(1, QColor(170, 90, 230));
            painter.setBrush(bump);
            painter.setPen(Qt::NoPen);
            painter.drawEllipse(centre, nSize / 7.0, nSize / 7.0);
        }
        break;
    }
    case 2:
    case 9: { // roughness / glossiness: streaks of grey
        for (int x = 0; x < nSize; ++x) {
            const int grey = 128 + int(90 * qSin(x * 0.35) * qCos(x * 0.07));
            painter.setPen(nChannel == 2 ? QColor(grey, grey, grey)
                                         : QColor(255 - grey, 255 - grey, 255 - grey));
            painter.drawLine(x, 0, x, nSize);
        }
        break;
    }
    case 4:
    case 5: { // height / occlusion: rings
        QRadialGradient rings(area.center(), nSize / 2.0);
        for (int i = 0; i <= 8; ++i)
            rings.setColorAt(i / 8.0, (i % 2) ? QColor(230, 230, 230) : QColor(40, 40, 40));
        painter.fillRect(area, rings);
        break;
    }
    default: { // the rest: a diagonal ramp tinted per channel
        const QColor tint = QColor::fromHsv((nChannel * 53) % 360, 160, 230);
        QLinearGradient ramp(area.topLeft(), area.bottomRight());
        ramp.setColorAt(0, Qt::black);
        ramp.setColorAt(1, tint);
        painter.fillRect(area, ramp);
        break;
    }
    }
    return image;
}

QImage ExternImage(int nNumber, int nSize)
{
    QImage image(nSize, nSize, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const int cells = 4 + nNumber * 2;
    const qreal cell = nSize / qreal(cells);
    const QColor a = nNumber % 2 ? QColor(90, 60, 30) : QColor(200, 200, 200);
    const QColor b = nNumber % 2 ? QColor(160, 120, 70) : QColor(60, 60, 60);
    for (int y = 0; y < cells; ++y) {
        for (int x = 0; x < cells; ++x)
            painter.fillRect(QRectF(x * cell, y * cell, cell + 1, cell + 1), (x + y) % 2 ? a : b);
    }
    return image;
}

QString WriteChannelImage(const QString &strDir, int nChannel)
{
    if (nChannel < 0 || nChannel > 10)
        return QString();
    const QString path = QDir(strDir).filePath(
        QStringLiteral("sample_%1.png").arg(QLatin1String(kChannelNames[nChannel])));
    return ChannelImage(nChannel).save(path, "PNG") ? path : QString();
}

} // namespace SampleMaterialImages
