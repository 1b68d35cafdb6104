#ifndef QSLIDEREX_H
#define QSLIDEREX_H

#include "VelaExport.h"

#include <QSlider>

// A slider for property panels: acts on the wheel only while focused and emits
// RecordEditingValue when the user ends an edit (release after a drag or a paging click, or
// focus-out after a change by keys or wheel). Values set by the program through SetValue are
// never reported as edits.
class VELA_WIDGETS_EXPORT QSliderEx : public QSlider
{
    Q_OBJECT

public:
    explicit QSliderEx(QWidget *parent = nullptr);
    explicit QSliderEx(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~QSliderEx() override;

    // Sets the value (the usual slider signals follow) and records it.
    void SetValue(int value);

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
    void sliderChange(SliderChange change) override;
    void paintEvent(QPaintEvent *event) override;

private:
    // Hides the base setter: use SetValue, which records the value.
    void setValue(int value);
    void EmitRecordEditingValue();

    bool m_bPressed = false;
    bool m_bDragged = false;
    int m_nRecordValue;
};

#endif // QSLIDEREX_H
