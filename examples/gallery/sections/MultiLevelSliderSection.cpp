// The multi-level slider: a levels adjustment in middle mode, free-order keys and a disabled copy.
#include "GalleryRegistry.h"

#include "QMultiLevelSlider.h"

#include <QFormLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <functional>
#include <memory>

namespace {

using Indicators = Vela::CArrayList<QMultiLevelSlider::IndicatorDesc>;

const char kGroup[] = "Composite editors";
const char kLabelStyle[] = "color: #d0d0d0; font-size: 10px;";

// An indicator whose label sits beside its arrow: to the right (xOffset > 0) or to the left.
QMultiLevelSlider::IndicatorDesc labelled(QMultiLevelSlider *slider, int value, int xOffset,
                                          int yOffset, bool placeUpper = false)
{
    auto *label = new QLabel(slider);
    label->setStyleSheet(QLatin1String(kLabelStyle));
    QMultiLevelSlider::IndicatorDesc desc;
    desc.nValue = value;
    desc.nLabelOffsetX = xOffset;
    desc.nLabelOffsetY = yOffset;
    desc.nLabelHeight = 14;
    desc.nLabelWidth = 40;
    desc.bSelectable = true;
    desc.bPlaceUpper = placeUpper;
    desc.pkLabel = label;
    return desc;
}

// Writes every indicator's value into its label with `format`, and again after each move.
void showValues(QMultiLevelSlider *slider, const Indicators &list,
                const std::function<QString(int)> &format)
{
    auto refresh = [slider, list, format](unsigned long long) {
        for (std::size_t i = 0; i < list.size(); ++i) {
            if (list[i].pkLabel)
                list[i].pkLabel->setText(format(slider->GetIndicatorValue(i)));
        }
    };
    refresh(0);
    slider->SetIndicatorMoveSignalInterface(refresh);
}

QString levelText(int value)
{
    return QString::number(value / 10000.0, 'f', 2);
}

// Black point, mid-tone and white point of a levels adjustment: the mid-tone follows the ends.
QMultiLevelSlider *levelsSlider(GalleryContext &ctx, const QString &name)
{
    auto *slider = new QMultiLevelSlider;
    Indicators list;
    list.push_back(labelled(slider, 1200, 13, -1));
    list.push_back(labelled(slider, 4600, 13, -2, true));
    list.push_back(labelled(slider, 9000, -41, -1));
    slider->InitUi(0, 10000, false, list, true, nullptr, nullptr, true, nullptr, nullptr,
                   QColor(200, 200, 200, 255));
    slider->UpdateMiddleIndicatorRatio();
    slider->setMinimumSize(360, 34);
    showValues(slider, list, levelText);
    slider->SetIndicatorMoveDoneSignalInterface([&ctx, slider, name](unsigned long long index) {
        ctx.log(QStringLiteral("QMultiLevelSlider (%1): move done, indicator %2 = %3")
                    .arg(name)
                    .arg(index)
                    .arg(slider->GetIndicatorValue(index)));
    });
    slider->SetIndicatorSelecteChangeSignalInterface([&ctx, name](unsigned long long index) {
        ctx.log(
            QStringLiteral("QMultiLevelSlider (%1): selected indicator %2").arg(name).arg(index));
    });
    return slider;
}

// A diamond marker drawn for the fixed key of the free-order slider.
QPixmap diamond()
{
    QPixmap pixmap(12, 10);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(0x1c, 0x1c, 0x1c));
    painter.setBrush(QColor(0xe0, 0x9a, 0x30));
    painter.drawPolygon(
        QPolygonF({ QPointF(6, 0.5), QPointF(11.5, 5), QPointF(6, 9.5), QPointF(0.5, 5) }));
    return pixmap;
}

// Three keys that may pass each other and one fixed key with its own marker.
QMultiLevelSlider *freeOrderSlider(GalleryContext &ctx)
{
    auto *slider = new QMultiLevelSlider;
    // The slider does not own indicator images: this one lives as long as the slider.
    auto marker = std::make_shared<QPixmap>(diamond());
    QObject::connect(slider, &QObject::destroyed, [marker] {});

    Indicators list;
    list.push_back(labelled(slider, 60, 13, -1));
    list.push_back(labelled(slider, 15, 13, -1));
    list.push_back(labelled(slider, 38, 13, -1));
    QMultiLevelSlider::IndicatorDesc fixed = labelled(slider, 90, -41, -1);
    fixed.bFixed = true;
    fixed.bUnconstrained = true;
    fixed.pkImage = marker.get();
    list.push_back(fixed);
    slider->InitUi(0, 100, true, list, false, nullptr, nullptr, true, nullptr, nullptr,
                   QColor(130, 190, 15, 255));
    slider->setMinimumSize(360, 34);
    showValues(slider, list, [](int value) { return QString::number(value); });
    slider->SetIndicatorMoveDoneSignalInterface([&ctx, slider](unsigned long long index) {
        ctx.log(QStringLiteral("QMultiLevelSlider (free order): key %1 moved to %2")
                    .arg(index)
                    .arg(slider->GetIndicatorValue(index)));
    });
    slider->SetIndicatorSelecteChangeSignalInterface([&ctx](unsigned long long index) {
        ctx.log(QStringLiteral("QMultiLevelSlider (free order): selected key %1").arg(index));
    });
    return slider;
}

} // namespace

GALLERY_ENTRY({ 20, kGroup, "QMultiLevelSlider",
                "Several indicators on one track. Levels: drag the black or white point and the "
                "mid-tone (above the track) keeps its ratio between them; drag the mid-tone to "
                "change the ratio. Free order: keys may pass each other; the orange key is fixed.",
                [](GalleryContext &ctx) -> QWidget * {
                    auto *page = new QWidget;
                    auto *layout = new QFormLayout(page);
                    layout->setVerticalSpacing(14);
                    layout->addRow(QStringLiteral("Levels"),
                                   levelsSlider(ctx, QStringLiteral("levels")));
                    layout->addRow(QStringLiteral("Keys (free order)"), freeOrderSlider(ctx));
                    QMultiLevelSlider *disabled = levelsSlider(ctx, QStringLiteral("disabled"));
                    disabled->setEnabled(false);
                    layout->addRow(QStringLiteral("Disabled"), disabled);
                    return page;
                } })
