#pragma once

#include <QPixmap>
#include <QString>

class QColor;

/// Renders a one-colour icon of the resources in the given colour, keeping only the
/// drawing's opacity. `size` is the edge in logical pixels, `devicePixelRatio` the
/// screen's. A missing icon gives a transparent pixmap and a warning in the log.
QPixmap tintedIcon(const QString &svgPath, const QColor &color, int size,
                   qreal devicePixelRatio = 1.0);
