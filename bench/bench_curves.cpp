// A full repaint of the curve widgets against drawing the same points with QPainter directly,
// with the same pen widths.
#include "VelaBench.h"

#include "QCurveeditor.h"
#include "QKdCurveWidget.h"
#include "QVisemeCurveWidgetLite.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

static const QSize kSize(800, 300);

static QList<QPointF> visemeKeys(int slot, int count)
{
    QList<QPointF> keys;
    keys.reserve(count);
    for (int i = 0; i < count; ++i) {
        const double t = double(i) / (count - 1);
        keys.append(QPointF(t, 0.5 + 0.45 * std::sin(t * 20 + slot)));
    }
    return keys;
}

static void visemeCurveRepaint(benchmark::State &state)
{
    QVisemeCurveWidgetLite widget;
    widget.resize(kSize);
    widget.Init();
    for (int slot = 0; slot < QVisemeCurveWidgetLite::kVisemeSlotCount; ++slot) {
        CVisemeUIData data;
        data.m_strName = QStringLiteral("V%1").arg(slot);
        data.m_bInUse = true;
        data.m_lstKeys = visemeKeys(slot, 1000);
        widget.SetVisemeData(slot, data);
    }
    widget.SetCurrentCheckButtonIndex(0);
    QImage image(kSize, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state)
        widget.render(&image);
}

static void visemeCurveBaseline(benchmark::State &state)
{
    QVector<QPolygonF> curves;
    for (int slot = 0; slot < QVisemeCurveWidgetLite::kVisemeSlotCount; ++slot) {
        QPolygonF polygon;
        for (const QPointF &key : visemeKeys(slot, 1000))
            polygon << QPointF(key.x() * kSize.width(), (1 - key.y()) * kSize.height());
        curves.append(polygon);
    }
    QImage image(kSize, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        QPainter painter(&image);
        painter.fillRect(image.rect(), Qt::black);
        painter.setRenderHint(QPainter::Antialiasing);
        for (int i = 0; i < curves.size(); ++i) {
            painter.setPen(QPen(QColor::fromHsv(i * 30, 200, 255), 2));
            painter.drawPolyline(curves.at(i));
        }
    }
}

static std::vector<Vela::CVector3<float>> plotPoints(int count)
{
    std::vector<Vela::CVector3<float>> points;
    points.reserve(count);
    for (int i = 0; i < count; ++i) {
        const float t = float(i) / float(count - 1);
        points.push_back({ t, 0.5f + 0.4f * std::sin(t * 40.0f), 0.0f });
    }
    return points;
}

static void plottedCurveRepaint(benchmark::State &state)
{
    QKdCurveWidget widget;
    widget.resize(kSize);
    widget.SetCurveSeq(plotPoints(10000));
    QImage image(kSize, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state)
        widget.render(&image);
}

static void plottedCurveBaseline(benchmark::State &state)
{
    QPolygonF polygon;
    for (const Vela::CVector3<float> &p : plotPoints(10000))
        polygon << QPointF(p.x * kSize.width(), p.y * kSize.height());
    QImage image(kSize, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        QPainter painter(&image);
        painter.fillRect(image.rect(), Qt::black);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(0, 0, 255), 2));
        painter.drawPolyline(polygon);
    }
}

static void curveEditorRepaint(benchmark::State &state)
{
    QCurveEditor widget;
    widget.resize(kSize);
    widget.Init();
    QImage image(kSize, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state)
        widget.render(&image);
}

// The same two-segment curve drawn as one path.
static void curveEditorBaseline(benchmark::State &state)
{
    QPainterPath path(QPointF(0, kSize.height()));
    path.cubicTo(QPointF(150, kSize.height()), QPointF(250, 0), QPointF(400, 0));
    path.cubicTo(QPointF(550, 0), QPointF(650, kSize.height()), QPointF(800, kSize.height()));
    QImage image(kSize, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        QPainter painter(&image);
        painter.fillRect(image.rect(), Qt::black);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::white, 2));
        painter.drawPath(path);
    }
}

VELA_BENCH_CASE({ "repaint: viseme curve, 12 slots x 1000 keys", visemeCurveRepaint, 1,
                  visemeCurveBaseline, 1, 1.2 })
VELA_BENCH_CASE({ "repaint: curve editor", curveEditorRepaint, 1, curveEditorBaseline, 1, 1.2 })
VELA_BENCH_CASE({ "repaint: plotted curve, 10000 points", plottedCurveRepaint, 1,
                  plottedCurveBaseline, 1, 1.2 })
