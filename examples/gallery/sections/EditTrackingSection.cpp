// The edit-tracking controls, each in a small property row that logs its edit sessions.
#include "GalleryRegistry.h"

#include "QComboBoxEx.h"
#include "QDialEx.h"
#include "QDoubleSpinBoxEx.h"
#include "QSliderEx.h"
#include "QSpinBoxEx.h"

#include <QFormLayout>
#include <QLabel>
#include <QWidget>

static const char kGroup[] = "Basic controls";

// A labelled row holding `control`, as a host's property panel shows it.
static QWidget *propertyRow(const QString &label, QWidget *control)
{
    auto *row = new QWidget;
    auto *layout = new QFormLayout(row);
    layout->addRow(label, control);
    return row;
}

GALLERY_ENTRY({ 10, kGroup, "QSpinBoxEx",
                "Integer spin box: while focused any number of the range's digit count can be "
                "typed (try 999 in this 0 to 150 box); Enter or leaving settles it in range. The "
                "wheel acts only while focused.",
                [](GalleryContext &ctx) -> QWidget * {
                    auto *spin = new QSpinBoxEx;
                    spin->setRange(0, 150);
                    spin->setValue(42);
                    spin->setSuffix(QStringLiteral(" frames"));
                    QObject::connect(spin, &QSpinBoxEx::EditingValueStarted, [&ctx] {
                        ctx.log(QStringLiteral("QSpinBoxEx: EditingValueStarted"));
                    });
                    QObject::connect(spin, &QSpinBoxEx::RecordEditingValue, [&ctx, spin] {
                        ctx.log(
                            QStringLiteral("QSpinBoxEx: RecordEditingValue %1").arg(spin->value()));
                    });
                    return propertyRow(QStringLiteral("Blink length"), spin);
                } })

GALLERY_ENTRY(
    { 10, kGroup, "QDoubleSpinBoxEx",
      "Floating-point spin box with wrapping between 0 and 360: stepping stays inside the "
      "real range, and one RecordEditingValue ends each edit.",
      [](GalleryContext &ctx) -> QWidget * {
          auto *spin = new QDoubleSpinBoxEx;
          spin->setRange(0, 360);
          spin->setWrapping(true);
          spin->setSingleStep(15);
          spin->setValue(90);
          QObject::connect(spin, &QDoubleSpinBoxEx::RecordEditingValue, [&ctx, spin] {
              ctx.log(QStringLiteral("QDoubleSpinBoxEx: RecordEditingValue %1").arg(spin->value()));
          });
          return propertyRow(QStringLiteral("Head yaw (deg)"), spin);
      } })

GALLERY_ENTRY(
    { 10, kGroup, "QSliderEx",
      "Slider that records an edit when a drag or a paging click ends; values set with "
      "SetValue are never reported as edits.",
      [](GalleryContext &ctx) -> QWidget * {
          auto *slider = new QSliderEx(Qt::Horizontal);
          slider->setFocusPolicy(Qt::StrongFocus);
          slider->setRange(0, 100);
          slider->SetValue(65);
          slider->setMinimumWidth(240);
          QObject::connect(slider, &QSliderEx::RecordEditingValue, [&ctx, slider] {
              ctx.log(QStringLiteral("QSliderEx: RecordEditingValue %1").arg(slider->value()));
          });
          return propertyRow(QStringLiteral("Jaw open (%)"), slider);
      } })

GALLERY_ENTRY({ 10, kGroup, "QDialEx",
                "Dial that records an edit only when a drag or focus change really changed it.",
                [](GalleryContext &ctx) -> QWidget * {
                    auto *dial = new QDialEx;
                    dial->setRange(0, 359);
                    dial->setWrapping(true);
                    dial->setNotchesVisible(true);
                    dial->setValue(120);
                    dial->setFixedSize(96, 96);
                    QObject::connect(dial, &QDialEx::RecordEditingValue, [&ctx, dial] {
                        ctx.log(
                            QStringLiteral("QDialEx: RecordEditingValue %1").arg(dial->value()));
                    });
                    return propertyRow(QStringLiteral("Light angle"), dial);
                } })

GALLERY_ENTRY(
    { 10, kGroup, "QComboBoxEx",
      "Combo box that takes the wheel only while focused; the lower one ignores the "
      "wheel altogether.",
      [](GalleryContext &ctx) -> QWidget * {
          auto *row = new QWidget;
          auto *layout = new QFormLayout(row);
          const QStringList curves = { QStringLiteral("Linear"), QStringLiteral("Smooth"),
                                       QStringLiteral("Step"), QStringLiteral("Ease in"),
                                       QStringLiteral("Ease out") };
          auto *combo = new QComboBoxEx;
          combo->addItems(curves);
          combo->setCurrentIndex(1);
          auto *locked = new QComboBoxEx;
          locked->addItems(curves);
          locked->SetIgnoreWheelEvent(true);
          for (QComboBoxEx *box : { combo, locked }) {
              QObject::connect(box, qOverload<int>(&QComboBox::activated), [&ctx, box](int index) {
                  ctx.log(QStringLiteral("QComboBoxEx: activated %1").arg(box->itemText(index)));
              });
          }
          layout->addRow(QStringLiteral("Interpolation"), combo);
          layout->addRow(QStringLiteral("Wheel ignored"), locked);
          return row;
      } })
