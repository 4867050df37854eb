#include "ConnectController.h"

#include "AppState.h"
#include "NoticeSink.h"
#include "RequestLink.h"
#include "RuntimeFacts.h"
#include "ServiceCompatibility.h"
#include "ShellText.h"
#include "UpdateController.h"

ConnectController::ConnectController(Parts parts, QObject *parent)
    : QObject(parent)
    , m_parts(std::move(parts))
{}

ConnectProgress ConnectController::progress() const
{
    ConnectProgress progress;
    progress.pending = isBusy();
    progress.disconnecting = m_kind == Kind::Disconnecting;
    progress.cancelling = m_kind == Kind::Cancelling || m_kind == Kind::DisconnectingPending;
    progress.label = m_label;
    return progress;
}

void ConnectController::connectRuntime(OperationOrigin origin)
{
    if (connectAllowed()) {
        begin(Kind::ConnectRuntime, origin, m_parts.link.send(ControlRequest::ConnectRuntime));
    }
}

void ConnectController::connectNode(const QString &nodeID, const QString &label,
                                    OperationOrigin origin)
{
    if (connectAllowed()) {
        begin(Kind::ConnectNode, origin, m_parts.link.send(ControlRequest::ConnectNode, nodeID),
              label);
    }
}

void ConnectController::connectSmart(const QString &selector)
{
    if (connectAllowed()) {
        begin(Kind::ConnectSmart, OperationOrigin::Window,
              m_parts.link.send(ControlRequest::ConnectSmart, selector));
    }
}

bool ConnectController::connectAllowed()
{
    return m_parts.compatibility.guardPasses() && m_parts.updates.connectAllowed() && !isBusy() &&
           m_parts.operationAllowed();
}

void ConnectController::disconnectRuntime(OperationOrigin origin)
{
    // Neither a version nor an update may keep the user inside a connection.
    if (m_parts.isOtherwiseBusy()) {
        if (origin == OperationOrigin::Window) {
            m_parts.notices.pleaseWait();
        }
    } else if (!isBusy()) {
        begin(Kind::Disconnecting, origin, m_parts.link.send(ControlRequest::DisconnectRuntime));
    }
}

void ConnectController::cancel(OperationOrigin origin)
{
    switch (m_kind) {
    case Kind::ConnectRuntime:
    case Kind::ConnectNode:
    case Kind::ConnectSmart:
        for (const ControlRequest request :
             {ControlRequest::ConnectRuntime, ControlRequest::ConnectNode,
              ControlRequest::ConnectSmart}) {
            m_parts.link.cancel(request);
        }
        // The disconnect decides from now on: it undoes whatever the connect achieved, and waits as
        // long as that takes.
        begin(Kind::Cancelling, origin,
              m_parts.link.sendWithTimeout(ControlRequest::DisconnectRuntime, 0), m_label);
        return;
    case Kind::None:
        if (facts::isPending(m_parts.state.runtime()) && m_parts.compatibility.guardPasses()) {
            // It may wait for the connection that is to be given up, and the disconnect
            // would wait for it.
            m_parts.cancelModeChange();
            begin(Kind::DisconnectingPending, origin,
                  m_parts.link.send(ControlRequest::DisconnectRuntime));
        }
        return;
    case Kind::Cancelling:
    case Kind::DisconnectingPending:
    case Kind::Disconnecting:
        return;
    }
}

void ConnectController::handleConnect(quint64 requestId, ControlRequest request,
                                      const RuntimeInfo &info, const QString &error)
{
    if (!error.isEmpty()) {
        finish(
            requestId, {},
            NoticeSink::wording(error, request == ControlRequest::ConnectRuntime
                                           ? ShellText::tr("Could not connect")
                                           : ShellText::tr("Could not connect to this location")));
        return;
    }
    finish(requestId, info, {});
}

void ConnectController::handleDisconnect(quint64 requestId, const RuntimeInfo &info,
                                         const QString &error)
{
    finish(requestId, info,
           error.isEmpty() ? QString()
                           : NoticeSink::wording(error, ShellText::tr("Could not disconnect")));
}

void ConnectController::begin(Kind kind, OperationOrigin origin, quint64 requestId,
                              const QString &label)
{
    m_kind = kind;
    m_origin = origin;
    m_label = label;
    Q_EMIT started(kind, requestId, origin, label);
}

void ConnectController::finish(quint64 requestId, const RuntimeInfo &info, const QString &failure)
{
    const Kind kind = m_kind;
    m_kind = Kind::None;
    m_label.clear();
    if (failure.isEmpty() && facts::tellsState(info)) {
        m_parts.state.setRuntime(info);
    }
    if (!failure.isEmpty() && m_origin == OperationOrigin::Window) {
        m_parts.notices.error(failure, failure,
                              isConnect(kind) ? std::optional(Page::Vpn) : std::nullopt);
    }
    Q_EMIT ended(kind, requestId, info, failure);
}
