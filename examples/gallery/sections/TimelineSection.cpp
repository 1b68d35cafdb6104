// Timeline and playback: a play range over a frame slider, and the render view frame that keeps
// the export aspect ratio.
#include "GalleryRegistry.h"

#include "QKdPlayWidget.h"
#include "QSliderEx.h"
#include "QStartEndIndicatorWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

#include <cmath>

static const char kGroup[] = "Timeline and playback";

namespace {

constexpr int kFirstFrame = 0;
constexpr int kLastFrame = 120;
// Half the slider handle: the frames run between the handle centres at both ends.
constexpr int kHandleHalf = 5;

int ratioToFrame(float fRatio)
{
    return kFirstFrame + int(std::lround(fRatio * (kLastFrame - kFirstFrame)));
}

float frameToRatio(int nFrame)
{
    return float(nFrame - kFirstFrame) / float(kLastFrame - kFirstFrame);
}

// Stands in for the application's render view: a simple shaded scene with its safe frame, so
// that letterboxing and pillarboxing show at a glance.
class RenderViewStandIn : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF r = rect();
        QLinearGradient sky(r.topLeft(), r.bottomLeft());
        sky.setColorAt(0.0, QColor(58, 84, 120));
        sky.setColorAt(0.65, QColor(150, 160, 170));
        sky.setColorAt(0.66, QColor(70, 66, 60));
        sky.setColorAt(1.0, QColor(40, 38, 36));
        painter.fillRect(r, sky);

        // A character bust in the middle of the frame.
        const qreal unit = qMin(r.width(), r.height()) / 10.0;
        const QPointF centre(r.center().x(), r.height() * 0.62);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(210, 170, 140));
        painter.drawEllipse(centre + QPointF(0, -2.6 * unit), 1.3 * unit, 1.6 * unit);
        QPainterPath body;
        body.moveTo(centre + QPointF(-2.8 * unit, 3.5 * unit));
        body.cubicTo(centre + QPointF(-2.6 * unit, -0.4 * unit),
                     centre + QPointF(2.6 * unit, -0.4 * unit),
                     centre + QPointF(2.8 * unit, 3.5 * unit));
        painter.setBrush(QColor(90, 120, 60));
        painter.drawPath(body);

        // Title-safe frame and the view size.
        painter.setPen(QPen(QColor(255, 255, 255, 110), 1, Qt::DashLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(
            r.adjusted(r.width() * 0.1, r.height() * 0.1, -r.width() * 0.1, -r.height() * 0.1));
        painter.setPen(QColor(240, 240, 240));
        painter.drawText(r.adjusted(6, 4, -6, -4), Qt::AlignLeft | Qt::AlignTop,
                         QStringLiteral("%1 × %2").arg(width()).arg(height()));
    }
};

QKdPlayWidget *makePlayWidget(const QSize &size)
{
    auto *play = new QKdPlayWidget;
    play->setFixedSize(size);
    play->setAutoFillBackground(true);
    QPalette palette = play->palette();
    palette.setColor(QPalette::Window, QColor(0x10, 0x10, 0x10));
    play->setPalette(palette);
    new RenderViewStandIn(play);
    play->UpdateKdCoreWndSize();
    return play;
}

} // namespace

