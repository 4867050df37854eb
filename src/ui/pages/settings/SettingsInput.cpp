#include "SettingsInput.h"

#include "PlainText.h"
#include "ProxyFacts.h"
#include "SettingsTexts.h"

#include <QHostAddress>
#include <QRegularExpression>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// Longest text that is quoted in a hint.
constexpr qsizetype kQuotedLength = 40;

bool hasHttpScheme(const QString &text)
{
    return text.startsWith("http://"_L1, Qt::CaseInsensitive) ||
           text.startsWith("https://"_L1, Qt::CaseInsensitive);
}

bool isIPv4(const QString &text)
{
    // Qt's parser also knows the ancient short forms, such as "10.1".
    QHostAddress address;
    return text.count(u'.') == 3 && address.setAddress(text) &&
           address.protocol() == QAbstractSocket::IPv4Protocol;
}

bool isIPv6(const QString &text)
{
    QHostAddress address;
    return address.setAddress(text) && address.protocol() == QAbstractSocket::IPv6Protocol;
}

/// A host name, of which the last part can't be a number.
bool isHostName(const QString &text)
{
    static const QRegularExpression pattern(
        u"^(?=.{1,253}$)([a-z0-9]([a-z0-9-]{0,61}[a-z0-9])?\\.)*"
        "(?!\\d+$)[a-z0-9]([a-z0-9-]{0,61}[a-z0-9])?$"_s,
        QRegularExpression::CaseInsensitiveOption);
    return pattern.match(text).hasMatch();
}

/// An IP address, with or without a port.
bool isDnsServer(const QString &text)
{
    if (isIPv4(text) || isIPv6(text)) {
        return true;
    }
    const proxyfacts::HostPort at = proxyfacts::splitHostPort(text);
    const bool isHost = at.bracketed ? isIPv6(at.host) : isIPv4(at.host);
    const bool isBare = at.bracketed && text.endsWith(u']');
    return isHost && (isBare || proxyfacts::portNumber(at.port) > 0);
}

} // namespace

namespace settingsinput {

QString normalisedApiUrl(const QString &text)
{
    QString trimmed = text.trimmed();
    if (trimmed.isEmpty() || hasHttpScheme(trimmed) || trimmed.contains("://"_L1)) {
        return trimmed;
    }
    return (trimmed.startsWith("//"_L1) ? u"https:"_s : u"https://"_s) + trimmed;
}

QStringList dnsServers(const QString &text)
{
    static const QRegularExpression separators(u"[,\\s]+"_s);
    QStringList servers;
    const QStringList parts = text.split(separators, Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        if (QString server = part.trimmed(); !server.isEmpty()) {
            servers += server;
        }
    }
    return servers;
}

QString apiUrlProblem(const QString &text)
{
    const QString address = normalisedApiUrl(text);
    if (address.isEmpty()) {
        return {};
    }
    if (!hasHttpScheme(address)) {
        return SettingsTexts::tr("The address must begin with https:// or http://.");
    }
    const QUrl url(address, QUrl::StrictMode);
    return url.isValid() && !url.host().isEmpty()
               ? QString()
               : SettingsTexts::tr("Enter a web address, such as https://api.example.com.");
}

QString dnsProblem(const QString &text)
{
    const QStringList servers = dnsServers(text);
    for (const QString &server : servers) {
        if (!isDnsServer(server)) {
            return SettingsTexts::tr("\"%1\" is not an IP address. Enter one such as 1.1.1.1.")
                .arg(plaintext::singleLine(server, kQuotedLength));
        }
    }
    return {};
}

QString listenAddressProblem(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty()) {
        return {};
    }
    const proxyfacts::HostPort at = proxyfacts::splitHostPort(trimmed);
    if (!at.bracketed && at.host.contains(u':')) {
        return SettingsTexts::tr("Put an IPv6 address in brackets, as in [::1]:1080.");
    }
    const bool isHost = at.bracketed ? isIPv6(at.host) : isIPv4(at.host) || isHostName(at.host);
    if (!isHost) {
        return SettingsTexts::tr("Begin with an IP address or a host name, as in 127.0.0.1:1080.");
    }
    if (at.port.isEmpty()) {
        return SettingsTexts::tr("Add a port at the end, as in 127.0.0.1:1080.");
    }
    return proxyfacts::portNumber(at.port) > 0
               ? QString()
               : SettingsTexts::tr("The port must be a number from 1 to 65535.");
}

} // namespace settingsinput
