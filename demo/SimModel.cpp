#include "SimModel.h"

#include <QCryptographicHash>
#include <QUrl>
#include <QUrlQuery>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRefreshMs = 4000;
constexpr int kPingStepMs = 1000;
constexpr int kPingSteps = 12;
constexpr auto kDaemonVersion = "10.4.0+26101701"_L1;

/// A moment as the daemon writes it: nanoseconds and zone, and year 1 for "never".
QString stamp(const QDateTime &time)
{
    return time.isValid() ? time.toString(u"yyyy-MM-ddTHH:mm:ss.zzz"_s) + u"000000Z"_s
                          : u"0001-01-01T00:00:00Z"_s;
}

QJsonObject repaired(const QString &result, const QString &state, const QString &reason)
{
    return {{u"result"_s, result}, {u"state"_s, state}, {u"reason"_s, reason}};
}

} // namespace

SimModel::Parts::Parts(const SimModel &model, SimTimeline &timeline)
    : catalog(model.m_options.nodes < 0 ? model.m_scenario->nodes : model.m_options.nodes,
              model.m_options.seed, model.m_scenario->hostileNames)
    , routing(*model.m_scenario)
    , settings(*model.m_scenario)
    , split(model.m_files)
    , update(timeline, *model.m_scenario, model.m_files)
    , auth(model.m_scenario->authState)
    , account(u"ada@example.org"_s)
    , stale(model.m_scenario->staleCatalog)
{}

SimModel::SimModel(const SimOptions &options, SimTimeline &timeline)
    : m_options(options)
    , m_scenario(SimScenario::find(options.scenario))
    , m_timeline(timeline)
    , m_files(options.directory)
    , m_tunnel(timeline, *m_scenario)
{
    reset(*m_scenario);
}

void SimModel::reset(const SimScenario &scenario)
{
    m_timeline.clear();
    m_scenario = &scenario;
    m_tunnel.reset(scenario);
    m_parts = std::make_unique<Parts>(*this, m_timeline);
    startPingRun();
    m_files.appendToLog("scenario " + scenario.name.toUtf8());
}

bool SimModel::isSignedIn() const
{
    return m_parts->auth == "logged_in"_L1 || m_parts->auth == "cached"_L1;
}

bool SimModel::isSplitRunning() const
{
    return m_tunnel.isConnected() && m_parts->routing.isVpnSplit();
}

QString SimModel::connectedId() const
{
    return m_tunnel.isConnected() ? m_tunnel.nodeId() : QString();
}

QJsonObject SimModel::versionJson() const
{
    return {{u"version"_s, kDaemonVersion}, {u"api_version"_s, u"1"_s}};
}

QJsonObject SimModel::statusJson() const
{
    const SimRouting &routing = m_parts->routing;
    const bool connected = m_tunnel.isConnected();
    const QString vpn = routing.transport() == "vantuvpn"_L1 ? u"vantuvpn"_s : u"wireguard"_s;
    QJsonObject mode = routing.modeJson();
    m_parts->proxy.addToMode(mode);
    QJsonObject status{
        {u"daemon_state"_s, m_tunnel.isActive() ? m_tunnel.word() : u"ready"_s},
        {u"daemon_version"_s, kDaemonVersion},
        {u"catalog_refresh"_s, m_parts->refreshing ? u"refreshing"_s : u"idle"_s},
        {u"auth_state"_s, m_parts->auth},
        // The proxy moves traffic without a tunnel.
        {u"tunnel_state"_s, routing.isProxy() ? u"disconnected"_s : m_tunnel.word()},
        {u"tunnel_kind"_s, m_tunnel.isActive() && !routing.isProxy() ? vpn : QString()},
        {u"tunnel_reason"_s, m_tunnel.reason()},
        {u"last_error"_s, m_tunnel.lastError()},
        {u"mode"_s, mode},
        {u"connected_source"_s, connected ? m_tunnel.source() : QString()},
        {u"connected_target"_s, connected ? m_tunnel.target() : QString()},
        {u"connected_since"_s, stamp(connected ? m_tunnel.connectedSince() : QDateTime())},
        {u"selected_node"_s, SimCatalog::referenceJson(m_parts->catalog.find(m_parts->selectedId))},
        {u"connected_node"_s, SimCatalog::referenceJson(m_parts->catalog.find(connectedId()))},
        {u"kill_switch"_s, routing.killSwitchJson()},
        {u"message"_s,
         m_scenario->hostileNames ? u"<h1>Daemon</h1>\nsays & \u202Esdrawkcab"_s : QString()},
    };
    m_parts->settings.addToStatus(status);
    m_parts->proxy.addToStatus(status, connected, connected && routing.isProxySplit(),
                               m_files.path(u"run/proxy.pac"_s));
    return status;
}

