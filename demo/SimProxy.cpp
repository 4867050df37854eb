#include "SimProxy.h"

#include "SimAddress.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// What the simulated machine would be called from its own network.
constexpr auto kLanHost = "192.168.1.23"_L1;

QString joined(const QString &host, int port)
{
    return (host.contains(u':') ? u"[%1]:%2"_s : u"%1:%2"_s).arg(host, QString::number(port));
}

} // namespace

SimProxy::SimProxy()
    : m_configured({{u"local-socks"_s, u"socks5"_s, u"127.0.0.1"_s, 1080},
                    {u"local-http"_s, u"http"_s, u"127.0.0.1"_s, 1080}})
    , m_active(m_configured)
{}

const SimProxy::Listener *SimProxy::byScheme(const QList<Listener> &listeners,
                                             const QString &scheme)
{
    const auto found = std::find_if(listeners.cbegin(), listeners.cend(),
                                    [&](const Listener &each) { return each.scheme == scheme; });
    return found == listeners.cend() ? nullptr : &*found;
}

SimRefusal SimProxy::setListeners(const QJsonArray &listeners)
{
    QList<Listener> wanted;
    for (const auto &value : listeners) {
        const QJsonObject object = value.toObject();
        const QString name = object.value(u"name"_s).toString();
        const QString scheme = object.value(u"scheme"_s).toString();
        const QString address = object.value(u"address"_s).toString();
        const bool known = (name == "local-socks"_L1 && scheme == "socks5"_L1) ||
                           (name == "local-http"_L1 && scheme == "http"_L1);
        if (!known || object.size() != 3 || byScheme(wanted, scheme)) {
            return SimReply::error(400, u"unknown proxy listener \"%1\" (%2)"_s.arg(name, scheme));
        }
        const auto parsed = SimAddress::parse(address);
        if (!parsed) {
            return SimReply::error(400, u"invalid listen address \"%1\""_s.arg(address));
        }
        wanted.append({name, scheme, parsed->host, parsed->port});
    }
    m_configured = wanted.isEmpty() ? SimProxy().m_configured : wanted;
    renewPac();
    return {};
}

QJsonArray SimProxy::listenersJson() const
{
    QJsonArray array;
    for (const Listener &listener : m_configured) {
        array.append(QJsonObject{{u"name"_s, listener.name},
                                 {u"scheme"_s, listener.scheme},
                                 {u"address"_s, joined(listener.host, listener.port)}});
    }
    return array;
}

void SimProxy::addToMode(QJsonObject &mode) const
{
    const Listener *http = byScheme(m_configured, u"http"_s);
    mode.insert(u"pac_port"_s, http ? http->port : 0);
    mode.insert(u"pac_version"_s, QString::number(m_pacVersion));
}

void SimProxy::addToStatus(QJsonObject &status, bool running, bool pacServed,
                           const QString &pacPath) const
{
    status.insert(u"proxy_listeners"_s, listenersJson());
    status.insert(u"pac_status"_s, QJsonObject{{u"state"_s, pacServed ? u"ready"_s : u"off"_s},
                                               {u"path"_s, pacServed ? pacPath : QString()}});
    const Listener &configured = m_configured.constFirst();
    status.insert(u"proxy_address"_s, configured.host);
    status.insert(u"proxy_port"_s, configured.port);
    const Listener active = running ? m_active.constFirst() : Listener();
    status.insert(u"active_listener_address"_s, active.host);
    status.insert(u"active_listener_port"_s, active.port);
    QJsonArray access;
    for (const Listener &listener : m_active) {
        const bool wildcard = listener.host == "0.0.0.0"_L1 || listener.host == "::"_L1;
        if (running && wildcard) {
            access.append(QJsonObject{
                {u"kind"_s, u"lan"_s},
                {u"scheme"_s, listener.scheme},
                {u"url"_s, listener.scheme + u"://"_s + joined(kLanHost, listener.port)}});
        }
    }
    status.insert(u"proxy_access_urls"_s, access);
}
