#include "SimSplit.h"

#include "SimAddress.h"
#include "SimFiles.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QStringList &kinds()
{
    static const QStringList words{u"direct"_s, u"tunnel"_s, u"block"_s};
    return words;
}

bool isComment(const QString &line)
{
    return line.startsWith(u'#') || line.startsWith("//"_L1);
}

bool isRule(const QString &line)
{
    const qsizetype colon = line.indexOf(u':');
    const QString form = line.left(colon);
    const QString value = line.mid(colon + 1);
    if (colon > 0 && (form == "domain"_L1 || form == "suffix"_L1)) {
        return SimAddress::isHostName(value);
    }
    if (colon > 0 && form == "keyword"_L1) {
        static const QRegularExpression blank(u"\\s"_s);
        return !value.isEmpty() && !value.contains(blank);
    }
    if (colon > 0 && form == "regexp"_L1) {
        return !value.isEmpty() && QRegularExpression(value).isValid();
    }
    if (colon > 0 && form == "ip-cidr"_L1) {
        return SimAddress::isCidr(value) || SimAddress::isIp(value);
    }
    return SimAddress::isCidr(line) || SimAddress::isIp(line) || SimAddress::isHostName(line);
}

} // namespace

SimSplit::SimSplit(const SimFiles &files)
    : m_files(files)
    , m_rules{{u"direct"_s, {u"suffix:example.cn"_s, u"ip-cidr:192.0.2.0/24"_s}},
              {u"tunnel"_s, {u"suffix:example.org"_s, u"keyword:video"_s, u"203.0.113.7"_s}},
              {u"block"_s, {u"domain:ads.example.com"_s}}}
{
    for (const QString &kind : kinds()) {
        m_files.write(u"config/%1.rules"_s.arg(kind), m_rules.value(kind).join(u'\n').toUtf8());
    }
}

bool SimSplit::isKind(const QString &kind)
{
    return kinds().contains(kind);
}

QString SimSplit::rulesFile(const QString &kind) const
{
    return m_files.path(u"config/%1.rules"_s.arg(kind));
}

SimReply SimSplit::importRules(const QString &kind, const QString &content, bool splitRunning)
{
    if (!isKind(kind)) {
        return SimReply::error(400, u"unknown rule kind \"%1\""_s.arg(kind));
    }
    QStringList items;
    QSet<QString> known; // A search of the list would hold up all other requests.
    int number = 0;
    for (const QString &raw : content.split(u'\n')) {
        ++number;
        const QString line = raw.trimmed();
        if (line.isEmpty() || isComment(line) || known.contains(line)) {
            continue;
        }
        if (!isRule(line)) {
            return SimReply::error(
                400, u"line %1: not a rule: %2"_s.arg(QString::number(number), line.left(80)));
        }
        items.append(line);
        known.insert(line);
    }
    const bool changed = items != m_rules.value(kind);
    m_rules.insert(kind, items);
    m_files.write(u"config/%1.rules"_s.arg(kind), items.join(u'\n').toUtf8());
    return SimReply::json({{u"kind"_s, kind},
                           {u"changed"_s, changed},
                           {u"count"_s, items.size()},
                           {u"file"_s, rulesFile(kind)},
                           {u"runtime_reloaded"_s, changed && splitRunning}});
}

SimReply SimSplit::rules(const QString &kind) const
{
    if (!kind.isEmpty() && !isKind(kind)) {
        return SimReply::error(400, u"unknown rule kind \"%1\""_s.arg(kind));
    }
    QJsonObject files;
    QJsonObject rules;
    for (const QString &each : kinds()) {
        if (kind.isEmpty() || each == kind) {
            files.insert(each, rulesFile(each));
            rules.insert(
                each, QJsonObject{{u"items"_s, QJsonArray::fromStringList(m_rules.value(each))}});
        }
    }
    return SimReply::json(
        {{u"dir"_s, m_files.path(u"config"_s)}, {u"files"_s, files}, {u"rules"_s, rules}});
}

SimReply SimSplit::applyDns(const QString &policy, const QStringList &servers, bool splitRunning,
                            bool chinaDirect)
{
    const bool changed = policy != m_dnsPolicy || servers != m_dnsServers;
    m_dnsPolicy = policy;
    m_dnsServers = servers;
    return SimReply::json(dnsJson(chinaDirect, changed, changed && splitRunning));
}

SimReply SimSplit::setDnsServers(const QJsonArray &servers, bool splitRunning, bool chinaDirect)
{
    QStringList wanted;
    for (const auto &server : servers) {
        if (!SimAddress::isIp(server.toString())) {
            return SimReply::error(
                400, u"\"%1\" is not a DNS server's IP address"_s.arg(server.toString()));
        }
        wanted.append(server.toString());
    }
    return applyDns(m_dnsPolicy, wanted, splitRunning, chinaDirect);
}

SimReply SimSplit::setDnsPolicy(const QString &policy, bool splitRunning, bool chinaDirect)
{
    if (policy != "tunnel-only"_L1 && policy != "dual-explicit"_L1 && policy != "dual-auto"_L1) {
        return SimReply::error(400, u"unknown split DNS policy \"%1\""_s.arg(policy));
    }
    return applyDns(policy, m_dnsServers, splitRunning, chinaDirect);
}

SimReply SimSplit::clearDnsServers(bool splitRunning, bool chinaDirect)
{
    return applyDns(m_dnsPolicy, {}, splitRunning, chinaDirect);
}

SimReply SimSplit::resetDns(bool splitRunning, bool chinaDirect)
{
    return applyDns({}, {}, splitRunning, chinaDirect);
}

QJsonObject SimSplit::dnsJson(bool chinaDirect, bool changed, bool reloaded) const
{
    const bool chinaDefault = m_dnsPolicy.isEmpty() && chinaDirect;
    QString policy = m_dnsPolicy;
    if (policy.isEmpty()) {
        policy = chinaDefault ? u"dual-auto"_s : u"tunnel-only"_s;
    }
    QStringList servers = m_dnsServers;
    QString source = u"config"_s;
    if (servers.isEmpty() && policy == "tunnel-only"_L1) {
        source.clear();
    } else if (servers.isEmpty()) {
        servers = {u"192.168.1.1"_s};
        source = u"system"_s;
    }
    return {
        {u"path"_s, m_files.path(u"config/split-dns.json"_s)},
        {u"changed"_s, changed},
        {u"runtime_reloaded"_s, reloaded},
        {u"runtime_warning"_s, QString()},
        {u"config"_s, QJsonObject{{u"policy"_s, m_dnsPolicy},
                                  {u"local_direct_dns"_s, QJsonArray::fromStringList(m_dnsServers)},
                                  {u"fake_ip_enabled"_s, false}}},
        {u"effective"_s, QJsonObject{{u"policy"_s, policy},
                                     {u"local_direct_dns"_s, QJsonArray::fromStringList(servers)},
                                     {u"local_dns_source"_s, source},
                                     {u"auto_cn_default"_s, chinaDefault}}}};
}
