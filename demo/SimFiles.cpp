#include "SimFiles.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

SimFiles::SimFiles(const QString &directory)
    : m_root(directory.isEmpty() ? u"/var/lib/vantucli"_s : directory)
    , m_onDisk(!directory.isEmpty())
{
    if (!m_onDisk) {
        return;
    }
    const QDir root(m_root);
    m_made = !root.exists();
    for (const QString &name : {u"config/profiles"_s, u"run"_s, u"log"_s}) {
        root.mkpath(name);
    }
    write(u"config/state.json"_s, "{}\n");
    write(u"config/history.json"_s, "[]\n");
    write(u"config/credentials.key"_s, "simulated\n");
    write(u"run/vantucli.pid"_s, QByteArray::number(QCoreApplication::applicationPid()) + '\n');
    appendToLog("simulated daemon started");
}

SimFiles::~SimFiles()
{
    if (m_made) {
        QDir(m_root).removeRecursively();
    }
}

QString SimFiles::path(const QString &name) const
{
    return m_root + u'/' + name;
}

void SimFiles::write(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    if (m_onDisk && file.open(QIODevice::WriteOnly)) {
        file.write(content);
    }
}

void SimFiles::appendToLog(const QByteArray &line) const
{
    QFile file(path(u"log/vantucli.log"_s));
    if (m_onDisk && file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        file.write(QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toUtf8() + ' ' +
                   line + '\n');
    }
}

QString SimFiles::makeSparse(const QString &name, qint64 bytes) const
{
    QFile file(path(name));
    if (m_onDisk && file.open(QIODevice::WriteOnly)) {
        file.resize(bytes);
    }
    return path(name);
}

QJsonObject SimFiles::pathsJson(const QString &socketPath) const
{
    return {{u"ConfigDir"_s, path(u"config"_s)},
            {u"RuntimeDir"_s, path(u"run"_s)},
            {u"LogDir"_s, path(u"log"_s)},
            {u"StateFile"_s, path(u"config/state.json"_s)},
            {u"CredentialsKeyFile"_s, path(u"config/credentials.key"_s)},
            {u"HistoryFile"_s, path(u"config/history.json"_s)},
            {u"ProfilesDir"_s, path(u"config/profiles"_s)},
            {u"SocketPath"_s, socketPath},
            {u"PIDFile"_s, path(u"run/vantucli.pid"_s)},
            {u"ControlAddr"_s, u"unix:"_s + socketPath}};
}
