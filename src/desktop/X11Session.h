#pragma once

#include <QByteArray>
#include <QWidget>

/// What an X11 desktop offers and Qt has no words for. On any other platform there is
/// nothing and nothing happens. For the GUI thread.
namespace x11session {

/// The desktop is one of X11's.
bool isRunning();

/// An old-style tray, which takes windows as icons, is there now.
bool hasSystemTray();

/// Whether an event of the display's (an xcb_generic_event_t) announces such a tray.
bool announcesSystemTray(const void *event);

/// Brings `window` to the front with the time of the launch that asked for it, so that
/// the window manager does not take it for a program that pushes itself forward, and
/// tells the desktop that this launch has ended. `startupId` is the launch's
/// DESKTOP_STARTUP_ID; without one nothing happens.
void activate(WId window, const QByteArray &startupId);

} // namespace x11session
