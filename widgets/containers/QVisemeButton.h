#ifndef QVISEMEBUTTON_H
#define QVISEMEBUTTON_H

#include "VelaExport.h"

#include <QPoint>
#include <QToolButton>

// A tool button that the user drags onto a viseme key curve widget to free its current slot. The
// drag carries "application/x-visemebutton" and nothing else.
class VELA_WIDGETS_EXPORT QVisemeButton : public QToolButton
{
    Q_OBJECT

public:
    explicit QVisemeButton(QWidget *parent = nullptr);
    ~QVisemeButton() override;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void StartDragButton();

    QPoint m_kDragStartPos;
};

#endif // QVISEMEBUTTON_H
