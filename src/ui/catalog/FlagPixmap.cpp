#include "FlagPixmap.h"

#include <QImage>
#include <QPixmapCache>

using namespace Qt::StringLiterals;

namespace {

bool isAsciiLetter(QChar character)
{
    return character.toLower() >= u'a' && character.toLower() <= u'z';
}

} // namespace

QSize flagExtent(FlagSize size)
{
    return size == FlagSize::Row ? QSize(20, 15) : QSize(32, 24);
}

QString flagCode(const QString &region)
{
    const QString code = region.trimmed();
    const bool isCode = code.size() == 2 && isAsciiLetter(code.at(0)) && isAsciiLetter(code.at(1));
    return isCode ? code.toLower() : QString();
}

QPixmap flagPixmap(const QString &code, FlagSize size, qreal devicePixelRatio)
{
    if (code.isEmpty()) {
        return {};
    }
    const QSize extent = flagExtent(size);
    const QSize pixels = (QSizeF(extent) * devicePixelRatio).toSize();
    const QString key = u"vantu-flag:%1:%2x%3"_s.arg(code, QString::number(extent.width()),
                                                     QString::number(devicePixelRatio));
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) {
        return pixmap;
    }
    const QString folder = size == FlagSize::Row ? u":/flags/"_s : u":/flags/large/"_s;
    QImage image(folder + code + (devicePixelRatio > 1 ? u"@2x.png"_s : u".png"_s));
    if (image.isNull()) {
        return {};
    }
    if (image.size() != pixels) {
        image = image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}
