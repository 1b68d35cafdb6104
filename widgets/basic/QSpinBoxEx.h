#ifndef QSPINBOXEX_H
#define QSPINBOXEX_H

#include "VelaExport.h"

#include <QSpinBox>

// An integer spin box for long, scrollable property panels. It acts on the wheel only while
// focused, lets the user type any number of the range's digit count while focused and enforces
// the real range when editing ends, and reports each user edit as one session:
// EditingValueStarted when it begins, RecordEditingValue when it ends with a new value.
class VELA_WIDGETS_EXPORT QSpinBoxEx : public QSpinBox
{
    Q_OBJECT

public:
    explicit QSpinBoxEx(QWidget *parent = nullptr);
    ~QSpinBoxEx() override;

    void stepBy(int steps) override;

signals:
    void EditingValueStarted();
    void RecordEditingValue();

protected:
    QValidator::State validate(QString &input, int &pos) const override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void EmitRecordEditingValue();
    void EmitEditingValueStarted();
    int NewValueFromText(const QString &text) const;
    int CheckLimitValue() const;
    int GetNumberIntDecimals(int value) const;
    int GetSpinBoxMaxNumber(int maximum) const;
    int GetSpinBoxMinNumber(int minimum) const;
    void SetupEditingMinMaxNumber();
    int RealMaximum() const;
    int RealMinimum() const;

    int m_nRecordValue;
    bool m_bStepping = false;
    bool m_bRangeSaved = false;
    int m_nRealMax;
    int m_nRealMin;
};

#endif // QSPINBOXEX_H
