#ifndef QINTEGERSLIDERWITHRENAMEBUTTON_H
#define QINTEGERSLIDERWITHRENAMEBUTTON_H

#include "VelaExport.h"
#include "ui_IntegerSliderWithRenameButtonWidget.h"

#include <QWidget>

// A named integer editor: a name label with a small rename button beside it, above a
// QComboSpinBox. It adds no behaviour of its own; the host sets the name, reacts to the rename
// button and uses the editor through the accessors.
class VELA_WIDGETS_EXPORT QIntegerSliderWithRenameButton : public QWidget
{
    Q_OBJECT

public:
    explicit QIntegerSliderWithRenameButton(QWidget *parent = nullptr);
    ~QIntegerSliderWithRenameButton() override;

    QLabel *GetNameLabel();
    QToolButton *GetRenameButton();
    QComboSpinBox *GetSlider();

    int Spacing();
    void SetSpacing(int nSpacing);

    Ui::IntegerSliderWithRenameButtonWidget *UI();

private:
    Ui::IntegerSliderWithRenameButtonWidget m_kUi;
};

#endif // QINTEGERSLIDERWITHRENAMEBUTTON_H
