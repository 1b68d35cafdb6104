#ifndef VELACOMBOEDITORPRIVATE_H
#define VELACOMBOEDITORPRIVATE_H

// What the three slider–spin-box editors (QComboSpinBox, QComboDoubleSpinBox and
// QComboNonlinearDoubleSpinBox) do alike: placing their form on the widget, the arrow images,
// the edited marking of the slider, the double-click reset, the fixed-point arithmetic between
// spin values and slider positions, and the accessors that forward to the form's children.

#include <Qt>

class QEvent;
class QHBoxLayout;
class QLabel;
class QSlider;
class QSliderEx;
class QVBoxLayout;
class QWidget;

namespace Vela {
namespace ComboEditor {

// Lays the form out on the editor itself. With a vertical caption the form's vertical layout
// (caption above the slider row) becomes the editor's layout; with a horizontal caption a new
// horizontal layout holds the caption and then the row.
void ArrangeLayout(QWidget *editor, QVBoxLayout *formLayout, QLabel *label, QHBoxLayout *row,
                   Qt::Orientation eLabelOrientation);

// The arrows beside the slider are the host's "left.svg" and "right.svg", found relative to the
// current folder. They are read through the guarded image loader; a missing or unreadable file
// leaves the arrow empty.
void LoadArrowImages(QLabel *leftArrow, QLabel *rightArrow);

// Builds the form on the editor, reads the arrow images, lays the form out and lets the editor
// watch the slider and the caption for the double-click reset.
template<typename Form>
void SetUpForm(QWidget *editor, Form &form, Qt::Orientation eLabelOrientation)
{
    form.setupUi(editor);
    LoadArrowImages(form.qtLeftArrowLabel, form.qtRightArrowLabel);
    ArrangeLayout(editor, form.verticalLayout, form.qtLabel, form.horizontalLayout,
                  eLabelOrientation);
    form.qtHorizontalSlider->installEventFilter(editor);
    form.qtLabel->installEventFilter(editor);
}

// Names the slider "EditedWidget" or "UneditedWidget" and re-polishes it with the editor's style,
// so that style-sheet rules keyed on the name apply at once.
void MarkSlider(QWidget *editor, QSlider *slider, bool bEdited);

// True for a left-button double-click that should reset an enabled editor to its default.
bool IsResetDoubleClick(const QWidget *editor, bool bResetOnDoubleClick, const QEvent *event);

// Moves the slider without its signals and records the position as not being a user edit.
void SetSliderQuietly(QSliderEx *slider, int nPosition);

// 10 to the power of the spin box's decimals: slider units per spin-box unit.
double DecimalScale(int nDecimals);

// The fixed-point slider position of a spin value: one slider unit per unit of the last decimal
// place, truncated toward zero without rounding (0.29 at 2 decimals gives 28).
int ScaledPosition(double dValue, int nDecimals);

// The logarithmic slider position of a spin value: 10^decimals units per decade, truncated toward
// zero (1 gives 0, 10 gives 10^decimals). Zero and negative values give the smallest integer.
int LogPosition(double dValue, int nDecimals);

// Truncates toward zero into the slider's integer range; values beyond it (and NaN, the
// logarithm of a negative value) saturate, NaN and minus infinity at the smallest integer.
int TruncateToPosition(double dValue);

} // namespace ComboEditor
} // namespace Vela

