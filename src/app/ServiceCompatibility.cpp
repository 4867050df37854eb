#include "ServiceCompatibility.h"

#include "AppState.h"
#include "NoticeSink.h"
#include "RequestLink.h"
#include "ShellText.h"

ServiceCompatibility::ServiceCompatibility(RequestLink &link, AppState &state, NoticeSink &notices,
                                           QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_store(state)
    , m_notices(notices)
{
    m_recheckTimer.setInterval(kRecheckInterval);
    m_recheckTimer.setSingleShot(true);
    connect(&m_recheckTimer, &QTimer::timeout, this, &ServiceCompatibility::check);
}

bool ServiceCompatibility::isAvailable() const
{
    return m_state == State::Unknown || m_state == State::Compatible;
}

QString ServiceCompatibility::reason() const
{
    switch (m_state) {
    case State::Checking:
        return ShellText::tr("Checking Vantu service compatibility...");
    case State::Incompatible:
        return ShellText::tr(
            "Vantu GUI and daemon are incompatible. Update Vantu before continuing.");
    case State::Unknown:
    case State::Compatible:
        break;
    }
    return {};
}

void ServiceCompatibility::start()
{
    setState(State::Checking);
    check();
}

void ServiceCompatibility::check()
{
    if (!m_link.isPending(ControlRequest::FetchVersion)) {
        m_link.send(ControlRequest::FetchVersion);
    }
}

void ServiceCompatibility::handleVersion(const VersionInfo &info, const QString &error)
{
    // A daemon that refuses this client fills the error text too, so that the
    // refusal is looked at before the failure.
    if (info.reachable && !info.compatible) {
        m_store.setVersion(info);
        const bool first = m_state != State::Incompatible;
        setState(State::Incompatible);
        if (first) {
            Q_EMIT m_notices.attentionRequested();
            m_notices.error({}, reason());
        }
    } else if (!error.isEmpty()) {
        setState(State::Unknown);
        if (!m_lossTold) {
            m_lossTold = true;
            m_notices.error(error, ShellText::tr("Could not load version"));
        }
    } else {
        m_store.setVersion(info);
        const bool found = m_state != State::Compatible || m_replaced;
        m_lossTold = false;
        m_replaced = false;
        setState(State::Compatible);
        if (found) {
            Q_EMIT serviceFound();
        }
    }
    if (m_state == State::Compatible) {
        m_recheckTimer.stop();
    } else {
        m_recheckTimer.start();
    }
}

void ServiceCompatibility::noteStatus(const RuntimeInfo &runtime, const QString &error)
{
    if (!error.isEmpty()) {
        // The daemon may be gone, or another one that refuses every request.
        m_statusFailed = true;
        check();
        return;
    }
    const bool back = m_statusFailed;
    m_statusFailed = false;
    const bool replaced = !m_daemonVersion.isEmpty() && !runtime.daemonVersion.isEmpty() &&
                          m_daemonVersion != runtime.daemonVersion;
    if (!runtime.daemonVersion.isEmpty()) {
        m_daemonVersion = runtime.daemonVersion;
    }
    if (back || replaced) {
        m_replaced = true;
        check();
    }
}

bool ServiceCompatibility::guardPasses()
{
    if (isAvailable()) {
        return true;
    }
    refuse();
    return false;
}

bool ServiceCompatibility::changeGuardPasses()
{
    if (m_state != State::Incompatible) {
        return true;
    }
    refuse();
    return false;
}

void ServiceCompatibility::refuse()
{
    Q_EMIT m_notices.attentionRequested();
    m_notices.show(reason(), MainWindow::NoticeKind::Error, NoticeSink::kUntilDismissed);
}

void ServiceCompatibility::setState(State state)
{
    if (m_state != state) {
        m_state = state;
        Q_EMIT stateChanged();
    }
}
