#ifndef FLOWLAYOUT_H
#define FLOWLAYOUT_H

#include "VelaExport.h"

#include <QLayout>
#include <QList>
#include <QStyle>

// A layout that places its items left to right at their size hints and wraps to a new row when
// the next item would cross the right edge, like words in a paragraph. Its height depends on its
// width. Hosts use it for panels of equally treated buttons or thumbnails.
class VELA_WIDGETS_EXPORT FlowLayout : public QLayout
{
public:
    // A negative spacing takes the parent's spacing ("smart" spacing); a negative margin leaves
    // the margins to the style, as for any QLayout.
    FlowLayout(QWidget *parent, int margin, int hSpacing, int vSpacing);
    FlowLayout(int margin, int hSpacing, int vSpacing);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override;
    int horizontalSpacing() const;
    int verticalSpacing() const;
    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;
    QSize sizeHint() const override;
    QLayoutItem *takeAt(int index) override;

private:
    // Places the items in rect (or only measures, with testOnly) and returns the height used.
    int doLayout(const QRect &rect, bool testOnly) const;
    int smartSpacing(QStyle::PixelMetric pm) const;

    QList<QLayoutItem *> m_itemList;
    int m_hSpace;
    int m_vSpace;
};

#endif // FLOWLAYOUT_H
