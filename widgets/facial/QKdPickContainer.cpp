#include "QKdPickContainer.h"

#include "QTransToolBtn.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace {

bool Contains(const std::vector<QString> &kNames, const QString &strName)
{
    return std::find(kNames.begin(), kNames.end(), strName) != kNames.end();
}

void AppendUnique(std::vector<QString> &kNames, const QString &strName)
{
    if (!Contains(kNames, strName))
        kNames.push_back(strName);
}

void RemoveFirst(std::vector<QString> &kNames, const QString &strName)
{
    const auto it = std::find(kNames.begin(), kNames.end(), strName);
    if (it != kNames.end())
        kNames.erase(it);
}

void SetCheckedNow(QTransToolBtn *pkBtn, bool bChecked)
{
    pkBtn->setChecked(bChecked);
    pkBtn->update();
    pkBtn->repaint();
}

void ToggleNow(QTransToolBtn *pkBtn)
{
    pkBtn->toggle();
    pkBtn->update();
    pkBtn->repaint();
}

} // namespace

QKdPickContainer::QKdPickContainer(QWidget *parent)
    : QWidget(parent)
{ }

bool QKdPickContainer::IsSingleSelect() const
{
    return m_bSingleSelect;
}

void QKdPickContainer::SetSingleSelect(bool bSingleSelect)
{
    m_bSingleSelect = bSingleSelect;
}

void QKdPickContainer::SetKeepLastOneBtn(bool bKeepLastOne)
{
    m_bKeepLastOneBtn = bKeepLastOne;
}

void QKdPickContainer::SetKeepSelectedBtns(std::vector<QString> kNames)
{
    m_kKeepSelectedBtnNames = std::move(kNames);
}

void QKdPickContainer::ClearKeepSelectedBtns()
{
    m_kKeepSelectedBtnNames.clear();
}

QString QKdPickContainer::GetPickedBtnName() const
{
    return m_strPickedBtnName;
}

bool QKdPickContainer::GetPickedBtnState() const
{
    return m_bPickedBtnState;
}

void QKdPickContainer::GetQTransToolBtns(QList<QTransToolBtn *> &kBtns) const
{
    kBtns.clear();
    for (QObject *pkChild : children()) {
        if (QTransToolBtn *pkBtn = qobject_cast<QTransToolBtn *>(pkChild))
            kBtns.append(pkBtn);
    }
}

std::vector<QString> QKdPickContainer::GetAllBtnNames() const
{
    QList<QTransToolBtn *> kBtns;
    GetQTransToolBtns(kBtns);
    std::vector<QString> kNames;
    for (const QTransToolBtn *pkBtn : qAsConst(kBtns))
        kNames.push_back(pkBtn->objectName());
    return kNames;
}

std::vector<QString> QKdPickContainer::GetSelectedBtnNames() const
{
    QList<QTransToolBtn *> kBtns;
    GetQTransToolBtns(kBtns);
    std::vector<QString> kNames;
    for (const QTransToolBtn *pkBtn : qAsConst(kBtns)) {
        if (pkBtn->isEnabled() && pkBtn->isChecked())
            kNames.push_back(pkBtn->objectName());
    }
    return kNames;
}

bool QKdPickContainer::setTransToolBtnState(QString strName, bool bState)
{
    QList<QTransToolBtn *> kBtns;
    GetQTransToolBtns(kBtns);
    if (strName.isEmpty() || kBtns.isEmpty())
        return false;

    for (QTransToolBtn *pkBtn : qAsConst(kBtns)) {
        if (pkBtn->objectName() == strName) {
            SetCheckedNow(pkBtn, bState);
            if (bState)
                m_strPickedBtnName = strName;
            break;
        }
    }
    for (QTransToolBtn *pkBtn : qAsConst(kBtns)) {
        if (m_bSingleSelect && pkBtn->objectName() != strName)
            SetCheckedNow(pkBtn, false);
        UpdateSelectionList(pkBtn->objectName(), pkBtn->isChecked());
    }
    return true;
}

void QKdPickContainer::SetAllBtnsOff()
{
    QList<QTransToolBtn *> kBtns;
    GetQTransToolBtns(kBtns);
    for (QTransToolBtn *pkBtn : qAsConst(kBtns))
        SetCheckedNow(pkBtn, false);
}

void QKdPickContainer::SetAllBtnsOn()
{
    QList<QTransToolBtn *> kBtns;
    GetQTransToolBtns(kBtns);
    for (QTransToolBtn *pkBtn : qAsConst(kBtns))
        SetCheckedNow(pkBtn, true);
}

void QKdPickContainer::SetAllBtnsInvert()
{
    QList<QTransToolBtn *> kBtns;
    GetQTransToolBtns(kBtns);
    for (QTransToolBtn *pkBtn : qAsConst(kBtns))
        SetCheckedNow(pkBtn, !pkBtn->isChecked());
}

