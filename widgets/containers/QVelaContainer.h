#ifndef QVELACONTAINER_H
#define QVELACONTAINER_H

#include "VelaExport.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QWidget>

class QAbstractButton;
class QTransToolBtn;

// A button bar of image-shaped QTransToolBtn children that may overlap. The buttons pass their
// mouse events on to this container, which turns them into clicks: a click counts only when press
// and release hit the same button (the first hit in object-name order), right clicks are reported
// apart, and in exclusive mode at most one button stays checked. Each change is reported as the
// names of the buttons concerned with their new check states.
class VELA_WIDGETS_EXPORT QVelaContainer : public QWidget
{
    Q_OBJECT

public:
    explicit QVelaContainer(QWidget *parent = nullptr);
    ~QVelaContainer() override;

    // Collects the QTransToolBtn children by object name; call it once the buttons exist.
    void InitBtnMap(bool bExclusive);
    void GetQTransToolBtns(QList<QTransToolBtn *> &kBtns) const;
    bool setTransToolBtnState(QString strName, bool bState);
    // Whether handled mouse events are also given to QWidget::event afterwards.
    void setMessageToChildState(bool bState);

signals:
    void BtnClicked(QAbstractButton *pkBtn);
    void BtnRightClicked(QAbstractButton *pkBtn);
    void ChangeToolBtnState(const QList<QString> &kBtnNames, const QList<bool> &kStates);
    void NoBtnClicked();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QTransToolBtn *GetHitBtn(const QPoint &kPos) const;
    bool IsBtnHit(const QTransToolBtn *pkBtn, const QPoint &kPos) const;
    void OnRelease(const QMouseEvent *event);
    void OnBtnDestroyed(const QTransToolBtn *pkBtn);

    bool m_bMessageToChild = false;
    QMap<QString, QTransToolBtn *> m_kBtnMap;
    bool m_bMapReady = false;
    QString m_strPressedBtnName;
    bool m_bExclusive = false;
    QTransToolBtn *m_pkCurrentBtn = nullptr;
};

#endif // QVELACONTAINER_H
