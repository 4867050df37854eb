#include "ThemedScrollBar.h"

#include <QEvent>
#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QStyleOptionSlider>

#include <algorithm>

namespace {

constexpr int kThickness = 8;
constexpr int kLength = 100;

} // namespace

ThemedScrollBar::ThemedScrollBar(Qt::Orientation orientation, QWidget *parent)
    : QScrollBar(orientation, parent)
{
    setAttribute(Qt::WA_Hover);
}

void ThemedScrollBar::setHandleColors(const QColor &idle, const QColor &active)
{
    m_idle = idle;
    m_active = active;
    update();
}

QSize ThemedScrollBar::sizeHint() const
{
    return orientation() == Qt::Vertical ? QSize(kThickness, kLength) : QSize(kLength, kThickness);
}

bool ThemedScrollBar::event(QEvent *event)
{
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave) {
        update();
    }
    return QScrollBar::event(event);
}

void ThemedScrollBar::paintEvent(QPaintEvent *)
{
    if (minimum() == maximum()) {
        return; // All there is is in view.
    }
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle =
        style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
    if (!handle.isValid()) {
        return;
    }
    const bool active = isSliderDown() || underMouse();
    QColor color = active ? m_active : m_idle;
    if (!color.isValid()) {
        color = palette().color(active ? QPalette::Text : QPalette::PlaceholderText);
    }
    const qreal radius = std::min(handle.width(), handle.height()) / 2.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(handle, radius, radius);
}
