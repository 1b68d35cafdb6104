#ifndef QDRAGDROPLISTWIDGET_H
#define QDRAGDROPLISTWIDGET_H

#include "VelaExport.h"

#include <QList>
#include <QListWidget>
#include <QString>

class QDragEnterEvent;
class QDragMoveEvent;
class QDropEvent;
class QMouseEvent;

// What the host decides about files dragged onto a QDragDropListWidget. The defaults refuse
// everything. The host owns the object; the list never deletes it.
class VELA_WIDGETS_EXPORT QDragDropListWidgetInterface
{
public:
    // May a drag of these files continue over the list?
    virtual bool CanDragEnter(QList<QString> kFiles);
    // One file dropped on an item: true when the host took it.
    virtual bool CanDropFile(QString strFile, QListWidgetItem *pItem);
    // Files dropped on empty space: true when the host took them.
    virtual bool CanDropFileList(QList<QString> kFiles);
    virtual void MouseRButtonRelease();
};

// A list that accepts files dragged in from outside the application (for example from the file
// manager) and leaves every decision about them to the host's interface. Items carrying a
// negative Qt::UserRole value refuse drops; the item under a drag is marked with
// Qt::UserRole + 10 so that a delegate can highlight it. The list never takes its own items.
// Whether it takes drops at all stays the host's choice (setAcceptDrops).
class VELA_WIDGETS_EXPORT QDragDropListWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit QDragDropListWidget(QWidget *parent = nullptr);

    // Not owned; null refuses every drag.
    void SetInterface(QDragDropListWidgetInterface *pkInterface);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    QDragDropListWidgetInterface *m_pkInterface = nullptr;
    QWidget *m_pkWindow = nullptr;
};

#endif // QDRAGDROPLISTWIDGET_H
