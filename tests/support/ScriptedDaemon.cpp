#include "ScriptedDaemon.h"

#include <QFile>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstring>
#include <iterator>

namespace {

constexpr int kPollMs = 1; ///< How often a wait looks for a change.
constexpr int kBacklog = 64;

/// "GET /v1/status", without the query.
QByteArray routeOf(const QByteArray &request)
{
    const QByteArrayList words =
        request.first(std::max<qsizetype>(0, request.indexOf("\r\n"))).split(' ');
    return words.size() < 2 ? QByteArray() : words.at(0) + ' ' + words.at(1).split('?').first();
}

/// Whether a request has come whole, by its own content length.
bool isWhole(const QByteArray &request)
{
    const qsizetype end = request.indexOf("\r\n\r\n");
    if (end < 0) {
        return false;
    }
    constexpr QByteArrayView kLength("\r\nContent-Length: ");
    const qsizetype at = request.first(end).indexOf(kLength);
    if (at < 0) {
        return true;
    }
    const qsizetype from = at + kLength.size();
    const qsizetype length =
        request.sliced(from, request.indexOf("\r\n", from) - from).toLongLong();
    return request.size() >= end + 4 + length;
}

} // namespace

ScriptedDaemon::Reply ScriptedDaemon::Reply::raw(const QByteArray &bytes)
{
    return Reply().send(bytes);
}

ScriptedDaemon::Reply ScriptedDaemon::Reply::json(const QByteArray &body, int status)
{
    return raw("HTTP/1.1 " + QByteArray::number(status) +
               " Scripted\r\nContent-Type: application/json\r\nContent-Length: " +
               QByteArray::number(body.size()) + "\r\n\r\n" + body);
}

ScriptedDaemon::Reply &ScriptedDaemon::Reply::send(const QByteArray &bytes)
{
    m_steps.append({Kind::Send, bytes, 0});
    return *this;
}

ScriptedDaemon::Reply &ScriptedDaemon::Reply::pause(int ms)
{
    m_steps.append({Kind::Pause, {}, ms});
    return *this;
}

ScriptedDaemon::Reply &ScriptedDaemon::Reply::hold()
{
    m_steps.append({Kind::Hold, {}, 0});
    return *this;
}

ScriptedDaemon::Reply &ScriptedDaemon::Reply::drip(const QByteArray &bytes, int intervalMs)
{
    m_steps.append({Kind::Drip, bytes, intervalMs});
    return *this;
}

ScriptedDaemon::ScriptedDaemon()
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray path = QFile::encodeName(socketName());
    if (static_cast<std::size_t>(path.size()) >= sizeof address.sun_path) {
        qFatal("the socket's path is too long");
    }
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));

    m_listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const auto *const where = static_cast<const sockaddr *>(static_cast<const void *>(&address));
    if (m_listener < 0 || ::bind(m_listener, where, sizeof address) != 0 ||
        ::listen(m_listener, kBacklog) != 0 || ::pipe(m_stopPipe) != 0) {
        qFatal("the scripted daemon can't listen");
    }
    m_acceptor = std::thread(&ScriptedDaemon::acceptLoop, this);
}

ScriptedDaemon::~ScriptedDaemon()
{
    stop();
    ::close(m_stopPipe[0]);
}

QString ScriptedDaemon::socketName() const
{
    return m_directory.filePath(QStringLiteral("control.sock"));
}

void ScriptedDaemon::stop()
{
    if (!m_acceptor.joinable()) {
        return;
    }
    ::close(m_stopPipe[1]); // The reading end is at its end from now on.
    m_acceptor.join();
    for (std::thread &connection : m_connections) {
        connection.join();
    }
    ::close(m_listener);
}

void ScriptedDaemon::enqueue(const QByteArray &route, const Reply &reply)
{
    const std::lock_guard lock(m_mutex);
    m_queued[route].append(reply);
}

void ScriptedDaemon::setDefault(const QByteArray &route, const Reply &reply)
{
    const std::lock_guard lock(m_mutex);
    m_defaults.insert(route, reply);
}

void ScriptedDaemon::release()
{
    const std::lock_guard lock(m_mutex);
    ++m_releases;
}

QByteArrayList ScriptedDaemon::requests() const
{
    // A copy of its own, down to the bytes: a shared one would still be read here while
    // the daemon's threads go on writing.
    const std::lock_guard lock(m_mutex);
    QByteArrayList copy;
    for (const QByteArray &request : m_requests) {
        copy.append(QByteArray(request.constData(), request.size()));
    }
    return copy;
}

QByteArrayList ScriptedDaemon::routes() const
{
    QByteArrayList routes;
    const QByteArrayList all = requests();
    std::transform(all.begin(), all.end(), std::back_inserter(routes), routeOf);
    return routes;
}

