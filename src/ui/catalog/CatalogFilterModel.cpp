#include "CatalogFilterModel.h"

#include "CatalogTexts.h"
#include "CatalogTreeModel.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using Kind = CatalogTreeItem::Kind;

namespace {

// In place of a number of places found.
constexpr int kDropped = -1;
constexpr int kKeptWhole = -2;

} // namespace

CatalogFilterModel::CatalogFilterModel(CatalogTreeModel &source, QObject *parent)
    : RowFilterProxyModel(parent)
    , m_source(source)
{
    setSourceModel(&source);
}

void CatalogFilterModel::setSearchText(const QString &text)
{
    if (text == m_searchText) {
        return;
    }
    const CatalogSearch search(text);
    m_searchText = text;
    if (search != m_search) {
        changeRowsFilter([this, &search] {
            m_search = search;
            m_isMatched = false;
        });
    }
}

bool CatalogFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    return isKept(*m_source.item(sourceParent).children[size_t(sourceRow)]);
}

bool CatalogFilterModel::isKept(const CatalogTreeItem &item) const
{
    if (m_search.isEmpty()) {
        return true;
    }
    findMatches();
    return m_found[item.ordinal] != kDropped;
}

int CatalogFilterModel::placeCount(const CatalogTreeItem &item) const
{
    if (m_search.isEmpty()) {
        return item.placeCount;
    }
    findMatches();
    const int found = m_found[item.ordinal];
    return found == kKeptWhole ? item.placeCount : found;
}

void CatalogFilterModel::findMatches() const
{
    if (m_isMatched && m_matchedRevision == m_source.revision()) {
        return;
    }
    const CatalogTreeItem &root = m_source.item({});
    m_found.assign(root.end, kDropped);
    m_matchedRevision = m_source.revision();
    m_isMatched = true;
    visit(root, m_search.allTerms());
}

// Notes for the row and all below what is found there. Returns the number of places that
// are kept with the row, or kDropped.
int CatalogFilterModel::visit(const CatalogTreeItem &item,
                              const CatalogSearch::Missing &missing) const
{
    const auto rest = m_search.stillMissing(missing, item.searchText);
    const auto at = m_found.begin() + std::ptrdiff_t(item.ordinal);
    if (rest.isEmpty()) {
        std::fill(at, m_found.begin() + std::ptrdiff_t(item.end), kKeptWhole);
        return item.kind == Kind::Node ? 1 : item.placeCount;
    }
    int found = kDropped;
    for (const auto &child : item.children) {
        const int below = visit(*child, rest);
        if (below != kDropped) {
            found = std::max(found, 0) + below;
        }
    }
    *at = found;
    return found;
}

bool CatalogFilterModel::hasRowsBelow(const QModelIndex &sourceRow) const
{
    const auto &rows = m_source.item(sourceRow).children;
    return std::any_of(rows.begin(), rows.end(), [this](const auto &row) { return isKept(*row); });
}

QModelIndex CatalogFilterModel::firstNodeBelow(const QModelIndex &sourceRow) const
{
    for (const auto &row : m_source.item(sourceRow).children) {
        if (!isKept(*row)) {
            continue;
        }
        const QModelIndex at = m_source.indexOf(*row);
        if (row->kind == Kind::Node) {
            return mapFromSource(at);
        }
        const QModelIndex below = firstNodeBelow(at);
        if (below.isValid()) {
            return below;
        }
    }
    return {};
}

QVariant CatalogFilterModel::data(const QModelIndex &index, int role) const
{
    if (role != FlagCodeRole && role != PlaceCountRole && role != Qt::AccessibleTextRole) {
        return RowFilterProxyModel::data(index, role);
    }
    const QModelIndex sourceIndex = mapToSource(index);
    if (!sourceIndex.isValid()) {
        return {};
    }
    const CatalogTreeItem &item = m_source.item(sourceIndex);
    if (role == FlagCodeRole) {
        return item.flagCode;
    }
    if (role == PlaceCountRole) {
        return item.kind == Kind::Node ? QVariant() : QVariant(placeCount(item));
    }
    return spokenText(item);
}

// What the row's painting tells, in words. Its state is in the description as well, which
// not every screen reader speaks.
QString CatalogFilterModel::spokenText(const CatalogTreeItem &item) const
{
    const QModelIndex at = m_source.indexOf(item);
    const bool inGroup = item.kind == Kind::Node && item.parent->kind == Kind::Group;
    return catalogtexts::spoken(
        {.name = item.text,
         .group = inGroup ? item.parent->text : QString(),
         .latency = item.latency,
         .favorite = m_source.data(at, CatalogTreeModel::FavoriteRole).toBool(),
         .state = m_source.data(at, Qt::AccessibleDescriptionRole).toString()});
}
