#ifndef QVISEMELISTWIDGET_H
#define QVISEMELISTWIDGET_H

#include "VelaExport.h"

#include <QListWidget>
#include <QPoint>

// A list of viseme names from which the user drags a name onto a viseme key curve widget. The
// drag carries "application/x-visemelistitem" with the name as its text.
class VELA_WIDGETS_EXPORT QVisemeListWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit QVisemeListWidget(QWidget *parent = nullptr);
    ~QVisemeListWidget() override;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void StartDragItem();

    QPoint m_kDragStartPos;
};

#endif // QVISEMELISTWIDGET_H
