#include "SimRoutes.h"

#include "SimModel.h"

#include <QJsonDocument>
#include <QStringList>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kString = QJsonValue::String;
constexpr auto kBool = QJsonValue::Bool;
constexpr auto kNumber = QJsonValue::Double;
constexpr auto kArray = QJsonValue::Array;
constexpr auto kObject = QJsonValue::Object;

QString text(const SimCall &call, const QString &name)
{
    return call.body.value(name).toString();
}

bool flag(const SimCall &call, const QString &name)
{
    return call.body.value(name).toBool();
}

/// Answers a change of routing with the mode, or with the rule that forbids it.
SimReply modeOr(SimModel &model, const SimRefusal &refusal)
{
    return refusal ? *refusal : model.mode();
}

QList<SimRoute> serviceRoutes()
{
    return {
        {"GET",
         u"/v1/version"_s,
         {},
         0,
         [](SimModel &m, const SimCall &) { return SimReply::json(m.versionJson()); }},
        {"GET",
         u"/v1/status"_s,
         {},
         0,
         [](SimModel &m, const SimCall &) { return SimReply::json(m.statusJson()); }},
        {"POST",
         u"/v1/connect"_s,
         {{u"node"_s, kString, false}, {u"smart"_s, kBool, false}, {u"group"_s, kString, false}},
         0,
         [](SimModel &m, const SimCall &c) { return m.connect(c.body); }},
        {"POST",
         u"/v1/disconnect"_s,
         {},
         0,
         [](SimModel &m, const SimCall &) { return m.disconnect(); }},
        {"POST",
         u"/v1/session/login"_s,
         {{u"username"_s, kString}, {u"password"_s, kString}, {u"remember_me"_s, kBool}},
         900,
         [](SimModel &m, const SimCall &c) {
             return m.login(text(c, u"username"_s), text(c, u"password"_s));
         }},
        {"POST",
         u"/v1/session/logout"_s,
         {},
         500,
         [](SimModel &m, const SimCall &) { return m.logout(); }},
        {"GET", u"/v1/user"_s, {}, 0, [](SimModel &m, const SimCall &) { return m.user(); }},
        {"GET",
         u"/v1/account/purchase-url"_s,
         {},
         600,
         [](SimModel &m, const SimCall &c) { return m.purchaseUrl(c.query.value(u"lang"_s)); }},
        {"GET", u"/v1/nodes"_s, {}, 0, [](SimModel &m, const SimCall &) { return m.nodes(); }},
        {"POST",
         u"/v1/nodes/refresh"_s,
         {},
         300,
         [](SimModel &m, const SimCall &) { return m.refreshCatalog(); }},
        {"POST",
         u"/v1/nodes/favorite"_s,
         {{u"node"_s, kString}, {u"favorite"_s, kBool}},
         250,
         [](SimModel &m, const SimCall &c) {
             return m.setFavorite(text(c, u"node"_s), flag(c, u"favorite"_s));
         }},
        {"GET",
         u"/v1/nodes/groups"_s,
         {},
         0,
         [](SimModel &m, const SimCall &) { return m.groups(); }},
    };
}

QList<SimRoute> routingRoutes()
{
    return {
        {"POST",
         u"/v1/mode"_s,
         {{u"transport"_s, kString, false},
          {u"policy"_s, kString, false},
          {u"region"_s, kString, false},
          {u"split_profile"_s, kObject, false},
          {u"proxy_split_profile"_s, kObject, false}},
         300,
         [](SimModel &m, const SimCall &c) { return m.setMode(c.body); }},
        {"POST",
         u"/v1/proxy/system-proxy"_s,
         {{u"value"_s, kString}},
         250,
         [](SimModel &m, const SimCall &c) {
             return modeOr(m, m.routing().setSystemProxy(text(c, u"value"_s)));
         }},
        {"POST",
         u"/v1/local-network"_s,
         {{u"value"_s, kString}},
         250,
         [](SimModel &m, const SimCall &c) {
             return modeOr(m, m.routing().setLocalNetwork(text(c, u"value"_s)));
         }},
        {"POST",
         u"/v1/proxy/proxy-lan"_s,
         {{u"value"_s, kString}},
         250,
         [](SimModel &m, const SimCall &c) {
             return modeOr(m, m.routing().setProxyLan(text(c, u"value"_s)));
         }},
        {"POST",
         u"/v1/proxy/listen"_s,
         {{u"proxy_listeners"_s, kArray}},
         250,
         [](SimModel &m, const SimCall &c) {
             return m.setListeners(c.body.value(u"proxy_listeners"_s).toArray());
         }},
    };
}

