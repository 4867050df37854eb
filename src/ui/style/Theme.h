#pragma once

#include "ColorScheme.h"
#include "ThemePalette.h"
#include "TitleBarHook.h"

#include <QObject>
#include <QString>

class DesktopColorScheme;

/// The look in force: the user's appearance preference together with the desktop's
/// colour scheme, and the way to put it on windows and dialogs.
///
/// One for the process; whoever makes top-level widgets is handed a reference. It
/// lives on the GUI thread and must outlive every widget attached to it.
class Theme final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Theme)

public:
    /// `appearance` as in GuiPreferences: "light", "dark", anything else follows the
    /// desktop.
    Theme(const DesktopColorScheme &desktop, const QString &appearance, QObject *parent = nullptr);

    /// Light or Dark, never Unknown.
    ColorScheme scheme() const { return m_scheme; }
    const ThemePalette &palette() const { return m_palette; }

    void setAppearance(const QString &appearance);

    /// For platforms that colour title bars; empty (the default) does nothing.
    void setTitleBarHook(TitleBarHook hook);

    /// Puts palette, style sheet and title-bar colours on a window, once. The caller
    /// does so again after each `changed`, then hands on palette() to what paints.
    void applyTo(QWidget &window) const;

    /// For dialogs: applies the theme now and after each change for as long as the
    /// dialog lives, and keeps its title bar in step. Call before showing it.
    void attach(QWidget &dialog);

    static ColorScheme effectiveScheme(const QString &appearance, ColorScheme desktop);

Q_SIGNALS:
    /// scheme() and palette() have new values.
    void changed();

private:
    void refresh();
    void style(QWidget &widget) const;

    const DesktopColorScheme &m_desktop;
    QString m_appearance;
    ColorScheme m_scheme;
    ThemePalette m_palette;
    TitleBarHook m_titleBarHook;
};