SimRefusal SimModel::chooseTarget(const QJsonObject &body, QString &nodeId, QString &source,
                                  QString &target)
{
    const SimCatalog &catalog = m_parts->catalog;
    if (body.contains(u"node"_s)) {
        if (body.size() > 1) {
            return SimReply::error(400, u"\"node\" goes with nothing else"_s);
        }
        nodeId = target = body.value(u"node"_s).toString();
        source = u"node"_s;
        if (!catalog.find(nodeId)) {
            return SimReply::error(404, u"unknown node \"%1\""_s.arg(nodeId));
        }
        m_parts->selectedId = nodeId;
        return {};
    }
    if (body.contains(u"group"_s) && !body.value(u"smart"_s).toBool()) {
        return SimReply::error(400, u"\"group\" needs \"smart\" true"_s);
    }
    target = body.value(u"group"_s).toString();
    if (!target.isEmpty() && !catalog.hasGroup(target)) {
        return SimReply::error(404, u"unknown group \"%1\""_s.arg(target));
    }
    if (body.value(u"smart"_s).toBool()) {
        source = u"smart"_s;
        m_parts->selectedId.clear();
    } else {
        nodeId = target = catalog.find(m_parts->selectedId) ? m_parts->selectedId : QString();
        source = nodeId.isEmpty() ? u"smart"_s : u"node"_s;
    }
    if (nodeId.isEmpty()) {
        const SimNode *quickest = catalog.quickest(target);
        if (!quickest) {
            return SimReply::error(409, u"no location is available"_s);
        }
        nodeId = QString::number(quickest->id);
    }
    return {};
}

SimReply SimModel::connect(const QJsonObject &body)
{
    if (!isSignedIn()) {
        return SimReply::error(401, u"Sign in to connect"_s);
    }
    if (m_tunnel.isActive() && !m_tunnel.isConnected()) {
        return SimReply::error(409, u"a connect is already under way"_s);
    }
    QString nodeId;
    QString source;
    QString target;
    if (const SimRefusal refusal = chooseTarget(body, nodeId, source, target)) {
        return *refusal;
    }
    if (connectedId() == nodeId) {
        return SimReply::json(statusJson());
    }
    return startConnect(nodeId, source, target);
}

SimReply SimModel::startConnect(const QString &nodeId, const QString &source, const QString &target)
{
    m_parts->proxy.activate();
    const quint64 attempt = m_tunnel.start(nodeId, source, target);
    return SimReply::later([this, attempt] { return m_tunnel.isUnderWay(attempt); },
                           [this, attempt] {
                               if (m_tunnel.wasGivenUp(attempt)) {
                                   return SimReply::error(409, u"the connect was canceled"_s);
                               }
                               if (m_tunnel.phase() == SimTunnel::Phase::Failed) {
                                   return SimReply::error(502, m_tunnel.lastError());
                               }
                               return SimReply::json(statusJson());
                           });
}

SimReply SimModel::disconnect()
{
    const quint64 attempt = m_tunnel.stop();
    return SimReply::later([this, attempt] { return m_tunnel.isUnderWay(attempt); },
                           [this] { return SimReply::json(statusJson()); });
}

