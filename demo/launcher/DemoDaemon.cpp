#include "DemoDaemon.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

// Handed to a restarted client through its environment.
constexpr auto kDirectoryVariable = "VANTU_DEMO_DIRECTORY";
constexpr auto kPidVariable = "VANTU_DEMO_DAEMON_PID";
/// The directory again, if a demonstration made it; anybody else's is left alone.
constexpr auto kMadeVariable = "VANTU_DEMO_MADE_DIRECTORY";

constexpr int kStartDeadlineMs = 5000;
constexpr int kStopDeadlineMs = 2000;
constexpr int kConnectWaitMs = 100;
/// A daemon whose client died without stopping it leaves by itself.
constexpr int kIdleSeconds = 60;

} // namespace

DemoDaemon::DemoDaemon()
    : m_directory(qEnvironmentVariable(kDirectoryVariable))
    , m_pid(qEnvironmentVariable(kPidVariable).toLongLong())
{
    if (m_directory.isEmpty() || !QDir(m_directory).exists()) {
        QTemporaryDir directory(QDir::tempPath() + u"/vantu-demo-XXXXXX"_s);
        directory.setAutoRemove(false);
        m_directory = directory.path();
        m_pid = 0;
        qputenv(kDirectoryVariable, QFile::encodeName(m_directory));
        qputenv(kMadeVariable, QFile::encodeName(m_directory));
    }
}

QString DemoDaemon::socketPath() const
{
    return m_directory + u"/control.sock"_s;
}

QString DemoDaemon::controlPath() const
{
    return m_directory + u"/simd.sock"_s;
}

QString DemoDaemon::configDirectory() const
{
    return m_directory + u"/config"_s;
}

bool DemoDaemon::start(const QString &program, const QStringList &arguments, QString *error)
{
    if (m_directory.isEmpty() || !QDir().mkpath(configDirectory())) {
        *error = u"could not make a temporary folder"_s;
        return false;
    }
    if (m_pid > 0 && waitUntilListening()) {
        return true;
    }
    const QStringList all =
        QStringList{u"--socket"_s, socketPath(),          u"--control"_s,
                    controlPath(), u"--exit-when-idle"_s, QString::number(kIdleSeconds)} +
        arguments;
    if (!QProcess::startDetached(program, all, m_directory, &m_pid)) {
        *error = u"could not start %1"_s.arg(program);
        return false;
    }
    qputenv(kPidVariable, QByteArray::number(m_pid));
    if (!waitUntilListening()) {
        *error = u"%1 does not listen on %2"_s.arg(program, socketPath());
        stop();
        return false;
    }
    return true;
}

bool DemoDaemon::waitUntilListening() const
{
    QElapsedTimer elapsed;
    elapsed.start();
    while (elapsed.elapsed() < kStartDeadlineMs) {
        QLocalSocket socket;
        socket.connectToServer(controlPath());
        if (socket.waitForConnected(kConnectWaitMs)) {
            return true;
        }
        QThread::msleep(10);
    }
    return false;
}

void DemoDaemon::stop()
{
    if (m_directory.isEmpty() || qEnvironmentVariable(kMadeVariable) != m_directory) {
        return;
    }
    if (m_pid > 0) {
        ::kill(static_cast<pid_t>(m_pid), SIGTERM);
        m_pid = 0;
    }
    // A removal fails over files that the daemon removes itself as it ends.
    QElapsedTimer elapsed;
    elapsed.start();
    while (!QDir(m_directory).removeRecursively() && elapsed.elapsed() < kStopDeadlineMs) {
        QThread::msleep(10);
    }
}