QList<SimRoute> killSwitchRoutes()
{
    return {
        {"GET",
         u"/v1/kill-switch"_s,
         {},
         0,
         [](SimModel &m, const SimCall &) { return SimReply::json(m.routing().killSwitchJson()); }},
        {"POST",
         u"/v1/kill-switch"_s,
         {{u"enabled"_s, kBool}},
         400,
         [](SimModel &m, const SimCall &c) {
             const bool stays = m.routing().killSwitch() == "lockdown"_L1;
             const QString on = stays ? u"lockdown"_s : u"on"_s;
             return m.setKillSwitch(flag(c, u"enabled"_s) ? on : u"off"_s);
         }},
        {"POST",
         u"/v1/kill-switch/mode"_s,
         {{u"mode"_s, kString}},
         400,
         [](SimModel &m, const SimCall &c) { return m.setKillSwitch(text(c, u"mode"_s)); }},
        {"POST",
         u"/v1/kill-switch/allow-lan"_s,
         {{u"enabled"_s, kBool}},
         250,
         [](SimModel &m, const SimCall &c) {
             const SimRefusal refusal =
                 m.routing().setLocalNetwork(flag(c, u"enabled"_s) ? u"direct"_s : u"protected"_s);
             return refusal ? *refusal : SimReply::json(m.routing().killSwitchJson());
         }},
        {"POST",
         u"/v1/kill-switch/repair"_s,
         {},
         500,
         [](SimModel &m, const SimCall &) { return m.repairKillSwitch(); }},
        {"POST",
         u"/v1/proxy/repair"_s,
         {{u"force"_s, kBool}},
         500,
         [](SimModel &m, const SimCall &c) { return m.repairProxy(flag(c, u"force"_s)); }},
        {"POST",
         u"/v1/vpn/repair"_s,
         {},
         500,
         [](SimModel &m, const SimCall &) { return m.repairTunnel(); }},
    };
}

QList<SimRoute> configRoutes()
{
    return {
        {"GET",
         u"/v1/config/path"_s,
         {},
         0,
         [](SimModel &m, const SimCall &) { return SimReply::json(m.pathsJson()); }},
        {"GET",
         u"/v1/config/api-url"_s,
         {},
         0,
         [](SimModel &m, const SimCall &) { return SimReply::json(m.settings().apiUrlJson()); }},
        {"POST",
         u"/v1/config/api-url"_s,
         {{u"api_url"_s, kString}},
         800,
         [](SimModel &m, const SimCall &c) {
             if (const SimRefusal refusal = m.settings().setApiUrl(text(c, u"api_url"_s))) {
                 return *refusal;
             }
             m.refreshCatalog();
             return SimReply::json(m.settings().apiUrlJson());
         }},
        {"DELETE",
         u"/v1/config/api-url"_s,
         {},
         200,
         [](SimModel &m, const SimCall &) {
             m.settings().resetApiUrl();
             m.refreshCatalog();
             return SimReply::json(m.settings().apiUrlJson());
         }},
        {"POST",
         u"/v1/config/auto-connect"_s,
         {{u"auto_connect"_s, kString}},
         100,
         [](SimModel &m, const SimCall &c) {
             return m.setAutoConnect(text(c, u"auto_connect"_s));
         }},
        {"GET",
         u"/v1/config/language"_s,
         {},
         0,
         [](SimModel &m, const SimCall &) { return SimReply::json(m.settings().languageJson()); }},
        {"POST",
         u"/v1/config/language"_s,
         {{u"source"_s, kString}, {u"language"_s, kString}, {u"if_source"_s, kString, false}},
         100,
         [](SimModel &m, const SimCall &c) {
             const SimRefusal refusal = m.settings().setLanguage(
                 text(c, u"source"_s), text(c, u"language"_s), text(c, u"if_source"_s));
             return refusal ? *refusal : SimReply::json(m.settings().languageJson());
         }},
    };
}

QList<SimRoute> updateRoutes()
{
    return {
        {"POST",
         u"/v1/gui/update/check"_s,
         {{u"version"_s, kString}},
         1200,
         [](SimModel &m, const SimCall &c) {
             return SimReply::json(m.update().checkJson(text(c, u"version"_s)));
         }},
        {"POST",
         u"/v1/gui/update/download"_s,
         {{u"version"_s, kString}, {u"expected_version_num"_s, kNumber}},
         200,
         [](SimModel &m, const SimCall &c) {
             return m.update().start(text(c, u"version"_s),
                                     c.body.value(u"expected_version_num"_s).toInteger());
         }},
        {"GET",
         u"/v1/gui/update/download"_s,
         {},
         0,
         [](SimModel &m, const SimCall &) { return SimReply::json(m.update().downloadJson()); }},
        {"DELETE",
         u"/v1/gui/update/download"_s,
         {},
         100,
         [](SimModel &m, const SimCall &) {
             m.update().cancel();
             return SimReply::json(m.update().downloadJson());
         }},
    };
}

