#include "QuickEntryContent.h"

#include "CatalogSearch.h"
#include "PlainText.h"

namespace {

QuickEntryItem recentItem(const RecentNode &place, const QuickEntryCatalog &catalog)
{
    QuickEntryItem item = catalog.node(place.id);
    // Before the first catalogue there is nothing to doubt the remembered place by.
    if (!item.available && catalog.isEmpty()) {
        item.available = true;
        item.label = plaintext::singleLine(place.label.isEmpty() ? place.id : place.label);
    }
    if (item.flagCode.isEmpty()) {
        item.flagCode = place.flagCode;
    }
    return item;
}

void markConnected(QList<QuickEntryItem> &items, const QString &id)
{
    for (QuickEntryItem &item : items) {
        item.connected = item.kind == QuickEntryItem::Kind::Node && !id.isEmpty() && item.id == id;
    }
}

} // namespace

QuickEntryContent quickEntryContent(const QString &query, const QuickEntryCatalog &catalog,
                                    const QuickEntryHistory &history)
{
    QuickEntryContent content;
    // A text of nothing but separators looks for nothing.
    content.searching = !CatalogSearch(query).isEmpty();
    const QString connected = history.connected.id.trimmed();
    if (content.searching) {
        content.items = catalog.search(query);
        markConnected(content.items, connected);
        return content;
    }
    content.searches = history.searches;
    content.tags = catalog.popularTags();
    for (const RecentNode &place : history.places) {
        content.items += recentItem(place, catalog);
    }
    if (content.items.isEmpty() && !history.placesCleared && !connected.isEmpty()) {
        const QuickEntryItem item = catalog.node(connected);
        if (item.available) {
            content.items += item;
        }
    }
    markConnected(content.items, connected);
    return content;
}
