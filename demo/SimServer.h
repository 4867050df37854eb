#pragma once

#include "SimUnixListener.h"

#include <QString>

class SimDaemon;
struct MHD_Daemon;

/// Serves a simulated daemon by HTTP/1.1 on a Unix socket, each connection on a
/// thread of its own, so that a waiting connect holds up nobody.
class SimServer final
{
public:
    /// The daemon must outlive the server.
    explicit SimServer(SimDaemon &daemon);

    /// Ends the daemon's waiting requests and the server.
    ~SimServer();
    Q_DISABLE_COPY_MOVE(SimServer)

    /// Starts to serve. Returns the error, or an empty text.
    QString listen(const QString &path);

private:
    SimDaemon &m_daemon;
    SimUnixListener m_listener;
    MHD_Daemon *m_http = nullptr;
};
