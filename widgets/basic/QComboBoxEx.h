#ifndef QCOMBOBOXEX_H
#define QCOMBOBOXEX_H

#include "VelaExport.h"

#include <QComboBox>

// A combo box for property panels: the wheel changes the selection only while it has focus, and
// not at all when ignoreWheelEvent is set.
class VELA_WIDGETS_EXPORT QComboBoxEx : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(bool ignoreWheelEvent READ IgnoreWheelEvent WRITE SetIgnoreWheelEvent)

public:
    explicit QComboBoxEx(QWidget *parent = nullptr);
    ~QComboBoxEx() override;

    bool IgnoreWheelEvent() const;
    void SetIgnoreWheelEvent(bool bIgnore);

protected:
    void wheelEvent(QWheelEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool m_bIgnoreWheelEvent = false;
};

#endif // QCOMBOBOXEX_H
