#pragma once

class QWidget;

/// The text sizes of the interface. Each is a ratio of the application's font, so
/// that a larger system font enlarges everything.
enum class TextStyle {
    PageTitle,   ///< 1.7, semibold
    StatusTitle, ///< 1.5, semibold
    DialogTitle, ///< 1.2, semibold
    CardTitle,   ///< 1.0, semibold
    Value,       ///< 1.1
    Body,        ///< 1.0
    Note,        ///< 0.92
};

/// Gives a label or button the font of a text style.
void setTextStyle(QWidget &widget, TextStyle style);