SimReply SimModel::login(const QString &username, const QString &password)
{
    if (username.trimmed().isEmpty() || password.isEmpty()) {
        return SimReply::error(400, u"account and password are required"_s);
    }
    if (password == "wrong"_L1) {
        return SimReply::error(401, u"Wrong account or password"_s);
    }
    m_parts->auth = u"logged_in"_s;
    m_parts->account = username.trimmed();
    return SimReply::json(statusJson());
}

SimReply SimModel::logout()
{
    m_tunnel.stop();
    m_parts->auth = u"logged_out"_s;
    m_parts->selectedId.clear();
    return SimReply::json(statusJson());
}

SimReply SimModel::user() const
{
    if (!isSignedIn()) {
        return SimReply::error(401, u"nobody is signed in"_s);
    }
    const QString &account = m_parts->account;
    return SimReply::json(
        {{u"email"_s, account.contains(u'@') ? account : account + u"@example.org"_s},
         {u"user_number"_s, u"48201377"_s},
         {u"role"_s, m_scenario->hostileNames ? u"<b>VIP</b>\n& more"_s : u"VIP"_s},
         {u"email_checked"_s, true},
         {u"left_days"_s, 214},
         {u"max_device_count"_s, 5}});
}

SimReply SimModel::purchaseUrl(const QString &language) const
{
    if (!isSignedIn()) {
        return SimReply::error(401, u"nobody is signed in"_s);
    }
    // No secret, but shaped like one: nobody may find it in a log.
    const QByteArray token = QCryptographicHash::hash(
        QByteArray::number(m_options.seed) + m_parts->account.toUtf8(), QCryptographicHash::Sha256);
    QUrlQuery query;
    query.addQueryItem(u"lang"_s, language.isEmpty() ? m_parts->settings.language() : language);
    query.addQueryItem(u"webAccessToken"_s, QString::fromLatin1(token.toHex()));
    query.addQueryItem(u"account"_s, u"48201377"_s);
    QUrl url(u"https://www.vantuvpn.com/purchase"_s);
    url.setQuery(query);
    return SimReply::json({{u"url"_s, url.toString(QUrl::FullyEncoded)}});
}

SimReply SimModel::nodes() const
{
    const SimCatalog &catalog = m_parts->catalog;
    return SimReply::json({{u"stale"_s, m_parts->stale},
                           {u"pingRunning"_s, m_parts->pingSecondsLeft > 0},
                           {u"nodes"_s, catalog.nodesJson()},
                           {u"selected"_s, catalog.entryJson(catalog.find(m_parts->selectedId))},
                           {u"connected"_s, catalog.entryJson(catalog.find(connectedId()))}});
}

SimReply SimModel::groups() const
{
    return SimReply::json({{u"stale"_s, m_parts->stale}, {u"tabs"_s, m_parts->catalog.tabsJson()}});
}

SimReply SimModel::refreshCatalog()
{
    if (!m_parts->refreshing) {
        m_parts->refreshing = true;
        m_timeline.after(kRefreshMs, SimTimeline::Track::Catalog, [this] {
            m_parts->refreshing = false;
            m_parts->stale = false;
            m_parts->catalog.renew({m_tunnel.nodeId(), m_parts->selectedId});
            startPingRun();
        });
    }
    return nodes();
}

void SimModel::startPingRun()
{
    m_timeline.cancel(SimTimeline::Track::Ping);
    m_parts->pingSecondsLeft = m_parts->catalog.isEmpty() ? 0 : kPingSteps;
    if (m_parts->pingSecondsLeft > 0) {
        m_timeline.after(kPingStepMs, SimTimeline::Track::Ping, [this] { ping(); });
    }
}

void SimModel::ping()
{
    m_parts->catalog.driftPings();
    if (--m_parts->pingSecondsLeft > 0) {
        m_timeline.after(kPingStepMs, SimTimeline::Track::Ping, [this] { ping(); });
    }
}

SimReply SimModel::setFavorite(const QString &nodeId, bool favorite)
{
    const SimNode *node = m_parts->catalog.find(nodeId);
    if (!node) {
        return SimReply::error(404, u"unknown node \"%1\""_s.arg(nodeId));
    }
    m_parts->catalog.setFavorite(node->id, favorite);
    return nodes();
}

