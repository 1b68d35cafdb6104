#ifndef QNUMERICALWIDGETMULTILEVELSLIDER_H
#define QNUMERICALWIDGETMULTILEVELSLIDER_H

#include "QNumericalWidgetBase.h"
#include "VelaExport.h"

class QEvent;
class QGroupWidget;
class QLabel;
class QMultiLevelSlider;

// A numeric material input of ordered levels (for example low, middle and high) edited on one
// track: a caption label above a multi-level slider whose indicators are the components. The
// slider works in integer levels of 1/10000 over the first component's range; with three
// components the middle indicator is drawn above the track and follows the two ends. Dragging an
// indicator reports ValueChanged, releasing it EditFinished.
class VELA_WIDGETS_EXPORT QNumericalWidgetMultiLevelSlider : public QNumericalWidgetBase
{
    Q_OBJECT

public:
    explicit QNumericalWidgetMultiLevelSlider(QWidget *parent = nullptr);
    ~QNumericalWidgetMultiLevelSlider() override;

    // Re-applies the name, the values and the range. A description of another component count
    // builds a further slider below the old one.
    void SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                 const Lu::CDynamicWidgetDescBase &desc) override;
    Vela::CVector4<float> GetValue() override;

    QMultiLevelSlider *GetMultiLevelSlider();
    // Does nothing: the levels are fixed at four decimals.
    void SetDecimals(unsigned int n);

    static unsigned int SliderCount(Vela::EDynamicWidgetVariableType eType);
    static bool IsFloatType(Vela::EDynamicWidgetVariableType eType);

protected:
    void CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                  const Lu::CDynamicWidgetDescBase &desc) override;
    void UpdateUi(const Vela::CVector4<float> &v) override;
    // Installed on the caption label but filters nothing.
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void OnComboSpinValueChanged();

private:
    void MakeConnections();
    void SetComboSpinValue(const Lu::CDynamicWidgetDescBase &desc);

    QMultiLevelSlider *m_pMultiLevelSlider = nullptr;
    QLabel *m_pLabel = nullptr;
    QGroupWidget *m_pGroupWidget = nullptr; // never made
};

#endif // QNUMERICALWIDGETMULTILEVELSLIDER_H
