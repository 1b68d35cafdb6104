#include "VelaComboEditorPrivate.h"

#include "QSliderEx.h"
#include "VelaImageLoader.h"

#include <QBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>
#include <QSignalBlocker>
#include <QStyle>

#include <cmath>
#include <limits>

namespace Vela {
namespace ComboEditor {

void ArrangeLayout(QWidget *editor, QVBoxLayout *formLayout, QLabel *label, QHBoxLayout *row,
                   Qt::Orientation eLabelOrientation)
{
    if (eLabelOrientation != Qt::Horizontal) {
        // Taking the layout over from the form's holder widget moves its children onto the editor.
        editor->setLayout(formLayout);
        return;
    }
    auto *layout = new QHBoxLayout(editor);
    layout->addWidget(label);
    formLayout->removeItem(row);
    layout->addLayout(row);
}

static void LoadArrowImage(QLabel *arrow, const QString &strPath)
{
    QImage image;
    if (LoadImageFile(strPath, image))
        arrow->setPixmap(QPixmap::fromImage(image));
}

void LoadArrowImages(QLabel *leftArrow, QLabel *rightArrow)
{
    LoadArrowImage(leftArrow, QStringLiteral("left.svg"));
    LoadArrowImage(rightArrow, QStringLiteral("right.svg"));
}

void MarkSlider(QWidget *editor, QSlider *slider, bool bEdited)
{
    slider->setObjectName(bEdited ? QStringLiteral("EditedWidget")
                                  : QStringLiteral("UneditedWidget"));
    QStyle *style = editor->style();
    style->unpolish(slider);
    style->polish(slider);
    slider->update();
}

bool IsResetDoubleClick(const QWidget *editor, bool bResetOnDoubleClick, const QEvent *event)
{
    if (!editor->isEnabled() || !bResetOnDoubleClick
        || event->type() != QEvent::MouseButtonDblClick) {
        return false;
    }
    return static_cast<const QMouseEvent *>(event)->buttons() == Qt::LeftButton;
}

void SetSliderQuietly(QSliderEx *slider, int nPosition)
{
    const QSignalBlocker blocker(slider);
    slider->SetValue(nPosition);
}

double DecimalScale(int nDecimals)
{
    return std::pow(10.0, nDecimals);
}

int ScaledPosition(double dValue, int nDecimals)
{
    return TruncateToPosition(DecimalScale(nDecimals) * dValue);
}

int LogPosition(double dValue, int nDecimals)
{
    return TruncateToPosition(DecimalScale(nDecimals) * std::log10(dValue));
}

int TruncateToPosition(double dValue)
{
    constexpr int kMin = std::numeric_limits<int>::min();
    constexpr int kMax = std::numeric_limits<int>::max();
    if (std::isnan(dValue) || dValue <= double(kMin))
        return kMin;
    if (dValue >= double(kMax))
        return kMax;
    return int(dValue);
}

} // namespace ComboEditor
} // namespace Vela
