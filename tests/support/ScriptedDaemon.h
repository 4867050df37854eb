#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QHash>
#include <QList>
#include <QString>
#include <QTemporaryDir>

#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

/// A daemon that answers by script, down to the byte and the pause, on a real Unix
/// socket in a temporary directory.
///
/// It lives on threads of its own, so that blocking and asynchronous clients of
/// the test's process can both talk to it; every function may be called from any
/// thread. Routes are named as in "GET /v1/status", without the query; the route ""
/// stands for all that have no answer of their own. Without any, the answer is 404.
class ScriptedDaemon final
{
    Q_DISABLE_COPY_MOVE(ScriptedDaemon)

public:
    /// What happens on one connection once its request is whole: steps in order,
    /// then the connection is closed.
    class Reply final
    {
    public:
        /// Bytes as they are, which need not be HTTP.
        static Reply raw(const QByteArray &bytes);
        /// A whole response with a content length.
        static Reply json(const QByteArray &body, int status = 200);
        /// Nothing yet; for replies that begin with a pause or close at once.
        static Reply nothing() { return {}; }

        Reply &send(const QByteArray &bytes);
        Reply &pause(int ms);
        /// Waits until `release()`, or for ever.
        Reply &hold();
        /// Sends the bytes again and again until the client has gone.
        Reply &drip(const QByteArray &bytes, int intervalMs);

    private:
        friend class ScriptedDaemon;
        enum class Kind { Send, Pause, Hold, Drip };
        struct Step
        {
            Kind kind;
            QByteArray bytes;
            int ms;
        };
        QList<Step> m_steps;
    };

    /// Listens at once.
    ScriptedDaemon();
    /// Closes every connection, whatever its script.
    ~ScriptedDaemon();

    QString socketName() const;

    /// Answers the next request of the route; several calls queue up.
    void enqueue(const QByteArray &route, const Reply &reply);
    /// Answers every request of the route that finds no queued reply.
    void setDefault(const QByteArray &route, const Reply &reply);

    /// Lets the held replies to all requests that have arrived go on; replies to later
    /// requests hold again.
    void release();

    /// The exact bytes of all requests so far, in order of arrival.
    QByteArrayList requests() const;
    /// The requests' routes ("GET /v1/status"), in order of arrival.
    QByteArrayList routes() const;
    void clearRequests();
    /// Waits until so many requests have arrived; false when `timeoutMs` ran out.
    bool waitForRequests(qsizetype count, int timeoutMs = 5000) const;

    /// Closes every connection and stops listening; the socket's file stays, so that
    /// clients are refused.
    void stop();

private:
    void acceptLoop();
    void serve(int fd);
    QByteArray readRequest(int fd);
    Reply takeReply(const QByteArray &route);
    bool run(const Reply::Step &step, int fd, quint64 &releases);
    bool waitForRelease(int fd, quint64 &releases);
    bool isClosed(int fd, int waitMs) const;

    QTemporaryDir m_directory;
    int m_listener = -1;
    int m_stopPipe[2] = {-1, -1}; ///< Readable for ever once stopped.
    std::thread m_acceptor;
    std::vector<std::thread> m_connections; ///< Touched by the acceptor alone, then by stop().

    mutable std::mutex m_mutex; ///< Guards all that follows.
    mutable std::condition_variable m_arrived;
    QHash<QByteArray, QList<Reply>> m_queued;
    QHash<QByteArray, Reply> m_defaults;
    QByteArrayList m_requests;
    quint64 m_releases = 0;
};
