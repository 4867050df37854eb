#pragma once

class QWidget;

/// Has screen readers speak the accessible name of a widget, wherever the user is in the
/// program. For what comes up by itself: notices, errors, a new state.
void announce(QWidget &source);
