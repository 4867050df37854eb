#pragma once

#include <QString>

class QLabel;

/// What labels need to show any text well, whatever its direction and length.
namespace labeltext {

/// Has a label wrap its text, which is taken plainly, and keeps it at the side where the
/// program's texts begin. The label no longer asks for any width.
void wrap(QLabel &label);

/// `value`, plain, for putting into a text of the program: among words that run from right
/// to left a version or an amount keeps its own order.
QString embedded(const QString &value);

} // namespace labeltext
