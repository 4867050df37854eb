#pragma once

#include "SimReply.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

class SimFiles;

/// Custom split rules and split DNS. Not thread-safe.
class SimSplit final
{
public:
    explicit SimSplit(const SimFiles &files);

    static bool isKind(const QString &kind);

    /// Replaces the rules of one kind by the lines of the text. The first line that
    /// is no rule refuses the whole text and is named by its number.
    SimReply importRules(const QString &kind, const QString &content, bool splitRunning);

    /// The rules of one kind, or of all when the kind is empty.
    SimReply rules(const QString &kind) const;

    SimReply setDnsServers(const QJsonArray &servers, bool splitRunning, bool chinaDirect);
    SimReply setDnsPolicy(const QString &policy, bool splitRunning, bool chinaDirect);
    SimReply clearDnsServers(bool splitRunning, bool chinaDirect);
    SimReply resetDns(bool splitRunning, bool chinaDirect);

    /// The split DNS record; `changed` says whether the request changed anything.
    QJsonObject dnsJson(bool chinaDirect, bool changed = false, bool reloaded = false) const;

private:
    SimReply applyDns(const QString &policy, const QStringList &servers, bool splitRunning,
                      bool chinaDirect);
    QString rulesFile(const QString &kind) const;

    const SimFiles &m_files;
    QHash<QString, QStringList> m_rules;
    QString m_dnsPolicy; ///< Empty = the daemon's default.
    QStringList m_dnsServers;
};
