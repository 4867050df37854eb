#include "NodeMenuModel.h"

#include "ControlProtocol.h"
#include "PlainText.h"
#include "RuntimeFacts.h"
#include "TrayMenuText.h"

#include <QRegularExpression>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMinute = 60;
constexpr qint64 kHour = 60 * kMinute;
constexpr qint64 kDay = 24 * kHour;

/// The daemon writes the zero time of its own clock for "never".
constexpr int kEarliestYear = 2000;

} // namespace

QString NodeMenuModel::joinedName(const QString &first, const QString &second)
{
    QString a = first.trimmed();
    QString b = second.trimmed();
    if (b.isEmpty()) {
        return a;
    }
    // An empty start is a start of everything, and equal texts start alike.
    if (b.startsWith(a, Qt::CaseInsensitive)) {
        return b;
    }
    return u"%1 - %2"_s.arg(a, b);
}

QString NodeMenuModel::label(const NodeEntry &node)
{
    return plaintext::singleLine(
        joinedName(plaintext::singleLine(node.region), plaintext::singleLine(node.name)));
}

QString NodeMenuModel::labelOrNone(const NodeEntry &node)
{
    const QString text = label(node);
    return text.isEmpty() ? u"<none>"_s : text;
}

QString NodeMenuModel::entryText(const NodeEntry &node)
{
    const QString secondary = secondaryText(node);
    const QString text = labelOrNone(node);
    return secondary.isEmpty() ? text : u"%1 - %2"_s.arg(text, secondary);
}

QString NodeMenuModel::secondaryText(const NodeEntry &node)
{
    QStringList tags;
    for (const QString &tag : allTags(node)) {
        if (!node.name.contains(tag, Qt::CaseInsensitive)) {
            tags << tag;
        }
    }
    return plaintext::singleLine(plaintext::list(tags));
}

QString NodeMenuModel::toolTip(const NodeEntry &node)
{
    const QString detail = secondaryText(node);
    const QString text = labelOrNone(node);
    return plaintext::toolTip(detail.isEmpty() ? text : u"%1\n%2"_s.arg(text, detail));
}

QString NodeMenuModel::selectedSuffix()
{
    return u" [selected]"_s;
}

QString NodeMenuModel::unavailable(const QString &id)
{
    return u"[%1] unavailable"_s.arg(plaintext::singleLine(id));
}

QStringList NodeMenuModel::bracketedTags(const QString &name)
{
    static const QRegularExpression pattern{u"\\[([^\\]]+)\\]"_s};
    QStringList tags;
    // Names without a bracket are the rule, and there may be thousands of them.
    if (!name.contains(u'[')) {
        return tags;
    }
    auto matches = pattern.globalMatch(name);
    while (matches.hasNext()) {
        tags << matches.next().captured(1);
    }
    return tags;
}

QStringList NodeMenuModel::allTags(const NodeEntry &node)
{
    QStringList tags;
    for (const QString &tag : node.tags + bracketedTags(node.name)) {
        const QString line = plaintext::singleLine(tag);
        if (!line.isEmpty() && !tags.contains(line, Qt::CaseInsensitive)) {
            tags << line;
        }
    }
    return tags;
}

bool NodeMenuModel::isFavouritesTab(const NodeGroupTab &tab)
{
    return facts::isWord(tab.groupType, wire::kGroupTypeFavorite);
}

bool NodeMenuModel::isFavouritesGroup(const QString &kind, const NodeGroup &group)
{
    return facts::isWord(kind, wire::kGroupTypeFavorite) &&
           (facts::isWord(group.code, "fav"_L1) ||
            facts::isWord(group.code, wire::kGroupTypeFavorite) ||
            facts::isWord(group.name, "favorites"_L1));
}

NodeEntry NodeMenuModel::currentNode(const RuntimeInfo &runtime, const NodesInfo &nodes)
{
    const NodeEntry connected = facts::effectiveConnected(runtime, nodes);
    return connected == NodeEntry{} ? facts::effectiveSelected(runtime, nodes) : connected;
}

QString NodeMenuModel::currentLine(const RuntimeInfo &runtime, const NodesInfo &nodes,
                                   bool catalogHeld)
{
    const QString text = label(currentNode(runtime, nodes));
    const QString shown = text.isEmpty() ? tr("Auto") : text;
    return catalogHeld && nodes.stale ? TrayMenuText::currentStale(shown)
                                      : TrayMenuText::current(shown);
}

QString NodeMenuModel::locationLine(const RuntimeInfo &runtime, const NodesInfo &nodes,
                                    const QDateTime &now)
{
    const QString text = labelOrNone(currentNode(runtime, nodes));
    const QDateTime since = connectedSince(runtime);
    if (!facts::reportsConnected(runtime) || !since.isValid()) {
        return TrayMenuText::location(text);
    }
    return TrayMenuText::locationSince(text, duration(since.secsTo(now)));
}

QString NodeMenuModel::duration(qint64 seconds)
{
    if (seconds < kMinute) {
        return tr("less than 1m");
    }
    if (seconds < kHour) {
        return u"%1m"_s.arg(seconds / kMinute);
    }
    const bool days = seconds >= kDay;
    const qint64 whole = seconds / (days ? kDay : kHour);
    const qint64 rest = days ? seconds / kHour - 24 * whole : seconds / kMinute % 60;
    if (rest == 0) {
        return (days ? u"%1d"_s : u"%1h"_s).arg(whole);
    }
    return (days ? u"%1d %2h"_s : u"%1h %2m"_s).arg(QString::number(whole), QString::number(rest));
}

QDateTime NodeMenuModel::connectedSince(const RuntimeInfo &runtime)
{
    QDateTime since = QDateTime::fromString(runtime.connectedSince.trimmed(), Qt::ISODateWithMs);
    if (since.timeSpec() == Qt::LocalTime) {
        // The daemon means UTC even where it names no zone.
        since = QDateTime(since.date(), since.time(), QTimeZone::utc());
    }
    return since.date().year() < kEarliestYear ? QDateTime{} : since.toUTC();
}
