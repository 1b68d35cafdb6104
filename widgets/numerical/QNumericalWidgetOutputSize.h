#ifndef QNUMERICALWIDGETOUTPUTSIZE_H
#define QNUMERICALWIDGETOUTPUTSIZE_H

#include "QNumericalWidgetCombobox.h"
#include "VelaExport.h"

// The square output resolution of a material, 8x8 to 4096x4096, chosen from a fixed drop-down.
// The value is (e, e, 0, 0) with e the base-2 logarithm of the size (3 to 12), one exponent for
// width and height alike; the description's choices are not read.
class VELA_WIDGETS_EXPORT QNumericalWidgetOutputSize : public QNumericalWidgetCombobox
{
    Q_OBJECT

public:
    explicit QNumericalWidgetOutputSize(QWidget *parent = nullptr);
    ~QNumericalWidgetOutputSize() override;

    // Copies the base fields only: the fixed entries stay as they are.
    void SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                 const Lu::CDynamicWidgetDescBase &desc) override;
    Vela::CVector4<float> GetValue() override;

protected:
    void CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                  const Lu::CDynamicWidgetDescBase &desc) override;

private slots:
    void OnComboBoxIndexChanged();
};

#endif // QNUMERICALWIDGETOUTPUTSIZE_H
