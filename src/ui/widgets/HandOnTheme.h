#pragma once

class QWidget;
struct ThemePalette;

/// Gives every ToggleSwitch, ThemedScrollBar, SearchField and NotificationHost below `root`,
/// and `root` itself if it is one, the colours of a theme: a style sheet can't reach what
/// they paint, and below a widget with a style sheet palettes aren't inherited.
///
/// Call it after Theme::applyTo() or Theme::attach(), at each change of the theme, and for
/// widgets made since.
void handOnTheme(QWidget &root, const ThemePalette &palette);
