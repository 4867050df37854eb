#include "SimUnixListener.h"

#include <QFile>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using FileStatus = struct stat;

constexpr int kBacklog = 64;

QString systemError()
{
    return QString::fromLocal8Bit(strerror(errno));
}

int newSocket()
{
    return ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
}

sockaddr_un addressOf(const QByteArray &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.constData(), size_t(path.size()));
    return address;
}

/// File systems reuse the numbers of deleted files, hence the time.
bool isSameFile(const FileStatus &left, const FileStatus &right)
{
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino &&
           left.st_ctim.tv_sec == right.st_ctim.tv_sec &&
           left.st_ctim.tv_nsec == right.st_ctim.tv_nsec;
}

template<typename Call>
int withAddress(Call call, int descriptor, const sockaddr_un &address)
{
    return call(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address);
}

} // namespace

SimUnixListener::~SimUnixListener()
{
    close();
}

QString SimUnixListener::clearTheWay(const QByteArray &path) const
{
    FileStatus found{};
    if (::lstat(path.constData(), &found) != 0) {
        return {};
    }
    if (!S_ISSOCK(found.st_mode)) {
        return u"is in the way and no socket"_s;
    }
    const int probe = newSocket();
    const bool answered = withAddress(::connect, probe, addressOf(path)) == 0;
    const bool deserted = !answered && errno == ECONNREFUSED;
    ::close(probe);
    if (!deserted) {
        return u"is in use"_s;
    }
    return ::unlink(path.constData()) == 0 ? QString() : systemError();
}

QString SimUnixListener::listen(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    if (name.isEmpty() || name.size() >= qsizetype(sizeof(sockaddr_un::sun_path))) {
        return u"is no usable socket path"_s;
    }
    if (QString problem = clearTheWay(name); !problem.isEmpty()) {
        return problem;
    }
    m_descriptor = newSocket();
    // The mode is set before the file appears, so that it never stands open.
    if (m_descriptor < 0 || ::fchmod(m_descriptor, S_IRUSR | S_IWUSR) != 0 ||
        withAddress(::bind, m_descriptor, addressOf(name)) != 0 ||
        ::listen(m_descriptor, kBacklog) != 0 || ::lstat(name.constData(), &m_made) != 0) {
        QString problem = systemError();
        close();
        return problem;
    }
    m_path = name;
    return {};
}

int SimUnixListener::release()
{
    return std::exchange(m_descriptor, -1);
}

void SimUnixListener::close()
{
    if (m_descriptor >= 0) {
        ::close(release());
    }
    FileStatus found{};
    if (!m_path.isEmpty() && ::lstat(m_path.constData(), &found) == 0 &&
        isSameFile(found, m_made)) {
        ::unlink(m_path.constData());
    }
    m_path.clear();
}
