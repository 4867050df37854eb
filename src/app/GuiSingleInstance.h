#pragma once

#include <QObject>
#include <QString>

#include <chrono>

class QLocalServer;

/// Keeps one running client per user: the first holds a local socket's name, a
/// later launch knocks there and leaves.
///
/// The name is released on destruction; a name left behind by a crash is taken
/// over. Blocks the calling thread while it claims, so that it is used before the
/// event loop starts.
class GuiSingleInstance final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(GuiSingleInstance)

public:
    enum class Outcome {
        Claimed,   ///< This process holds the name.
        Activated, ///< Another one does, and was asked to come forward.
        Failed,    ///< The name could not be had.
    };

    /// How long a running instance has to answer a knock.
    static constexpr std::chrono::milliseconds kNotifyTimeout{500};
    /// A restarted client waits this long for the process that it replaces…
    static constexpr std::chrono::milliseconds kRestartClaimDeadline{45000};
    /// …and tries again this often.
    static constexpr std::chrono::milliseconds kRestartClaimInterval{100};

    explicit GuiSingleInstance(const QString &serverName, QObject *parent = nullptr);
    ~GuiSingleInstance() override;

    /// Listens on the name; true when it already does. On failure `error`, if
    /// given, receives the socket's words.
    bool tryListen(QString *error = nullptr);

    /// For an ordinary launch.
    Outcome claimOrActivate(QString *error = nullptr);

    /// For a restarted client: waits for the name and never hands over to the
    /// process that it replaces.
    Outcome claimWithRetry(std::chrono::milliseconds deadline,
                           std::chrono::milliseconds retryInterval, QString *error = nullptr);

    /// Asks whoever holds the name to come forward. True once a connection was
    /// made, whatever became of the message.
    bool notifyRunningInstance(std::chrono::milliseconds timeout) const;

Q_SIGNALS:
    /// Somebody else may hold the name and is about to be asked to come forward.
    void aboutToKnock();
    void activateRequested();

private:
    void handleNewConnection();

    QString m_serverName;
    QLocalServer *m_server = nullptr;
};
