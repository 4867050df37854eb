#pragma once

#include <Qt>

#include <QSize>

class QColor;
class QPainter;
class QRect;

/// Five small bars that show how good the way to a node is.
namespace signalbars {

inline constexpr QSize kSize{18, 14};

/// How many of the five bars are lit at a level of 0 to 100.
int litBars(int level);

/// Paints the bars into `rect`, bottom-aligned and from its leading edge; nothing when
/// the level is negative, which is unknown.
void paint(QPainter &painter, const QRect &rect, int level, const QColor &active,
           const QColor &inactive, Qt::LayoutDirection direction);

} // namespace signalbars
