#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

/// The sizes in which flags are embedded.
enum class FlagSize {
    Row,  ///< 20×15, for lists.
    Card, ///< 32×24, for the status card.
};

/// Edge lengths in logical pixels.
QSize flagExtent(FlagSize size);

/// The country of a region code, "jp" for "JP"; empty for anything but two letters.
/// Regions come from a server and become part of a file name here.
QString flagCode(const QString &region);

/// The flag of a country as flagCode() gives it, sharp at `devicePixelRatio`; null when
/// there is none. Cached. For the GUI thread.
QPixmap flagPixmap(const QString &code, FlagSize size, qreal devicePixelRatio);
