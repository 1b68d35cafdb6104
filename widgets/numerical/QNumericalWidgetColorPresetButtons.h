#ifndef QNUMERICALWIDGETCOLORPRESETBUTTONS_H
#define QNUMERICALWIDGETCOLORPRESETBUTTONS_H

#include "QNumericalWidgetBase.h"
#include "VelaExport.h"

class QLabel;
class QToolButton;

// A choice among four fixed colour swatches (light grey, orange, pink, near black). A click reports
// the swatch's number, 1 to 4, as ClickedButton; the value is that number in all four components
// (0 before the first click). The widget does not follow values pushed in by the host.
class VELA_WIDGETS_EXPORT QNumericalWidgetColorPresetButtons : public QNumericalWidgetBase
{
    Q_OBJECT

public:
    explicit QNumericalWidgetColorPresetButtons(QWidget *parent = nullptr);
    ~QNumericalWidgetColorPresetButtons() override;

    // Shows the bare name as the caption.
    void SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                 const Lu::CDynamicWidgetDescBase &desc) override;
    Vela::CVector4<float> GetValue() override;

protected:
    void CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                  const Lu::CDynamicWidgetDescBase &desc) override;
    // Does nothing: the chosen swatch changes only by a click.
    void UpdateUi(const Vela::CVector4<float> &v) override;

private slots:
    void OnClicked1();
    void OnClicked2();
    void OnClicked3();
    void OnClicked4();

private:
    // Records the swatch as chosen and reports it.
    void ChoosePreset(int nPreset);

    QLabel *m_pLabel = nullptr;
    QToolButton *m_pButton1 = nullptr;
    QToolButton *m_pButton2 = nullptr;
    QToolButton *m_pButton3 = nullptr;
    QToolButton *m_pButton4 = nullptr;
    // 0 until a swatch is clicked, then 1 to 4.
    int m_nPreset = 0;
};

#endif // QNUMERICALWIDGETCOLORPRESETBUTTONS_H
