#include "RequestLink.h"

#include <QByteArray>
#include <QMetaMethod>
#include <QMetaObject>
#include <QVarLengthArray>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace {

using Request = ControlRequest;

constexpr int kRead = 1500;     // A read is answered from memory or not at all.
constexpr int kChange = 30000;  // A change may have to reach a server.
constexpr int kPurchase = 8000; // The user waits for a browser to open.
constexpr int kEndless = 0;     // Only the daemon knows how long a connect may take.

// clang-format off
constexpr std::array kRoutes{
    RequestRoute{Request::FetchStatus,               "fetchStatus",               WorkerLane::Reads,   kRead},
    RequestRoute{Request::FetchVersion,              "fetchVersion",              WorkerLane::Reads,   kRead},
    RequestRoute{Request::FetchAPIURLConfig,         "fetchAPIURLConfig",         WorkerLane::Reads,   kRead},
    RequestRoute{Request::SetAPIURL,                 "setAPIURL",                 WorkerLane::Changes, kChange},
    RequestRoute{Request::ResetAPIURL,               "resetAPIURL",               WorkerLane::Changes, kRead},
    RequestRoute{Request::SetAutoConnectPreference,  "setAutoConnectPreference",  WorkerLane::Changes, kRead},
    RequestRoute{Request::FetchLanguageConfig,       "fetchLanguageConfig",       WorkerLane::Reads,   kRead},
    RequestRoute{Request::SetLanguage,               "setLanguage",               WorkerLane::Changes, kRead},
    RequestRoute{Request::SetLanguageIfSource,       "setLanguageIfSource",       WorkerLane::Changes, kRead},
    RequestRoute{Request::CheckUpdate,               "checkUpdate",               WorkerLane::Changes, kChange},
    RequestRoute{Request::StartGUIUpdateDownload,    "startGUIUpdateDownload",    WorkerLane::Changes, kRead},
    RequestRoute{Request::FetchGUIUpdateDownload,    "fetchGUIUpdateDownload",    WorkerLane::Reads,   kRead},
    RequestRoute{Request::CancelGUIUpdateDownload,   "cancelGUIUpdateDownload",   WorkerLane::Changes, kRead},
    RequestRoute{Request::FetchUser,                 "fetchUser",                 WorkerLane::Reads,   kRead},
    RequestRoute{Request::FetchPurchaseURL,          "fetchPurchaseURL",          WorkerLane::Changes, kPurchase},
    RequestRoute{Request::FetchNodes,                "fetchNodes",                WorkerLane::Reads,   kRead},
    RequestRoute{Request::SetNodeFavorite,           "setNodeFavorite",           WorkerLane::Changes, kChange},
    RequestRoute{Request::FetchNodeGroups,           "fetchNodeGroups",           WorkerLane::Reads,   kRead},
    RequestRoute{Request::FetchConfigPaths,          "fetchConfigPaths",          WorkerLane::Reads,   kRead},
    RequestRoute{Request::FetchKillSwitch,           "fetchKillSwitch",           WorkerLane::Reads,   kRead},
    RequestRoute{Request::ConnectRuntime,            "connectRuntime",            WorkerLane::Session, kEndless},
    RequestRoute{Request::ConnectNode,               "connectNode",               WorkerLane::Session, kEndless},
    RequestRoute{Request::ConnectSmart,              "connectSmart",              WorkerLane::Session, kEndless},
    RequestRoute{Request::DisconnectRuntime,         "disconnectRuntime",         WorkerLane::Session, kChange},
    RequestRoute{Request::Login,                     "login",                     WorkerLane::Session, kChange},
    RequestRoute{Request::Logout,                    "logout",                    WorkerLane::Session, kChange},
    RequestRoute{Request::SetMode,                   "setMode",                   WorkerLane::Session, kEndless},
    RequestRoute{Request::SetSystemProxyPreference,  "setSystemProxyPreference",  WorkerLane::Changes, kChange},
    RequestRoute{Request::SetLocalNetworkPreference, "setLocalNetworkPreference", WorkerLane::Changes, kChange},
    RequestRoute{Request::SetProxyLANPreference,     "setProxyLANPreference",     WorkerLane::Changes, kChange},
    RequestRoute{Request::SetProxyListeners,         "setProxyListeners",         WorkerLane::Changes, kChange},
    RequestRoute{Request::FetchSplitDNS,             "fetchSplitDNS",             WorkerLane::Reads,   kRead},
    RequestRoute{Request::SetSplitDNSLocal,          "setSplitDNSLocal",          WorkerLane::Changes, kChange},
    RequestRoute{Request::SetSplitDNSPolicy,         "setSplitDNSPolicy",         WorkerLane::Changes, kChange},
    RequestRoute{Request::ClearSplitDNSLocal,        "clearSplitDNSLocal",        WorkerLane::Changes, kChange},
    RequestRoute{Request::ResetSplitDNS,             "resetSplitDNS",             WorkerLane::Changes, kChange},
    RequestRoute{Request::FetchSplitRules,           "fetchSplitRules",           WorkerLane::Reads,   kRead},
    RequestRoute{Request::ImportSplitRules,          "importSplitRules",          WorkerLane::Changes, kChange},
    RequestRoute{Request::RepairDiagnostics,         "repairDiagnostics",         WorkerLane::Changes, kChange},
    RequestRoute{Request::SetKillSwitchEnabled,      "setKillSwitchEnabled",      WorkerLane::Changes, kChange},
    RequestRoute{Request::SetKillSwitchMode,         "setKillSwitchMode",         WorkerLane::Changes, kChange},
    RequestRoute{Request::SetKillSwitchAllowLAN,     "setKillSwitchAllowLAN",     WorkerLane::Changes, kChange},
};
// clang-format on

