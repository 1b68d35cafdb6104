#ifndef QDIALEX_H
#define QDIALEX_H

#include "VelaExport.h"

#include <QDial>

// A dial for property panels: acts on the wheel only while focused and emits RecordEditingValue
// when the user ends an edit that changed the value (release after a drag or a paging click,
// focus-out after a change by keys or wheel).
class VELA_WIDGETS_EXPORT QDialEx : public QDial
{
    Q_OBJECT

public:
    explicit QDialEx(QWidget *parent = nullptr);
    ~QDialEx() override;

signals:
    void RecordEditingValue();

protected:
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void EmitRecordEditingValue();

    bool m_bPressed = false;
    bool m_bDragged = false;
    int m_nRecordValue;
};

#endif // QDIALEX_H
