#include "LocationsTreeView.h"

#include "CatalogFilterModel.h"
#include "CatalogKeys.h"
#include "CatalogTreeItem.h"
#include "CatalogTreeModel.h"
#include "LocationsItemDelegate.h"
#include "ThemePalette.h"
#include "ThemedScrollBar.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPolygonF>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using Kind = CatalogTreeItem::Kind;

namespace {

constexpr int kIndentation = 20;
constexpr qreal kChevronReach = 3.5; // from its middle to its tips
constexpr qreal kChevronPen = 1.75;

QString text(const QModelIndex &row, int role)
{
    return row.data(role).toString().trimmed();
}

bool isNode(const QModelIndex &index)
{
    return !text(index, CatalogTreeModel::NodeIdRole).isEmpty();
}

QString firstLine(const QModelIndex &row)
{
    return row.data(Qt::DisplayRole).toString().section(u'\n', 0, 0);
}

bool liesBelow(const QModelIndex &row, const QModelIndex &root)
{
    for (QModelIndex at = row; at.isValid(); at = at.parent()) {
        if (at.parent() == root) {
            return true;
        }
    }
    return false;
}

} // namespace

LocationsTreeView::LocationsTreeView(CatalogTreeModel &catalog, CatalogFilterModel &filter,
                                     QWidget *parent)
    : QTreeView(parent)
    , m_catalog(catalog)
    , m_filter(filter)
    , m_rows(new LocationsItemDelegate(this))
{
    setModel(&filter);
    setItemDelegate(m_rows);
    setHeaderHidden(true);
    setUniformRowHeights(false);
    setAnimated(false);
    setIndentation(kIndentation);
    setFrameShape(QFrame::NoFrame);
    setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_Hover);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new ThemedScrollBar(Qt::Vertical, this));
    applyThemePalette(ThemePalette::forScheme(ColorScheme::Light));
}

void LocationsTreeView::applyThemePalette(const ThemePalette &palette)
{
    m_rows->setThemePalette(palette);
    m_chevronColor = QColor(palette.textMuted);
    viewport()->update();
}

void LocationsTreeView::showBelow(const QModelIndex &catalogRow)
{
    const QModelIndex root = m_filter.mapFromSource(catalogRow);
    if (root != rootIndex()) {
        setRootIndex(root);
    }
    // Where nothing folds, no room is kept for arrows.
    const auto &rows = m_catalog.item(catalogRow).children;
    setRootIsDecorated(std::any_of(rows.begin(), rows.end(),
                                   [](const auto &row) { return row->kind != Kind::Node; }));
}

void LocationsTreeView::choose(const QModelIndex &index)
{
    if (index.isValid()) {
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        scrollTo(index);
    } else {
        selectionModel()->clear();
    }
}

LocationsTreeView::Target LocationsTreeView::nodeTarget(const QModelIndex &index)
{
    return isNode(index) ? Target{Target::Kind::Node, text(index, CatalogTreeModel::NodeIdRole),
                                  firstLine(index)}
                         : Target();
}

LocationsTreeView::Target LocationsTreeView::target(bool anywhere) const
{
    const QModelIndexList selected = selectionModel()->selectedRows();
    QModelIndex row = selected.isEmpty() ? currentIndex() : selected.constFirst();
    if (!liesBelow(row, rootIndex())) {
        row = QModelIndex();
    }
    if (isNode(row)) {
        return nodeTarget(row);
    }
    if (!anywhere) {
        for (const QModelIndex &heading : {row, rootIndex()}) {
            const QString key = text(heading, CatalogTreeModel::GroupKeyRole);
            if (!key.isEmpty()) {
                return {Target::Kind::Smart, key, firstLine(heading)};
            }
        }
    }
    return m_filter.hasRowsBelow(m_filter.mapToSource(rootIndex()))
               ? Target{Target::Kind::Smart, QString(), QString()}
               : Target();
}

