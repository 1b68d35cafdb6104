#ifndef QNUMERICALWIDGETCOLOR_H
#define QNUMERICALWIDGETCOLOR_H

#include "QNumericalWidgetBase.h"
#include "VelaExport.h"

#include <functional>

class QColorButton;
class QLabel;

// A colour input: the input's name and a colour button that opens the colour dialog. The value is
// (red, green, blue, 1) with each channel from 0 to 1; every colour the user picks in the dialog is
// reported as ValueChanged followed by EditFinished.
class VELA_WIDGETS_EXPORT QNumericalWidgetColor : public QNumericalWidgetBase
{
    Q_OBJECT

public:
    explicit QNumericalWidgetColor(QWidget *parent = nullptr);
    ~QNumericalWidgetColor() override;

    // Shows the bare name as the caption and re-applies the variable's current colour.
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

private:
    QColorButton *m_pColorButton = nullptr;
    QLabel *m_pLabel = nullptr;
};

#endif // QNUMERICALWIDGETCOLOR_H
