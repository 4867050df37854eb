#pragma once

#include <QKeySequence>

namespace quickentry {

/// Marks the place in focus, or the first match, as a favourite, or no longer.
inline QKeySequence favoriteKey()
{
    return {Qt::CTRL | Qt::Key_D};
}

} // namespace quickentry