void QKdPickContainer::SetBtnsState(std::vector<QString> kNames, bool bState)
{
    QList<QTransToolBtn *> kBtns;
    GetQTransToolBtns(kBtns);
    for (QTransToolBtn *pkBtn : qAsConst(kBtns)) {
        if (!Contains(kNames, pkBtn->objectName()))
            continue;
        SetCheckedNow(pkBtn, bState);
        // Recorded as selected even when unchecked: hosts rely on this.
        AppendUnique(m_kSelectedBtnNames, pkBtn->objectName());
    }
}

void QKdPickContainer::SetBtnsEnable(std::vector<QString> kNames, bool bEnable)
{
    QList<QTransToolBtn *> kBtns;
    GetQTransToolBtns(kBtns);
    for (QTransToolBtn *pkBtn : qAsConst(kBtns)) {
        if (Contains(kNames, pkBtn->objectName()))
            pkBtn->setEnabled(bEnable);
    }
}

void QKdPickContainer::UpateBtnStateByMode(bool bMode, std::vector<QString> kNames)
{
    QList<QTransToolBtn *> kBtns;
    GetQTransToolBtns(kBtns);
    for (QTransToolBtn *pkBtn : qAsConst(kBtns))
        pkBtn->setEnabled(!bMode || Contains(kNames, pkBtn->objectName()));
}

void QKdPickContainer::SetCursor(const QCursor &kCursor)
{
    QList<QTransToolBtn *> kBtns;
    GetQTransToolBtns(kBtns);
    for (QTransToolBtn *pkBtn : qAsConst(kBtns))
        pkBtn->setCursor(kCursor);
}

bool QKdPickContainer::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseMove: {
        // Let the hover images follow the pointer.
        QList<QTransToolBtn *> kBtns;
        GetQTransToolBtns(kBtns);
        for (QTransToolBtn *pkBtn : qAsConst(kBtns)) {
            pkBtn->update();
            pkBtn->repaint();
        }
        return true;
    }
    case QEvent::MouseButtonRelease:
        PickAt(static_cast<QMouseEvent *>(event)->pos());
        return true;
    default:
        return QWidget::event(event);
    }
}

void QKdPickContainer::paintEvent(QPaintEvent *)
{
    QStyleOption kOption;
    kOption.initFrom(this);
    QPainter kPainter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &kOption, &kPainter, this);
}

// Picks the first button in child order that is hit at kPos and brings every button's check
// state and the selection list in line with the selection mode.
void QKdPickContainer::PickAt(const QPoint &kPos)
{
    QList<QTransToolBtn *> kBtns;
    GetQTransToolBtns(kBtns);
    const QPoint kGlobalPos = mapToGlobal(kPos);

    QTransToolBtn *pkPicked = nullptr;
    for (QTransToolBtn *pkBtn : qAsConst(kBtns)) {
        if (pkBtn->IsMouseClickAction(pkBtn->mapFromGlobal(kGlobalPos))) {
            pkPicked = pkBtn;
            break;
        }
    }
    if (!pkPicked)
        return;

    ToggleNow(pkPicked);
    // A click never unchecks in single-select mode.
    if (m_bSingleSelect && !pkPicked->isChecked())
        ToggleNow(pkPicked);

    const QString strPicked = pkPicked->objectName();
    m_strPickedBtnName = strPicked;
    m_bPickedBtnState = pkPicked->isChecked();

    for (QTransToolBtn *pkBtn : qAsConst(kBtns)) {
        const bool bKept = IsKeptSelected(pkBtn->objectName());
        if (bKept)
            SetCheckedNow(pkBtn, true);
        if (m_bSingleSelect && pkBtn->objectName() != strPicked && !bKept)
            SetCheckedNow(pkBtn, false);
        UpdateSelectionList(pkBtn->objectName(), pkBtn->isChecked() && !bKept);
    }

    // In multi-select mode the last selected button stays selected.
    if (!m_bSingleSelect && m_kSelectedBtnNames.empty() && m_bKeepLastOneBtn) {
        for (QTransToolBtn *pkBtn : qAsConst(kBtns)) {
            if (pkBtn->objectName() == strPicked) {
                SetCheckedNow(pkBtn, true);
                m_kSelectedBtnNames.push_back(strPicked);
                break;
            }
        }
    }

    emit UpdateToolBtnState();
}

bool QKdPickContainer::IsKeptSelected(const QString &strName) const
{
    return Contains(m_kKeepSelectedBtnNames, strName);
}

// Records a button as selected (once), or forgets its first record.
void QKdPickContainer::UpdateSelectionList(const QString &strName, bool bSelected)
{
    if (bSelected)
        AppendUnique(m_kSelectedBtnNames, strName);
    else
        RemoveFirst(m_kSelectedBtnNames, strName);
}
