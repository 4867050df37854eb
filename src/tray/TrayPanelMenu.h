#pragma once

#include <QString>

class QMenu;

/// A tray menu that the desktop's panel shows, rather than Qt: Qt exports it over the
/// session bus.
namespace panelmenu {

/// The panel shows `menu`. False until an icon carries it.
bool isExported(QMenu &menu);

/// The text of an entry of `menu`, made from one that is ready for a popup.
///
/// On the bus an underscore marks an access key, as "&" does in Qt, and vanishes. Qt
/// sends the underscores of the text as they are, and what some desktops put in Qt's
/// place doubles them: only a letter that looks like one arrives in either case.
QString entryText(QMenu &menu, const QString &popupText);

} // namespace panelmenu
