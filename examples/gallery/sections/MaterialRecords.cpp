#include "MaterialRecords.h"

#include "GalleryRegistry.h"
#include "QNumericalMouseSpinbox.h"
#include "QNumericalWidgetColor.h"
#include "QNumericalWidgetColorPresetButtons.h"
#include "QNumericalWidgetColorWithToolButton.h"
#include "QNumericalWidgetCombobox.h"
#include "QNumericalWidgetImage.h"
#include "QNumericalWidgetMultiLevelSlider.h"
#include "QNumericalWidgetOutputSize.h"
#include "QNumericalWidgetSlider.h"
#include "QNumericalWidgetToggleButton.h"
#include "SampleMaterialImages.h"
#include "VelaImageLoader.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include <initializer_list>
#include <string>
#include <utility>

namespace {

using Labels = std::initializer_list<std::pair<int, const char *>>;

MaterialInput input(const char *section, const wchar_t *name,
                    Vela::EDynamicWidgetVariableType eType,
                    Vela::EDynamicWidgetBehaviorType eBehavior)
{
    MaterialInput in;
    in.section = QLatin1String(section);
    in.var.eType = eType;
    in.desc.strName = name;
    in.desc.eBehaviorType = eBehavior;
    return in;
}

// A slider input: the same range for every component, one initial value each.
MaterialInput slider(const char *section, const wchar_t *name,
                     Vela::EDynamicWidgetVariableType eType, float fMinimum, float fMaximum,
                     std::initializer_list<float> values, Labels labels = {},
                     Vela::EDynamicWidgetBehaviorType eBehavior = Vela::DynamicBehavior_Slider)
{
    MaterialInput in = input(section, name, eType, eBehavior);
    int i = 0;
    for (float value : values) {
        in.desc.afMinimum[i] = fMinimum;
        in.desc.afMaximum[i] = fMaximum;
        in.desc.afValue[i] = value;
        in.var.vValue.Set(i, value);
        ++i;
    }
    for (const auto &label : labels)
        in.desc.mapLabels[label.first] = label.second;
    return in;
}

QVector<MaterialInput> makeInputs()
{
    QVector<MaterialInput> inputs;
    // Surface
    inputs << slider("Surface", L"Roughness", Vela::DynamicVariable_Float1, 0.0f, 1.0f, { 0.45f });
    inputs << slider("Surface", L"Tiling", Vela::DynamicVariable_Float2, 0.0f, 16.0f,
                     { 4.0f, 4.0f }, { { 0, "U" }, { 1, "V" } });
    MaterialInput tint = slider("Surface", L"Base Tint", Vela::DynamicVariable_Float3, 0.0f, 1.0f,
                                { 0.82f, 0.64f, 0.55f }, { { 0, "R" }, { 1, "G" }, { 2, "B" } });
    tint.desc.uDecimals = 3;
    inputs << tint;
    MaterialInput offset =
        slider("Surface", L"Offset", Vela::DynamicVariable_Float4, -1.0f, 1.0f,
               { 0.0f, 0.25f, -0.5f, 1.0f }, { { 0, "X" }, { 1, "Y" }, { 2, "Z" }, { 3, "W" } });
    // The spin boxes go further than the sliders; the arrows show it.
    for (int i = 0; i < 4; ++i) {
        offset.desc.afSpinMinimum[i] = -10.0f;
        offset.desc.afSpinMaximum[i] = 10.0f;
    }
    offset.desc.bIndependentSpin = true;
    inputs << offset;
    inputs << slider("Surface", L"Mask Blend", Vela::DynamicVariable_Float1, 0.0f, 5.0f, { 0.3f },
                     {}, Vela::DynamicBehavior_UnitSlider);
    MaterialInput color =
        input("Surface", L"Base Color", Vela::DynamicVariable_Float4, Vela::DynamicBehavior_Color);
    color.var.vValue = Vela::CVector4f(0.78f, 0.42f, 0.31f, 1.0f);
    inputs << color;

    // Pattern
    MaterialInput octaves =
        slider("Pattern", L"Octaves", Vela::DynamicVariable_Integer1, 1.0f, 8.0f, { 4.0f });
    octaves.desc.bTriggerBake = true;
    inputs << octaves;
    inputs << slider("Pattern", L"Grid Cells", Vela::DynamicVariable_Integer2, 1.0f, 64.0f,
                     { 8.0f, 12.0f }, { { 0, "Columns" }, { 1, "Rows" } });
    inputs << slider("Pattern", L"Gradient Stops", Vela::DynamicVariable_Float3, 0.0f, 1.0f,
                     { 0.2f, 0.5f, 0.85f }, {}, Vela::DynamicBehavior_MultiLevelSlider);
    inputs << slider("Pattern", L"Scale", Vela::DynamicVariable_Float3, 0.0f, 10.0f,
                     { 1.0f, 1.5f, 2.0f }, {}, Vela::DynamicBehavior_MouseSpinBox);
    MaterialInput blend = input("Pattern", L"Blend Mode", Vela::DynamicVariable_Integer1,
                                Vela::DynamicBehavior_ComboBox);
    for (const auto &choice : Labels { { 0, "Normal" },
                                       { 1, "Multiply" },
                                       { 2, "Overlay" },
                                       { 3, "Screen" },
                                       { 5, "Soft Light" } })
        blend.desc.mapLabels[choice.first] = choice.second;
    blend.var.vValue = Vela::CVector4f(2.0f, 0.0f, 0.0f, 0.0f);
    inputs << blend;
    MaterialInput invert = input("Pattern", L"Invert Height", Vela::DynamicVariable_Integer1,
                                 Vela::DynamicBehavior_ToggleButton);
    invert.var.vValue = Vela::CVector4f(1.0f, 0.0f, 0.0f, 0.0f);
    inputs << invert;

    // Emission
    MaterialInput glow = input("Emission", L"Glow Color_Auto Glow", Vela::DynamicVariable_Float4,
                               Vela::DynamicBehavior_ColorWithToolButton);
    glow.var.vValue = Vela::CVector4f(0.51f, 0.75f, 0.06f, 1.0f);
    inputs << glow;
    inputs << input("Emission", L"Skin Tone", Vela::DynamicVariable_Integer1,
                    Vela::DynamicBehavior_ColorPresetButtons);
    inputs << slider("Emission", L"Intensity", Vela::DynamicVariable_Float1, 0.0f, 20.0f, { 2.5f });

    // Output
    MaterialInput size = input("Output", L"Output Size", Vela::DynamicVariable_Integer2,
                               Vela::DynamicBehavior_OutputSize);
    size.var.vValue = Vela::CVector4f(9.0f, 9.0f, 0.0f, 0.0f); // 512 x 512
    inputs << size;
    inputs << input("Output", L"Detail Mask", Vela::DynamicVariable_Image,
                    Vela::DynamicBehavior_Image);
    return inputs;
}

QString vectorText(const Vela::CVector4f &v)
{
    return QStringLiteral("(%1, %2, %3, %4)").arg(v.x).arg(v.y).arg(v.z).arg(v.w);
}

struct WidgetKind
{
    Vela::EDynamicWidgetBehaviorType eBehavior;
    QNumericalWidgetBase *(*create)();
};

// How the host picks a widget class for an input; every other behaviour gets sliders.
const WidgetKind kKinds[] = {
    { Vela::DynamicBehavior_Color,
      []() -> QNumericalWidgetBase * { return new QNumericalWidgetColor; } },
    { Vela::DynamicBehavior_ColorWithToolButton,
      []() -> QNumericalWidgetBase * { return new QNumericalWidgetColorWithToolButton; } },
    { Vela::DynamicBehavior_ColorPresetButtons,
      []() -> QNumericalWidgetBase * { return new QNumericalWidgetColorPresetButtons; } },
    { Vela::DynamicBehavior_ComboBox,
      []() -> QNumericalWidgetBase * { return new QNumericalWidgetCombobox; } },
    { Vela::DynamicBehavior_OutputSize,
      []() -> QNumericalWidgetBase * { return new QNumericalWidgetOutputSize; } },
    { Vela::DynamicBehavior_ToggleButton,
      []() -> QNumericalWidgetBase * { return new QNumericalWidgetToggleButton; } },
    { Vela::DynamicBehavior_MultiLevelSlider,
      []() -> QNumericalWidgetBase * { return new QNumericalWidgetMultiLevelSlider; } },
    { Vela::DynamicBehavior_MouseSpinBox,
      []() -> QNumericalWidgetBase * { return new QNumericalMouseSpinbox; } },
    { Vela::DynamicBehavior_Image,
      []() -> QNumericalWidgetBase * { return new QNumericalWidgetImage; } },
};

QNumericalWidgetBase *widgetFor(Vela::EDynamicWidgetBehaviorType eBehavior)
{
    for (const WidgetKind &kind : kKinds) {
        if (kind.eBehavior == eBehavior)
            return kind.create();
    }
    return new QNumericalWidgetSlider;
}

// The host's side of a texture slot: every button is logged, and an image file dropped on the
// preview is read (within the library's size and format limits) and shown.
void answerTextureSlot(QNumericalWidgetImage *image, GalleryContext &context)
{
    image->SetImage(SampleMaterialImages::ChannelImage(6));
    image->SetFileTypeFilter(QNumericalWidgetImage::EAcceptImageType(
        QNumericalWidgetImage::AcceptImage_Jpg | QNumericalWidgetImage::AcceptImage_Bmp
        | QNumericalWidgetImage::AcceptImage_Png));
    using Signal = void (QNumericalWidgetImage::*)(QString);
    const std::pair<Signal, const char *> buttons[] = {
        { &QNumericalWidgetImage::LoadTexture, "LoadTexture" },
        { &QNumericalWidgetImage::SaveTexture, "SaveTexture" },
        { &QNumericalWidgetImage::LaunchTexture, "LaunchTexture" },
        { &QNumericalWidgetImage::ResetTexture, "ResetTexture" },
        { &QNumericalWidgetImage::DeleteTexture, "DeleteTexture" },
        { &QNumericalWidgetImage::AdjustTexture, "AdjustTexture" },
        { &QNumericalWidgetImage::OpenTextureFileDialog, "OpenTextureFileDialog" },
    };
    for (const auto &button : buttons) {
        const QString signal = QLatin1String(button.second);
        QObject::connect(image, button.first, image, [&context, signal](QString strName) {
            context.log(QStringLiteral("%1(\"%2\")").arg(signal, strName));
        });
    }
    QObject::connect(image, &QNumericalWidgetImage::DropToLoadTextureFile, image,
                     [&context, image](QString strName, QObject *, QDropEvent *pEvent) {
                         const QList<QUrl> urls = pEvent->mimeData()->urls();
                         QImage picture;
                         if (urls.isEmpty()
                             || !Vela::LoadImageFile(urls.first().toLocalFile(), picture))
                             return;
                         image->SetImage(picture);
                         pEvent->acceptProposedAction();
                         context.log(QStringLiteral("DropToLoadTextureFile(\"%1\", %2)")
                                         .arg(strName, urls.first().toLocalFile()));
                     });
}

} // namespace

