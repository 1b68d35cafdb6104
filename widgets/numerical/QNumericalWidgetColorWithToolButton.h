#ifndef QNUMERICALWIDGETCOLORWITHTOOLBUTTON_H
#define QNUMERICALWIDGETCOLORWITHTOOLBUTTON_H

#include "QNumericalWidgetBase.h"
#include "VelaExport.h"

#include <functional>

class QColorButton;
class QLabel;
class QToolButton;

// A colour input with an action beside it: caption, colour button and a text button that reports
// Clicked. The input's name carries both texts as "Caption_Button"; a name that does not split
// into exactly two parts at "_" is the caption as a whole and the button reads "Auto Color".
class VELA_WIDGETS_EXPORT QNumericalWidgetColorWithToolButton : public QNumericalWidgetBase
{
    Q_OBJECT

public:
    explicit QNumericalWidgetColorWithToolButton(QWidget *parent = nullptr);
    ~QNumericalWidgetColorWithToolButton() override;

    // Shows the bare caption and the button text of the name and re-applies the variable's
    // current colour.
    void SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                 const Lu::CDynamicWidgetDescBase &desc) override;
    Vela::CVector4<float> GetValue() override;

    // Hands the callbacks to the colour button, which calls them around each dialog session.
    // Takes effect only once Initialize has built the button.
    void SetUndoRedoFunctions(std::function<void()> kBegin, std::function<void()> kEnd,
                              std::function<void()> kAccepted, std::function<void()> kReverted);

protected:
    void CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                  const Lu::CDynamicWidgetDescBase &desc) override;
    // Sets (x, y, z) scaled to 0 to 255 as the button's colour without a signal; w is ignored.
    void UpdateUi(const Vela::CVector4<float> &v) override;

private slots:
    void OnColorChanged();
    void OnClicked();

private:
    QColorButton *m_pColorButton = nullptr;
    QLabel *m_pLabel = nullptr;
    QToolButton *m_pToolButton = nullptr;
};

#endif // QNUMERICALWIDGETCOLORWITHTOOLBUTTON_H
