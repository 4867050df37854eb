#include "SimCatalog.h"

#include "SimPlaces.h"

#include <QMap>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kFirstId = 1001;
constexpr int kLongNameChars = 100 * 1024;

struct Slot
{
    int country;
    int city;
};

// The order in which cities receive servers: first every country's first city,
// then again those with more weight, walking through their cities.
const QList<Slot> &slotOrder()
{
    static const QList<Slot> order = [] {
        QList<Slot> built;
        for (int round = 0; round < 8; ++round) {
            int index = 0;
            for (const SimCountry &country : simCountries()) {
                const auto cities = std::count_if(country.cities.begin(), country.cities.end(),
                                                  [](QStringView city) { return !city.isEmpty(); });
                if (round < std::max<int>(country.weight, int(cities))) {
                    built.append({index, int(round % cities)});
                }
                ++index;
            }
        }
        return built;
    }();
    return order;
}

const SimCountry &countryOf(const SimNode &node)
{
    return simCountries()[size_t(node.country)];
}

QString cityCode(const SimCountry &country, int city)
{
    return u"%1-%2"_s.arg(country.code).arg(city + 1);
}

QString cityName(const SimNode &node)
{
    return countryOf(node).cities[size_t(node.city)].toString();
}

bool sameText(QStringView left, const QString &right)
{
    return left.compare(right.trimmed(), Qt::CaseInsensitive) == 0;
}

bool hasTag(const SimNode &node, const QString &tag)
{
    return node.tags.contains(tag);
}

bool inTab(const SimNode &node, const QString &tab)
{
    return tab == "NODES"_L1 || hasTag(node, tab);
}

const QStringList &tabWords()
{
    static const QStringList words{u"FAVORITE"_s, u"FREE"_s, u"VIP"_s, u"SVIP"_s, u"NODES"_s};
    return words;
}

QJsonObject groupJson(const QString &name, const QString &code, int level, int rank,
                      const QStringList &ids, const QJsonArray &subgroups)
{
    return {{u"name"_s, name},
            {u"code"_s, code},
            {u"level"_s, level},
            {u"rank"_s, rank},
            {u"node_ids"_s, QJsonArray::fromStringList(ids)},
            {u"subgroups"_s, subgroups}};
}

} // namespace

SimCatalog::SimCatalog(int nodeCount, quint32 seed, bool hostileNames)
    : m_random(seed)
    , m_drift(seed)
    , m_hostile(hostileNames)
{
    for (int i = 0; i < nodeCount; ++i) {
        addNode();
    }
    for (int i = 2; i < m_nodes.size() && m_favorites.size() < 3; i += 5) {
        m_favorites.append(m_nodes.at(i).id);
    }
    if (m_hostile) {
        addHostileTexts();
    }
}

void SimCatalog::addNode()
{
    const Slot slot = slotOrder().at(m_created % slotOrder().size());
    SimNode node;
    node.id = kFirstId + m_created;
    node.country = slot.country;
    node.city = slot.city;
    node.name =
        u"%1 %2"_s.arg(cityName(node)).arg(m_created / slotOrder().size() + 1, 2, 10, '0'_L1);
    static const QStringList kinds{u"VIP"_s, u"SVIP"_s, u"VIP"_s, u"FREE"_s, u"VIP"_s, u"SVIP"_s};
    node.tags.append(kinds.at(m_created % kinds.size()));
    if (m_created % 4 == 0) {
        node.tags.append(u"Streaming"_s);
    }
    if (m_created % 7 == 1) {
        node.tags.append(u"P2P"_s);
    }
    if (hasTag(node, u"SVIP"_s)) {
        node.tags.append(u"10 Gbit/s"_s);
    }
    // A few servers never answer a ping.
    if (m_created % 17 != 16) {
        measure(node);
    }
    ++m_created;
    m_nodes.append(node);
}

void SimCatalog::measure(SimNode &node)
{
    const int base = simContinents()[size_t(countryOf(node).continent)].pingMs;
    node.pingMs = base / 2 + m_random.bounded(base) + 3;
    node.signal = std::clamp(104 - node.pingMs / 4 - m_random.bounded(8), 4, 100);
}

