#pragma once

#include "TextStyle.h"

#include <QString>

class ElidedLabel;
class QPushButton;
class QWidget;

/// The pieces that dialogs with more in them than a question are put together from.
namespace dialogparts {

/// A plain text that wraps up to `maximumLines` lines and takes up no more height than it
/// needs; notes are muted.
ElidedLabel *makeText(const QString &objectName, const QString &text, TextStyle style,
                      int maximumLines, QWidget *parent);

/// A button that says the same to eyes and screen readers.
QPushButton *makeButton(const QString &objectName, const QString &text, QWidget *parent);

} // namespace dialogparts
