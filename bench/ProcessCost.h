#pragma once

#include <QtGlobal>

/// What a running process has used so far, as the kernel counts it, over all of its
/// threads.
struct ProcessCost
{
    qint64 residentKiB = 0;
    qint64 cpuMs = 0;
    qint64 wakeUps = 0; ///< Times that a thread was scheduled after it had slept.
};

ProcessCost processCost(qint64 pid);