SimReply SimModel::mode() const
{
    QJsonObject mode = m_parts->routing.modeJson();
    m_parts->proxy.addToMode(mode);
    return SimReply::json(mode);
}

SimReply SimModel::afterRouting(bool reconnect, std::function<QJsonObject()> record)
{
    if (!reconnect || !m_tunnel.isActive()) {
        return SimReply::json(record());
    }
    m_parts->proxy.activate();
    const quint64 attempt = m_tunnel.restart();
    return SimReply::later([this, attempt] { return m_tunnel.isUnderWay(attempt); },
                           [record = std::move(record)] { return SimReply::json(record()); });
}

SimReply SimModel::setMode(const QJsonObject &request)
{
    SimRouting &routing = m_parts->routing;
    const QString transport = routing.transport();
    const bool wasSplit = routing.isVpnSplit() || routing.isProxySplit();
    if (const SimRefusal refusal = routing.setMode(request)) {
        return *refusal;
    }
    m_parts->proxy.renewPac();
    const bool isSplit = routing.isVpnSplit() || routing.isProxySplit();
    return afterRouting(transport != routing.transport() || wasSplit != isSplit, [this] {
        QJsonObject mode = m_parts->routing.modeJson();
        m_parts->proxy.addToMode(mode);
        return mode;
    });
}

SimReply SimModel::setKillSwitch(const QString &mode)
{
    SimRouting &routing = m_parts->routing;
    const bool wasSplit = routing.isVpnSplit();
    if (const SimRefusal refusal = routing.setKillSwitch(mode)) {
        return *refusal;
    }
    return afterRouting(wasSplit && !routing.isVpnSplit(),
                        [this] { return m_parts->routing.killSwitchJson(); });
}

SimReply SimModel::setListeners(const QJsonArray &listeners)
{
    SimProxy &proxy = m_parts->proxy;
    if (const SimRefusal refusal = proxy.setListeners(listeners)) {
        return *refusal;
    }
    return SimReply::json({{u"applies_on_reconnect"_s, m_tunnel.isActive()},
                           {u"proxy_listeners"_s, proxy.listenersJson()}});
}

SimReply SimModel::setAutoConnect(const QString &value)
{
    if (const SimRefusal refusal = m_parts->settings.setAutoConnect(value)) {
        return *refusal;
    }
    return SimReply::json(m_parts->settings.autoConnectJson(m_parts->selectedId));
}

SimReply SimModel::importRules(const QString &kind, const QString &content)
{
    return m_parts->split.importRules(kind, content, isSplitRunning());
}

SimReply SimModel::setDnsServers(const QJsonArray &servers)
{
    return m_parts->split.setDnsServers(servers, isSplitRunning(), routing().sendsChinaDirect());
}

SimReply SimModel::setDnsPolicy(const QString &policy)
{
    return m_parts->split.setDnsPolicy(policy, isSplitRunning(), routing().sendsChinaDirect());
}

SimReply SimModel::clearDnsServers()
{
    return m_parts->split.clearDnsServers(isSplitRunning(), routing().sendsChinaDirect());
}

SimReply SimModel::resetDns()
{
    return m_parts->split.resetDns(isSplitRunning(), routing().sendsChinaDirect());
}

SimReply SimModel::repairKillSwitch() const
{
    const bool on = m_parts->routing.killSwitch() != "off"_L1;
    return SimReply::json(
        repaired(u"ok"_s, on ? u"active"_s : u"inactive"_s, u"firewall rules match the setting"_s));
}

SimReply SimModel::repairProxy(bool force) const
{
    return SimReply::json(
        repaired(force ? u"repaired"_s : u"ok"_s, u"healthy"_s, u"listeners answer"_s));
}

SimReply SimModel::repairTunnel()
{
    const bool failed = m_tunnel.phase() == SimTunnel::Phase::Failed;
    if (failed) {
        m_tunnel.stop();
    }
    return SimReply::json(repaired(failed ? u"repaired"_s : u"ok"_s, m_tunnel.word(),
                                   failed ? u"leftover interface removed"_s : QString()));
}
