#pragma once

#include "CatalogItemDelegate.h"

#include <QKeySequence>

/// The rows of the Locations page: painted as everywhere, with stars that can be
/// pressed and tool tips that tell what a row has no room for.
class LocationsItemDelegate final : public CatalogItemDelegate
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LocationsItemDelegate)

public:
    using CatalogItemDelegate::CatalogItemDelegate;

    /// Besides catalogkeys::favorite().
    static QKeySequence favoriteLetter() { return {Qt::Key_F}; }
    /// Presses the star of a row. Rows without one, and those whose last press is still on
    /// its way to the daemon, take no notice.
    void toggleFavorite(const QModelIndex &index);

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

Q_SIGNALS:
    /// The star of a node was pressed; `favorite` is what the user wants it to be.
    void favoriteClicked(const QModelIndex &index, bool favorite);

private:
    static QString favoriteToolTip(const QModelIndex &index);
    static QString rowToolTip(const QStyleOptionViewItem &option, const QModelIndex &index);
};
