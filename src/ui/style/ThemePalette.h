#pragma once

#include "ColorScheme.h"

#include <QPalette>
#include <QString>

#include <array>

/// The named colours of the light or the dark look, as "#rrggbb". The one source of
/// colour: the style template, QPalette and every painting widget take theirs here.
struct ThemePalette
{
    QString windowBg;
    QString sidebarBg;
    QString sidebarBorder;
    QString sidebarHover;
    QString sidebarActive;
    QString sidebarSelectedBg;
    QString sidebarSelectedText;
    QString surface;
    QString surfaceBorder;
    QString badgeBg;     ///< For painting widgets only, unknown to the style template.
    QString badgeBorder; ///< For painting widgets only, unknown to the style template.
    QString textPrimary;
    QString textMuted;
    QString disabledText;
    QString accent;
    QString accentStrong;
    QString accentHover;
    QString accentPressed;
    QString warning;
    QString error;
    QString danger;
    QString dangerHover;
    QString dangerPressed;

    /// One colour with the name by which the style template knows it.
    struct Entry
    {
        const char *name;
        QString ThemePalette::*color;
    };
    /// The colours that the style template may use, in the order of replacement.
    static const std::array<Entry, 21> kTemplateEntries;

    /// The dark colours for Dark, the light ones for Light and Unknown.
    static ThemePalette forScheme(ColorScheme scheme);

    /// The same colours in Qt's roles, for windows and dialogs. An entry that is no
    /// colour gives an invalid colour in its roles.
    QPalette toQPalette() const;

    bool operator==(const ThemePalette &) const = default;
};
