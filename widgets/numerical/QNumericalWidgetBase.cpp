#include "QNumericalWidgetBase.h"

#include <QSignalBlocker>
#include <QVBoxLayout>

// Signals and queued connections carry the packed value under the name the signatures spell.
static const int s_vectorMetaTypeId = qRegisterMetaType<Vela::CVector4f>("Vela::CVector4f");

QNumericalWidgetBase::QNumericalWidgetBase(QWidget *parent)
    : QWidget(parent)
{
    Q_UNUSED(s_vectorMetaTypeId);
}

QNumericalWidgetBase::~QNumericalWidgetBase()
{
    // Editors still emit while QWidget tears them down (a focused spin box reports editingFinished
    // as focus leaves it). The concrete widget that packs their values is gone by then, so cut
    // every connection from the children to this widget first.
    const QList<QObject *> descendants = findChildren<QObject *>();
    for (QObject *descendant : descendants)
        disconnect(descendant, nullptr, this, nullptr);
}

Vela::Result QNumericalWidgetBase::Initialize(const Lu::CDynamicWidgetVariableBase &var,
                                              const Lu::CDynamicWidgetDescBase &desc)
{
    CopyDescFields(var, desc);
    if (!layout()) {
        auto *mainLayout = new QVBoxLayout;
        mainLayout->setSpacing(0);
        mainLayout->setContentsMargins(0, 0, 0, 0);
        setLayout(mainLayout);
    }
    CreateUi(var, desc);
    return Vela::Result(Vela::Result::Success);
}

void QNumericalWidgetBase::SetValue(const Vela::CVector4<float> &v)
{
    UpdateUi(v);
}

void QNumericalWidgetBase::UpdateInputValue(Vela::CVector4<float> v)
{
    const QSignalBlocker blocker(this);
    UpdateUi(v);
}

void QNumericalWidgetBase::UpdateWidgetVisibibility(bool bVisible)
{
    const QSignalBlocker blocker(this);
    setVisible(bVisible);
    m_bVisible = bVisible;
}

void QNumericalWidgetBase::SetWidgetVisibility(bool bVisible)
{
    m_bVisible = bVisible;
}

bool QNumericalWidgetBase::GetWidgetVisibility() const
{
    return m_bVisible;
}

bool QNumericalWidgetBase::IsTriggerBake() const
{
    return m_bTriggerBake;
}

QString QNumericalWidgetBase::GetName()
{
    return m_strName;
}

std::wstring QNumericalWidgetBase::GetKey()
{
    return m_strKey;
}

void QNumericalWidgetBase::SetKey(std::wstring strKey)
{
    m_strKey = std::move(strKey);
}

Vela::EDynamicWidgetVariableType QNumericalWidgetBase::GetInputType()
{
    return m_eInputType;
}

Vela::EDynamicWidgetBehaviorType QNumericalWidgetBase::GetWidgetType()
{
    return m_eWidgetType;
}

void QNumericalWidgetBase::SetDesc(const Lu::CDynamicWidgetVariableBase &var,
                                   const Lu::CDynamicWidgetDescBase &desc)
{
    CopyDescFields(var, desc);
}

void QNumericalWidgetBase::CopyDescFields(const Lu::CDynamicWidgetVariableBase &var,
                                          const Lu::CDynamicWidgetDescBase &desc)
{
    m_eInputType = var.eType;
    m_eWidgetType = desc.eBehaviorType;
    m_bTriggerBake = desc.bTriggerBake;
    m_strName = QString::fromStdWString(desc.strName);
}
