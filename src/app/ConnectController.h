#pragma once

#include "ConnectProgress.h"
#include "RuntimeRecords.h"
#include "TrayOperations.h"

#include <QObject>

#include <functional>
#include <optional>

class AppState;
class NoticeSink;
class RequestLink;
class ServiceCompatibility;
class UpdateController;
enum class ControlRequest;

/// Connecting, cancelling and disconnecting: one operation at a time, behind the
/// guards that decide whether it may start.
class ConnectController final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ConnectController)

public:
    /// What runs now.
    enum class Kind {
        None = 0,
        ConnectRuntime = 1,
        ConnectNode = 2,
        ConnectSmart = 3,
        Cancelling = 4,           ///< Taking back a connect of kind 1 to 3.
        DisconnectingPending = 5, ///< Ending a connect that the daemon runs by itself.
        Disconnecting = 6,
    };

    /// What the guards and requests need; everything must outlive the object.
    struct Parts
    {
        RequestLink &link;
        AppState &state;
        NoticeSink &notices;
        ServiceCompatibility &compatibility;
        UpdateController &updates;
        /// No other operation runs anywhere, and the daemon is available.
        std::function<bool()> operationAllowed;
        /// Another operation runs, of the window's or of the tray's own.
        std::function<bool()> isOtherwiseBusy;
        /// Gives up a mode change that runs, whoever asked for it.
        std::function<void()> cancelModeChange;
    };

    explicit ConnectController(Parts parts, QObject *parent = nullptr);

    /// It leads into a connection, rather than out of one.
    static bool isConnect(Kind kind)
    {
        return kind == Kind::ConnectRuntime || kind == Kind::ConnectNode ||
               kind == Kind::ConnectSmart;
    }
    bool isBusy() const { return m_kind != Kind::None; }
    ConnectProgress progress() const;

    void connectRuntime(OperationOrigin origin);
    void connectNode(const QString &nodeID, const QString &label, OperationOrigin origin);
    void connectSmart(const QString &selector);
    void disconnectRuntime(OperationOrigin origin);
    /// Takes back our own connect, or one that the daemon started by itself.
    void cancel(OperationOrigin origin);

    /// The answer to a request that the link still awaited.
    void handleConnect(quint64 requestId, ControlRequest request, const RuntimeInfo &info,
                       const QString &error);
    void handleDisconnect(quint64 requestId, const RuntimeInfo &info, const QString &error);

Q_SIGNALS:
    void started(ConnectController::Kind kind, quint64 requestId, OperationOrigin origin,
                 const QString &label);
    /// `failure` is the text for the user, empty on success.
    void ended(ConnectController::Kind kind, quint64 requestId, const RuntimeInfo &info,
               const QString &failure);

private:
    bool connectAllowed();
    void begin(Kind kind, OperationOrigin origin, quint64 requestId, const QString &label = {});
    void finish(quint64 requestId, const RuntimeInfo &info, const QString &failure);

    Parts m_parts;
    Kind m_kind = Kind::None;
    OperationOrigin m_origin = OperationOrigin::Window;
    QString m_label;
};
