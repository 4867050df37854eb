#pragma once

#include <QVariant>

class QWidget;

/// Sets a dynamic property that the style template reads and has the widget styled
/// anew; does nothing when the property already has this value, since styling is
/// costly. An invalid value removes the property. Returns whether it changed.
bool setStyleProperty(QWidget &widget, const char *name, const QVariant &value);
