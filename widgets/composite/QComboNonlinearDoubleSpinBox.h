#ifndef QCOMBONONLINEARDOUBLESPINBOX_H
#define QCOMBONONLINEARDOUBLESPINBOX_H

#include "VelaExport.h"
#include "ui_SliderDoubleSpinbox.h"

#include <QPixmap>
#include <QString>
#include <QWidget>

// A slider–spin box for positive values that span several orders of magnitude: the slider moves
// along the decimal logarithm of the value, 10^decimals steps per decade, while the spin box shows
// the value itself. A change made on the slider is reported with the exponent, a change made on
// the spin box or by SetValue with the value. Only the end of a user edit is reported
// (EditFinished); there is no start signal. Hosts must give it a positive minimum.
class VELA_WIDGETS_EXPORT QComboNonlinearDoubleSpinBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int decimals READ Decimals WRITE SetDecimals)
    Q_PROPERTY(int spacing READ Spacing WRITE SetSpacing)
    Q_PROPERTY(double value READ Value WRITE SetValue)
    Q_PROPERTY(double minimum READ Minimum WRITE SetMinimum)
    Q_PROPERTY(double maximum READ Maximum WRITE SetMaximum)
    Q_PROPERTY(double singleStep READ SingleStep WRITE SetSingleStep)
    Q_PROPERTY(double pageStep READ PageStep WRITE SetPageStep)
    Q_PROPERTY(bool independentSpin READ IndependentSpin WRITE SetIndependentSpin)
    Q_PROPERTY(double spinMinimum READ SpinMinimum WRITE SetSpinMinimum)
    Q_PROPERTY(double spinMaximum READ SpinMaximum WRITE SetSpinMaximum)
    Q_PROPERTY(bool resetOnDoubleClick READ ResetOnDoubleClick WRITE SetResetOnDoubleClick)
    Q_PROPERTY(double defaultValue READ DefaultValue WRITE SetDefaultValue)
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
    explicit QComboNonlinearDoubleSpinBox(QWidget *parent = nullptr);
    ~QComboNonlinearDoubleSpinBox() override;

    double Value();
    void SetValue(double dValue);
    // With an independent spin range these report the slider's bound divided by 10^decimals,
    // that is the exponent, not the value.
    double Minimum();
    void SetMinimum(double dValue);
    double Maximum();
    void SetMaximum(double dValue);
    double SpinMinimum() const;
    void SetSpinMinimum(double dValue);
    double SpinMaximum() const;
    void SetSpinMaximum(double dValue);
    double SingleStep();
    void SetSingleStep(double dStep);
    double PageStep();
    void SetPageStep(double dStep);
    // Existing slider positions are not rescaled: set the decimals before the range and value.
    int Decimals() const;
    void SetDecimals(int nDecimals);

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
    double DefaultValue() const;
    void SetDefaultValue(double dValue);

    Ui::SliderDoubleSpinbox *UI();

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
    void ValueChanged(double dValue);
    void EditFinished();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void OnSpinBoxValueChanged(double dValue);
    void OnSliderValueChanged(int nPosition);
    // Both emit EditFinished.
    void OnSliderMouseRelease();
    void OnSpinBoxEditFinished();

private:
    Ui::SliderDoubleSpinbox m_kUi;
    bool m_bIndependentSpin = false;
    bool m_bResetOnDoubleClick = false;
    double m_dDefaultValue = 0.0;
    Qt::Orientation m_eLabelOrientation = Qt::Vertical;
};

#endif // QCOMBONONLINEARDOUBLESPINBOX_H
