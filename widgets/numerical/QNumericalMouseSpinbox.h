#ifndef QNUMERICALMOUSESPINBOX_H
#define QNUMERICALMOUSESPINBOX_H

#include "QNumericalWidgetBase.h"
#include "VelaExport.h"

#include <QList>

class QMouseSpinBox;

// A numeric material input edited with one mouse-drag spin box per component, in one row after
// the input's name, each with its caption from the description's label map when it has one. The
// spin boxes take any non-negative value at three decimals. Every change, dragged or typed, is
// reported as ValueChanged followed at once by EditFinished.
class VELA_WIDGETS_EXPORT QNumericalMouseSpinbox : public QNumericalWidgetBase
{
    Q_OBJECT

public:
    explicit QNumericalMouseSpinbox(QWidget *parent = nullptr);
    ~QNumericalMouseSpinbox() override;

    Vela::CVector4<float> GetValue() override;

    static unsigned int GetSliderCount(Vela::EDynamicWidgetVariableType eType);
    static bool IsFloatType(Vela::EDynamicWidgetVariableType eType);

protected:
    void CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                  const Lu::CDynamicWidgetDescBase &desc) override;
    void UpdateUi(const Vela::CVector4<float> &v) override;

private slots:
    void OnMouseSpinBoxValueChanged(double dValue);

private:
    void MakeConnections();

    QList<QMouseSpinBox *> m_listMouseSpinBoxes;
};

#endif // QNUMERICALMOUSESPINBOX_H
