#ifndef CKDFKMODIFYCELLWIDGET_H
#define CKDFKMODIFYCELLWIDGET_H

#include "VelaContainers.h"
#include "VelaExport.h"

#include <QString>
#include <QWidget>

class QComboSpinBox;
class QIntegerSliderWithRenameButton;
class QKdFKModifyTableManager;
class QLabel;

// One facial-key modify channel of QKdFKModifyTableManager: a named integer slider-spin box
// whose edits are reported as one session each (SliderEditStarted, SliderValueChanged...,
// SliderEditFinished). A double-click toggles the channel between 0 and 100.
class VELA_WIDGETS_EXPORT CKdFKModifyCellWidget : public QWidget
{
    Q_OBJECT

public:
    explicit CKdFKModifyCellWidget(QWidget *parent = nullptr);
    ~CKdFKModifyCellWidget() override;

    void SetItem(int nID, int nValue, const QString &strName,
                 const Vela::CArrayList<int> &kSliderExtreme,
                 const Vela::CArrayList<int> &kSpinExtreme, QKdFKModifyTableManager *pManager);

    int GetValue();
    void SetValue(int nValue);
    int GetMinimum();
    void SetMinimum(int nValue);
    int GetMaximum();
    void SetMaximum(int nValue);
    int GetSpinMinimum();
    void SetSpinMinimum(int nValue);
    int GetSpinMaximum();
    void SetSpinMaximum(int nValue);

    int GetWeightWithID(int &nID);
    int GetID();

    void SetRenameButtonVisible(bool bVisible);
    QComboSpinBox *GetSlider();
    QLabel *GetNameLabel();
    bool IsEditing();

    bool eventFilter(QObject *pkWatched, QEvent *pkEvent) override;

public slots:
    void OnSliderValueChanged(int nSliderValue);
    void OnSliderEditStarted();
    void OnSliderEditFinished();
    void Rename();

signals:
    void SliderValueChanged(int nSliderValue);
    void SliderEditStarted();
    void SliderEditFinished();

protected:
    void mouseDoubleClickEvent(QMouseEvent *pkEvent) override;

private:
    void EmitSliderEditStarted();
    void EmitSliderEditFinished();

    int ID;
    int m_nWeight;
    QString m_strName;
    QString m_strKey;
    QIntegerSliderWithRenameButton *m_pkSlider;
    QKdFKModifyTableManager *m_pkManager;
    bool m_bEditing;
};

#endif // CKDFKMODIFYCELLWIDGET_H