// Groups keep to tens where nodes go into thousands, and asking a proxy for what lies
// below a leaf is slow, so that everything about folding looks at headings only.
void LocationsTreeView::visitHeadings(const CatalogTreeItem &above,
                                      const HeadingVisitor &visit) const
{
    for (const auto &row : above.children) {
        if (row->kind == Kind::Node) {
            continue;
        }
        const QModelIndex inCatalog = m_catalog.indexOf(*row);
        const QModelIndex shown = m_filter.mapFromSource(inCatalog);
        if (shown.isValid()) {
            visit(shown, m_catalog.pathOf(inCatalog));
            visitHeadings(*row, visit);
        }
    }
}

bool LocationsTreeView::isAnyHeadingExpanded() const
{
    const auto &rows = m_catalog.item(m_filter.mapToSource(rootIndex())).children;
    return std::any_of(rows.begin(), rows.end(), [this](const auto &row) {
        return row->kind != Kind::Node &&
               isExpanded(m_filter.mapFromSource(m_catalog.indexOf(*row)));
    });
}

void LocationsTreeView::expandTop()
{
    const QModelIndex root = m_filter.mapToSource(rootIndex());
    const QSignalBlocker quiet(this);
    scheduleDelayedItemsLayout();
    for (const auto &row : m_catalog.item(root).children) {
        if (row->kind != Kind::Node && !row->children.empty()) {
            expand(m_filter.mapFromSource(m_catalog.indexOf(*row)));
        }
    }
}

void LocationsTreeView::expandHeadings()
{
    const QSignalBlocker quiet(this);
    // With a layout due, unfolding is only noted, instead of moving all rows each time.
    scheduleDelayedItemsLayout();
    visitHeadings(m_catalog.item({}),
                  [this](const QModelIndex &shown, const QStringList &) { expand(shown); });
}

void LocationsTreeView::foldAll()
{
    const QSignalBlocker quiet(this);
    scheduleDelayedItemsLayout();
    visitHeadings(m_catalog.item({}),
                  [this](const QModelIndex &shown, const QStringList &) { collapse(shown); });
}

LocationsTreeView::Snapshot LocationsTreeView::snapshot() const
{
    Snapshot result;
    visitHeadings(m_catalog.item({}),
                  [this, &result](const QModelIndex &shown, const QStringList &path) {
                      result.expanded.insert(path, isExpanded(shown));
                  });
    result.current = m_catalog.pathOf(m_filter.mapToSource(currentIndex()));
    result.currentRow = currentIndex().row();
    result.currentIsSelected = selectionModel()->isSelected(currentIndex());
    result.top = m_catalog.pathOf(m_filter.mapToSource(indexAt(QPoint(width() / 2, 0))));
    result.scrollValue = verticalScrollBar()->value();
    return result;
}

/// The row that was the current one. If it has gone under the keyboard, which would be lost,
/// the one in its place.
QModelIndex LocationsTreeView::placeOf(const Snapshot &snapshot) const
{
    const QModelIndex same = m_filter.mapFromSource(m_catalog.indexOfPath(snapshot.current));
    if (same.isValid() || snapshot.currentRow < 0 || window()->focusWidget() != this) {
        return same;
    }
    const QStringList heading = snapshot.current.first(snapshot.current.size() - 1);
    const QModelIndex above = m_filter.mapFromSource(m_catalog.indexOfPath(heading));
    const QModelIndex other =
        m_filter.index(std::min(snapshot.currentRow, m_filter.rowCount(above) - 1), 0, above);
    return liesBelow(other, rootIndex()) ? other : QModelIndex();
}

void LocationsTreeView::restore(const Snapshot &snapshot, bool expandNew)
{
    const QSignalBlocker quiet(this);
    scheduleDelayedItemsLayout();
    visitHeadings(m_catalog.item({}),
                  [this, &snapshot, expandNew](const QModelIndex &shown, const QStringList &path) {
                      setExpanded(shown, snapshot.expanded.value(path, expandNew));
                  });
    const QModelIndex current = placeOf(snapshot);
    selectionModel()->clearSelection();
    selectionModel()->setCurrentIndex(current, snapshot.currentIsSelected
                                                   ? QItemSelectionModel::ClearAndSelect
                                                   : QItemSelectionModel::NoUpdate);
    executeDelayedItemsLayout();
    const QModelIndex top = m_filter.mapFromSource(m_catalog.indexOfPath(snapshot.top));
    if (top.isValid() && snapshot.scrollValue > 0) {
        scrollTo(top, PositionAtTop);
    } else {
        verticalScrollBar()->setValue(snapshot.scrollValue);
    }
}

