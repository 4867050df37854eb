#include "SignalBars.h"

#include <QColor>
#include <QPainter>
#include <QRect>

#include <array>

namespace signalbars {

namespace {

constexpr std::array kHeights{3, 5, 8, 11, 14};
constexpr int kBarWidth = 2;
constexpr int kPitch = 4;
constexpr float kInactiveAlpha = 0.35F;

} // namespace

int litBars(int level)
{
    if (level < 1) {
        return 0;
    }
    return level > 80 ? int(kHeights.size()) : (level + 19) / 20;
}

void paint(QPainter &painter, const QRect &rect, int level, const QColor &active,
           const QColor &inactive, Qt::LayoutDirection direction)
{
    if (level < 0) {
        return;
    }
    QColor faded = inactive;
    faded.setAlphaF(kInactiveAlpha);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const int lit = litBars(level);
    const int bottom = rect.top() + rect.height();
    for (int i = 0; i < int(kHeights.size()); ++i) {
        const int height = kHeights[size_t(i)];
        const int x = direction == Qt::RightToLeft
                          ? rect.left() + rect.width() - kBarWidth - i * kPitch
                          : rect.left() + i * kPitch;
        painter.setBrush(i < lit ? active : faded);
        painter.drawRoundedRect(QRectF(x, bottom - height, kBarWidth, height), 1.0, 1.0);
    }
    painter.restore();
}

} // namespace signalbars
