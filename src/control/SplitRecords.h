#pragma once

#include <QHash>
#include <QMetaType>
#include <QString>
#include <QStringList>

/// Split DNS: what the user configured and what the daemon applies.
struct SplitDNSInfo
{
    QString path;
    bool changed = false;
    bool runtimeReloaded = false;
    QString runtimeWarning;

    QString configPolicy;
    QStringList configLocalDirectDNS;
    bool fakeIPEnabled = false;

    QString effectivePolicy;
    QStringList effectiveLocalDirectDNS;
    QString localDNSSource;
    bool autoCNDefault = false;
    bool known = false; ///< It was decoded, though an answer may leave all else out.

    bool operator==(const SplitDNSInfo &) const = default;
};

/// The user's custom split rules, by kind of rule.
struct SplitRulesInfo
{
    QString dir;
    QHash<QString, QString> files;     ///< Kind to path.
    QHash<QString, QStringList> rules; ///< Kind to items.
    bool known = false;                ///< It was decoded; who has no rules gets empty lists.

    bool operator==(const SplitRulesInfo &) const = default;
};

/// Answer to an import of split rules.
struct SplitRuleMutationInfo
{
    QString kind;
    bool changed = false;
    int count = 0;
    QString file;
    bool runtimeReloaded = false;

    bool operator==(const SplitRuleMutationInfo &) const = default;
};

Q_DECLARE_METATYPE(SplitDNSInfo)
Q_DECLARE_METATYPE(SplitRulesInfo)
Q_DECLARE_METATYPE(SplitRuleMutationInfo)
