#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

/// The program as a process with preferences of its own. Clients with the same `temporary`
/// folder are one user's: the instance's name lives there. Killed at the end.
class ClientProcess final
{
    Q_DISABLE_COPY_MOVE(ClientProcess)

public:
    /// `preferences` are lines of the section "window".
    ClientProcess(const QString &temporary, const QString &daemon, const QByteArray &preferences)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_process.setProcessEnvironment(QProcessEnvironment::systemEnvironment());
        set("TMPDIR", temporary);
        set("XDG_CONFIG_HOME", m_config.path());
        set("VANTU_TEST_SOCKET", daemon);
        QDir().mkpath(m_config.filePath(QStringLiteral("VantuVPN")));
        setPreferences(preferences);
    }
    ~ClientProcess() { kill(); }

    void set(const char *name, const QString &value)
    {
        QProcessEnvironment environment = m_process.processEnvironment();
        environment.insert(QString::fromLatin1(name), value);
        m_process.setProcessEnvironment(environment);
    }
    void setPreferences(const QByteArray &lines)
    {
        QFile file(preferencesPath());
        if (!file.open(QFile::WriteOnly) || file.write("[window]\n" + lines) < 0) {
            qFatal("no preferences");
        }
    }
    QString preferencesPath() const
    {
        return m_config.filePath(QStringLiteral("VantuVPN/Vantu.ini"));
    }
    QString configPath(const QString &name) const { return m_config.filePath(name); }

    void start(const QStringList &arguments = {})
    {
        run(QStringList{QStringLiteral(VANTU_TEST_CLIENT)} + arguments);
    }
    void run(const QStringList &command)
    {
        m_process.start(command.constFirst(), command.mid(1));
        m_process.waitForStarted();
    }
    qint64 pid() const { return m_process.processId(); }
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    /// It ended by itself, with this status.
    bool ended(int status) const
    {
        return !isRunning() && m_process.exitStatus() == QProcess::NormalExit &&
               m_process.exitCode() == status;
    }
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QTemporaryDir m_config;
    QProcess m_process;
};
