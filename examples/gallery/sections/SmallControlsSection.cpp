// The small controls with their own signals: mouse-drag spin box, clickable label, hover button,
// left/right push button and the clearable line edit.
#include "GalleryRegistry.h"

#include "QClickableLabel.h"
#include "QHoverToolBtn.h"
#include "QLineEditWithClear.h"
#include "QMouseSpinBox.h"
#include "QVelaPushbutton.h"

#include <QHBoxLayout>
#include <QLabel>

GALLERY_ENTRY({ 10, "Basic controls", "QMouseSpinBox",
                "A double spin box that steps once per mouse move while the left button is held "
                "over it: drag up (or sideways) to raise the value, down to lower it. The text "
                "shows three decimals while the box rounds to four.",
                [](GalleryContext &ctx) -> QWidget * {
                    auto *page = new QWidget;
                    auto *layout = new QHBoxLayout(page);
                    layout->addWidget(new QLabel(QStringLiteral("Roughness"), page));
                    auto *box = new QMouseSpinBox(page);
                    box->setRange(0.0, 1.0);
                    box->setDecimals(4);
                    box->setSingleStep(0.005);
                    box->SetDecNum(3);
                    box->setValue(0.35);
                    box->setMinimumWidth(110);
                    layout->addWidget(box);
                    layout->addStretch(1);
                    QObject::connect(box, qOverload<double>(&QDoubleSpinBox::valueChanged), page,
                                     [&ctx](double value) {
                                         ctx.log(QStringLiteral("valueChanged(%1)").arg(value));
                                     });
                    return page;
                } })

GALLERY_ENTRY({ 10, "Basic controls", "QClickableLabel",
                "A label that reports presses of any mouse button as clicked() and double-clicks "
                "as doubleClicked().",
                [](GalleryContext &ctx) -> QWidget * {
                    auto *label = new QClickableLabel;
                    label->setText(QStringLiteral("Jaw open  (click or double-click me)"));
                    label->setStyleSheet(QStringLiteral(
                        "QLabel { color: #d0d0d0; background: #1c1c1c; padding: 6px; "
                        "border: 1px solid #505050; }"));
                    QObject::connect(label, &QClickableLabel::clicked,
                                     [&ctx] { ctx.log(QStringLiteral("clicked()")); });
                    QObject::connect(label, &QClickableLabel::doubleClicked,
                                     [&ctx] { ctx.log(QStringLiteral("doubleClicked()")); });
                    return label;
                } })

GALLERY_ENTRY({ 10, "Basic controls", "QHoverToolBtn",
                "A tool button that reports the pointer entering (hovered) and leaving (left).",
                [](GalleryContext &ctx) -> QWidget * {
                    auto *page = new QWidget;
                    auto *layout = new QHBoxLayout(page);
                    auto *button = new QHoverToolBtn(page);
                    button->setIcon(QIcon(QStringLiteral(":/icon/Preview.svg")));
                    button->setText(QStringLiteral("Preview"));
                    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
                    button->setHovered(true);
                    layout->addWidget(button);
                    layout->addStretch(1);
                    QObject::connect(button, &QHoverToolBtn::hovered,
                                     [&ctx] { ctx.log(QStringLiteral("hovered()")); });
                    QObject::connect(button, &QHoverToolBtn::left,
                                     [&ctx] { ctx.log(QStringLiteral("left()")); });
                    return page;
                } })

GALLERY_ENTRY({ 10, "Basic controls", "QVelaPushButton",
                "A push button that tells the left and right mouse buttons apart, for clicks and "
                "double-clicks.",
                [](GalleryContext &ctx) -> QWidget * {
                    auto *page = new QWidget;
                    auto *layout = new QHBoxLayout(page);
                    auto *button = new QVelaPushButton(page);
                    button->setIcon(QIcon(QStringLiteral(":/icon/KeyFrame.svg")));
                    button->setText(QStringLiteral("Set key"));
                    layout->addWidget(button);
                    layout->addStretch(1);
                    const auto logger = [&ctx](const char *signal) {
                        return [&ctx, signal] { ctx.log(QLatin1String(signal)); };
                    };
                    QObject::connect(button, &QVelaPushButton::LeftClicked,
                                     logger("LeftClicked()"));
                    QObject::connect(button, &QVelaPushButton::RightClicked,
                                     logger("RightClicked()"));
                    QObject::connect(button, &QVelaPushButton::LeftDoubleClicked,
                                     logger("LeftDoubleClicked()"));
                    QObject::connect(button, &QVelaPushButton::RightDoubleClicked,
                                     logger("RightDoubleClicked()"));
                    return page;
                } })

GALLERY_ENTRY({ 10, "Basic controls", "QLineEditWithClear",
                "A line edit with a clear button in its bottom right corner, shown while there is "
                "text.",
                [](GalleryContext &ctx) -> QWidget * {
                    auto *page = new QWidget;
                    auto *layout = new QHBoxLayout(page);
                    auto *edit = new QLineEditWithClear(page);
                    edit->SetToolButtonCrossPixmap(QStringLiteral(":/icon/ClearCross.svg"));
                    edit->setPlaceholderText(QStringLiteral("Filter facial keys"));
                    edit->setText(QStringLiteral("brow"));
                    edit->setMinimumWidth(220);
                    layout->addWidget(edit);
                    layout->addStretch(1);
                    QObject::connect(edit, &QLineEdit::textChanged, [&ctx](const QString &text) {
                        ctx.log(QStringLiteral("textChanged(\"%1\")").arg(text));
                    });
                    QObject::connect(edit, &QLineEditWithClear::ClearButtonClicked,
                                     [&ctx] { ctx.log(QStringLiteral("ClearButtonClicked()")); });
                    return page;
                } })
