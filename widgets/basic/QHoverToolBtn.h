#ifndef QHOVERTOOLBTN_H
#define QHOVERTOOLBTN_H

#include "VelaExport.h"

#include <QToolButton>

// A tool button that tells the host when the pointer enters and leaves it, for example to show
// a preview while the pointer rests on the button.
class VELA_WIDGETS_EXPORT QHoverToolBtn : public QToolButton
{
    Q_OBJECT

public:
    explicit QHoverToolBtn(QWidget *parent = nullptr);

    // Announces a hover and switches the widget's hover tracking (Qt::WA_Hover) on or off.
    void setHovered(bool on);

signals:
    void hovered();
    void left();

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
};

#endif // QHOVERTOOLBTN_H
