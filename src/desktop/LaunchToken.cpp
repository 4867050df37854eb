#include "LaunchToken.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kActivationVariable = "XDG_ACTIVATION_TOKEN";
constexpr auto kStartupVariable = "DESKTOP_STARTUP_ID";
constexpr qsizetype kLongest = 256;
/// Both parts, each with its line end, and one byte more to see a longer file.
constexpr std::size_t kFileLimit = 2 * (kLongest + 1) + 1;
constexpr std::time_t kOldest = 10; ///< Seconds.

QByteArray usable(const QByteArray &part)
{
    const bool printable = std::all_of(part.begin(), part.end(),
                                       [](char letter) { return letter >= ' ' && letter <= '~'; });
    return printable && part.size() <= kLongest ? part : QByteArray();
}

/// A file that only this user can have written, just now.
bool isTrusted(const struct stat &status)
{
    return S_ISREG(status.st_mode) && status.st_uid == ::geteuid() &&
           (status.st_mode & (S_IRWXG | S_IRWXO)) == 0 &&
           std::abs(std::time(nullptr) - status.st_mtime) <= kOldest;
}

} // namespace

LaunchToken::LaunchToken(const QByteArray &activation, const QByteArray &startupId)
    : m_activation(usable(activation))
    , m_startupId(usable(startupId))
{}

LaunchToken LaunchToken::fromEnvironment()
{
    const QByteArray activation = qgetenv(kActivationVariable);
    const QByteArray startupId = qgetenv(kStartupVariable);
    return {activation.isEmpty() ? startupId : activation, startupId};
}

QString LaunchToken::filePath(const QString &instanceName)
{
    const QString directory = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return QDir::isAbsolutePath(directory) ? directory + u'/' + instanceName + ".token"_L1
                                           : QString();
}

LaunchToken LaunchToken::take(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    // Never through a link, and never waiting for whatever lies there.
    const int file = ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    ::unlink(name.constData());
    if (file < 0) {
        return {};
    }
    struct stat status
    {};
    std::array<char, kFileLimit> buffer{};
    ssize_t size = 0;
    if (::fstat(file, &status) == 0 && isTrusted(status)) {
        size = ::read(file, buffer.data(), buffer.size());
    }
    ::close(file);
    const QByteArrayList lines = QByteArray(buffer.data(), std::max<ssize_t>(size, 0)).split('\n');
    return lines.size() == 3 && lines.at(2).isEmpty() ? LaunchToken(lines.at(0), lines.at(1))
                                                      : LaunchToken();
}

bool LaunchToken::leave(const QString &path) const
{
    if (isEmpty()) {
        return true;
    }
    // Such a file is the user's alone from the start.
    QTemporaryFile file(path + u".XXXXXX"_s);
    const QByteArray text = m_activation + '\n' + m_startupId + '\n';
    if (path.isEmpty() || !file.open() || file.write(text) != text.size() || !file.flush() ||
        std::rename(QFile::encodeName(file.fileName()).constData(),
                    QFile::encodeName(path).constData()) != 0) {
        return false;
    }
    file.setAutoRemove(false);
    return true;
}

void LaunchToken::useForNextWindow() const
{
    // Qt takes it from there, and programs that this one starts should not.
    if (!m_activation.isEmpty() && QGuiApplication::platformName().startsWith("wayland"_L1)) {
        qputenv(kActivationVariable, m_activation);
    }
}

void LaunchToken::forgetOwn()
{
    qunsetenv(kActivationVariable);
}
