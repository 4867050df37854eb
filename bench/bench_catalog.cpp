/// What a large catalogue costs: building the tree, searching it at every key press, and
/// being told the same catalogue again. Fails when a requirement isn't met.

#include "CatalogFilterModel.h"
#include "CatalogItemDelegate.h"
#include "CatalogSearch.h"
#include "CatalogTreeModel.h"

#include <QApplication>
#include <QRegularExpression>
#include <QTreeView>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <map>
#include <string>

using namespace Qt::StringLiterals;

namespace {

constexpr int kNodes = 5000;
constexpr int kManyNodes = 10000;
constexpr int kGroups = 200;

struct Catalog
{
    NodesInfo nodes;
    NodeGroupsInfo groups;
};

Catalog makeCatalog(int nodeCount)
{
    static const QStringList places{u"Tokyo"_s,     u"Toronto"_s, u"Hong Kong"_s, u"Berlin"_s,
                                    u"São Paulo"_s, u"Otto"_s,    u"東京"_s};
    Catalog catalog;
    NodeGroupTab tab{u"NODES"_s, {}, {}};
    for (int group = 0; group < kGroups; ++group) {
        tab.groups.append({u"Country %1"_s.arg(group), u"C%1"_s.arg(group), 0, 0, {}, {}});
    }
    for (int i = 0; i < nodeCount; ++i) {
        const QString id = QString::number(1000 + i);
        const QString place = places.at(i % places.size());
        catalog.nodes.nodes.append({id,
                                    u"%1 %2"_s.arg(place, QString::number(i)),
                                    {u"P2P"_s},
                                    u"JP"_s,
                                    {},
                                    i % 100,
                                    i % 300});
        tab.groups[i % kGroups].nodeIds.append(id);
    }
    catalog.groups.tabs = {tab};
    return catalog;
}

/// What a user's typing runs through.
const QStringList &keystrokes()
{
    static const QStringList queries{u"t"_s,       u"to"_s,      u"tok"_s,      u"toky"_s,
                                     u"tokyo"_s,   u"tokyo 1"_s, u"tokyo 12"_s, u"country 7"_s,
                                     u"country"_s, u"東"_s,      u"otto"_s,     {}};
    return queries;
}

void collectTexts(const CatalogTreeItem &item, QStringList &texts)
{
    texts.append(item.searchText);
    for (const auto &child : item.children) {
        collectTexts(*child, texts);
    }
}

qsizetype matchAll(const CatalogTreeItem &item, const CatalogSearch &search,
                   const CatalogSearch::Missing &missing)
{
    const auto rest = search.stillMissing(missing, item.searchText);
    if (rest.isEmpty()) {
        return qsizetype(item.end - item.ordinal);
    }
    qsizetype found = 0;
    for (const auto &child : item.children) {
        found += matchAll(*child, search, rest);
    }
    return found;
}

const QStringList &matchQueries()
{
    static const QStringList queries{u"t"_s, u"tokyo"_s, u"hong"_s, u"京"_s, u"otto"_s};
    return queries;
}

void matchingPass(benchmark::State &state)
{
    const Catalog catalog = makeCatalog(kNodes);
    CatalogTreeModel model;
    model.setCatalog(catalog.nodes, catalog.groups);
    for ([[maybe_unused]] auto round : state) {
        for (const QString &query : matchQueries()) {
            const CatalogSearch search(query);
            benchmark::DoNotOptimize(matchAll(model.item({}), search, search.allTerms()));
        }
    }
}

void plainScan(benchmark::State &state)
{
    const Catalog catalog = makeCatalog(kNodes);
    CatalogTreeModel model;
    model.setCatalog(catalog.nodes, catalog.groups);
    QStringList texts;
    collectTexts(model.item({}), texts);
    for ([[maybe_unused]] auto round : state) {
        for (const QString &query : matchQueries()) {
            benchmark::DoNotOptimize(
                std::count_if(texts.cbegin(), texts.cend(),
                              [&query](const QString &text) { return text.contains(query); }));
        }
    }
}

/// What QTreeView::expandAll() shows, which would also remember every leaf as expanded.
void expandGroups(QTreeView &view, const QModelIndex &parent = {})
{
    const QAbstractItemModel &model = *view.model();
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (model.hasChildren(index)) {
            view.expand(index);
            expandGroups(view, index);
        }
    }
}

void showTree(QTreeView &view, QAbstractItemModel &model)
{
    view.setHeaderHidden(true);
    view.setModel(&model);
    view.resize(700, 560);
    expandGroups(view);
    view.show();
    view.repaint();
}

