#include "FlowLayout.h"

#include <QWidget>

#include <algorithm>

FlowLayout::FlowLayout(int horizontalSpacing, int verticalSpacing, QWidget *parent)
    : QLayout(parent)
    , m_horizontalSpacing(horizontalSpacing)
    , m_verticalSpacing(verticalSpacing)
{}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.append(item);
}

int FlowLayout::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < count() ? m_items.takeAt(index) : nullptr;
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
    return arrange(QRect(0, 0, width, 0), Pass::Measure);
}

QSize FlowLayout::sizeHint() const
{
    return minimumSize();
}

QSize FlowLayout::minimumSize() const
{
    QSize size(0, 0);
    for (const QLayoutItem *item : m_items) {
        if (!item->isEmpty()) {
            size = size.expandedTo(item->minimumSize());
        }
    }
    return size.grownBy(contentsMargins());
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    arrange(rect, Pass::Place);
}

int FlowLayout::arrange(const QRect &rect, Pass pass) const
{
    const QMargins margins = contentsMargins();
    const QRect area = rect.marginsRemoved(margins);
    const QWidget *parent = parentWidget();
    const bool mirrored = parent != nullptr && parent->isRightToLeft();

    int used = 0; // Of the current line, with the spacing after each item.
    int y = area.y();
    int lineHeight = 0;
    for (QLayoutItem *item : m_items) {
        if (item->isEmpty()) {
            continue;
        }
        const QSize size = item->sizeHint();
        if (used > 0 && used + size.width() > area.width()) {
            y += lineHeight + m_verticalSpacing;
            used = 0;
            lineHeight = 0;
        }
        if (pass == Pass::Place) {
            const int x = mirrored ? area.x() + area.width() - used - size.width() //
                                   : area.x() + used;
            item->setGeometry(QRect(QPoint(x, y), size));
        }
        used += size.width() + m_horizontalSpacing;
        lineHeight = std::max(lineHeight, size.height());
    }
    return y + lineHeight - rect.y() + margins.bottom();
}
