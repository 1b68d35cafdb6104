#ifndef QNUMERICALWIDGETBASE_H
#define QNUMERICALWIDGETBASE_H

#include "LuDynamicWidgetRecords.h"
#include "VelaExport.h"
#include "VelaResult.h"
#include "VelaVector.h"

#include <QString>
#include <QWidget>

#include <string>

// The common face of the material-parameter widgets. A host builds one widget per material input
// from its variable and description records (Initialize), pushes values in (SetValue,
// UpdateInputValue) and hears the user's edits as ValueChanged / EditFinished, always carrying all
// components packed into one Vela::CVector4f. The concrete widgets build their editors in
// CreateUi, put values into them in UpdateUi and derive the packed value from them in GetValue.
class VELA_WIDGETS_EXPORT QNumericalWidgetBase : public QWidget
{
    Q_OBJECT

public:
    explicit QNumericalWidgetBase(QWidget *parent = nullptr);
    ~QNumericalWidgetBase() override;

    // Copies the base fields of the records, makes sure the widget has a vertical layout without
    // margins and spacing (an existing layout is kept as it is) and builds the editors.
    Vela::Result Initialize(const Lu::CDynamicWidgetVariableBase &var,
                            const Lu::CDynamicWidgetDescBase &desc);

    // Puts v into the editors; whatever signals they raise while being set are passed on.
    void SetValue(const Vela::CVector4<float> &v);
    // Puts v into the editors with this widget's signals blocked: the host's own pushes never come
    // back as ValueChanged or EditFinished.
    void UpdateInputValue(Vela::CVector4<float> v);
    // Shows or hides the widget (signals blocked) and records the visibility.
    void UpdateWidgetVisibibility(bool bVisible);
    // Records the visibility without showing or hiding anything.
    void SetWidgetVisibility(bool bVisible);
    bool GetWidgetVisibility() const;

    bool IsTriggerBake() const;
    QString GetName();
    std::wstring GetKey();
    void SetKey(std::wstring strKey);
    Vela::EDynamicWidgetVariableType GetInputType();
    Vela::EDynamicWidgetBehaviorType GetWidgetType();

    // Re-applies the description: the base copies its fields; widgets that override this call the
    // base first and then update their own presentation without rebuilding their editors.
    virtual void SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                         const Lu::CDynamicWidgetDescBase &desc);
    // The current value, always derived from the editors.
    virtual Vela::CVector4<float> GetValue() = 0;

signals:
    void ValueChanged(Vela::CVector4f vValue);
    void EditFinished(Vela::CVector4f vValue);
    void Clicked();
    void ClickedButton(int nIndex);

protected:
    // Builds the editors from the records.
    virtual void CreateUi(const Lu::CDynamicWidgetVariableBase &var,
                          const Lu::CDynamicWidgetDescBase &desc) = 0;
    // Puts a value into the editors.
    virtual void UpdateUi(const Vela::CVector4<float> &v) = 0;

private:
    void CopyDescFields(const Lu::CDynamicWidgetVariableBase &var,
                        const Lu::CDynamicWidgetDescBase &desc);

    Vela::EDynamicWidgetVariableType m_eInputType = Vela::DynamicVariable_Float1;
    // Holds a real value only once Initialize or SetDesc has run.
    Vela::EDynamicWidgetBehaviorType m_eWidgetType = Vela::DynamicBehavior_Slider;
    QString m_strName;
    bool m_bVisible = true;
    std::wstring m_strKey;
    bool m_bTriggerBake = false;
};

#endif // QNUMERICALWIDGETBASE_H
