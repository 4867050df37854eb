#pragma once

#include "GuiPreferences.h"
#include "QuickEntryCatalog.h"

#include <QList>
#include <QString>
#include <QStringList>

/// What the user searched for and connected to lately.
struct QuickEntryHistory
{
    QStringList searches;
    QList<RecentNode> places;
    bool placesCleared = false; ///< The user emptied `places` and nothing came since.
    NodeEntry connected;        ///< The node in use; also stands in while there are no places.
};

/// What the quick entry shows.
struct QuickEntryContent
{
    /// `items` are matches of a search; without one they are the recent places.
    bool searching = false;
    QList<QuickEntryItem> items;
    QStringList searches; ///< Recent ones; empty while searching.
    QStringList tags;     ///< The popular ones first; empty while searching.

    bool operator==(const QuickEntryContent &) const = default;
};

/// Derives what the quick entry shows for a text in its field.
QuickEntryContent quickEntryContent(const QString &query, const QuickEntryCatalog &catalog,
                                    const QuickEntryHistory &history);
