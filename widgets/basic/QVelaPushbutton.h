#ifndef QVELAPUSHBUTTON_H
#define QVELAPUSHBUTTON_H

#include "VelaExport.h"

#include <QPushButton>

// A push button that tells the left and the right mouse button apart, for single clicks (on
// release, wherever the pointer is then) and for double-clicks. The standard clicked() signal
// still follows the usual left-button rules.
class VELA_WIDGETS_EXPORT QVelaPushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit QVelaPushButton(QWidget *parent = nullptr);

signals:
    void RightClicked();
    void LeftClicked();
    void RightDoubleClicked();
    void LeftDoubleClicked();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
};

#endif // QVELAPUSHBUTTON_H
