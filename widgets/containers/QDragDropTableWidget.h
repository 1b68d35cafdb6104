#ifndef QDRAGDROPTABLEWIDGET_H
#define QDRAGDROPTABLEWIDGET_H

#include "VelaExport.h"

#include <QList>
#include <QString>
#include <QTableWidget>

class QDragEnterEvent;
class QDragMoveEvent;
class QDropEvent;
class QMouseEvent;

// What the host decides about files dragged onto a QDragDropTableWidget. The defaults refuse
// everything. The host owns the object; the table never deletes it.
class VELA_WIDGETS_EXPORT QDragDropTableWidgetInterface
{
public:
    // May a drag of these files continue over the table?
    virtual bool CanDragEnter(QList<QString> kFiles);
    // One file dropped on a cell: true when the host took it.
    virtual bool CanDropFile(QString strFile, QTableWidgetItem *pItem);
    // Files dropped on empty space: true when the host took them.
    virtual bool CanDropFileList(QList<QString> kFiles);
    virtual void MouseRButtonRelease();
};

// A table that accepts files dragged in from outside the application and leaves every decision
// about them to the host's interface. Whether it takes drops at all stays the host's choice
// (setAcceptDrops).
class VELA_WIDGETS_EXPORT QDragDropTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    explicit QDragDropTableWidget(QWidget *parent = nullptr);

    // Not owned; null refuses every drag.
    void SetInterface(QDragDropTableWidgetInterface *pkInterface);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    QDragDropTableWidgetInterface *m_pkInterface = nullptr;
    QWidget *m_pkWindow = nullptr;
};

#endif // QDRAGDROPTABLEWIDGET_H
