#pragma once

#include <QString>

#include <functional>

/// How a simulated daemon is started.
struct SimOptions
{
    QString scenario = QStringLiteral("normal");
    int nodes = -1; ///< Below 0 the scenario decides.
    quint32 seed = 1;
    int latencyMs = 0;  ///< Every answer comes at least this much later.
    double pace = 1.0;  ///< Multiplies every duration; below 1 is quicker.
    QString socketPath; ///< As the config paths report it.
    QString directory;  ///< Where the daemon's files go; empty makes none.

    std::function<void()> onQuit; ///< Called when a command asks for the end.
};
