#pragma once

#include <QByteArray>
#include <QString>

#include <sys/stat.h>

/// A listening Unix socket in the file system, open to its owner only. The file
/// goes when the object goes, unless another program has put its own there.
class SimUnixListener final
{
public:
    SimUnixListener() = default;
    ~SimUnixListener();
    Q_DISABLE_COPY_MOVE(SimUnixListener)

    /// Starts to listen. A socket file that nobody listens on any more is replaced;
    /// anything else in the way is an error. Returns the error, or an empty text.
    QString listen(const QString &path);

    int descriptor() const { return m_descriptor; }

    /// Hands the descriptor over; whoever takes it closes it. The file stays ours.
    int release();

    /// Closes the descriptor, if it is still here, and removes the file.
    void close();

private:
    QString clearTheWay(const QByteArray &path) const;

    QByteArray m_path;
    int m_descriptor = -1;
    struct stat m_made = {}; // the file as this object made it
};
