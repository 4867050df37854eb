#include "ProxyFacts.h"

#include "ControlProtocol.h"
#include "PlainText.h"
#include "RuntimeRecords.h"

#include <QNetworkInterface>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace proxyfacts {

namespace {

constexpr int kHighestPort = 65535;

QString joined(const QString &host, const QString &port)
{
    return (host.contains(u':') ? u"[%1]:%2"_s : u"%1:%2"_s).arg(host, port);
}

bool isWildcard(const QString &host)
{
    return host.isEmpty() || host == "0.0.0.0"_L1 || host == "::"_L1;
}

bool isLoopback(const QString &host)
{
    return host == "127.0.0.1"_L1 || host == "::1"_L1 ||
           host.compare("localhost"_L1, Qt::CaseInsensitive) == 0 ||
           QHostAddress(host).isLoopback();
}

/// The address of the listener of one scheme; empty when there is none.
QString addressOf(const RuntimeInfo &runtime, QLatin1StringView scheme)
{
    for (const ProxyListener &listener : runtime.proxyListeners) {
        if (listener.scheme.trimmed().compare(scheme, Qt::CaseInsensitive) == 0) {
            return plaintext::singleLine(listener.address);
        }
    }
    return {};
}

/// Other devices can send to this address.
bool isReachable(const InterfaceAddress &own)
{
    return own.isUp && !own.isPointToPoint && !own.address.isNull() && !own.address.isLoopback() &&
           !own.address.isLinkLocal();
}

/// The hosts by which a listener at `host` is reached from outside.
QStringList outsideHosts(const QString &host, const QList<InterfaceAddress> &own)
{
    if (!isWildcard(host)) {
        return isLoopback(host) ? QStringList() : QStringList(host);
    }
    QStringList hosts;
    for (const InterfaceAddress &each : own) {
        const bool isIPv4 = each.address.protocol() == QAbstractSocket::IPv4Protocol;
        if (isReachable(each) && (isIPv4 || host == "::"_L1)) {
            hosts += each.address.toString();
        }
    }
    return hosts;
}

} // namespace

HostPort splitHostPort(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.startsWith(u'[')) {
        const qsizetype end = trimmed.indexOf(u']');
        if (end > 0 && (end + 1 == trimmed.size() || trimmed.at(end + 1) == u':')) {
            return {trimmed.mid(1, end - 1), trimmed.mid(end + 2), true};
        }
        return {trimmed, {}, false};
    }
    // More than one colon is an IPv6 address without a port.
    const qsizetype colon = trimmed.indexOf(u':');
    if (colon < 0 || trimmed.indexOf(u':', colon + 1) >= 0) {
        return {trimmed, {}, false};
    }
    return {trimmed.left(colon), trimmed.mid(colon + 1), false};
}

int portNumber(const QString &text)
{
    bool isNumber = false;
    const int port = text.toInt(&isNumber);
    const bool isPlain = !text.startsWith(u'+') && !text.startsWith(u'-');
    return isNumber && isPlain && port >= 1 && port <= kHighestPort ? port : 0;
}

QString listenAddress(const RuntimeInfo &runtime)
{
    const QString socks = addressOf(runtime, wire::kSchemeSocks5);
    return socks.isEmpty() ? addressOf(runtime, wire::kSchemeHttp) : socks;
}

bool listensAt(const RuntimeInfo &runtime, const QString &address)
{
    return addressOf(runtime, wire::kSchemeSocks5) == address &&
           addressOf(runtime, wire::kSchemeHttp) == address;
}

QString pacAddress(const RuntimeInfo &runtime)
{
    const ModeInfo &mode = runtime.mode;
    const HostPort http = splitHostPort(addressOf(runtime, wire::kSchemeHttp));
    const QString port = mode.pacPort >= 1 ? QString::number(mode.pacPort) : http.port;
    if ((mode.pacPort < 1 && runtime.pacStatus.state.trimmed().isEmpty()) || port.isEmpty()) {
        return {};
    }
    const QString host = isWildcard(http.host) ? u"127.0.0.1"_s : http.host;
    const QString address = u"http://%1/pac"_s.arg(joined(host, port));
    const QByteArray version = QUrl::toPercentEncoding(mode.pacVersion.trimmed());
    return version.isEmpty() ? address : address + u"?v=%1"_s.arg(QString::fromLatin1(version));
}

QStringList lanAddresses(const RuntimeInfo &runtime, const QList<InterfaceAddress> &own)
{
    QStringList addresses;
    for (const ProxyAccessURL &access : runtime.proxyAccessURLs) {
        addresses += plaintext::singleLine(access.url);
    }
    addresses.removeAll(QString());
    if (addresses.isEmpty()) {
        for (const ProxyListener &listener : runtime.proxyListeners) {
            const HostPort at = splitHostPort(plaintext::singleLine(listener.address));
            if (at.port.isEmpty()) {
                continue;
            }
            for (const QString &host : outsideHosts(at.host, own)) {
                addresses += joined(host, at.port);
            }
        }
    }
    addresses.removeDuplicates();
    return addresses;
}

QList<InterfaceAddress> ownAddresses()
{
    QList<InterfaceAddress> own;
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &each : interfaces) {
        const auto flags = each.flags();
        const bool isUp =
            flags.testFlag(QNetworkInterface::IsUp) && flags.testFlag(QNetworkInterface::IsRunning);
        const QList<QNetworkAddressEntry> entries = each.addressEntries();
        for (const QNetworkAddressEntry &entry : entries) {
            own.append({entry.ip(), isUp, flags.testFlag(QNetworkInterface::IsPointToPoint)});
        }
    }
    return own;
}

} // namespace proxyfacts
