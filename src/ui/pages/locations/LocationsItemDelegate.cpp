#include "LocationsItemDelegate.h"

#include "CatalogKeys.h"
#include "CatalogTreeModel.h"
#include "PlainText.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

/// What flag, latency and star take of a row's width, roughly.
constexpr int kRoomForMarks = 140;

bool isPending(const QModelIndex &index)
{
    return index.data(CatalogTreeModel::FavoritePendingRole).toBool();
}

bool isFavorite(const QModelIndex &index)
{
    return index.data(CatalogTreeModel::FavoriteRole).toBool();
}

} // namespace

void LocationsItemDelegate::toggleFavorite(const QModelIndex &index)
{
    if (!index.data(CatalogTreeModel::NodeIdRole).toString().isEmpty() && !isPending(index)) {
        Q_EMIT favoriteClicked(index, !isFavorite(index));
    }
}

bool LocationsItemDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                      const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip) {
        return CatalogItemDelegate::helpEvent(event, view, option, index);
    }
    const bool onStar = isOnFavorite(index, option.rect, event->pos(), option.direction);
    const QString text = onStar ? favoriteToolTip(index) : rowToolTip(option, index);
    QToolTip::showText(event->globalPos(), text, view);
    return true;
}

QString LocationsItemDelegate::favoriteToolTip(const QModelIndex &index)
{
    if (isPending(index)) {
        return tr("Saving favorite...");
    }
    const QStringList keys{favoriteLetter().toString(QKeySequence::NativeText),
                           catalogkeys::favorite().toString(QKeySequence::NativeText)};
    return u"%1 (%2)"_s.arg(isFavorite(index) ? tr("Remove from favorites")
                                              : tr("Add to favorites"),
                            plaintext::list(keys));
}

// Texts that may not fit into the row, and what the row's marks mean.
QString LocationsItemDelegate::rowToolTip(const QStyleOptionViewItem &option,
                                          const QModelIndex &index)
{
    QStringList lines;
    const QString name = index.data(Qt::DisplayRole).toString();
    const QString detail = index.data(CatalogTreeModel::DetailTextRole).toString();
    const int width = option.fontMetrics.horizontalAdvance(name + detail);
    if (width > option.rect.width() - kRoomForMarks) {
        lines << name << detail;
    }
    lines << index.data(Qt::ToolTipRole).toString();
    lines.removeAll(QString());
    return plaintext::toolTip(lines.join(u'\n'));
}
