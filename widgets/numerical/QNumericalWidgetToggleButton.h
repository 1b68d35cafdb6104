#ifndef QNUMERICALWIDGETTOGGLEBUTTON_H
#define QNUMERICALWIDGETTOGGLEBUTTON_H

#include "QNumericalWidgetBase.h"
#include "VelaExport.h"

class QCheckBox;

// An input that switches between two values: a check box labelled with the input's name. The value
// is (on-value if checked, else off-value, truncated toward zero, 0, 0, 0); each click is reported
// as ValueChanged followed by EditFinished.
class VELA_WIDGETS_EXPORT QNumericalWidgetToggleButton : public QNumericalWidgetBase
{
    Q_OBJECT

public:
    explicit QNumericalWidgetToggleButton(QWidget *parent = nullptr);
    ~QNumericalWidgetToggleButton() override;

    // Shows the name and re-applies the variable's current value.
    void SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                 const Lu::CDynamicWidgetDescBase &desc) override;
    Vela::CVector4<float> GetValue() override;

    // Stores the values reported for the two states; the check box stays as it is.
    void SetCheckedValue(float onValue, float offValue);
    bool IsChecked() const;

protected:
    void CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                  const Lu::CDynamicWidgetDescBase &desc) override;
    // Checks the box without a signal exactly when x is the on-value (within 0.00001).
    void UpdateUi(const Vela::CVector4<float> &v) override;

private slots:
    void OnCheckBoxClicked(int nState);

private:
    QCheckBox *m_pCheckBox = nullptr;
    float m_fOnValue = 1.0f;
    float m_fOffValue = 0.0f;
};

#endif // QNUMERICALWIDGETTOGGLEBUTTON_H
