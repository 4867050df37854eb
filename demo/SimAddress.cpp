#include "SimAddress.h"

#include <QRegularExpression>

#include <arpa/inet.h>

#include <array>

using namespace Qt::StringLiterals;

namespace {

bool isAddress(int family, const QString &text)
{
    std::array<char, sizeof(in6_addr)> buffer{};
    return inet_pton(family, text.toUtf8().constData(), buffer.data()) == 1;
}

} // namespace

bool SimAddress::isIPv4(const QString &text)
{
    return isAddress(AF_INET, text);
}

bool SimAddress::isIPv6(const QString &text)
{
    return isAddress(AF_INET6, text);
}

bool SimAddress::isCidr(const QString &text)
{
    const qsizetype slash = text.indexOf(u'/');
    bool number = false;
    const int bits = QStringView(text).mid(slash + 1).toInt(&number);
    const QString address = text.left(slash);
    return slash > 0 && number && bits >= 0 &&
           ((isIPv4(address) && bits <= 32) || (isIPv6(address) && bits <= 128));
}

bool SimAddress::isHostName(const QString &text)
{
    static const QRegularExpression shape(u"^(?=.{1,253}$)[a-z0-9_]([a-z0-9_-]{0,61}[a-z0-9_])?"
                                          "(\\.[a-z0-9_]([a-z0-9_-]{0,61}[a-z0-9_])?)*$"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    return shape.match(text).hasMatch();
}

std::optional<SimAddress> SimAddress::parse(const QString &text)
{
    const qsizetype colon = text.lastIndexOf(u':');
    bool number = false;
    const int port = QStringView(text).mid(colon + 1).toInt(&number);
    if (colon < 1 || !number || port < 1 || port > 65535) {
        return std::nullopt;
    }
    QString host = text.left(colon);
    if (host.startsWith(u'[') && host.endsWith(u']')) {
        host = host.mid(1, host.size() - 2);
        return isIPv6(host) ? std::optional<SimAddress>({host, port}) : std::nullopt;
    }
    // What looks like a dotted number has to be one.
    const bool numeric = host.contains(QRegularExpression(u"^[0-9.]+$"_s));
    if (numeric ? isIPv4(host) : isHostName(host)) {
        return SimAddress{host, port};
    }
    return std::nullopt;
}