void SimCatalog::addHostileTexts()
{
    const QStringList texts{
        u"<b>Bold</b> <img src=\"file:///etc/passwd\"> & <script>alert(1)</script>"_s,
        u"First line\nsecond line\r\nthird\tcolumn"_s,
        u"\u202Etxet sdrawkcaB\u202C \u2067isolated\u2069"_s,
        u"%1 %2 %n %L1 %%s {0}"_s,
        u"AT&T && &File"_s,
        u"\u200B\u200B"_s,
        QString(),
        u"مدينة 東京 Ελλάδα \U0001F1FA\U0001F1F8 e\u0301\u0301\u0301\u0301"_s,
        u"A"_s.repeated(kLongNameChars),
        u"wide "_s.repeated(kLongNameChars / 5),
        u" [selected] ✓ <none>"_s,
    };
    for (qsizetype i = 0; i < m_nodes.size(); ++i) {
        // Two in three nodes keep a good name, as nothing could be told apart else.
        if (i % 3 == 0 && i / 3 < 3 * texts.size()) {
            m_nodes[i].name = texts.at(i / 3 % texts.size());
            m_nodes[i].tags.append(texts.at((i / 3 + 1) % 8));
        }
    }
}

const SimNode *SimCatalog::find(const QString &id) const
{
    const auto found = std::find_if(m_nodes.cbegin(), m_nodes.cend(), [&id](const SimNode &node) {
        return QString::number(node.id) == id;
    });
    return found == m_nodes.cend() ? nullptr : &*found;
}

bool SimCatalog::isCovered(const SimNode &node, const QString &selector) const
{
    const SimCountry &country = countryOf(node);
    const SimContinent &continent = simContinents()[size_t(country.continent)];
    if (selector.isEmpty() || sameText(country.code, selector) ||
        sameText(countryName(node.country), selector) || sameText(continent.code, selector) ||
        sameText(continent.name, selector) || sameText(cityCode(country, node.city), selector) ||
        sameText(cityName(node), selector)) {
        return true;
    }
    const QString tab = selector.trimmed().toUpper();
    if (tab == "FAVORITE"_L1) {
        return isFavorite(node);
    }
    return tabWords().contains(tab) && inTab(node, tab);
}

const SimNode *SimCatalog::quickest(const QString &selector) const
{
    const SimNode *best = nullptr;
    for (const SimNode &node : m_nodes) {
        if (!isCovered(node, selector)) {
            continue;
        }
        if (!best || (node.pingMs >= 0 && (best->pingMs < 0 || node.pingMs < best->pingMs))) {
            best = &node;
        }
    }
    return best;
}

bool SimCatalog::hasGroup(const QString &selector) const
{
    return tabWords().contains(selector.trimmed().toUpper()) || quickest(selector);
}

void SimCatalog::setFavorite(int id, bool favorite)
{
    m_favorites.removeAll(id);
    if (favorite) {
        m_favorites.append(id);
    }
}

void SimCatalog::driftPings()
{
    for (SimNode &node : m_nodes) {
        if (node.pingMs >= 0) {
            node.pingMs = std::clamp(node.pingMs + m_drift.bounded(-6, 7), 1, 999);
            node.signal = std::clamp(node.signal + m_drift.bounded(-2, 3), 1, 100);
        }
    }
}

void SimCatalog::renew(const QStringList &keptIds)
{
    const qsizetype before = m_nodes.size();
    m_nodes.removeIf([this, &keptIds](const SimNode &node) {
        return m_random.bounded(12) == 0 && !isFavorite(node) &&
               !keptIds.contains(QString::number(node.id));
    });
    const qsizetype missing = before - m_nodes.size();
    for (qsizetype i = 0; i < missing; ++i) {
        addNode();
    }
}

