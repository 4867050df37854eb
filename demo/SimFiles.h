#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

/// The simulated daemon's own directory, beside its socket: what the config paths
/// name really exists there. A directory made by this object goes with it.
class SimFiles final
{
public:
    /// An empty path keeps everything in memory: the paths are named, not made.
    explicit SimFiles(const QString &directory);
    ~SimFiles();
    Q_DISABLE_COPY_MOVE(SimFiles)

    QString path(const QString &name) const;
    void write(const QString &name, const QByteArray &content) const;
    void appendToLog(const QByteArray &line) const;

    /// Makes a file of that size that takes no room; returns its path.
    QString makeSparse(const QString &name, qint64 bytes) const;

    QJsonObject pathsJson(const QString &socketPath) const;

private:
    QString m_root;
    bool m_made = false;
    bool m_onDisk = false;
};
