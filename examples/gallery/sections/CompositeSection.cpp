// The composite value editors and the two small composites, each in a property panel that logs
// the signals the host receives.
#include "GalleryRegistry.h"

#include "QComboDoubleSpinBox.h"
#include "QComboLabelButton.h"
#include "QComboNonlinearDoubleSpinBox.h"
#include "QComboSpinBox.h"
#include "QIntegerSliderWithRenameButton.h"

#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QWidget>

static const char kGroup[] = "Composite editors";

// The host's style for edited values: the slider groove turns green once the value leaves its
// default, and stays grey at the default.
static const char kEditorStyle[] =
    "QSlider::groove:horizontal { height: 4px; border-radius: 2px; background: #505050; }"
    "QSlider#EditedWidget::groove:horizontal { background: #82be0f; }"
    "QSlider::handle:horizontal { width: 10px; margin: -4px 0; border-radius: 5px;"
    " background: #d0d0d0; }"
    "QLabel { color: #d0d0d0; }";

// The editors read the arrow images "left.svg" and "right.svg" from the current folder, as a
// host ships them beside its executable. The gallery draws them into its sample folder and makes
// that folder current while it builds an editor.
class ArrowFolder
{
public:
    explicit ArrowFolder(GalleryContext &ctx)
        : m_previous(QDir::currentPath())
    {
        const QDir samples(ctx.sampleDir());
        writeArrow(samples.filePath(QStringLiteral("left.svg")), "9,1 2,5 9,9");
        writeArrow(samples.filePath(QStringLiteral("right.svg")), "1,1 8,5 1,9");
        QDir::setCurrent(samples.path());
    }
    ~ArrowFolder() { QDir::setCurrent(m_previous); }

private:
    static void writeArrow(const QString &path, const char *points)
    {
        if (QFile::exists(path))
            return;
        QFile file(path);
        if (file.open(QIODevice::WriteOnly)) {
            file.write(QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"10\" "
                                  "height=\"10\" viewBox=\"0 0 10 10\"><polygon points=\"")
                       + points + "\" fill=\"#82be0f\"/></svg>");
        }
    }

    QString m_previous;
};

static QWidget *panel()
{
    auto *widget = new QWidget;
    widget->setStyleSheet(QLatin1String(kEditorStyle));
    new QVBoxLayout(widget);
    return widget;
}

template<typename Editor>
static void logEditFinished(GalleryContext &ctx, Editor *editor, const QString &name)
{
    QObject::connect(editor, &Editor::EditFinished, [&ctx, editor, name] {
        ctx.log(QStringLiteral("%1: EditFinished at %2").arg(name).arg(editor->Value()));
    });
}

static QComboSpinBox *integerEditor(GalleryContext &ctx, const QString &caption, int value)
{
    const ArrowFolder arrows(ctx);
    auto *editor = new QComboSpinBox;
    editor->setText(caption);
    editor->SetMinimum(0);
    editor->SetMaximum(100);
    editor->SetIndependentSpin(true);
    editor->SetSpinMinimum(-100);
    editor->SetSpinMaximum(200);
    editor->SetDefaultValue(50);
    editor->SetResetOnDoubleClick(true);
    editor->SetValue(value);
    editor->setMinimumWidth(320);
    QObject::connect(editor, &QComboSpinBox::EditStarted,
                     [&ctx, caption] { ctx.log(caption + QStringLiteral(": EditStarted")); });
    QObject::connect(editor, &QComboSpinBox::ValueChanged, [&ctx, caption](int v) {
        ctx.log(QStringLiteral("%1: ValueChanged(%2)").arg(caption).arg(v));
    });
    logEditFinished(ctx, editor, caption);
    return editor;
}

GALLERY_ENTRY({ 20, kGroup, "QComboSpinBox",
                "Integer slider and spin box kept in step. The slider covers 0 to 100 while the "
                "spin box accepts -100 to 200 (the arrows say so). Values away from the default "
                "50 mark the slider green; double-click the slider or the caption to reset.",
                [](GalleryContext &ctx) -> QWidget * {
                    QWidget *widget = panel();
                    widget->layout()->addWidget(integerEditor(ctx, "Blend weight", 75));
                    widget->layout()->addWidget(integerEditor(ctx, "Blend weight (default)", 50));
                    return widget;
                } })

