#pragma once

class QString;
class QWidget;

/// Has screen readers speak the accessible name of a widget, wherever the user is in the
/// program. For what comes up by itself: notices, errors, a new state.
void announce(QWidget &source);
/// The same with words of its own: of what is no widget, or changed where the user isn't.
void announce(QWidget &source, const QString &text);

/// Shows or hides a text that stands in the place of something else, such as of rows that a
/// search hides, and announces it when it appears.
void setShownAloud(QWidget &text, bool shown);
