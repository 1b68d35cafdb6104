#ifndef VISEMEDRAGPRIVATE_H
#define VISEMEDRAGPRIVATE_H

#include <QApplication>
#include <QByteArray>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPoint>
#include <QString>

// The drag start shared by the viseme drag sources (list and button).
namespace VisemeDrag {

inline constexpr char kListItemFormat[] = "application/x-visemelistitem";
inline constexpr char kButtonFormat[] = "application/x-visemebutton";

// True while the left button is held and the mouse has left the press position by at least the
// platform's start-drag distance (Manhattan length).
inline bool ShouldStart(const QMouseEvent *event, const QPoint &kPressPos)
{
    return (event->buttons() & Qt::LeftButton)
        && (event->pos() - kPressPos).manhattanLength() >= QApplication::startDragDistance();
}

// Runs a move-only drag owned by pkSource whose payload is the format itself with empty data,
// plus strText when given; returns when the drag is over.
inline void Run(QObject *pkSource, const char *szFormat, const QString *pstrText = nullptr)
{
    auto *pkMime = new QMimeData;
    pkMime->setData(QLatin1String(szFormat), QByteArray());
    if (pstrText)
        pkMime->setText(*pstrText);
    auto *pkDrag = new QDrag(pkSource);
    pkDrag->setMimeData(pkMime);
    pkDrag->exec(Qt::MoveAction);
}

} // namespace VisemeDrag

#endif // VISEMEDRAGPRIVATE_H
