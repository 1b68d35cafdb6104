#ifndef QCOLORBUTTON_H
#define QCOLORBUTTON_H

#include "VelaExport.h"

#include <QColor>
#include <QColorDialog>
#include <QToolButton>

#include <functional>

// A tool button that shows a colour as its icon and lets the user change it in a modal colour
// dialog. The button follows the dialog live; four host callbacks bracket each dialog session so
// that the host can record it as one undo step.
class VELA_WIDGETS_EXPORT QColorButton : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(QColor Color READ GetColor WRITE SetColor)
    Q_PROPERTY(QSize iconSize READ iconSize WRITE setIconSize)

public:
    explicit QColorButton(QWidget *parent = nullptr);
    ~QColorButton() override;

    QColor GetColor() const;
    void setIconSize(const QSize &kSize);
    QColorDialog *ColorDialogUi();
    // Called in order: when a session starts; when it ends; after an accepted session; after a
    // cancelled session that changed the colour on the way.
    void SetUndoRedoFunctions(std::function<void()> kBegin, std::function<void()> kEnd,
                              std::function<void()> kAccepted, std::function<void()> kReverted);
    void CustomDisconnect();

public Q_SLOTS:
    void SetColor(const QColor &kColor);
    void Click();

Q_SIGNALS:
    void ColorChanged();
    void ColorChanged2(QColor kNewColor);

private:
    void UpdateIcon();

    QColorDialog m_kColorDialog;
    QColor m_kColor;
    bool m_bChanged = false;
    std::function<void()> m_kBeginFunction;
    std::function<void()> m_kEndFunction;
    std::function<void()> m_kAcceptedFunction;
    std::function<void()> m_kRevertedFunction;
};

#endif // QCOLORBUTTON_H
