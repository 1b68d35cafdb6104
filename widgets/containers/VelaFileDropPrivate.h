#ifndef VELAFILEDROPPRIVATE_H
#define VELAFILEDROPPRIVATE_H

// Library-internal: the file-drop rules that the drag-and-drop list and table share. The widgets
// only translate the dragged links into local paths and let the host's interface decide.

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QList>
#include <QMimeData>
#include <QString>
#include <QUrl>
#include <QWidget>

namespace VelaFileDrop {

// The dragged links as local file paths, in drag order; empty when the drag carries no links.
inline QList<QString> LocalFiles(const QMimeData *mimeData)
{
    QList<QString> files;
    if (!mimeData || !mimeData->hasUrls())
        return files;
    const QList<QUrl> urls = mimeData->urls();
    files.reserve(urls.size());
    for (const QUrl &url : urls)
        files.append(url.toLocalFile());
    return files;
}

inline void BringToFront(QWidget *window)
{
    window->raise();
    window->activateWindow();
}

// Files arriving from outside: the host's window comes forward and the interface decides
// whether the drag may continue. Without a window to bring forward the drag stays refused.
template<class Interface>
void DragEnter(QDragEnterEvent *event, QWidget *window, Interface *pkInterface)
{
    event->ignore();
    const QList<QString> files = LocalFiles(event->mimeData());
    if (files.isEmpty() || !window)
        return;
    BringToFront(window);
    if (pkInterface && pkInterface->CanDragEnter(files))
        event->acceptProposedAction();
}

// A drop on empty space offers every file to the interface; a drop on an item offers only the
// first file, for that item. The widget adds nothing itself.
template<class Interface, class View>
void Drop(QDropEvent *event, View *view, QWidget *window, Interface *pkInterface)
{
    event->ignore();
    const QList<QString> files = LocalFiles(event->mimeData());
    if (files.isEmpty() || !window)
        return;

    auto *item = view->itemAt(event->pos());
    const bool bTaken = item ? pkInterface && pkInterface->CanDropFile(files.first(), item)
                             : pkInterface && pkInterface->CanDropFileList(files);
    if (bTaken)
        event->acceptProposedAction();
    BringToFront(window);
}

} // namespace VelaFileDrop

#endif // VELAFILEDROPPRIVATE_H