QJsonObject SimCatalog::entryJson(const SimNode *node) const
{
    if (!node) {
        return {};
    }
    // The catalogue numbers its nodes; everything else names them by text.
    QJsonObject entry{{u"id"_s, node->id},
                      {u"name"_s, node->name},
                      {u"tags"_s, QJsonArray::fromStringList(node->tags)},
                      {u"region"_s, countryOf(*node).code.toString()},
                      {u"type"_s, hasTag(*node, u"FREE"_s) ? u"standard"_s : u"premium"_s}};
    if (node->pingMs >= 0) {
        entry.insert(u"signalLevel"_s, node->signal);
        entry.insert(u"pingMs"_s, node->pingMs);
    }
    return entry;
}

QJsonObject SimCatalog::referenceJson(const SimNode *node)
{
    if (!node) {
        return {};
    }
    return {{u"id"_s, QString::number(node->id)},
            {u"name"_s, node->name},
            {u"region"_s, countryOf(*node).code.toString()},
            {u"type"_s, hasTag(*node, u"FREE"_s) ? 0 : 1}};
}

QJsonArray SimCatalog::nodesJson() const
{
    QJsonArray array;
    for (const SimNode &node : m_nodes) {
        array.append(entryJson(&node));
    }
    return array;
}

QString SimCatalog::countryName(int country) const
{
    const QString name = simCountries()[size_t(country)].name.toString();
    return m_hostile && country % 5 == 1 ? u"<i>%1</i>\n\u202E & %1"_s.arg(name) : name;
}

QJsonArray SimCatalog::countryGroups(const std::function<bool(const SimNode &)> &wanted,
                                     int continent, bool withCities) const
{
    QMap<int, QMap<int, QStringList>> byPlace;
    for (const SimNode &node : m_nodes) {
        if ((continent < 0 || countryOf(node).continent == continent) && wanted(node)) {
            byPlace[node.country][withCities ? node.city : 0].append(QString::number(node.id));
        }
    }
    const int level = continent < 0 ? 1 : 2;
    QJsonArray countries;
    for (const auto &[index, cities] : std::as_const(byPlace).asKeyValueRange()) {
        const SimCountry &country = simCountries()[size_t(index)];
        QJsonArray subgroups;
        if (withCities) {
            for (const auto &[city, ids] : cities.asKeyValueRange()) {
                subgroups.append(groupJson(country.cities[size_t(city)].toString(),
                                           cityCode(country, city), level + 1, city + 1, ids, {}));
            }
        }
        countries.append(groupJson(countryName(index), country.code.toString(), level, index + 1,
                                   withCities ? QStringList() : cities.first(), subgroups));
    }
    return countries;
}

QJsonArray SimCatalog::continentGroups(const std::function<bool(const SimNode &)> &wanted,
                                       bool withCities) const
{
    QJsonArray groups;
    int index = 0;
    for (const SimContinent &continent : simContinents()) {
        const QJsonArray countries = countryGroups(wanted, index, withCities);
        ++index;
        if (!countries.isEmpty()) {
            groups.append(groupJson(continent.name.toString(), continent.code.toString(), 1, index,
                                    {}, countries));
        }
    }
    return groups;
}

QJsonArray SimCatalog::tabsJson() const
{
    if (m_nodes.isEmpty()) {
        return {};
    }
    QJsonArray tabs;
    for (const QString &tab : tabWords()) {
        const auto wanted = [&tab](const SimNode &node) { return inTab(node, tab); };
        QStringList ids;
        QJsonArray groups;
        if (tab == "FAVORITE"_L1) {
            for (const int id : m_favorites) {
                ids.append(QString::number(id));
            }
        } else if (tab == "NODES"_L1) {
            groups = continentGroups(wanted, true);
        } else if (tab == "VIP"_L1) {
            groups = continentGroups(wanted, false);
        } else {
            groups = countryGroups(wanted, -1, false);
        }
        tabs.append(QJsonObject{{u"group_type"_s, tab},
                                {u"node_ids"_s, QJsonArray::fromStringList(ids)},
                                {u"groups"_s, groups}});
    }
    return tabs;
}
