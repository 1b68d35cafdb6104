#ifndef QCOLORBUTTON2_H
#define QCOLORBUTTON2_H

#include "VelaColorDialog2.h"
#include "VelaExport.h"

#include <QColor>
#include <QToolButton>

// A tool button that shows a colour as its icon and edits it in a VelaColorDialog2, modal or
// modeless beside a main window. Live changes while the user drags in the dialog, finished edits
// and resets are reported as separate signals so that the host records one undo step per edit.
class VELA_WIDGETS_EXPORT QColorButton2 : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(QColor Color READ GetColor WRITE SetColor)
    Q_PROPERTY(QSize iconSize READ iconSize WRITE setIconSize)

public:
    explicit QColorButton2(QWidget *parent = nullptr);
    ~QColorButton2() override;

    QColor GetColor() const;
    void setIconSize(const QSize &kSize);
    void SetModeless();
    void SetPosition(QWidget *pkMainWnd, EColorDialogPosition ePosition, const QPoint &kMargin);
    VelaColorDialog2 *GetColorDialog();
    void CustomDisconnect();

public Q_SLOTS:
    void SetColor(const QColor &kColor);
    void Click();
    void Close();
    void OnCurrentColorChanged(const QColor &kColor);
    void OnEditFinished(const QColor &kColor);
    void OnResetColor();

Q_SIGNALS:
    void Clicked();
    void ColorChanged();
    void ColorChanged2(QColor kNewColor);
    void CurrentColorChanged(const QColor &kColor);
    void EditFinished(const QColor &kColor);

private:
    void UpdateIcon();

    VelaColorDialog2 m_kColorDialog;
    QColor m_kColor;
    QColor m_kResetColor;
};

#endif // QCOLORBUTTON2_H
