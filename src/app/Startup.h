#pragma once

#include <QString>

/// What differs between the program and the demonstration of it.
struct StartupOptions
{
    /// The daemon's socket; empty for the daemon's own.
    QString socketName;
    /// Name of the single-instance socket; "%1" is replaced by the user's id.
    QString instanceName = QStringLiteral("com.vantuvpn.Vantu.gui.%1");
};

/// How a run ended.
struct StartupResult
{
    int exitStatus = 0;
    /// A new process was started in this one's place.
    bool restarted = false;
};

/// Name, version and icon of the program, as the rest of it and the daemon are told them;
/// once QApplication exists.
void setProgramIdentity();

/// The whole program, from the arguments to the exit status.
StartupResult runVantu(int argc, char **argv, const StartupOptions &options = {});
