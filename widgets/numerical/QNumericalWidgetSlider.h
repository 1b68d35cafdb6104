#ifndef QNUMERICALWIDGETSLIDER_H
#define QNUMERICALWIDGETSLIDER_H

#include "QNumericalWidgetBase.h"
#include "VelaExport.h"

#include <QList>

class QComboDoubleSpinBox;
class QEvent;
class QGroupWidget;
class QLabel;

// The general editor of a numeric material input: one slider–spin-box editor per component (one
// to four, float or integer). A single component sits below a caption label that resets it on a
// double-click; several components are gathered in a collapsible group widget, each editor with
// its caption from the description's label map. Slider drags and spin-box edits report
// ValueChanged while they move and EditFinished when the user lets go.
class VELA_WIDGETS_EXPORT QNumericalWidgetSlider : public QNumericalWidgetBase
{
    Q_OBJECT

public:
    explicit QNumericalWidgetSlider(QWidget *parent = nullptr);
    ~QNumericalWidgetSlider() override;

    // Re-applies names, ranges, steps and values to the existing editors. A description of another
    // component count builds a further set of editors after the old ones.
    void SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                 const Lu::CDynamicWidgetDescBase &desc) override;
    Vela::CVector4<float> GetValue() override;

    QList<QComboDoubleSpinBox *> &GetComboSpins();
    // Float inputs only: shows n decimals and re-applies the current ranges in the new fixed-point
    // scale. Integer inputs keep 0 decimals.
    void SetDecimals(unsigned int n);

    static unsigned int SliderCount(Vela::EDynamicWidgetVariableType eType);
    static bool IsFloatType(Vela::EDynamicWidgetVariableType eType);

protected:
    void CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                  const Lu::CDynamicWidgetDescBase &desc) override;
    void UpdateUi(const Vela::CVector4<float> &v) override;
    // A left double-click on the caption label resets every editor to its default.
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void OnComboSpinValueChanged();

private:
    void MakeConnections();
    void SetComboSpinValue(unsigned int index, QComboDoubleSpinBox *pComboSpin, double step,
                           int decimals, bool unitRange, const Lu::CDynamicWidgetDescBase &desc);

    QList<QComboDoubleSpinBox *> m_listComboSpins;
    QLabel *m_pLabel = nullptr;
    QGroupWidget *m_pGroupWidget = nullptr;
};

#endif // QNUMERICALWIDGETSLIDER_H
