#pragma once

#include <QString>

#include <functional>
#include <memory>

class DesktopColorScheme;
class Theme;

/// The process's one Theme, made when it is first needed: the tray alone needs none,
/// and making one asks the desktop for its colours.
///
/// Owned by the shell, lives on the GUI thread, and must outlive everything that is
/// themed.
class SharedTheme final
{
    Q_DISABLE_COPY_MOVE(SharedTheme)

public:
    /// `appearance` gives the user's preference when the theme is made.
    explicit SharedTheme(std::function<QString()> appearance);
    ~SharedTheme();

    Theme &get();

private:
    std::function<QString()> m_appearance;
    std::unique_ptr<DesktopColorScheme> m_desktop;
    std::unique_ptr<Theme> m_theme;
};
