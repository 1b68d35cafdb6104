#ifndef VELATEARDOWNPRIVATE_H
#define VELATEARDOWNPRIVATE_H

#include <QObject>

namespace Vela {

// Child editors still emit while QWidget tears them down (hiding the parent moves focus away from
// a focused spin box, which then reports its edit). By then the composite that owns them has
// already been destroyed down to QWidget, so its destructor cuts every connection from its
// descendants to itself first.
inline void DetachFromChildren(QObject *owner)
{
    const QList<QObject *> descendants = owner->findChildren<QObject *>();
    for (QObject *descendant : descendants)
        QObject::disconnect(descendant, nullptr, owner, nullptr);
}

} // namespace Vela

#endif // VELATEARDOWNPRIVATE_H
