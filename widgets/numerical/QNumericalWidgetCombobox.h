#ifndef QNUMERICALWIDGETCOMBOBOX_H
#define QNUMERICALWIDGETCOMBOBOX_H

#include "QNumericalWidgetBase.h"
#include "VelaExport.h"

class QComboBoxEx;
class QLabel;

// A choice input: the input's name and a drop-down of named integer choices, taken from the
// description's label map (key = value of the choice, in ascending key order). The value is
// (value of the current choice, 0, 0, 0); a choice made by the user is reported as ValueChanged
// followed by EditFinished.
class VELA_WIDGETS_EXPORT QNumericalWidgetCombobox : public QNumericalWidgetBase
{
    Q_OBJECT

public:
    explicit QNumericalWidgetCombobox(QWidget *parent = nullptr);
    ~QNumericalWidgetCombobox() override;

    // Refills the drop-down from the description without a signal (the first choice becomes
    // current) and shows the name. A description with a different number of choices builds a
    // second drop-down below the first instead.
    void SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                 const Lu::CDynamicWidgetDescBase &desc) override;
    Vela::CVector4<float> GetValue() override;

protected:
    void CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                  const Lu::CDynamicWidgetDescBase &desc) override;
    // Makes the choice whose value is x (truncated toward zero) current without a signal; with no
    // such choice nothing is current.
    void UpdateUi(const Vela::CVector4<float> &v) override;

    // Shared with the output-size widget, which fills it with its own fixed entries.
    QComboBoxEx *m_pComboBox = nullptr;
    QLabel *m_pLabel = nullptr;

private slots:
    void OnComboxIndexChanged();
};

#endif // QNUMERICALWIDGETCOMBOBOX_H
