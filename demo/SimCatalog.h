#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QRandomGenerator>
#include <QString>
#include <QStringList>

#include <functional>

/// A server of the simulated service.
struct SimNode
{
    int id = 0;
    QString name;
    QStringList tags;
    int country = 0; ///< Index into simCountries().
    int city = 0;    ///< Index into the country's cities.
    int signal = -1; ///< 0 to 100; -1 = not measured.
    int pingMs = -1; ///< -1 = not measured.
};

/// The catalogue: servers, their grouping and the favourites. The same size and
/// seed always give the same catalogue. Not thread-safe.
class SimCatalog final
{
public:
    SimCatalog(int nodeCount, quint32 seed, bool hostileNames);

    bool isEmpty() const { return m_nodes.isEmpty(); }

    /// The node of that id, or null. Valid until the next renew().
    const SimNode *find(const QString &id) const;

    /// The quickest node among those that the selector (code or name of a group, or
    /// kind of a tab) covers; an empty selector covers all. Null when there is none.
    const SimNode *quickest(const QString &selector) const;

    /// Whether a group or tab answers to the selector.
    bool hasGroup(const QString &selector) const;

    void setFavorite(int id, bool favorite);

    /// Lets every measurement wander a little.
    void driftPings();

    /// What a refresh brings: some servers leave, new ones come. Favourites and
    /// the nodes given stay.
    void renew(const QStringList &keptIds);

    QJsonArray nodesJson() const;
    QJsonArray tabsJson() const;

    /// A node as the node list shows it; an empty object for null.
    QJsonObject entryJson(const SimNode *node) const;

    /// A node as the status names it; an empty object for null.
    static QJsonObject referenceJson(const SimNode *node);

private:
    void addNode();
    void addHostileTexts();
    void measure(SimNode &node);
    bool isFavorite(const SimNode &node) const { return m_favorites.contains(node.id); }
    bool isCovered(const SimNode &node, const QString &selector) const;
    QString countryName(int country) const;
    QJsonArray countryGroups(const std::function<bool(const SimNode &)> &wanted, int continent,
                             bool withCities) const;
    QJsonArray continentGroups(const std::function<bool(const SimNode &)> &wanted,
                               bool withCities) const;

    QList<SimNode> m_nodes;
    QList<int> m_favorites;
    QRandomGenerator m_random; // what the catalogue holds
    QRandomGenerator m_drift;  // on its own, as it is asked at any time
    int m_created = 0;
    bool m_hostile = false;
};
