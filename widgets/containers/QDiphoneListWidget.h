#ifndef QDIPHONELISTWIDGET_H
#define QDIPHONELISTWIDGET_H

#include "VelaExport.h"

#include <QListWidget>

// A list of diphones with a context menu that asks the owner to delete the current row; the list
// itself removes nothing.
class VELA_WIDGETS_EXPORT QDiphoneListWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit QDiphoneListWidget(QWidget *parent = nullptr);
    ~QDiphoneListWidget() override;

public slots:
    void OnDeleteActionTrigger();

signals:
    void DeleteCurrentRow(int nRowIndex);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
};

#endif // QDIPHONELISTWIDGET_H
