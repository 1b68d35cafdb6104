#include "QVelaContainer.h"

#include "QTransToolBtn.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

QVelaContainer::QVelaContainer(QWidget *parent)
    : QWidget(parent)
{
    setMouseTracking(true);
}

QVelaContainer::~QVelaContainer()
{
    // The buttons are destroyed after this object's members: stop listening to them first.
    for (QTransToolBtn *pkBtn : qAsConst(m_kBtnMap))
        disconnect(pkBtn, &QObject::destroyed, this, nullptr);
}

void QVelaContainer::InitBtnMap(bool bExclusive)
{
    for (QTransToolBtn *pkBtn : qAsConst(m_kBtnMap))
        disconnect(pkBtn, &QObject::destroyed, this, nullptr);
    m_kBtnMap.clear();
    for (QObject *pkChild : children()) {
        if (QTransToolBtn *pkBtn = qobject_cast<QTransToolBtn *>(pkChild))
            m_kBtnMap.insert(pkBtn->objectName(), pkBtn);
    }
    // A deleted button must not stay in the map.
    for (QTransToolBtn *pkBtn : qAsConst(m_kBtnMap)) {
        connect(pkBtn, &QObject::destroyed, this, [this, pkBtn]() { OnBtnDestroyed(pkBtn); });
    }
    m_bExclusive = bExclusive;
    m_bMapReady = true;
}

void QVelaContainer::GetQTransToolBtns(QList<QTransToolBtn *> &kBtns) const
{
    kBtns = m_kBtnMap.values();
}

bool QVelaContainer::setTransToolBtnState(QString strName, bool bState)
{
    QTransToolBtn *pkBtn = m_kBtnMap.value(strName, nullptr);
    if (strName.isEmpty() || !pkBtn)
        return false;
    pkBtn->setChecked(bState);
    pkBtn->update();
    pkBtn->repaint();
    return true;
}

void QVelaContainer::setMessageToChildState(bool bState)
{
    m_bMessageToChild = bState;
}

bool QVelaContainer::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (const QTransToolBtn *pkBtn = GetHitBtn(static_cast<QMouseEvent *>(event)->pos()))
            m_strPressedBtnName = pkBtn->objectName();
        break;
    case QEvent::MouseButtonRelease:
        OnRelease(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::MouseButtonDblClick: {
        const QMouseEvent *pkEvent = static_cast<QMouseEvent *>(event);
        if (QTransToolBtn *pkBtn = GetHitBtn(pkEvent->pos())) {
            QMouseEvent kButtonEvent(pkEvent->type(), pkBtn->mapFromGlobal(pkEvent->globalPos()),
                                     pkEvent->windowPos(), pkEvent->screenPos(), pkEvent->button(),
                                     pkEvent->buttons(), pkEvent->modifiers(), pkEvent->source());
            pkBtn->mouseDoubleClickEvent(&kButtonEvent);
        }
        break;
    }
    case QEvent::MouseMove:
        // Let the hover images follow the pointer.
        for (QTransToolBtn *pkBtn : qAsConst(m_kBtnMap)) {
            pkBtn->update();
            pkBtn->repaint();
        }
        break;
    default:
        return QWidget::event(event);
    }
    return m_bMessageToChild ? QWidget::event(event) : true;
}

void QVelaContainer::paintEvent(QPaintEvent *)
{
    QStyleOption kOption;
    kOption.initFrom(this);
    QPainter kPainter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &kOption, &kPainter, this);
}

// The first button in name order that a click at kPos (in this widget's coordinates) belongs to.
QTransToolBtn *QVelaContainer::GetHitBtn(const QPoint &kPos) const
{
    for (QTransToolBtn *pkBtn : m_kBtnMap) {
        if (IsBtnHit(pkBtn, kPos))
            return pkBtn;
    }
    return nullptr;
}

bool QVelaContainer::IsBtnHit(const QTransToolBtn *pkBtn, const QPoint &kPos) const
{
    return pkBtn->IsMouseClickAction(pkBtn->mapFromGlobal(mapToGlobal(kPos)));
}

// A release completes a click when it hits the button that the press hit.
void QVelaContainer::OnRelease(const QMouseEvent *event)
{
    QTransToolBtn *pkBtn = m_kBtnMap.value(m_strPressedBtnName, nullptr);
    const bool bHit = pkBtn && IsBtnHit(pkBtn, event->pos());
    if (!bHit) {
        m_strPressedBtnName.clear();
        emit NoBtnClicked();
        return;
    }

    if (event->button() != Qt::LeftButton) {
        pkBtn->update();
        pkBtn->repaint();
        emit BtnRightClicked(pkBtn);
        m_strPressedBtnName.clear();
        return;
    }

    pkBtn->toggle();
    pkBtn->update();
    pkBtn->repaint();
    QList<QString> kNames { pkBtn->objectName() };
    QList<bool> kStates { pkBtn->isChecked() };
    emit BtnClicked(pkBtn);

    if (m_bExclusive) {
        if (m_pkCurrentBtn && m_pkCurrentBtn != pkBtn) {
            const QString strCurrent = m_pkCurrentBtn->objectName();
            setTransToolBtnState(strCurrent, false);
            kNames.append(strCurrent);
            kStates.append(m_pkCurrentBtn->isChecked());
        }
        m_pkCurrentBtn = kStates.first() ? pkBtn : nullptr;
    }
    emit ChangeToolBtnState(kNames, kStates);
    m_strPressedBtnName.clear();
}

void QVelaContainer::OnBtnDestroyed(const QTransToolBtn *pkBtn)
{
    for (auto it = m_kBtnMap.begin(); it != m_kBtnMap.end();) {
        if (it.value() == pkBtn)
            it = m_kBtnMap.erase(it);
        else
            ++it;
    }
    if (m_pkCurrentBtn == pkBtn)
        m_pkCurrentBtn = nullptr;
}