void ScriptedDaemon::clearRequests()
{
    const std::lock_guard lock(m_mutex);
    m_requests.clear();
}

bool ScriptedDaemon::waitForRequests(qsizetype count, int timeoutMs) const
{
    std::unique_lock lock(m_mutex);
    // The system clock's wait: thread checkers know it, unlike that of the steady one.
    const auto deadline = std::chrono::system_clock::now() + std::chrono::milliseconds(timeoutMs);
    return m_arrived.wait_until(lock, deadline, [&] { return m_requests.size() >= count; });
}

void ScriptedDaemon::acceptLoop()
{
    for (;;) {
        std::array<pollfd, 2> fds{pollfd{m_listener, POLLIN, 0}, pollfd{m_stopPipe[0], POLLIN, 0}};
        ::poll(fds.data(), fds.size(), -1);
        if (fds[1].revents != 0) {
            return;
        }
        const int fd = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (fd >= 0) {
            m_connections.emplace_back(&ScriptedDaemon::serve, this, fd);
        }
    }
}

void ScriptedDaemon::serve(int fd)
{
    const QByteArray request = readRequest(fd);
    if (isWhole(request)) {
        const Reply reply = takeReply(routeOf(request));
        quint64 releases = 0;
        {
            const std::lock_guard lock(m_mutex);
            m_requests.append(request);
            releases = m_releases;
        }
        m_arrived.notify_all();
        for (const Reply::Step &step : reply.m_steps) {
            if (!run(step, fd, releases)) {
                break;
            }
        }
    }
    ::close(fd);
}

QByteArray ScriptedDaemon::readRequest(int fd)
{
    QByteArray request;
    while (!isWhole(request) && !isClosed(fd, -1)) {
        std::array<char, 65536> buffer{};
        const ssize_t count = ::recv(fd, buffer.data(), buffer.size(), 0);
        if (count <= 0) {
            break;
        }
        request.append(buffer.data(), count);
    }
    return request;
}

ScriptedDaemon::Reply ScriptedDaemon::takeReply(const QByteArray &route)
{
    const std::lock_guard lock(m_mutex);
    for (const QByteArray &key : {route, QByteArray()}) {
        QList<Reply> &queue = m_queued[key];
        if (!queue.isEmpty()) {
            return queue.takeFirst();
        }
        if (m_defaults.contains(key)) {
            return m_defaults.value(key);
        }
    }
    return Reply::json("{\"error\":\"no such route\"}", 404);
}

/// One step of a script; false when the connection has ended. `releases` counts those
/// that the connection has seen.
bool ScriptedDaemon::run(const Reply::Step &step, int fd, quint64 &releases)
{
    switch (step.kind) {
    case Reply::Kind::Send: {
        qsizetype sent = 0;
        while (sent < step.bytes.size()) {
            // Short waits, since a client that reads nothing must not outlast a stop.
            if (isClosed(fd, 0)) {
                return false;
            }
            const ssize_t count = ::send(fd, step.bytes.constData() + sent,
                                         static_cast<std::size_t>(step.bytes.size() - sent),
                                         MSG_NOSIGNAL | MSG_DONTWAIT);
            if (count > 0) {
                sent += count;
            } else if (isClosed(fd, kPollMs)) {
                return false;
            }
        }
        return true;
    }
    case Reply::Kind::Pause:
        return !isClosed(fd, step.ms);
    case Reply::Kind::Hold:
        return waitForRelease(fd, releases);
    case Reply::Kind::Drip:
        while (run({Reply::Kind::Send, step.bytes, 0}, fd, releases)) {
            if (isClosed(fd, step.ms)) {
                return false;
            }
        }
        return false;
    }
    return false;
}

bool ScriptedDaemon::waitForRelease(int fd, quint64 &releases)
{
    for (;;) {
        {
            const std::lock_guard lock(m_mutex);
            if (m_releases > releases) {
                releases = m_releases;
                return true;
            }
        }
        if (isClosed(fd, kPollMs)) {
            return false;
        }
    }
}

/// Whether the client has gone or the daemon stops, waiting so long for it (-1: also
/// until bytes of a request come).
bool ScriptedDaemon::isClosed(int fd, int waitMs) const
{
    const short wanted = waitMs < 0 ? POLLIN : POLLRDHUP;
    std::array<pollfd, 2> fds{pollfd{fd, wanted, 0}, pollfd{m_stopPipe[0], POLLIN, 0}};
    ::poll(fds.data(), fds.size(), waitMs);
    constexpr int kGone = POLLHUP | POLLRDHUP | POLLERR;
    return fds[1].revents != 0 || (waitMs >= 0 && (fds[0].revents & kGone) != 0);
}
