#pragma once

#include <QString>

/// A log of object lifetimes on the error stream, for hunting leaks; on while the
/// environment variable VANTU_GUI_MEM_LOG holds a number above 0.
namespace memorylog {

/// Ask before building costly arguments.
bool isEnabled();

void log(const QString &text);

} // namespace memorylog
