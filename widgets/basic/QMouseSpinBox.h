#ifndef QMOUSESPINBOX_H
#define QMOUSESPINBOX_H

#include "VelaExport.h"

#include <QDoubleSpinBox>
#include <QPoint>

// A double spin box whose value follows the mouse: while the left button is held, every move
// event steps the value once, up when the pointer moved up or sideways and down when it moved
// down. The text shows its own number of decimals, independent of decimals(), which still
// governs rounding and input.
class VELA_WIDGETS_EXPORT QMouseSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit QMouseSpinBox(QWidget *parent = nullptr);

    void SetDecNum(int n);

    QString textFromValue(double v) const override;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QPoint m_kLastMousePos;
    bool m_bDragging = false;
    int m_nDecNum = 2;
};

#endif // QMOUSESPINBOX_H
