#pragma once

#include <Qt>

#include <QString>

struct ThemePalette;

/// Makes the style sheet of windows and dialogs out of the embedded template
/// ":/styles/main.qss", whose placeholders are names between at-signs.
namespace themetemplate {

/// The finished style sheet. An automatic direction counts as left-to-right.
///
/// The template is read at the first call and kept for the life of the process; a
/// program without it can't show anything sensible and ends with a fatal message.
/// For the GUI thread.
QString render(const ThemePalette &palette, Qt::LayoutDirection direction);

/// Fills any text that has the template's placeholders. What is not the exact
/// spelling of a placeholder stays as it is.
QString fill(QString text, const ThemePalette &palette, Qt::LayoutDirection direction);

} // namespace themetemplate
