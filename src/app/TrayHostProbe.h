#pragma once

#include <chrono>

/// Questions about the desktop's tray that Qt does not answer.
namespace trayhost {

/// How long a login start waits for the panel.
inline constexpr std::chrono::milliseconds kLoginWait{10000};

/// A StatusNotifier host is registered on the session bus now. False without a
/// session bus.
bool isRegistered();

/// Waits until a host is registered, at most `timeout`; returns at once when there
/// is no session bus. Runs an event loop of its own, so that it may only be called
/// before the program's.
///
/// At login the panel often comes later than the programs that the desktop starts,
/// and Qt remembers its first answer about the tray for as long as a process lives.
bool waitUntilRegistered(std::chrono::milliseconds timeout);

} // namespace trayhost
