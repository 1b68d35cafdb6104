#ifndef QITEMLABEL_H
#define QITEMLABEL_H

#include "VelaExport.h"

#include <QColor>
#include <QLabel>
#include <QPixmap>
#include <QString>

#include <functional>

class QDragEnterEvent;
class QDropEvent;
class QEvent;
class QMouseEvent;
class QPaintEvent;

// One selectable thumbnail of a grid (a texture or preset slot). Draws a three-line frame over its
// picture when selected or hovered, selects itself on a click, and loads a new picture on a left
// double-click (through a file dialog the host supplies) or when one image file is dropped on it
// (once the host lets it accept drops).
class VELA_WIDGETS_EXPORT QItemLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(double FrameLineWidth READ GetLineWidth WRITE SetLineWidth)
    Q_PROPERTY(QColor SelectedOuterColor READ GetSelectOuterLineColor WRITE SetSelectOuterLineColor)
    Q_PROPERTY(
        QColor SelectedMiddleColor READ GetSelectMiddleLineColor WRITE SetSelectMiddleLineColor)
    Q_PROPERTY(QColor SelectedInnerColor READ GetSelectInnerLineColor WRITE SetSelectInnerLineColor)
    Q_PROPERTY(QColor HoverOuterColor READ GetHoverOuterLineColor WRITE SetHoverOuterLineColor)
    Q_PROPERTY(QColor HoverMiddleColor READ GetHoverMiddleLineColor WRITE SetHoverMiddleLineColor)
    Q_PROPERTY(QColor HoverInnerColor READ GetHoverInnerLineColor WRITE SetHoverInnerLineColor)
    Q_PROPERTY(QString DragFilter READ GetFileFilter WRITE SetFileFilter)

public:
    explicit QItemLabel(QWidget *parent = nullptr);

    bool GetSelected() const;
    void SetSelected(bool bSelected);

    double GetLineWidth() const;
    void SetLineWidth(double fWidth);
    QColor GetSelectOuterLineColor() const;
    void SetSelectOuterLineColor(const QColor &kColor);
    QColor GetSelectMiddleLineColor() const;
    void SetSelectMiddleLineColor(const QColor &kColor);
    QColor GetSelectInnerLineColor() const;
    void SetSelectInnerLineColor(const QColor &kColor);
    QColor GetHoverOuterLineColor() const;
    void SetHoverOuterLineColor(const QColor &kColor);
    QColor GetHoverMiddleLineColor() const;
    void SetHoverMiddleLineColor(const QColor &kColor);
    QColor GetHoverInnerLineColor() const;
    void SetHoverInnerLineColor(const QColor &kColor);
    // A text in which the accepted file suffixes occur, for example "png jpg tga".
    QString GetFileFilter() const;
    void SetFileFilter(const QString &strFilter);

    // Asks the host for the path of an image to load; an empty path cancels.
    void SetGetOpenFileNameFunctor(const std::function<QString()> &kFunctor);
    // Makes the thumbnail for a path chosen through the open-file functor.
    void SetSpecialThumbnailFunctor(const std::function<QPixmap(QString)> &kFunctor);

    void OnMouseDoubleClicked();

signals:
    void clicked();
    void PreImageLoaded(QString strPath);
    void SelectedChanged();
    void RightDoubleClicked(QMouseEvent *pMouseEvent);

protected:
    bool IsValidPath(QString strPath);
    void DrawItemFrame(QColor kOuter, QColor kMiddle, QColor kInner);

    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    bool m_bSelected = false;
    bool m_bHovered = false;
    double m_fLineWidth = 0.0;
    QColor m_kSelectOuterColor = QColor(18, 18, 18);
    QColor m_kSelectMiddleColor = QColor(80, 80, 80);
    QColor m_kSelectInnerColor = QColor(230, 230, 230);
    QColor m_kHoverOuterColor = QColor(85, 85, 255);
    QColor m_kHoverMiddleColor = QColor(170, 170, 255);
    QColor m_kHoverInnerColor = QColor(85, 255, 127);
    QString m_strFileFilter;
    std::function<QString()> m_kGetOpenFileNameFunctor;
    std::function<QPixmap(QString)> m_kSpecialThumbnailFunctor;
};

#endif // QITEMLABEL_H
