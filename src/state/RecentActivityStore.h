#pragma once

#include "GuiPreferences.h"

/// The recent searches and recent places as the faces use them: newest first, an
/// entry that comes again moves to the front.
///
/// Reads and writes through the preferences that it is given, which must outlive
/// it.
class RecentActivityStore final
{
    Q_DISABLE_COPY_MOVE(RecentActivityStore)

public:
    explicit RecentActivityStore(GuiPreferences &preferences);

    QStringList searches() const;
    bool addSearch(const QString &search);
    /// Puts them back when the file can't be written, and returns false.
    bool clearSearches();

    QList<RecentNode> nodes() const;
    bool addNode(const RecentNode &node);
    /// The same for the places.
    bool clearNodes();
    /// The user emptied the list and nothing was added since.
    bool nodesCleared() const;

private:
    GuiPreferences &m_preferences;
};
