#include "MemoryLog.h"

#include <QtGlobal>

#include <cstdio>

namespace memorylog {

bool isEnabled()
{
    bool isNumber = false;
    const int level = qEnvironmentVariableIntValue("VANTU_GUI_MEM_LOG", &isNumber);
    return isNumber && level > 0;
}

void log(const QString &text)
{
    if (!isEnabled()) {
        return;
    }
    std::fprintf(stderr, "vantu.mem: %s\n", text.toUtf8().constData());
    std::fflush(stderr);
}

} // namespace memorylog