namespace MaterialRecords {

const QVector<MaterialInput> &Inputs()
{
    static const QVector<MaterialInput> inputs = makeInputs();
    return inputs;
}

QNumericalWidgetBase *CreateWidget(const MaterialInput &input, GalleryContext &context)
{
    QNumericalWidgetBase *widget = widgetFor(input.desc.eBehaviorType);
    widget->SetKey(input.desc.strName);
    widget->Initialize(input.var, input.desc);
    // Widgets that start at zero or at their first entry show the input's value once the host
    // pushes it.
    widget->UpdateInputValue(input.var.vValue);
    const QString name = QString::fromStdWString(input.desc.strName);
    if (auto *image = qobject_cast<QNumericalWidgetImage *>(widget))
        answerTextureSlot(image, context);
    QObject::connect(widget, &QNumericalWidgetBase::ValueChanged, widget,
                     [&context, name](Vela::CVector4f v) {
                         context.log(QStringLiteral("%1: ValueChanged%2").arg(name, vectorText(v)));
                     });
    QObject::connect(widget, &QNumericalWidgetBase::EditFinished, widget,
                     [&context, name](Vela::CVector4f v) {
                         context.log(QStringLiteral("%1: EditFinished%2").arg(name, vectorText(v)));
                     });
    QObject::connect(widget, &QNumericalWidgetBase::Clicked, widget,
                     [&context, name] { context.log(QStringLiteral("%1: Clicked()").arg(name)); });
    QObject::connect(widget, &QNumericalWidgetBase::ClickedButton, widget,
                     [&context, name](int nIndex) {
                         context.log(QStringLiteral("%1: ClickedButton(%2)").arg(name).arg(nIndex));
                     });
    return widget;
}

} // namespace MaterialRecords
