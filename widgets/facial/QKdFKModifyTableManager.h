#ifndef QKDFKMODIFYTABLEMANAGER_H
#define QKDFKMODIFYTABLEMANAGER_H

#include "VelaContainers.h"
#include "VelaExport.h"

#include <QModelIndex>
#include <QString>
#include <QTableView>

#include <map>
#include <string>
#include <utility>

class CKdFKModifyCellWidget;

// The face sections of the facial-key modify channels; the values index the section maps.
enum ESection : int {
    ESection_Brow = 0,
    ESection_Eye = 1,
    ESection_Nose = 2,
    ESection_Mouth = 3,
    ESection_Custom = 4,
};

// The table of facial-key "modify" channels, one slider cell per channel in five face sections.
// InitManager reads which channels exist and their slider and spin ranges from the host's INI
// file and configures one CKdFKModifyCellWidget per channel; the host places the cells and
// connects their edit signals to UpdateSliderValues, BeginEditSlider, StopEditSlider and
// RenameSlider, which report the channel as the table's own signals. Moving the mouse over the
// view reports the index entered and left.
//
// The weight, name and enable accessors keep fixed results in this table: the host keeps the
// weights itself.
class VELA_WIDGETS_EXPORT QKdFKModifyTableManager : public QTableView
{
    Q_OBJECT

public:
    using ExpressionMap = Vela::CMap<int, int, std::map<int, int>>;

    explicit QKdFKModifyTableManager(QWidget *parent = nullptr);
    ~QKdFKModifyTableManager() override;

    void InitManager(const QString &strIniPath);

    void UpdateSliderValues(CKdFKModifyCellWidget *pkCell);
    void BeginEditSlider(CKdFKModifyCellWidget *pkCell);
    void StopEditSlider(CKdFKModifyCellWidget *pkCell);
    void RenameSlider(CKdFKModifyCellWidget *pkCell);

    std::wstring GetName(int nIndex);
    float GetWeight(int nIndex);
    void GetWeights(Vela::CArrayList<float> &kWeights, Vela::CArrayList<float> &kCustomWeights,
                    Vela::CArrayList<float> &kExtraWeights);
    void SetWeights(const Vela::CArrayList<float> &kWeights,
                    const Vela::CArrayList<float> &kCustomWeights,
                    const Vela::CArrayList<float> &kExtraWeights);
    void SetEnable(const Vela::CArrayList<bool> &kEnable,
                   const Vela::CArrayList<bool> &kCustomEnable,
                   const Vela::CArrayList<bool> &kExtraEnable);
    void UpdateSliderNames(const Vela::CArrayList<std::pair<std::wstring, bool>> &kNames);
    void UpdateSliderShowHide(int nSection, QString strFilter);

signals:
    void ChangeCellSlider(int nSliderId);
    void BeginChangeCellSlider(int nSliderId);
    void StopChangeCellSlider(int nSliderId);
    void RenameCellSlider(int nSliderId);
    void MouseEntered(const QModelIndex &kIndex);
    void MouseLeft(const QModelIndex &kIndex);

protected:
    void GetSectionConvertExpMap(ESection eSection, ExpressionMap &kExpressionMap);
    QString GetSectionModifyString(const QString &strIniPath, int nSection, int nIndex,
                                   QString &strKey);
    Vela::CArrayList<int> GetExtreme(const QString &strIniPath, const QString &strGroup,
                                     const QString &strKey);

    void mouseMoveEvent(QMouseEvent *pkEvent) override;
    bool focusNextPrevChild(bool bNext) override;

    // True while values are being pushed in from outside: the edit forwarders stay silent.
    bool m_bSetValueOutside;

private:
    void InitModifySectionNumMap();
    void InitBrowExpressionMap();
    void InitEyeExpressionMap();
    void InitNoseExpressionMap();
    void InitMousthExpressionMap();
    void InitCustomExpressionMap();

    ExpressionMap m_kModifySectionNumMap;
    ExpressionMap m_kBrowExpressionMap;
    ExpressionMap m_kEyeExpressionMap;
    ExpressionMap m_kNoseExpressionMap;
    ExpressionMap m_kMouthExpressionMap;
    ExpressionMap m_kCustomExpressionMap;
    QModelIndex m_kLastHoverIndex;
};

#endif // QKDFKMODIFYTABLEMANAGER_H
