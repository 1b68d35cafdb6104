// The colour buttons and the colour dialog, logging the sessions a host would record as undo steps.
#include "GalleryRegistry.h"

#include "QColorButton.h"
#include "QColorButton2.h"
#include "VelaColorDialog2.h"

#include <QFormLayout>
#include <QLabel>
#include <QWidget>

namespace {

const char kGroup[] = "Colour picking";

QString describe(const QColor &color)
{
    return color.name(QColor::HexRgb);
}

// A modeless button beside the gallery window: live changes, finished edits and resets are
// reported separately, and the host refreshes the icon itself when an edit is finished.
QColorButton2 *modelessButton(GalleryContext &ctx)
{
    auto *button = new QColorButton2;
    button->SetColor(QColor(0xf2, 0xc4, 0x8a));
    button->SetModeless();
    button->SetPosition(ctx.mainWindow(), ECDP_BottomRight, QPoint(10, 10));
    QObject::connect(button, &QColorButton2::Clicked,
                     [&ctx] { ctx.log(QStringLiteral("QColorButton2 (modeless): Clicked")); });
    QObject::connect(button, &QColorButton2::EditFinished, [&ctx, button](const QColor &color) {
        ctx.log(QStringLiteral("QColorButton2 (modeless): EditFinished %1").arg(describe(color)));
        button->SetColor(color);
    });
    QObject::connect(button, &QColorButton2::CurrentColorChanged, [&ctx](const QColor &color) {
        ctx.log(QStringLiteral("QColorButton2 (modeless): CurrentColorChanged %1")
                    .arg(describe(color)));
    });
    return button;
}

// A modal button: closing the dialog keeps what was picked live; accepting reports ColorChanged.
QColorButton2 *modalButton(GalleryContext &ctx)
{
    auto *button = new QColorButton2;
    button->SetColor(QColor(0x3a, 0x6e, 0xd8));
    QObject::connect(button, &QColorButton2::EditFinished, [&ctx](const QColor &color) {
        ctx.log(QStringLiteral("QColorButton2 (modal): EditFinished %1").arg(describe(color)));
    });
    QObject::connect(button, &QColorButton2::ColorChanged2, [&ctx](QColor color) {
        ctx.log(QStringLiteral("QColorButton2 (modal): ColorChanged2 %1").arg(describe(color)));
    });
    return button;
}

} // namespace

GALLERY_ENTRY({ 30, kGroup, "QColorButton",
                "Opens a modal colour dialog and follows it live; the four undo callbacks bracket "
                "the session, and Cancel restores the colour the button had.",
                [](GalleryContext &ctx) -> QWidget * {
                    auto *page = new QWidget;
                    auto *layout = new QFormLayout(page);
                    auto *button = new QColorButton;
                    button->SetColor(QColor(0xc8, 0x5a, 0x4a));
                    button->SetUndoRedoFunctions(
                        [&ctx] { ctx.log(QStringLiteral("QColorButton: session started")); },
                        [&ctx] { ctx.log(QStringLiteral("QColorButton: session ended")); },
                        [&ctx, button] {
                            ctx.log(QStringLiteral("QColorButton: accepted %1, record undo step")
                                        .arg(describe(button->GetColor())));
                        },
                        [&ctx] {
                            ctx.log(QStringLiteral("QColorButton: cancelled after changes, "
                                                   "colour restored"));
                        });
                    QObject::connect(button, &QColorButton::ColorChanged2, [&ctx](QColor color) {
                        ctx.log(
                            QStringLiteral("QColorButton: ColorChanged2 %1").arg(describe(color)));
                    });
                    auto *wide = new QColorButton;
                    wide->setIconSize(QSize(60, 25));
                    wide->SetColor(QColor(0x82, 0xbe, 0x0f));
                    layout->addRow(QStringLiteral("Lip tint"), button);
                    layout->addRow(QStringLiteral("Eye glow (60 x 25)"), wide);
                    return page;
                } })

GALLERY_ENTRY({ 30, kGroup, "QColorButton2",
                "Extended colour button. The upper one opens its dialog modeless at the bottom "
                "right of this window: drags report CurrentColorChanged, a finished change or "
                "Reset Color reports EditFinished. The lower one runs the dialog modally.",
                [](GalleryContext &ctx) -> QWidget * {
                    auto *page = new QWidget;
                    auto *layout = new QFormLayout(page);
                    layout->addRow(QStringLiteral("Key light (modeless)"), modelessButton(ctx));
                    layout->addRow(QStringLiteral("Rim light (modal)"), modalButton(ctx));
                    return page;
                } })

GALLERY_ENTRY(
    { 30, kGroup, "VelaColorDialog2",
      "The colour dialog of QColorButton2, shown in place: one Reset Color button "
      "instead of OK and Cancel; releasing the mouse in the colour fields or spin boxes, "
      "or finishing a screen pick, reports EditFinished.",
      [](GalleryContext &ctx) -> QWidget * {
          auto *dialog = new VelaColorDialog2;
          dialog->setCurrentColor(QColor(0x9b, 0x59, 0xb6));
          QObject::connect(dialog, &VelaColorDialog2::EditFinished, [&ctx](const QColor &color) {
              ctx.log(QStringLiteral("VelaColorDialog2: EditFinished %1").arg(describe(color)));
          });
          QObject::connect(dialog, &VelaColorDialog2::ResetColor,
                           [&ctx] { ctx.log(QStringLiteral("VelaColorDialog2: ResetColor")); });
          return dialog;
      } })
