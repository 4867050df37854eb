#pragma once

#include "ServiceRecords.h"

#include <QObject>
#include <QTimer>

#include <chrono>

class AppState;
class NoticeSink;
class RequestLink;
struct RuntimeInfo;

/// Whether this client and the daemon understand each other.
///
/// Asks for the daemon's version at start, again whenever the daemon seems to have
/// been replaced, and every few seconds while it is unknown or unfit, so that a
/// daemon which is started or upgraded later is found without the user's help.
class ServiceCompatibility final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ServiceCompatibility)

public:
    enum class State {
        Unknown = 0, ///< The version could not be had; deliberately lenient.
        Checking = 1,
        Compatible = 2,
        Incompatible = 3,
    };

    static constexpr std::chrono::milliseconds kRecheckInterval{5000};

    /// All arguments must outlive the object.
    ServiceCompatibility(RequestLink &link, AppState &state, NoticeSink &notices,
                         QObject *parent = nullptr);

    State state() const { return m_state; }
    /// Requests may be sent to the daemon.
    bool isAvailable() const;
    /// Why not, in the user's words; empty when available.
    QString reason() const;

    /// The first check, once.
    void start();
    /// Asks anew; what is known holds until the answer.
    void check();
    /// The answer to a version request that the link still awaited.
    void handleVersion(const VersionInfo &info, const QString &error);
    /// Any status answer that passed by, whoever asked for it.
    void noteStatus(const RuntimeInfo &runtime, const QString &error);

    /// Guard of every change: passes unless the check still runs or failed;
    /// otherwise brings the window forward with the reason, which stays.
    bool guardPasses();
    /// The same for changes other than a connect: only a known misfit refuses.
    bool changeGuardPasses();

Q_SIGNALS:
    void stateChanged();
    /// A fit daemon answered that was unknown, unfit or another one before.
    void serviceFound();

private:
    void setState(State state);
    void refuse();

    RequestLink &m_link;
    AppState &m_store;
    NoticeSink &m_notices;
    State m_state = State::Unknown;
    bool m_statusFailed = false;
    bool m_lossTold = false;
    bool m_replaced = false;
    QString m_daemonVersion;
    QTimer m_recheckTimer;
};
