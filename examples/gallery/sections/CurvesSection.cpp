// The curve editor with its three parts, and a plotted curve.
#include "GalleryRegistry.h"

#include "QCurveeditor.h"
#include "QKdCurveWidget.h"

#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>

#include <cmath>

static const char kGroup[] = "Curves";

static QString describePoints(const QList<QPoint> &points)
{
    QStringList parts;
    for (const QPoint &point : points)
        parts << QStringLiteral("(%1, %2)").arg(point.x()).arg(point.y());
    return parts.join(QLatin1Char(' '));
}

GALLERY_ENTRY(
    { 50, kGroup, "QCurveEditor",
      "Weighting profile of three parts (brow, eyes, mouth), each two Bézier segments from a "
      "fixed start to a movable apex and back. Drag the handles (the right ones mirror the left "
      "ones while symmetry is on) or the apex. Click the curve, then Ctrl+W changes the divider "
      "count, Ctrl+Q shows or hides the dividers and Ctrl+E toggles symmetry.",
      [](GalleryContext &ctx) -> QWidget * {
          auto *page = new QWidget;
          auto *layout = new QVBoxLayout(page);
          auto *editor = new QCurveEditor(page);
          editor->setFixedSize(420, 240);
          editor->setFocusPolicy(Qt::ClickFocus);
          editor->Init();

          // Three parts with their own shapes: a wide brow rise, a narrow blink, a late mouth.
          QMap<int, QList<QPoint>> data = editor->GetData();
          data[1] = { QPoint(0, 0),   QPoint(40, 0), QPoint(42, 95), QPoint(50, 95),
                      QPoint(58, 95), QPoint(60, 0), QPoint(100, 0) };
          data[2] = { QPoint(0, 0),   QPoint(30, 10), QPoint(48, 60), QPoint(64, 60),
                      QPoint(80, 60), QPoint(88, 10), QPoint(100, 0) };
          editor->SetData(data);

          const QStringList partNames = { QStringLiteral("Brow"), QStringLiteral("Eyes"),
                                          QStringLiteral("Mouth") };
          auto *partLabel = new QLabel(page);
          auto *weighting = new QDoubleSpinBox(page);
          weighting->setRange(0.0, 1.0);
          weighting->setSingleStep(0.05);
          weighting->setValue(editor->GetCurveWeighting());
          auto *nextPart = new QPushButton(QStringLiteral("Next part"), page);
          auto *reset = new QPushButton(QStringLiteral("Reset part"), page);

          const auto showPart = [editor, partLabel, partNames] {
              partLabel->setText(partNames.value(editor->GetPart()));
          };
          showPart();
          editor->SetFinishedCallback([&ctx, editor, partNames] {
              ctx.log(QStringLiteral("QCurveEditor: finished, %1 %2, weighting %3")
                          .arg(partNames.value(editor->GetPart()),
                               describePoints(editor->GetData().value(editor->GetPart())))
                          .arg(double(editor->GetCurveWeighting())));
          });
          QObject::connect(nextPart, &QPushButton::clicked, editor, [editor, showPart] {
              editor->OnChangePart();
              showPart();
          });
          QObject::connect(reset, &QPushButton::clicked, editor, &QCurveEditor::OnReset);
          QObject::connect(weighting, qOverload<double>(&QDoubleSpinBox::valueChanged), editor,
                           &QCurveEditor::OnCurveWeighting);

          auto *controls = new QHBoxLayout;
          auto *form = new QFormLayout;
          form->addRow(QStringLiteral("Part"), partLabel);
          form->addRow(QStringLiteral("Weighting"), weighting);
          controls->addLayout(form);
          controls->addWidget(nextPart);
          controls->addWidget(reset);
          controls->addStretch(1);
          layout->addWidget(editor);
          layout->addLayout(controls);
          return page;
      } })

GALLERY_ENTRY({ 50, kGroup, "QKdCurveWidget",
                "Read-only plot of a curve given as normalised points (y grows downwards): "
                "here the settling jaw of a lip-sync take. The curve fills the upper-left "
                "90 % of the widget.",
                [](GalleryContext &) -> QWidget * {
                    auto *curve = new QKdCurveWidget;
                    curve->setFixedSize(420, 200);
                    curve->setAutoFillBackground(true);
                    QPalette palette = curve->palette();
                    palette.setColor(QPalette::Window, QColor(236, 236, 236));
                    curve->setPalette(palette);
                    std::vector<Vela::CVector3<float>> points;
                    for (int i = 0; i <= 200; ++i) {
                        const float x = i / 200.0f;
                        const float y = 0.55f - 0.45f * std::exp(-3.0f * x) * std::cos(14.0f * x);
                        points.push_back({ x, y, float(i) });
                    }
                    curve->SetCurveSeq(points);
                    return curve;
                } })
