#ifndef QCOMBOSPINBOX_H
#define QCOMBOSPINBOX_H

#include "VelaExport.h"
#include "ui_SliderSpinbox.h"

#include <QPixmap>
#include <QString>
#include <QWidget>

#include <functional>

// An integer editor for property panels: an optional caption above a slider, flanked by two
// arrows, and a spin box that always shows the same value. The spin box may be given a wider
// range than the slider (the arrows then show that values beyond the slider's ends can be
// typed), and the mapping between spin values and slider positions can be replaced. The slider
// is named "EditedWidget" or "UneditedWidget" depending on whether the value differs from the
// default, so that style sheets can mark edited values. Each user edit is reported as one
// session: EditStarted, ValueChanged while it moves, EditFinished.
class VELA_WIDGETS_EXPORT QComboSpinBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int spacing READ Spacing WRITE SetSpacing)
    Q_PROPERTY(int value READ Value WRITE SetValue)
    Q_PROPERTY(int minimum READ Minimum WRITE SetMinimum)
    Q_PROPERTY(int maximum READ Maximum WRITE SetMaximum)
    Q_PROPERTY(int singleStep READ SingleStep WRITE SetSingleStep)
    Q_PROPERTY(int pageStep READ PageStep WRITE SetPageStep)
    Q_PROPERTY(bool independentSpin READ IndependentSpin WRITE SetIndependentSpin)
    Q_PROPERTY(int spinMinimum READ SpinMinimum WRITE SetSpinMinimum)
    Q_PROPERTY(int spinMaximum READ SpinMaximum WRITE SetSpinMaximum)
    Q_PROPERTY(bool resetOnDoubleClick READ ResetOnDoubleClick WRITE SetResetOnDoubleClick)
    Q_PROPERTY(int defaultValue READ DefaultValue WRITE SetDefaultValue)
    Q_PROPERTY(bool labelVisible READ LabelVisible WRITE SetLabelVisible)
    Q_PROPERTY(QString labelName READ LabelName WRITE SetLabelName)
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(Qt::TextFormat textFormat READ textFormat WRITE setTextFormat)
    Q_PROPERTY(QPixmap pixmap READ pixmap WRITE setPixmap)
    Q_PROPERTY(bool scaledContents READ hasScaledContents WRITE setScaledContents)
    Q_PROPERTY(bool wordWrap READ wordWrap WRITE setWordWrap)
    Q_PROPERTY(Qt::Orientation labelOrientation READ labelOrientation WRITE setLabelOrientation)
    Q_PROPERTY(bool wrapping READ wrapping WRITE setWrapping)
    Q_PROPERTY(bool frame READ hasFrame WRITE setFrame)
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)
    Q_PROPERTY(
        QAbstractSpinBox::ButtonSymbols buttonSymbols READ buttonSymbols WRITE setButtonSymbols)
    Q_PROPERTY(QString specialValueText READ specialValueText WRITE setSpecialValueText)
    Q_PROPERTY(bool accelerated READ isAccelerated WRITE setAccelerated)
    Q_PROPERTY(
        QAbstractSpinBox::CorrectionMode correctionMode READ correctionMode WRITE setCorrectionMode)
    Q_PROPERTY(bool keyboardTracking READ keyboardTracking WRITE setKeyboardTracking)
    Q_PROPERTY(bool showGroupSeparator READ isGroupSeparatorShown WRITE setGroupSeparatorShown)
    Q_PROPERTY(QSlider::TickPosition tickPosition READ tickPosition WRITE setTickPosition)
    Q_PROPERTY(int tickInterval READ tickInterval WRITE setTickInterval)
    Q_PROPERTY(bool tracking READ hasTracking WRITE setTracking)
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)
    Q_PROPERTY(bool invertedAppearance READ invertedAppearance WRITE setInvertedAppearance)
    Q_PROPERTY(bool invertedControls READ invertedControls WRITE setInvertedControls)
    Q_PROPERTY(bool sliderDown READ isSliderDown WRITE setSliderDown)

