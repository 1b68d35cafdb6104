#ifndef VELACOLORDIALOG2_H
#define VELACOLORDIALOG2_H

#include "VelaExport.h"

#include <QColorDialog>
#include <QList>
#include <QPoint>
#include <QRect>

class QPushButton;
class QSpinBox;

// Where a colour dialog places itself relative to a main window on its first show.
enum EColorDialogPosition {
    ECDP_None = 0,
    ECDP_TopLeft = 1,
    ECDP_TopRight = 2,
    ECDP_BottomLeft = 3,
    ECDP_BottomRight = 4,
};

// A QColorDialog adapted for live, undoable colour editing beside a main window. Its OK and Cancel
// buttons are replaced by one "Reset Color" button; it watches its own colour fields and spin boxes
// to tell a drag in progress from a finished edit, follows the screen-colour picker, and places
// itself relative to a main window the first time it is shown.
class VELA_WIDGETS_EXPORT VelaColorDialog2 : public QColorDialog
{
    Q_OBJECT

public:
    explicit VelaColorDialog2(QWidget *parent = nullptr);

    void SetModeless();
    bool IsModeless();
    bool IsEditing();
    bool IsPickingScreenColor();
    void ResetPickingScreenColor();

    void SetMainWnd(QWidget *pkMainWnd);
    void SetPosition(EColorDialogPosition ePosition);
    void SetMargin(const QPoint &kMargin);

    bool eventFilter(QObject *pkWatched, QEvent *pkEvent) override;
    void showEvent(QShowEvent *event) override;

Q_SIGNALS:
    void EditFinished(const QColor &kColor);
    void ResetColor();
    void ColorChanged2(const QColor &Color);

private:
    void OnScreenColorButtonClicked();

    QRect m_kMainWndGeometry;
    QPushButton *m_pkScreenColorButton = nullptr;
    QWidget *m_pkColorField = nullptr;
    QWidget *m_pkLuminanceField = nullptr;
    QList<QSpinBox *> m_kSpinBoxes;
    bool m_bModeless = false;
    bool m_bPickingScreenColor = false;
    bool m_bEditing = false;
    QWidget *m_pkMainWnd = nullptr;
    EColorDialogPosition m_ePosition = ECDP_BottomRight;
    QPoint m_kMargin = QPoint(0, 0);
    QPushButton *m_pkResetButton = nullptr;
    bool m_bScreenPickRequested = false;
};

#endif // VELACOLORDIALOG2_H
