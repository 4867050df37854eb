#include "SignalQuit.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

namespace {

constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};

/// A handler can reach nothing but what is global.
std::atomic<int> writeEnd{-1};
static_assert(std::atomic<int>::is_always_lock_free);

} // namespace

extern "C" {
static void handleQuitSignal(int /*signal*/)
{
    const int error = errno;
    // A full pipe tells enough.
    [[maybe_unused]] const ssize_t written = ::write(writeEnd.load(), "q", 1);
    errno = error;
}
}

SignalQuit::SignalQuit(QObject *parent)
    : QObject(parent)
{
    if (::pipe2(m_ends, O_CLOEXEC | O_NONBLOCK) != 0) {
        qWarning("signals end the program at once: no pipe");
        return;
    }
    writeEnd = m_ends[1];
    auto *readable = new QSocketNotifier(m_ends[0], QSocketNotifier::Read, this);
    connect(readable, &QSocketNotifier::activated, this, &SignalQuit::handleReadable);
    for (const int signal : kSignals) {
        if (std::signal(signal, handleQuitSignal) == SIG_IGN) {
            std::signal(signal, SIG_IGN);
        }
    }
}

SignalQuit::~SignalQuit()
{
    if (m_ends[0] < 0) {
        return;
    }
    for (const int signal : kSignals) {
        if (std::signal(signal, SIG_DFL) == SIG_IGN) {
            std::signal(signal, SIG_IGN);
        }
    }
    writeEnd = -1;
    ::close(m_ends[0]);
    ::close(m_ends[1]);
}

void SignalQuit::handleReadable()
{
    char bytes[16];
    while (::read(m_ends[0], bytes, sizeof bytes) > 0) {
    }
    m_isRequested = true;
    Q_EMIT requested();
}