public:
    explicit QComboSpinBox(QWidget *parent = nullptr);
    ~QComboSpinBox() override;

    int Value();
    void SetValue(int nValue);
    int Minimum();
    void SetMinimum(int nValue);
    int Maximum();
    void SetMaximum(int nValue);
    int SpinMinimum() const;
    void SetSpinMinimum(int nValue);
    int SpinMaximum() const;
    void SetSpinMaximum(int nValue);
    int SingleStep();
    void SetSingleStep(int nStep);
    int PageStep();
    void SetPageStep(int nStep);

    // The mappings between spin values and slider positions (identity by default). Setting the
    // spin-to-slider mapping moves the slider (and, unless the spin range is independent,
    // re-derives its range) at once. Both must stay callable: the widget calls them on every
    // change, and passing an empty function is the caller's error (std::bad_function_call).
    void SetSpinToSlider(std::function<int(int)> fnSpinToSlider);
    void SetSliderToSpin(std::function<int(int)> fnSliderToSpin);

    void MarkUsedSlider();
    void UpdateMaxMinIndicator();

    int Spacing();
    void SetSpacing(int nSpacing);
    bool LabelVisible() const;
    void SetLabelVisible(bool bVisible);
    QString LabelName();
    void SetLabelName(QString strName);
    // Consulted only when the widget is built: changing it later does not rearrange the caption.
    Qt::Orientation labelOrientation();
    void setLabelOrientation(Qt::Orientation eOrientation);
    bool IndependentSpin() const;
    void SetIndependentSpin(bool bIndependent);
    bool ResetOnDoubleClick() const;
    void SetResetOnDoubleClick(bool bReset);
    int DefaultValue() const;
    void SetDefaultValue(int nValue);

    Ui::SliderSpinbox *UI();

    // The caption label.
    QString text() const;
    void setText(const QString &strText);
    Qt::TextFormat textFormat() const;
    void setTextFormat(Qt::TextFormat eFormat);
    QPixmap pixmap() const;
    void setPixmap(const QPixmap &kPixmap);
    bool hasScaledContents() const;
    void setScaledContents(bool bScaled);
    bool wordWrap() const;
    void setWordWrap(bool bWrap);

    // The spin box.
    bool wrapping() const;
    void setWrapping(bool bWrapping);
    bool hasFrame() const;
    void setFrame(bool bFrame);
    Qt::Alignment alignment() const;
    void setAlignment(Qt::Alignment eAlignment);
    bool isReadOnly() const;
    void setReadOnly(bool bReadOnly);
    QAbstractSpinBox::ButtonSymbols buttonSymbols() const;
    void setButtonSymbols(QAbstractSpinBox::ButtonSymbols eSymbols);
    QString specialValueText() const;
    void setSpecialValueText(const QString &strText);
    bool isAccelerated() const;
    void setAccelerated(bool bOn);
    QAbstractSpinBox::CorrectionMode correctionMode() const;
    void setCorrectionMode(QAbstractSpinBox::CorrectionMode eMode);
    bool keyboardTracking() const;
    void setKeyboardTracking(bool bTracking);
    bool isGroupSeparatorShown() const;
    void setGroupSeparatorShown(bool bShown);
    bool hasAcceptableInput() const;

    // The slider.
    QSlider::TickPosition tickPosition() const;
    void setTickPosition(QSlider::TickPosition ePosition);
    int tickInterval() const;
    void setTickInterval(int nInterval);
    bool hasTracking() const;
    void setTracking(bool bTracking);
    Qt::Orientation orientation() const;
    void setOrientation(Qt::Orientation eOrientation);
    bool invertedAppearance() const;
    void setInvertedAppearance(bool bInverted);
    bool invertedControls() const;
    void setInvertedControls(bool bInverted);
    bool isSliderDown() const;
    void setSliderDown(bool bDown);

signals:
    void ValueChanged(int vValue);
    void EditStarted();
    void EditFinished();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void OnSpinBoxValueChanged(int nValue);
    void OnSliderValueChanged(int nPosition);
    // The edit-start handler, under its two names.
    void OnSliderMousePress();
    void OnSpinBoxEditStarted();
    // The edit-finish handler, under its two names.
    void OnSliderMouseRelease();
    void OnSpinBoxEditFinished();

private:
    Ui::SliderSpinbox m_kUi;
    std::function<int(int)> m_fnSpinToSlider;
    std::function<int(int)> m_fnSliderToSpin;
    bool m_bIndependentSpin = false;
    bool m_bResetOnDoubleClick = false;
    int m_nDefaultValue = 0;
    Qt::Orientation m_eLabelOrientation = Qt::Vertical;
};

#endif // QCOMBOSPINBOX_H
