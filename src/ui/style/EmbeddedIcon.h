#pragma once

#include <QIcon>
#include <QString>

/// An icon from one PNG of the resources, such as ":/icons/app.png", which is decoded
/// when the icon is first drawn or measured. For icons that a start makes but need not
/// draw: QIcon's own loading decodes at once and, to guess the format, loads every
/// image plug-in of the system. A missing picture gives an icon without pixels and a
/// warning in the log.
QIcon embeddedIcon(const QString &pngPath);
