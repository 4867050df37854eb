#include "SimControlSocket.h"

#include "SimDaemon.h"

#include <QByteArray>

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstdint>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMaxLineBytes = qsizetype{64} * 1024;

} // namespace

SimControlSocket::SimControlSocket(SimDaemon &daemon)
    : m_daemon(daemon)
{}

SimControlSocket::~SimControlSocket()
{
    if (m_thread.joinable()) {
        const std::uint64_t one = 1;
        if (::write(m_stop, &one, sizeof one) == sizeof one) {
            m_thread.join();
        }
    }
    if (m_stop >= 0) {
        ::close(m_stop);
    }
}

QString SimControlSocket::listen(const QString &path)
{
    if (QString problem = m_listener.listen(path); !problem.isEmpty()) {
        return problem;
    }
    m_stop = ::eventfd(0, EFD_CLOEXEC);
    m_thread = std::thread([this] { serve(); });
    return {};
}

bool SimControlSocket::waitFor(int descriptor) const
{
    std::array<pollfd, 2> both{{{descriptor, POLLIN, 0}, {m_stop, POLLIN, 0}}};
    return ::poll(both.data(), both.size(), -1) > 0 && both[1].revents == 0;
}

void SimControlSocket::serve()
{
    while (waitFor(m_listener.descriptor())) {
        const int client = ::accept4(m_listener.descriptor(), nullptr, nullptr, SOCK_CLOEXEC);
        if (client >= 0) {
            converse(client);
            ::close(client);
        }
    }
}

void SimControlSocket::converse(int client)
{
    QByteArray pending;
    std::array<char, 1024> buffer{};
    while (pending.size() < kMaxLineBytes && waitFor(client)) {
        const ssize_t count = ::recv(client, buffer.data(), buffer.size(), 0);
        if (count <= 0) {
            return;
        }
        pending.append(buffer.data(), count);
        for (qsizetype end = pending.indexOf('\n'); end >= 0; end = pending.indexOf('\n')) {
            const QByteArray answer =
                m_daemon.command(QString::fromUtf8(pending.left(end))).toUtf8() + '\n';
            pending.remove(0, end + 1);
            if (::send(client, answer.constData(), size_t(answer.size()), MSG_NOSIGNAL) < 0) {
                return;
            }
        }
    }
}
