#include "ThemePalette.h"

#include "QtCompat.h"

#include <QColor>

using namespace Qt::StringLiterals;

namespace {

ThemePalette darkPalette()
{
    return {
        .windowBg = u"#10141c"_s,
        .sidebarBg = u"#151a24"_s,
        .sidebarBorder = u"#2a3140"_s,
        .sidebarHover = u"#222a37"_s,
        .sidebarActive = u"#12372A"_s,
        .sidebarSelectedBg = u"#12372A"_s,
        .sidebarSelectedText = u"#47B96D"_s,
        .surface = u"#181f2a"_s,
        .surfaceBorder = u"#3d4759"_s,
        .badgeBg = u"#303438"_s,
        .badgeBorder = u"#455365"_s,
        .textPrimary = u"#eef3f8"_s,
        .textMuted = u"#a7b0bd"_s,
        .disabledText = u"#6f7886"_s,
        .accent = u"#47B96D"_s,
        .accentStrong = u"#2A7D49"_s,
        .accentHover = u"#236B3E"_s,
        .accentPressed = u"#1D5A34"_s,
        .warning = u"#E0A63C"_s,
        .error = u"#E56060"_s,
        .danger = u"#D0351F"_s,
        .dangerHover = u"#BC2E1A"_s,
        .dangerPressed = u"#A82A16"_s,
    };
}

ThemePalette lightPalette()
{
    return {
        .windowBg = u"#f1f3f6"_s,
        .sidebarBg = u"#f6f7f9"_s,
        .sidebarBorder = u"#d9dde5"_s,
        .sidebarHover = u"#e9edf3"_s,
        .sidebarActive = u"#E6F4EE"_s,
        .sidebarSelectedBg = u"#E6F4EE"_s,
        .sidebarSelectedText = u"#04784B"_s,
        .surface = u"#ffffff"_s,
        .surfaceBorder = u"#c2c9d6"_s,
        .badgeBg = u"#f0f2f5"_s,
        .badgeBorder = u"#cbd5e2"_s,
        .textPrimary = u"#172033"_s,
        .textMuted = u"#5f6673"_s,
        .disabledText = u"#868d9a"_s,
        .accent = u"#04955A"_s,
        .accentStrong = u"#037A4B"_s,
        .accentHover = u"#02633D"_s,
        .accentPressed = u"#014E30"_s,
        .warning = u"#B45309"_s,
        .error = u"#D23B3B"_s,
        .danger = u"#D93520"_s,
        .dangerHover = u"#C4321C"_s,
        .dangerPressed = u"#B12C19"_s,
    };
}

} // namespace

const std::array<ThemePalette::Entry, 21> ThemePalette::kTemplateEntries{{
    {"windowBg", &ThemePalette::windowBg},
    {"sidebarBg", &ThemePalette::sidebarBg},
    {"sidebarBorder", &ThemePalette::sidebarBorder},
    {"sidebarHover", &ThemePalette::sidebarHover},
    {"sidebarActive", &ThemePalette::sidebarActive},
    {"sidebarSelectedBg", &ThemePalette::sidebarSelectedBg},
    {"sidebarSelectedText", &ThemePalette::sidebarSelectedText},
    {"surface", &ThemePalette::surface},
    {"surfaceBorder", &ThemePalette::surfaceBorder},
    {"textPrimary", &ThemePalette::textPrimary},
    {"textMuted", &ThemePalette::textMuted},
    {"disabledText", &ThemePalette::disabledText},
    {"accent", &ThemePalette::accent},
    {"accentStrong", &ThemePalette::accentStrong},
    {"accentHover", &ThemePalette::accentHover},
    {"accentPressed", &ThemePalette::accentPressed},
    {"warning", &ThemePalette::warning},
    {"error", &ThemePalette::error},
    {"danger", &ThemePalette::danger},
    {"dangerHover", &ThemePalette::dangerHover},
    {"dangerPressed", &ThemePalette::dangerPressed},
}};

ThemePalette ThemePalette::forScheme(ColorScheme scheme)
{
    return scheme == ColorScheme::Dark ? darkPalette() : lightPalette();
}

QPalette ThemePalette::toQPalette() const
{
    const QColor text(textPrimary);
    const QColor ground(windowBg);
    const QColor raised(surface);
    const QColor border(surfaceBorder);
    const QColor disabled(disabledText);

    QPalette palette;
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::BrightText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
    }
    for (const auto role :
         {QPalette::Base, QPalette::Button, QPalette::Midlight, QPalette::ToolTipBase}) {
        palette.setColor(role, raised);
    }
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::AlternateBase, ground);
    palette.setColor(QPalette::Light, raised.lighter(115));
    palette.setColor(QPalette::Mid, border);
    palette.setColor(QPalette::Dark, border.darker(120));
    palette.setColor(QPalette::Shadow, border.darker(140));
    palette.setColor(QPalette::Highlight, QColor(accentStrong));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(textMuted));
    qtcompat::setAccent(palette, QPalette::All, QColor(accent));

    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        palette.setColor(QPalette::Disabled, role, disabled);
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, border);
    qtcompat::setAccent(palette, QPalette::Disabled, disabled);
    return palette;
}