QList<SimRoute> splitRoutes()
{
    return {
        {"GET",
         u"/v1/split/dns"_s,
         {},
         0,
         [](SimModel &m, const SimCall &) {
             return SimReply::json(m.split().dnsJson(m.routing().sendsChinaDirect()));
         }},
        {"POST",
         u"/v1/split/dns/local"_s,
         {{u"local_direct_dns"_s, kArray}},
         200,
         [](SimModel &m, const SimCall &c) {
             return m.setDnsServers(c.body.value(u"local_direct_dns"_s).toArray());
         }},
        {"POST",
         u"/v1/split/dns/policy"_s,
         {{u"policy"_s, kString}},
         200,
         [](SimModel &m, const SimCall &c) { return m.setDnsPolicy(text(c, u"policy"_s)); }},
        {"DELETE",
         u"/v1/split/dns/local"_s,
         {},
         200,
         [](SimModel &m, const SimCall &) { return m.clearDnsServers(); }},
        {"POST",
         u"/v1/split/dns/reset"_s,
         {},
         200,
         [](SimModel &m, const SimCall &) { return m.resetDns(); }},
        {"GET",
         u"/v1/split/rules"_s,
         {},
         150,
         [](SimModel &m, const SimCall &c) { return m.split().rules(c.query.value(u"kind"_s)); }},
        {"POST",
         u"/v1/split/rules/import"_s,
         {{u"kind"_s, kString}, {u"content"_s, kString}},
         400,
         [](SimModel &m, const SimCall &c) {
             return m.importRules(text(c, u"kind"_s), text(c, u"content"_s));
         }},
    };
}

SimRefusal checkBody(const SimRoute &route, const QJsonObject &body)
{
    for (const SimField &field : route.fields) {
        const QJsonValue value = body.value(field.name);
        if (value.isUndefined() && field.required) {
            return SimReply::error(400, u"\"%1\" is missing"_s.arg(field.name));
        }
        if (!value.isUndefined() && value.type() != field.type) {
            return SimReply::error(400, u"\"%1\" has the wrong type"_s.arg(field.name));
        }
    }
    for (const QString &name : body.keys()) {
        const bool known = std::any_of(route.fields.cbegin(), route.fields.cend(),
                                       [&name](const SimField &each) { return each.name == name; });
        if (!known) {
            return SimReply::error(400, u"unknown member \"%1\""_s.arg(name));
        }
    }
    return {};
}

/// Reads the body as the route wants it: an object for a POST, nothing otherwise.
SimRefusal readBody(const SimRoute &route, const SimRequest &request, QJsonObject &body)
{
    if (route.method != "POST") {
        return request.body.isEmpty() ? SimRefusal()
                                      : SimReply::error(400, u"this request takes no body"_s);
    }
    if (request.contentType != "application/json") {
        return SimReply::error(415, u"the body must be application/json"_s);
    }
    QJsonParseError problem;
    const QJsonDocument document = QJsonDocument::fromJson(request.body, &problem);
    if (!document.isObject()) {
        return SimReply::error(400,
                               u"the body is not a JSON object: %1"_s.arg(problem.errorString()));
    }
    body = document.object();
    return checkBody(route, body);
}

} // namespace

const QList<SimRoute> &simRoutes()
{
    static const QList<SimRoute> routes = serviceRoutes() + routingRoutes() + killSwitchRoutes() +
                                          configRoutes() + updateRoutes() + splitRoutes();
    return routes;
}

SimMatch matchSimRoute(const SimRequest &request)
{
    QByteArrayList allowed;
    for (const SimRoute &route : simRoutes()) {
        if (route.path != request.path) {
            continue;
        }
        if (route.method != request.method) {
            allowed.append(route.method);
            continue;
        }
        QJsonObject body;
        if (const SimRefusal refusal = readBody(route, request, body)) {
            return {nullptr, {}, *refusal};
        }
        return {&route, {body, request.query}, {}};
    }
    if (allowed.isEmpty()) {
        return {nullptr, {}, SimReply::error(404, u"no such path: %1"_s.arg(request.path))};
    }
    SimReply refusal = SimReply::error(405, u"method not allowed"_s);
    refusal.headers.append({"Allow", allowed.join(", ")});
    return {nullptr, {}, refusal};
}
