#pragma once

#include <QMargins>
#include <QRect>
#include <QSize>
#include <QWidgetItem>

/// Places a widget beyond the room that its layout has for it, over the layout's margins.
class OutsetItem final : public QWidgetItem
{
public:
    /// Places `widget` so that it sticks out by `outset` pixels. The widget has to have the
    /// layout's widget for its parent.
    OutsetItem(QWidget &widget, const QMargins &outset)
        : QWidgetItem(&widget)
        , m_outset(outset)
    {}

    QSize sizeHint() const override { return QWidgetItem::sizeHint().shrunkBy(m_outset); }
    QSize minimumSize() const override { return QWidgetItem::minimumSize().shrunkBy(m_outset); }
    int heightForWidth(int width) const override
    {
        const int height = QWidgetItem::heightForWidth(width + m_outset.left() + m_outset.right());
        return height < 0 ? height : height - m_outset.top() - m_outset.bottom();
    }
    void setGeometry(const QRect &room) override
    {
        QWidgetItem::setGeometry(room.marginsAdded(m_outset));
    }

private:
    QMargins m_outset;
};