GALLERY_ENTRY(
    { 20, kGroup, "QComboDoubleSpinBox",
      "Double slider and spin box: the slider steps in units of the last decimal (here 0.001 "
      "over 0 to 1) and the spin box also accepts up to 5. Default 0.5, reset by double-click.",
      [](GalleryContext &ctx) -> QWidget * {
          QWidget *widget = panel();
          for (double value : { 0.825, 0.5 }) {
              const ArrowFolder arrows(ctx);
              auto *editor = new QComboDoubleSpinBox;
              const QString caption = value == 0.5 ? QStringLiteral("Roughness (default)")
                                                   : QStringLiteral("Roughness");
              editor->setText(caption);
              editor->SetDecimals(3);
              editor->SetMinimum(0.0);
              editor->SetMaximum(1.0);
              editor->SetSingleStep(0.01);
              editor->SetIndependentSpin(true);
              editor->SetSpinMaximum(5.0);
              editor->SetDefaultValue(0.5);
              editor->SetResetOnDoubleClick(true);
              editor->SetValue(value);
              editor->setMinimumWidth(320);
              QObject::connect(
                  editor, &QComboDoubleSpinBox::ValueChanged, [&ctx, caption](double v) {
                      ctx.log(QStringLiteral("%1: ValueChanged(%2)").arg(caption).arg(v));
                  });
              logEditFinished(ctx, editor, caption);
              widget->layout()->addWidget(editor);
          }
          return widget;
      } })

GALLERY_ENTRY(
    { 20, kGroup, "QComboNonlinearDoubleSpinBox",
      "Logarithmic slider over 0.01 to 100, one hundred steps per decade; the spin box may also "
      "be set to 0 (left arrow). Moving the slider reports the exponent, typing reports the value.",
      [](GalleryContext &ctx) -> QWidget * {
          QWidget *widget = panel();
          for (double value : { 2.5, 1.0 }) {
              const ArrowFolder arrows(ctx);
              auto *editor = new QComboNonlinearDoubleSpinBox;
              const QString caption = value == 1.0 ? QStringLiteral("Texture scale (default)")
                                                   : QStringLiteral("Texture scale");
              editor->setText(caption);
              editor->SetMinimum(0.01);
              editor->SetMaximum(100.0);
              editor->SetIndependentSpin(true);
              editor->SetSpinMinimum(0.0);
              editor->SetDefaultValue(1.0);
              editor->SetResetOnDoubleClick(true);
              editor->SetValue(value);
              editor->setMinimumWidth(320);
              QObject::connect(
                  editor, &QComboNonlinearDoubleSpinBox::ValueChanged, [&ctx, caption](double v) {
                      ctx.log(QStringLiteral("%1: ValueChanged(%2)").arg(caption).arg(v));
                  });
              logEditFinished(ctx, editor, caption);
              widget->layout()->addWidget(editor);
          }
          return widget;
      } })

GALLERY_ENTRY(
    { 20, kGroup, "QComboLabelButton",
      "Removable tags: the cross emits Delete(), on which this page removes the tag.",
      [](GalleryContext &ctx) -> QWidget * {
          auto *widget = new QWidget;
          auto *layout = new QHBoxLayout(widget);
          for (const char *name : { "Jaw Open", "Smile L", "Blink R", "Brow Down" }) {
              auto *tag = new QComboLabelButton(QString::fromLatin1(name));
              tag->setFixedWidth(110);
              layout->addWidget(tag);
              QObject::connect(tag, &QComboLabelButton::Delete, [&ctx, tag] {
                  ctx.log(QStringLiteral("QComboLabelButton: Delete %1").arg(tag->GetLabelText()));
                  tag->deleteLater();
              });
          }
          layout->addStretch(1);
          return widget;
      } })

GALLERY_ENTRY({ 20, kGroup, "QIntegerSliderWithRenameButton",
                "A named integer editor (50, range -50 to 100) with a rename button; the second "
                "one's button is disabled and shows the disabled icon.",
                [](GalleryContext &ctx) -> QWidget * {
                    QWidget *widget = panel();
                    int index = 0;
                    for (const char *name : { "Brow Raise L", "Cheek Puff (locked)" }) {
                        const ArrowFolder arrows(ctx);
                        auto *slider = new QIntegerSliderWithRenameButton;
                        const QString label = QString::fromLatin1(name);
                        slider->GetNameLabel()->setText(label);
                        slider->GetSlider()->SetDefaultValue(50);
                        slider->GetSlider()->SetValue(index == 0 ? 35 : 50);
                        slider->GetRenameButton()->setEnabled(index == 0);
                        QObject::connect(slider->GetRenameButton(), &QToolButton::clicked,
                                         [&ctx, label] {
                                             ctx.log(label + QStringLiteral(": rename requested"));
                                         });
                        QObject::connect(
                            slider->GetSlider(), &QComboSpinBox::ValueChanged,
                            [&ctx, label](int v) {
                                ctx.log(QStringLiteral("%1: ValueChanged(%2)").arg(label).arg(v));
                            });
                        widget->layout()->addWidget(slider);
                        ++index;
                    }
                    return widget;
                } })
