#include "TintedIcon.h"

#include <QColor>
#include <QLoggingCategory>
#include <QPainter>
#include <QSvgRenderer>

namespace {

Q_LOGGING_CATEGORY(lcStyle, "vantu.ui")

} // namespace

QPixmap tintedIcon(const QString &svgPath, const QColor &color, int size, qreal devicePixelRatio)
{
    const int pixels = qRound(size * devicePixelRatio);
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);

    QSvgRenderer drawing(svgPath);
    if (!drawing.isValid()) {
        qCWarning(lcStyle, "No icon %ls", qUtf16Printable(svgPath));
    } else {
        QPainter painter(&pixmap);
        drawing.render(&painter, QRectF(pixmap.rect()));
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(pixmap.rect(), color);
    }
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}
