#pragma once

#include "SimUnixListener.h"

#include <QString>

#include <thread>

class SimDaemon;

/// Takes command lines for a simulated daemon on a Unix socket of its own and
/// answers each with a line. Serves one client after the other.
class SimControlSocket final
{
public:
    /// The daemon must outlive the socket.
    explicit SimControlSocket(SimDaemon &daemon);
    ~SimControlSocket();
    Q_DISABLE_COPY_MOVE(SimControlSocket)

    /// Starts to listen. Returns the error, or an empty text.
    QString listen(const QString &path);

private:
    void serve();
    void converse(int client);
    bool waitFor(int descriptor) const;

    SimDaemon &m_daemon;
    SimUnixListener m_listener;
    std::thread m_thread;
    int m_stop = -1; // becomes readable when the end has come
};
