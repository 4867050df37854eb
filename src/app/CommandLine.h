#pragma once

#include <QLatin1StringView>

/// The private switches of the program; each is an exact match against any one
/// argument, and nothing else on the command line means anything.
namespace commandline {

/// The program replaced itself: wait for the old process, then show the window.
inline constexpr QLatin1StringView kRestartShowWindow{"--vantu-restart-show-window"};
/// It did so for a new language, and must not do it again.
inline constexpr QLatin1StringView kLanguageRestart{"--vantu-language-restart"};
/// It was started by the desktop at login.
inline constexpr QLatin1StringView kAutostart{"--vantu-autostart"};

} // namespace commandline