// The accessors that every editor forwards to its caption label, its spin box (the form member
// named `spinBox`) and its slider, and the layout and caption operations they share. Expanded
// once in each editor's source file.
#define VELA_COMBO_EDITOR_FORWARDERS(Class, spinBox)                                               \
    int Class::Spacing()                                                                           \
    {                                                                                              \
        return layout()->spacing();                                                                \
    }                                                                                              \
    void Class::SetSpacing(int nSpacing)                                                           \
    {                                                                                              \
        layout()->setSpacing(nSpacing);                                                            \
    }                                                                                              \
    bool Class::LabelVisible() const                                                               \
    {                                                                                              \
        return m_kUi.qtLabel->isVisible();                                                         \
    }                                                                                              \
    void Class::SetLabelVisible(bool bVisible)                                                     \
    {                                                                                              \
        m_kUi.qtLabel->setVisible(bVisible);                                                       \
    }                                                                                              \
    QString Class::LabelName()                                                                     \
    {                                                                                              \
        return m_kUi.qtLabel->objectName();                                                        \
    }                                                                                              \
    void Class::SetLabelName(QString strName)                                                      \
    {                                                                                              \
        m_kUi.qtLabel->setObjectName(strName);                                                     \
    }                                                                                              \
    Qt::Orientation Class::labelOrientation()                                                      \
    {                                                                                              \
        return m_eLabelOrientation;                                                                \
    }                                                                                              \
    void Class::setLabelOrientation(Qt::Orientation eOrientation)                                  \
    {                                                                                              \
        m_eLabelOrientation = eOrientation;                                                        \
    }                                                                                              \
    bool Class::IndependentSpin() const                                                            \
    {                                                                                              \
        return m_bIndependentSpin;                                                                 \
    }                                                                                              \
    void Class::SetIndependentSpin(bool bIndependent)                                              \
    {                                                                                              \
        m_bIndependentSpin = bIndependent;                                                         \
    }                                                                                              \
    bool Class::ResetOnDoubleClick() const                                                         \
    {                                                                                              \
        return m_bResetOnDoubleClick;                                                              \
    }                                                                                              \
    void Class::SetResetOnDoubleClick(bool bReset)                                                 \
    {                                                                                              \
        m_bResetOnDoubleClick = bReset;                                                            \
    }                                                                                              \
    QString Class::text() const                                                                    \
    {                                                                                              \
        return m_kUi.qtLabel->text();                                                              \
    }                                                                                              \
    void Class::setText(const QString &strText)                                                    \
    {                                                                                              \
        m_kUi.qtLabel->setText(strText);                                                           \
    }                                                                                              \
    Qt::TextFormat Class::textFormat() const                                                       \
    {                                                                                              \
        return m_kUi.qtLabel->textFormat();                                                        \
    }                                                                                              \
    void Class::setTextFormat(Qt::TextFormat eFormat)                                              \
    {                                                                                              \
        m_kUi.qtLabel->setTextFormat(eFormat);                                                     \
    }                                                                                              \
    QPixmap Class::pixmap() const                                                                  \
    {                                                                                              \
        return m_kUi.qtLabel->pixmap(Qt::ReturnByValue);                                           \
    }                                                                                              \
    void Class::setPixmap(const QPixmap &kPixmap)                                                  \
    {                                                                                              \
        m_kUi.qtLabel->setPixmap(kPixmap);                                                         \
    }                                                                                              \
    bool Class::hasScaledContents() const                                                          \
    {                                                                                              \
        return m_kUi.qtLabel->hasScaledContents();                                                 \
    }                                                                                              \
    void Class::setScaledContents(bool bScaled)                                                    \
    {                                                                                              \
        m_kUi.qtLabel->setScaledContents(bScaled);                                                 \
    }                                                                                              \
    bool Class::wordWrap() const                                                                   \
    {                                                                                              \
        return m_kUi.qtLabel->wordWrap();                                                          \
    }                                                                                              \
    void Class::setWordWrap(bool bWrap)                                                            \
    {                                                                                              \
        m_kUi.qtLabel->setWordWrap(bWrap);                                                         \
    }                                                                                              \
    bool Class::wrapping() const                                                                   \
    {                                                                                              \
        return m_kUi.spinBox->wrapping();                                                          \
    }                                                                                              \
    void Class::setWrapping(bool bWrapping)                                                        \
    {                                                                                              \
        m_kUi.spinBox->setWrapping(bWrapping);                                                     \
    }                                                                                              \
    bool Class::hasFrame() const                                                                   \
    {                                                                                              \
        return m_kUi.spinBox->hasFrame();                                                          \
    }                                                                                              \
    void Class::setFrame(bool bFrame)                                                              \
    {                                                                                              \
        m_kUi.spinBox->setFrame(bFrame);                                                           \
    }                                                                                              \
    Qt::Alignment Class::alignment() const                                                         \
    {                                                                                              \
        return m_kUi.spinBox->alignment();                                                         \
    }                                                                                              \
    void Class::setAlignment(Qt::Alignment eAlignment)                                             \
    {                                                                                              \
        m_kUi.spinBox->setAlignment(eAlignment);                                                   \
    }                                                                                              \
    bool Class::isReadOnly() const                                                                 \
    {                                                                                              \
        return m_kUi.spinBox->isReadOnly();                                                        \
    }                                                                                              \
    void Class::setReadOnly(bool bReadOnly)                                                        \
    {                                                                                              \
        m_kUi.spinBox->setReadOnly(bReadOnly);                                                     \
    }                                                                                              \
    QAbstractSpinBox::ButtonSymbols Class::buttonSymbols() const                                   \
    {                                                                                              \
        return m_kUi.spinBox->buttonSymbols();                                                     \
    }                                                                                              \
    void Class::setButtonSymbols(QAbstractSpinBox::ButtonSymbols eSymbols)                         \
    {                                                                                              \
        m_kUi.spinBox->setButtonSymbols(eSymbols);                                                 \
    }                                                                                              \
    QString Class::specialValueText() const                                                        \
    {                                                                                              \
        return m_kUi.spinBox->specialValueText();                                                  \
    }                                                                                              \
    void Class::setSpecialValueText(const QString &strText)                                        \
    {                                                                                              \
        m_kUi.spinBox->setSpecialValueText(strText);                                               \
    }                                                                                              \
    bool Class::isAccelerated() const                                                              \
    {                                                                                              \
        return m_kUi.spinBox->isAccelerated();                                                     \
    }                                                                                              \
    void Class::setAccelerated(bool bOn)                                                           \
    {                                                                                              \
        m_kUi.spinBox->setAccelerated(bOn);                                                        \
    }                                                                                              \
    QAbstractSpinBox::CorrectionMode Class::correctionMode() const                                 \
    {                                                                                              \
        return m_kUi.spinBox->correctionMode();                                                    \
    }                                                                                              \
    void Class::setCorrectionMode(QAbstractSpinBox::CorrectionMode eMode)                          \
    {                                                                                              \
        m_kUi.spinBox->setCorrectionMode(eMode);                                                   \
    }                                                                                              \
    bool Class::keyboardTracking() const                                                           \
    {                                                                                              \
        return m_kUi.spinBox->keyboardTracking();                                                  \
    }                                                                                              \
    void Class::setKeyboardTracking(bool bTracking)                                                \
    {                                                                                              \
        m_kUi.spinBox->setKeyboardTracking(bTracking);                                             \
    }                                                                                              \
    bool Class::isGroupSeparatorShown() const                                                      \
    {                                                                                              \
        return m_kUi.spinBox->isGroupSeparatorShown();                                             \
    }                                                                                              \
    void Class::setGroupSeparatorShown(bool bShown)                                                \
    {                                                                                              \
        m_kUi.spinBox->setGroupSeparatorShown(bShown);                                             \
    }                                                                                              \
    bool Class::hasAcceptableInput() const                                                         \
    {                                                                                              \
        return m_kUi.spinBox->hasAcceptableInput();                                                \
    }                                                                                              \
    QSlider::TickPosition Class::tickPosition() const                                              \
    {                                                                                              \
        return m_kUi.qtHorizontalSlider->tickPosition();                                           \
    }                                                                                              \
    void Class::setTickPosition(QSlider::TickPosition ePosition)                                   \
    {                                                                                              \
        m_kUi.qtHorizontalSlider->setTickPosition(ePosition);                                      \
    }                                                                                              \
    int Class::tickInterval() const                                                                \
    {                                                                                              \
        return m_kUi.qtHorizontalSlider->tickInterval();                                           \
    }                                                                                              \
    void Class::setTickInterval(int nInterval)                                                     \
    {                                                                                              \
        m_kUi.qtHorizontalSlider->setTickInterval(nInterval);                                      \
    }                                                                                              \
    bool Class::hasTracking() const                                                                \
    {                                                                                              \
        return m_kUi.qtHorizontalSlider->hasTracking();                                            \
    }                                                                                              \
    void Class::setTracking(bool bTracking)                                                        \
    {                                                                                              \
        m_kUi.qtHorizontalSlider->setTracking(bTracking);                                          \
    }                                                                                              \
    Qt::Orientation Class::orientation() const                                                     \
    {                                                                                              \
        return m_kUi.qtHorizontalSlider->orientation();                                            \
    }                                                                                              \
    void Class::setOrientation(Qt::Orientation eOrientation)                                       \
    {                                                                                              \
        m_kUi.qtHorizontalSlider->setOrientation(eOrientation);                                    \
    }                                                                                              \
    bool Class::invertedAppearance() const                                                         \
    {                                                                                              \
        return m_kUi.qtHorizontalSlider->invertedAppearance();                                     \
    }                                                                                              \
    void Class::setInvertedAppearance(bool bInverted)                                              \
    {                                                                                              \
        m_kUi.qtHorizontalSlider->setInvertedAppearance(bInverted);                                \
    }                                                                                              \
    bool Class::invertedControls() const                                                           \
    {                                                                                              \
        return m_kUi.qtHorizontalSlider->invertedControls();                                       \
    }                                                                                              \
    void Class::setInvertedControls(bool bInverted)                                                \
    {                                                                                              \
        m_kUi.qtHorizontalSlider->setInvertedControls(bInverted);                                  \
    }                                                                                              \
    bool Class::isSliderDown() const                                                               \
    {                                                                                              \
        return m_kUi.qtHorizontalSlider->isSliderDown();                                           \
    }                                                                                              \
    void Class::setSliderDown(bool bDown)                                                          \
    {                                                                                              \
        m_kUi.qtHorizontalSlider->setSliderDown(bDown);                                            \
    }

#endif // VELACOMBOEDITORPRIVATE_H
