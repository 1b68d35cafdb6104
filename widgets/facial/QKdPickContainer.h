#ifndef QKDPICKCONTAINER_H
#define QKDPICKCONTAINER_H

#include "VelaExport.h"

#include <QList>
#include <QString>
#include <QWidget>

#include <vector>

class QTransToolBtn;

// A container for image-shaped, checkable QTransToolBtn children laid over one another, such as
// the pickable regions of a face. The buttons pass their mouse events on to this container, which
// decides which button a click picks (the first hit in child order), keeps the check states in
// line with the selection mode and announces every pick with UpdateToolBtnState(). Buttons are
// identified by their object names.
class VELA_WIDGETS_EXPORT QKdPickContainer : public QWidget
{
    Q_OBJECT

public:
    explicit QKdPickContainer(QWidget *parent = nullptr);

    bool IsSingleSelect() const;
    void SetSingleSelect(bool bSingleSelect);
    // In multi-select mode, whether a click may not deselect the last selected button.
    void SetKeepLastOneBtn(bool bKeepLastOne);
    // Buttons that are re-checked after every click and never count as selected.
    void SetKeepSelectedBtns(std::vector<QString> kNames);
    void ClearKeepSelectedBtns();

    QString GetPickedBtnName() const;
    bool GetPickedBtnState() const;

    void GetQTransToolBtns(QList<QTransToolBtn *> &kBtns) const;
    std::vector<QString> GetAllBtnNames() const;
    // The enabled and checked buttons, read from the buttons themselves.
    std::vector<QString> GetSelectedBtnNames() const;

    // Checks or unchecks a button by name as a pick would, without a signal.
    bool setTransToolBtnState(QString strName, bool bState);
    void SetAllBtnsOff();
    void SetAllBtnsOn();
    void SetAllBtnsInvert();
    void SetBtnsState(std::vector<QString> kNames, bool bState);
    void SetBtnsEnable(std::vector<QString> kNames, bool bEnable);
    // bMode false enables every button; true enables exactly the buttons in kNames.
    void UpateBtnStateByMode(bool bMode, std::vector<QString> kNames);
    void SetCursor(const QCursor &kCursor);

signals:
    void UpdateToolBtnState();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void PickAt(const QPoint &kPos);
    bool IsKeptSelected(const QString &strName) const;
    void UpdateSelectionList(const QString &strName, bool bSelected);

    bool m_bSingleSelect = false;
    bool m_bPickedBtnState = false;
    bool m_bKeepLastOneBtn = true;
    QString m_strPickedBtnName;
    std::vector<QString> m_kSelectedBtnNames;
    std::vector<QString> m_kKeepSelectedBtnNames;
};

#endif // QKDPICKCONTAINER_H
