#pragma once

class QLabel;
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
    Code,        ///< 1.0, letters of even width: for what is read letter by letter
};

/// Gives a label or button the font of a text style.
void setTextStyle(QWidget &widget, TextStyle style);

/// Has a label's text stand where lines begin in the program's direction. By itself a
/// label goes by the text, and an English one would stand apart in an Arabic window.
void keepToLeadingEdge(QLabel &label);
