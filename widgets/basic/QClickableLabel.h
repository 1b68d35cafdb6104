#ifndef QCLICKABLELABEL_H
#define QCLICKABLELABEL_H

#include "VelaExport.h"

#include <QLabel>

// A label that reports presses and double-clicks of any mouse button. The presses are consumed
// here, so they neither select text nor activate links.
class VELA_WIDGETS_EXPORT QClickableLabel : public QLabel
{
    Q_OBJECT

public:
    explicit QClickableLabel(QWidget *parent = nullptr);

signals:
    void clicked();
    void doubleClicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
};

#endif // QCLICKABLELABEL_H