constexpr bool isInEnumOrder()
{
    for (std::size_t i = 0; i < kRoutes.size(); ++i) {
        if (static_cast<std::size_t>(kRoutes[i].request) != i) {
            return false;
        }
    }
    return static_cast<std::size_t>(Request::SetKillSwitchAllowLAN) + 1 == kRoutes.size();
}
static_assert(isInEnumOrder(), "the table is looked up by position");

/// The most arguments that an invocation by name can carry.
constexpr qsizetype kMaxArguments = 10;

} // namespace

const RequestRoute &requestRoute(ControlRequest request)
{
    return kRoutes[static_cast<std::size_t>(request)];
}

RequestLink::RequestLink(const ControlWorkers &workers, quint64 firstId)
    : m_workers(workers)
    , m_nextId(firstId)
{}

quint64 RequestLink::invoke(ControlRequest request, int timeoutMs,
                            std::initializer_list<Argument> arguments)
{
    const RequestRoute &route = requestRoute(request);
    ControlWorker &target = worker(route.lane);
    const quint64 id = m_nextId++;

    QVarLengthArray<QGenericArgument, kMaxArguments> all;
    all.append(QGenericArgument("quint64", &id));
    for (const Argument &argument : arguments) {
        all.append(QGenericArgument(argument.type, argument.data));
    }
    all.append(QGenericArgument("int", &timeoutMs));

    QByteArray signature(route.method);
    char separator = '(';
    for (const QGenericArgument &argument : std::as_const(all)) {
        signature += separator;
        signature += argument.name();
        separator = ',';
    }
    signature += ')';
    all.resize(kMaxArguments);

    const QMetaObject *meta = target.metaObject();
    const QMetaMethod method = meta->method(meta->indexOfSlot(signature.constData()));
    const bool isQueued = method.invoke(&target, Qt::QueuedConnection, all[0], all[1], all[2],
                                        all[3], all[4], all[5], all[6], all[7], all[8], all[9]);
    if (!isQueued) {
        qFatal("no worker slot matches %s", signature.constData());
    }
    m_pending.insert(request, id);
    return id;
}

std::optional<ControlRequest> RequestLink::take(quint64 id)
{
    const auto entry = std::find(m_pending.cbegin(), m_pending.cend(), id);
    if (entry == m_pending.cend()) {
        return std::nullopt;
    }
    const ControlRequest request = entry.key();
    m_pending.erase(entry);
    return request;
}

std::optional<quint64> RequestLink::pendingId(ControlRequest request) const
{
    const auto entry = m_pending.constFind(request);
    return entry == m_pending.constEnd() ? std::nullopt : std::optional(*entry);
}

bool RequestLink::isPending(ControlRequest request) const
{
    return m_pending.contains(request);
}

void RequestLink::forget(ControlRequest request)
{
    m_pending.remove(request);
}

void RequestLink::cancel(ControlRequest request)
{
    const auto entry = m_pending.constFind(request);
    if (entry != m_pending.constEnd()) {
        worker(requestRoute(request).lane).cancelRequest(*entry);
        m_pending.erase(entry);
    }
}

ControlWorker &RequestLink::worker(WorkerLane lane) const
{
    return *m_workers[static_cast<std::size_t>(lane)];
}
