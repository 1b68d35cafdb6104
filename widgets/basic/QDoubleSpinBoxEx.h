#ifndef QDOUBLESPINBOXEX_H
#define QDOUBLESPINBOXEX_H

#include "VelaExport.h"

#include <QDoubleSpinBox>

// The floating-point sibling of QSpinBoxEx: wheel only while focused, a widened editing range
// while focused, stepping confined to the real range, and RecordEditingValue when an edit ends
// with a new value. It has no start signal.
class VELA_WIDGETS_EXPORT QDoubleSpinBoxEx : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit QDoubleSpinBoxEx(QWidget *parent = nullptr);
    ~QDoubleSpinBoxEx() override;

    void stepBy(int steps) override;

signals:
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
    double NewValueFromText(const QString &text) const;
    void CheckLimitValue();
    int GetNumberIntDecimals(double value) const;
    double GetSpinBoxMaxNumber(double maximum, int decimals) const;
    double GetSpinBoxMinNumber(double minimum, int decimals) const;
    void SetupEditingMinMaxNumber();
    double RealMaximum() const;
    double RealMinimum() const;

    double m_dRecordValue;
    bool m_bStepping = false;
    bool m_bRangeSaved = false;
    double m_dRealMax;
    double m_dRealMin;
};

#endif // QDOUBLESPINBOXEX_H
