#include "FlowLayout.h"

#include <QApplication>
#include <QWidget>

FlowLayout::FlowLayout(QWidget *parent, int margin, int hSpacing, int vSpacing)
    : QLayout(parent)
    , m_hSpace(hSpacing)
    , m_vSpace(vSpacing)
{
    setContentsMargins(margin, margin, margin, margin);
}

FlowLayout::FlowLayout(int margin, int hSpacing, int vSpacing)
    : m_hSpace(hSpacing)
    , m_vSpace(vSpacing)
{
    setContentsMargins(margin, margin, margin, margin);
}

FlowLayout::~FlowLayout()
{
    while (QLayoutItem *item = takeAt(0))
        delete item;
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_itemList.append(item);
}

int FlowLayout::horizontalSpacing() const
{
    return m_hSpace >= 0 ? m_hSpace : smartSpacing(QStyle::PM_LayoutHorizontalSpacing);
}

int FlowLayout::verticalSpacing() const
{
    return m_vSpace >= 0 ? m_vSpace : smartSpacing(QStyle::PM_LayoutVerticalSpacing);
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return {};
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int width) const
{
    return doLayout(QRect(0, 0, width, 0), true);
}

int FlowLayout::count() const
{
    return m_itemList.size();
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < m_itemList.size() ? m_itemList.at(index) : nullptr;
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *item : m_itemList)
        size = size.expandedTo(item->minimumSize());
    // Without items the invalid start counts as nothing: only the margins remain.
    size = size.expandedTo(QSize(0, 0));
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    doLayout(rect, false);
}

QSize FlowLayout::sizeHint() const
{
    return minimumSize();
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_itemList.size() ? m_itemList.takeAt(index) : nullptr;
}

int FlowLayout::doLayout(const QRect &rect, bool testOnly) const
{
    const QMargins margins = contentsMargins();
    const QRect effectiveRect = rect.marginsRemoved(margins);
    int x = effectiveRect.x();
    int y = effectiveRect.y();
    int lineHeight = 0;

    for (QLayoutItem *item : m_itemList) {
        // Items without a widget of their own (spacers) take the application's style.
        const QWidget *widget = item->widget();
        const QStyle *style = widget ? widget->style() : QApplication::style();
        int spaceX = horizontalSpacing();
        if (spaceX == -1)
            spaceX = style->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton,
                                          Qt::Horizontal);
        int spaceY = verticalSpacing();
        if (spaceY == -1)
            spaceY = style->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton,
                                          Qt::Vertical);

        const QSize hint = item->sizeHint();
        int nextX = x + hint.width() + spaceX;
        if (nextX - spaceX > effectiveRect.right() && lineHeight > 0) {
            x = effectiveRect.x();
            y = y + lineHeight + spaceY;
            nextX = x + hint.width() + spaceX;
            lineHeight = 0;
        }
        if (!testOnly)
            item->setGeometry(QRect(QPoint(x, y), hint));
        x = nextX;
        lineHeight = qMax(lineHeight, hint.height());
    }
    return y + lineHeight - rect.y() + margins.bottom();
}

int FlowLayout::smartSpacing(QStyle::PixelMetric pm) const
{
    QObject *parentObject = parent();
    if (!parentObject)
        return -1;
    if (parentObject->isWidgetType()) {
        auto *parentWidget = static_cast<QWidget *>(parentObject);
        return parentWidget->style()->pixelMetric(pm, nullptr, parentWidget);
    }
    if (const auto *parentLayout = qobject_cast<QLayout *>(parentObject))
        return parentLayout->spacing();
    return -1;
}