void LocationsTreeView::keyboardSearch(const QString &search)
{
    m_lastTyped.start();
    QTreeView::keyboardSearch(search);
}

bool LocationsTreeView::isTypingAhead() const
{
    return m_lastTyped.isValid() && m_lastTyped.elapsed() < QApplication::keyboardInputInterval();
}

bool LocationsTreeView::isFavoriteKey(const QKeyEvent &event) const
{
    const QKeySequence key(event.keyCombination());
    // In the middle of a word it is just a letter.
    return key == catalogkeys::favorite() ||
           (key == LocationsItemDelegate::favoriteLetter() && !isTypingAhead());
}

void LocationsTreeView::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex current = currentIndex();
    if (isNode(current) && isFavoriteKey(*event)) {
        m_rows->toggleFavorite(current);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (isNode(current)) {
            Q_EMIT nodeActivated(current);
        } else {
            setExpanded(current, !isExpanded(current));
        }
        return;
    case Qt::Key_Escape:
        event->ignore(); // The page ends the search.
        return;
    default:
        break;
    }
    QTreeView::keyPressEvent(event);
}

QModelIndex LocationsTreeView::starAt(const QPoint &position) const
{
    const QModelIndex index = indexAt(position);
    return CatalogItemDelegate::isOnFavorite(index, visualRect(index), position, layoutDirection())
               ? index
               : QModelIndex();
}

// A star is no part of its row: pressing it doesn't choose the row.
bool LocationsTreeView::pressStar(const QMouseEvent &event)
{
    m_pressedStar =
        event.button() == Qt::LeftButton ? starAt(event.position().toPoint()) : QModelIndex();
    return m_pressedStar.isValid();
}

void LocationsTreeView::mousePressEvent(QMouseEvent *event)
{
    if (!pressStar(*event)) {
        QTreeView::mousePressEvent(event);
    }
}

void LocationsTreeView::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_pressedStar.isValid()) {
        QTreeView::mouseReleaseEvent(event);
        return;
    }
    const QPersistentModelIndex star = std::exchange(m_pressedStar, QPersistentModelIndex());
    if (starAt(event->position().toPoint()) == star) {
        m_rows->toggleFavorite(star);
    }
}

void LocationsTreeView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (pressStar(*event)) {
        return;
    }
    QTreeView::mouseDoubleClickEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && isNode(index)) {
        Q_EMIT nodeActivated(index);
    }
}

void LocationsTreeView::initViewItemOption(QStyleOptionViewItem *option) const
{
    QTreeView::initViewItemOption(option);
    // The rows paint their ground themselves; a style would fill the room before them too.
    option->palette.setBrush(QPalette::Highlight, Qt::transparent);
}

void LocationsTreeView::drawBranches(QPainter *painter, const QRect &rect,
                                     const QModelIndex &index) const
{
    if (!model()->hasChildren(index)) {
        return;
    }
    // Drawn as pointing down and turned into reading direction while folded.
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const QRect slot(mirrored ? rect.left() : rect.right() + 1 - kIndentation, rect.top(),
                     kIndentation, rect.height());
    QPolygonF chevron;
    chevron << QPointF(-kChevronReach, -kChevronReach / 2) << QPointF(0, kChevronReach / 2)
            << QPointF(kChevronReach, -kChevronReach / 2);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(m_chevronColor, kChevronPen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->translate(QRectF(slot).center());
    if (!isExpanded(index)) {
        painter->rotate(mirrored ? 90 : -90);
    }
    painter->drawPolyline(chevron);
    painter->restore();
}
