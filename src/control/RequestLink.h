#pragma once

#include "ControlWorker.h"

#include <QMap>
#include <QMetaType>
#include <QString>
#include <QStringList>

#include <array>
#include <initializer_list>
#include <optional>

/// Everything that can be asked of a worker, one value for each of its slots and
/// in the order of its slots.
enum class ControlRequest {
    FetchStatus,
    FetchVersion,
    FetchAPIURLConfig,
    SetAPIURL,
    ResetAPIURL,
    SetAutoConnectPreference,
    FetchLanguageConfig,
    SetLanguage,
    SetLanguageIfSource,
    CheckUpdate,
    StartGUIUpdateDownload,
    FetchGUIUpdateDownload,
    CancelGUIUpdateDownload,
    FetchUser,
    FetchPurchaseURL,
    FetchNodes,
    SetNodeFavorite,
    FetchNodeGroups,
    FetchConfigPaths,
    FetchKillSwitch,
    ConnectRuntime,
    ConnectNode,
    ConnectSmart,
    DisconnectRuntime,
    Login,
    Logout,
    SetMode,
    SetSystemProxyPreference,
    SetLocalNetworkPreference,
    SetProxyLANPreference,
    SetProxyListeners,
    FetchSplitDNS,
    SetSplitDNSLocal,
    SetSplitDNSPolicy,
    ClearSplitDNSLocal,
    ResetSplitDNS,
    FetchSplitRules,
    ImportSplitRules,
    RepairDiagnostics,
    SetKillSwitchEnabled,
    SetKillSwitchMode,
    SetKillSwitchAllowLAN,
};

/// Which worker a request goes to. Requests of one lane wait for each other;
/// the lanes run side by side.
enum class WorkerLane {
    Reads,   ///< Short reads, so that a long change never delays a poll.
    Session, ///< Connect, disconnect, mode, sign-in and sign-out, which exclude each other.
    Changes, ///< All other changes.
};

/// The three workers by lane. Not owned.
using ControlWorkers = std::array<ControlWorker *, 3>;

/// How one request travels.
struct RequestRoute
{
    ControlRequest request;
    const char *method; ///< The worker's slot.
    WorkerLane lane;
    int timeoutMs; ///< 0: connect and write are bounded, the answer may take for ever.
};

const RequestRoute &requestRoute(ControlRequest request);

/// Sends requests to the workers and knows which answers are still awaited.
///
/// Each receiver of answers (the shell, the tray) has a link of its own with its
/// own range of request ids, because the workers' signals reach them both. Lives
/// on the GUI thread; the workers must outlive it.
class RequestLink final
{
    Q_DISABLE_COPY_MOVE(RequestLink)

public:
    /// First ids of the two links; far enough apart never to meet.
    static constexpr quint64 kShellFirstId = 0;
    static constexpr quint64 kTrayFirstId = quint64{1} << 63;

    RequestLink(const ControlWorkers &workers, quint64 firstId);

    /// Queues `request` on its worker with the arguments between the id and the
    /// time-out, and remembers it as the latest of its kind: an answer to an
    /// earlier one is no longer awaited. Returns the request's id. A call that no
    /// slot matches is a programming error and ends the process.
    template<class... Args>
    quint64 send(ControlRequest request, const Args &...args)
    {
        return invoke(request, requestRoute(request).timeoutMs, {argument(args)...});
    }

    /// Like send(), with another time-out (ms) than the route's.
    template<class... Args>
    quint64 sendWithTimeout(ControlRequest request, int timeoutMs, const Args &...args)
    {
        return invoke(request, timeoutMs, {argument(args)...});
    }

    /// Takes the answer with this id off the list. Empty when nobody awaits it:
    /// the answer is stale and must be ignored.
    [[nodiscard]] std::optional<ControlRequest> take(quint64 id);

    bool isPending(ControlRequest request) const;
    /// The id of the awaited answer to `request`, if any.
    std::optional<quint64> pendingId(ControlRequest request) const;

    /// Stops waiting for the answer to `request`; a late one is stale then.
    void forget(ControlRequest request);
    /// Ends a connect or a mode change, of which nobody awaits an answer any more. The
    /// daemon may have carried it out all the same.
    void cancel(ControlRequest request);

    ControlWorker &worker(WorkerLane lane) const;

private:
    struct Argument
    {
        const char *type;
        const void *data;
    };

    static Argument argument(const bool &value) { return {"bool", &value}; }
    static Argument argument(const qint64 &value) { return {"qint64", &value}; }
    static Argument argument(const QString &value) { return {"QString", &value}; }
    static Argument argument(const QStringList &value) { return {"QStringList", &value}; }
    static Argument argument(const ModeInfo &value) { return {"ModeInfo", &value}; }

    quint64 invoke(ControlRequest request, int timeoutMs,
                   std::initializer_list<Argument> arguments);

    ControlWorkers m_workers;
    quint64 m_nextId;
    QMap<ControlRequest, quint64> m_pending;
};