/// Types through all queries; every key press ends with the expanded tree repainted.
void type(benchmark::State &state, QTreeView &view, const std::function<void(QString)> &search)
{
    qsizetype keys = 0;
    for ([[maybe_unused]] auto round : state) {
        const QString &query = keystrokes().at(keys++ % keystrokes().size());
        search(query);
        expandGroups(view);
        view.viewport()->repaint();
    }
}

void keystroke(benchmark::State &state)
{
    const Catalog catalog = makeCatalog(int(state.range(0)));
    CatalogTreeModel model;
    model.setCatalog(catalog.nodes, catalog.groups);
    CatalogFilterModel filter(model);
    CatalogItemDelegate delegate;
    QTreeView view;
    view.setItemDelegate(&delegate);
    showTree(view, filter);
    type(state, view, [&filter](const QString &query) { filter.setSearchText(query); });
}

void plainKeystroke(benchmark::State &state)
{
    const Catalog catalog = makeCatalog(int(state.range(0)));
    CatalogTreeModel model;
    model.setCatalog(catalog.nodes, catalog.groups);
    QSortFilterProxyModel filter;
    filter.setRecursiveFilteringEnabled(true);
    filter.setSourceModel(&model);
    CatalogItemDelegate delegate;
    QTreeView view;
    view.setItemDelegate(&delegate);
    showTree(view, filter);
    type(state, view, [&filter](const QString &query) {
        filter.setFilterRegularExpression(QRegularExpression(
            QRegularExpression::escape(query), QRegularExpression::CaseInsensitiveOption));
    });
}

void catalogToTree(benchmark::State &state)
{
    const Catalog catalog = makeCatalog(kNodes);
    Catalog other = catalog;
    other.nodes.nodes.last().name += u'x';
    CatalogTreeModel model;
    CatalogFilterModel filter(model);
    CatalogItemDelegate delegate;
    QTreeView view;
    view.setItemDelegate(&delegate);
    showTree(view, filter);
    bool turn = false;
    for ([[maybe_unused]] auto round : state) {
        turn = !turn;
        model.setCatalog(turn ? catalog.nodes : other.nodes, catalog.groups);
        expandGroups(view);
        view.viewport()->repaint();
    }
}

void unchangedCatalog(benchmark::State &state)
{
    // Two decodings of the same answer share no memory.
    const Catalog catalog = makeCatalog(kNodes);
    const Catalog again = makeCatalog(kNodes);
    CatalogTreeModel model;
    model.setCatalog(catalog.nodes, catalog.groups);
    bool turn = false;
    for ([[maybe_unused]] auto round : state) {
        turn = !turn;
        const Catalog &next = turn ? again : catalog;
        model.setCatalog(next.nodes, next.groups);
    }
}

BENCHMARK(matchingPass)->Unit(benchmark::kMicrosecond);
BENCHMARK(plainScan)->Unit(benchmark::kMicrosecond);
BENCHMARK(keystroke)->Arg(kNodes)->Arg(kManyNodes)->Unit(benchmark::kMillisecond);
BENCHMARK(plainKeystroke)->Arg(kManyNodes)->Unit(benchmark::kMillisecond);
BENCHMARK(catalogToTree)->Unit(benchmark::kMillisecond);
BENCHMARK(unchangedCatalog)->Unit(benchmark::kMicrosecond);

/// Prints as usual and keeps the times, in milliseconds of wall clock.
class Results final : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Iteration) {
                m_ms[run.benchmark_name()] =
                    run.real_accumulated_time / double(run.iterations) * 1000;
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }

    /// Prints one requirement and tells whether it is met.
    bool isMet(const char *what, const std::string &name, const std::string &against,
               double limit) const
    {
        const auto time = m_ms.find(name);
        const auto base = m_ms.find(against);
        if (time == m_ms.end() || (!against.empty() && base == m_ms.end())) {
            return true; // left out on the command line
        }
        const double value = against.empty() ? time->second : time->second / base->second;
        std::printf("%-58s %7.2f, at most %5.2f  %s\n", what, value, limit,
                    value <= limit ? "met" : "MISSED");
        return value <= limit;
    }

private:
    std::map<std::string, double> m_ms;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    Results results;
    benchmark::RunSpecifiedBenchmarks(&results);
    bool met =
        results.isMet("matching pass / plain scan of the texts", "matchingPass", "plainScan", 3);
    met &= results.isMet("key press / plain recursive proxy, 10000 nodes", "keystroke/10000",
                         "plainKeystroke/10000", 0.5);
    met &= results.isMet("key press to repainted tree, 5000 nodes, ms", "keystroke/5000", {}, 10);
    met &= results.isMet("catalogue to repainted tree, 5000 nodes, ms", "catalogToTree", {}, 50);
    return met ? 0 : 1;
}
