#include "RecentActivityStore.h"

RecentActivityStore::RecentActivityStore(GuiPreferences &preferences)
    : m_preferences(preferences)
{}

QStringList RecentActivityStore::searches() const
{
    return m_preferences.recentSearches();
}

bool RecentActivityStore::addSearch(const QString &search)
{
    // The preferences drop what is empty, repeated or too much, from the end.
    return m_preferences.setRecentSearches(QStringList{search} + m_preferences.recentSearches());
}

bool RecentActivityStore::clearSearches()
{
    const QStringList before = searches();
    if (m_preferences.setRecentSearches({})) {
        return true;
    }
    m_preferences.setRecentSearches(before);
    return false;
}

QList<RecentNode> RecentActivityStore::nodes() const
{
    return m_preferences.recentNodes();
}

bool RecentActivityStore::addNode(const RecentNode &node)
{
    if (node.id.trimmed().isEmpty()) {
        return true;
    }
    const QList<RecentNode> nodes = QList<RecentNode>{node} + m_preferences.recentNodes();
    return m_preferences.setRecentNodes(nodes) && m_preferences.setRecentNodesCleared(false);
}

bool RecentActivityStore::clearNodes()
{
    return m_preferences.clearRecentNodes();
}

bool RecentActivityStore::nodesCleared() const
{
    return m_preferences.recentNodesCleared();
}
