#ifndef QTRANSTOOLBTN_H
#define QTRANSTOOLBTN_H

#include "VelaExport.h"

#include <QPixmap>
#include <QToolButton>
#include <QVector>

#include <memory>

// A tool button shaped by its image: pixels that are transparent in the image's mask are not
// part of the button. Such buttons may lie over one another, so the button does not decide
// clicks itself: it leaves mouse presses, releases, double-clicks and moves to its parent (see
// QKdPickContainer and QVelaContainer), which hit-tests the buttons and activates one.
//
// The button draws either its icon (the Selected mode while the pointer is over an opaque pixel)
// or, in multi-state mode, one of several sets of six pixmaps, chosen by the current state:
// unchecked normal, hovered, pressed, then checked normal, hovered, pressed.
class VELA_WIDGETS_EXPORT QTransToolBtn : public QToolButton
{
    Q_OBJECT

public:
    explicit QTransToolBtn(QWidget *parent = nullptr);

    void SetMultiStates(bool bMultiStates);
    // Appends one state; the button takes ownership of the pixmaps.
    void AddStatusPixmap(const QVector<QPixmap *> &kPixmaps);
    // Appends one state sharing the given pixmaps.
    void AddStatusPixmap(const QVector<std::shared_ptr<QPixmap>> &kPixmaps);
    bool SetCurrState(int nState);
    int GetCurrState() const;

    // Whether a click at kPos (in the button's coordinates) belongs to this button: inside it, on
    // an opaque pixel, and the button is visible and enabled.
    bool IsMouseClickAction(QPoint kPos) const;
    // Forwarded clicks at a global position: when the click belongs to the button, the left click
    // toggles it; both return the button's object name, or an empty string otherwise.
    QString DoMouseClickAction(const QPoint &kGlobalPos);
    QString DoMouseRightClickAction(const QPoint &kGlobalPos);
    // Repaints the button so that its hover image follows the pointer.
    void DoMouseMoveAction(const QPoint &kGlobalPos);

    void mouseDoubleClickEvent(QMouseEvent *event) override;

signals:
    void doubleClicked();
    void doubleRightClicked();

protected:
    bool event(QEvent *event) override;
    bool hitButton(const QPoint &kPos) const override;
    bool IsInTransArea(const QPoint &kPos) const;
    void paintEvent(QPaintEvent *event) override;

private:
    const QPixmap *GetStatusPixmap(int nIndex) const;

    bool m_bPressed = false;
    bool m_bMultiStates = false;
    int m_nCurrState = 0;
    QVector<QVector<std::shared_ptr<QPixmap>>> m_kStatusPixmaps;
};

#endif // QTRANSTOOLBTN_H
