#pragma once

#include <QKeySequence>

/// Keys that the list of locations and the quick entry share.
namespace catalogkeys {

/// Marks the place in focus, or the first match of a search, as a favourite, or no longer. No
/// single letter: not every keyboard has it, and a search takes them all.
inline QKeySequence favorite()
{
    return {Qt::CTRL | Qt::Key_D};
}

} // namespace catalogkeys