GALLERY_ENTRY(
    { 70, kGroup, "QStartEndIndicatorWidget",
      "Play range markers below a frame slider and preview-range markers above it. Drag a marker: "
      "the widget reports it as a ratio of the slider's track and the gallery turns it into a "
      "frame. Markers never cross; disabling shows the dimmed markers.",
      [](GalleryContext &ctx) -> QWidget * {
          auto *page = new QWidget;
          auto *layout = new QVBoxLayout(page);

          auto *indicator = new QStartEndIndicatorWidget;
          indicator->setFixedSize(460, 54);
          auto *slider = new QSliderEx(Qt::Horizontal, indicator);
          slider->setRange(kFirstFrame, kLastFrame);
          slider->SetValue(52);
          slider->setGeometry(20, 14, 420, 24);
          slider->setStyleSheet(QStringLiteral(
              "QSlider { background: transparent; }"
              "QSlider::groove:horizontal { height: 4px; background: #505050; }"
              "QSlider::handle:horizontal { width: 10px; margin: -6px 0; background: #d0d0d0;"
              " border-radius: 2px; }"));
          indicator->SetStartEndIndicatorCSSOffset(kHandleHalf);
          indicator->SetDrawPrevewIndicatorFlag(true);
          indicator->UpdateRatio(frameToRatio(24), frameToRatio(96), frameToRatio(40),
                                 frameToRatio(80));

          auto *range = new QLabel;
          auto *preview = new QLabel;
          auto frames = std::make_shared<QVector<int>>(QVector<int> { 24, 96, 40, 80 });
          auto showRanges = [range, preview, frames] {
              range->setText(
                  QStringLiteral("Play range: %1 – %2").arg(frames->at(0)).arg(frames->at(1)));
              preview->setText(
                  QStringLiteral("Preview range: %1 – %2").arg(frames->at(2)).arg(frames->at(3)));
          };
          showRanges();

          const struct
          {
              void (QStartEndIndicatorWidget::*signal)(float);
              const char *name;
          } markers[] = {
              { &QStartEndIndicatorWidget::SetPlaySliderStartRatio, "SetPlaySliderStartRatio" },
              { &QStartEndIndicatorWidget::SetPlaySliderEndRatio, "SetPlaySliderEndRatio" },
              { &QStartEndIndicatorWidget::SetPlaySliderPreviewStartRatio,
                "SetPlaySliderPreviewStartRatio" },
              { &QStartEndIndicatorWidget::SetPlaySliderPreviewEndRatio,
                "SetPlaySliderPreviewEndRatio" },
          };
          for (int i = 0; i < 4; ++i) {
              const QString name = QLatin1String(markers[i].name);
              QObject::connect(indicator, markers[i].signal, page,
                               [&ctx, frames, showRanges, i, name](float fRatio) {
                                   (*frames)[i] = ratioToFrame(fRatio);
                                   showRanges();
                                   ctx.log(QStringLiteral("%1(%2) → frame %3")
                                               .arg(name)
                                               .arg(double(fRatio), 0, 'f', 3)
                                               .arg(frames->at(i)));
                               });
          }

          auto *showPreview = new QCheckBox(QStringLiteral("Preview range"));
          showPreview->setChecked(true);
          QObject::connect(showPreview, &QCheckBox::toggled, indicator, [indicator](bool bOn) {
              indicator->SetDrawPrevewIndicatorFlag(bOn);
              indicator->update();
          });
          auto *enabled = new QCheckBox(QStringLiteral("Enabled"));
          enabled->setChecked(true);
          QObject::connect(enabled, &QCheckBox::toggled, indicator,
                           [indicator](bool bOn) { indicator->SetEnabled(bOn); });

          auto *options = new QHBoxLayout;
          options->addWidget(showPreview);
          options->addWidget(enabled);
          options->addStretch(1);
          layout->addWidget(indicator);
          layout->addWidget(range);
          layout->addWidget(preview);
          layout->addLayout(options);
          return page;
      } })

GALLERY_ENTRY(
    { 70, kGroup, "QKdPlayWidget",
      "The frame around the render view keeps the view at the export aspect ratio: the same "
      "1920 × 1080 export is letterboxed in a square frame and fills a 16:9 one. Pick another "
      "export size or unlock the ratio to fill the frames.",
      [](GalleryContext &ctx) -> QWidget * {
          auto *page = new QWidget;
          auto *layout = new QVBoxLayout(page);

          const QList<QKdPlayWidget *> plays = { makePlayWidget(QSize(320, 180)),
                                                 makePlayWidget(QSize(200, 200)),
                                                 makePlayWidget(QSize(140, 200)) };
          auto *frames = new QHBoxLayout;
          for (QKdPlayWidget *play : plays) {
              play->SetExportSize(1920, 1080);
              frames->addWidget(play, 0, Qt::AlignTop);
          }
          frames->addStretch(1);

          auto *size = new QComboBox;
          const QList<QSize> sizes = { QSize(1920, 1080), QSize(800, 600), QSize(1080, 1920),
                                       QSize(1024, 1024) };
          for (const QSize &s : sizes)
              size->addItem(QStringLiteral("%1 × %2").arg(s.width()).arg(s.height()), s);
          QObject::connect(
              size, QOverload<int>::of(&QComboBox::currentIndexChanged), page,
              [&ctx, size, plays](int) {
                  const QSize s = size->currentData().toSize();
                  for (QKdPlayWidget *play : plays)
                      play->SetExportSize(s.width(), s.height());
                  ctx.log(QStringLiteral("SetExportSize(%1, %2)").arg(s.width()).arg(s.height()));
              });
          auto *lock = new QCheckBox(QStringLiteral("Lock ratio"));
          lock->setChecked(true);
          QObject::connect(lock, &QCheckBox::toggled, page, [&ctx, plays](bool bLock) {
              for (QKdPlayWidget *play : plays)
                  play->SetLockRatio(bLock);
              ctx.log(QStringLiteral("SetLockRatio(%1)").arg(bLock ? "true" : "false"));
          });

          auto *options = new QHBoxLayout;
          options->addWidget(new QLabel(QStringLiteral("Export size")));
          options->addWidget(size);
          options->addWidget(lock);
          options->addStretch(1);
          layout->addLayout(frames);
          layout->addLayout(options);
          return page;
      } })
