#include "CatalogFilterModel.h"
#include "CatalogItemDelegate.h"
#include "CatalogSearch.h"
#include "CatalogTreeModel.h"
#include "FlagPixmap.h"
#include "ThemePalette.h"

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

#include <functional>

using namespace Qt::StringLiterals;
using Roles = QList<int>;

namespace {

NodeEntry node(const QString &id, const QString &name, const QString &region,
               const QStringList &tags = {}, int pingMs = -1)
{
    return {id, name, tags, region, {}, pingMs < 0 ? -1 : 70, pingMs};
}

NodeGroup group(const QString &name, const QString &code, const QStringList &ids,
                const QList<NodeGroup> &subgroups = {})
{
    return {name, code, 0, 0, ids, subgroups};
}

NodesInfo someNodes()
{
    NodesInfo nodes;
    nodes.nodes = {node(u"1"_s, u"Tokyo 1"_s, u"JP"_s, {u"Stream"_s, u"P2P"_s, u"Stream"_s}, 38),
                   node(u"2"_s, u"Otto 2"_s, u"JP"_s, {}, 0),
                   node(u"3"_s, u"Hong_Kong 3"_s, u"HK"_s),
                   node(u"4"_s, u"東京 4 [turbo]"_s, u"JP"_s), node(u"5"_s, u"  "_s, u"DE"_s)};
    return nodes;
}

NodeGroupsInfo someGroups()
{
    NodeGroupsInfo groups;
    groups.tabs = {
        {u"FAVORITE"_s, {u"1"_s}, {}},
        {u"vip"_s, {}, {group(u"Japan"_s, u"JP"_s, {u" 2 "_s})}},
        {u" NODES "_s,
         {u"9"_s},
         {group(u"Asia"_s, u"AS"_s, {u"3"_s}, {group(u"Japan"_s, {}, {u"1"_s, u"2"_s, u"4"_s})}),
          group(u" Germany "_s, u"De"_s, {u"5"_s})}}};
    return groups;
}

/// The tree as the view would show it, a group's or tab's rows in braces.
QString shown(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString below = shown(model, index);
        rows << index.data().toString() + (below.isEmpty() ? u""_s : u"{%1}"_s.arg(below));
    }
    return rows.join(u", ");
}

/// Each row in which `role` is true, by its path.
QStringList marked(const CatalogTreeModel &model, int role, const QModelIndex &parent = {})
{
    QStringList paths;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (index.data(role).toBool()) {
            paths << model.pathOf(index).join(u'/');
        }
        paths << marked(model, role, index);
    }
    return paths;
}

struct Catalog
{
    CatalogTreeModel model;
    CatalogFilterModel filter{model};
    QAbstractItemModelTester modelTester{&model};
    QAbstractItemModelTester filterTester{&filter};
    QSignalSpy resets{&model, &QAbstractItemModel::modelReset};
    QSignalSpy changes{&model, &QAbstractItemModel::dataChanged};

    Catalog()
    {
        model.setCatalog(someNodes(), someGroups());
        resets.clear();
    }
    QModelIndex at(const QStringList &path) const { return model.indexOfPath(path); }
    QModelIndex tokyo() const
    {
        return at({u"tab:NODES"_s, u"group:AS"_s, u"group:Japan"_s, u"node:1"_s});
    }
};

} // namespace

class TestCatalog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tokens()
    {
        const QStringList queries{u"Hong_Kong"_s, u"hong-kong"_s, u" HONG  kong\t"_s,
                                  u"_-hong -\u00a0kong"_s};
        for (const QString &query : queries) {
            QCOMPARE(CatalogSearch::tokens(query).join(u'|'), u"hong|kong"_s);
        }
        QCOMPARE(CatalogSearch::tokens(u"[p2p] a.b"_s).join(u'|'), u"[p2p]|a.b"_s);
        QVERIFY(CatalogSearch(u" _- -_ "_s).isEmpty());
    }

    void termsFollowTheirExpression_data()
    {
        QTest::addColumn<QString>("haystack");
        QTest::addColumn<QString>("query");
        QTest::addColumn<bool>("expected");
        QTest::newRow("word start") << u"tokyo 1"_s << u"to"_s << true;
        QTest::newRow("inside a word") << u"otto 2"_s << u"to"_s << false;
        QTest::newRow("after punctuation") << u"x.[to]"_s << u"to"_s << true;
        QTest::newRow("underscore is part of a word") << u"hong_kong"_s << u"kong"_s << false;
        QTest::newRow("digit is part of a word") << u"1to"_s << u"to"_s << false;
        QTest::newRow("accents end a word") << u"m\u00e9xico"_s << u"xico"_s << true;
        QTest::newRow("any script anywhere") << u"大東京都"_s << u"東京"_s << true;
        QTest::newRow("accented term anywhere") << u"cam\u00e9ra"_s << u"\u00e9r"_s << true;
        QTest::newRow("any case") << u"tokyo"_s << u"TOK"_s << true;
        QTest::newRow("all terms, any order") << u"japan tokyo"_s << u"tok jap"_s << true;
        QTest::newRow("one term missing") << u"japan tokyo"_s << u"jap osaka"_s << false;
        QTest::newRow("brackets are no pattern") << u"a b"_s << u"[ab]"_s << false;
        QTest::newRow("no terms") << u"anything"_s << u" - "_s << true;
    }

    // The rule is stated as a regular expression; the matcher must never differ from it.
    void termsFollowTheirExpression()
    {
        QFETCH(QString, haystack);
        QFETCH(QString, query);
        QFETCH(bool, expected);
        bool byExpression = true;
        for (const QString &token : CatalogSearch::tokens(query)) {
            static const QRegularExpression plain(u"^[a-z0-9]+$"_s);
            const QRegularExpression start(u"\\b%1"_s.arg(QRegularExpression::escape(token)));
            byExpression =
                byExpression && (plain.match(token).hasMatch() ? haystack.contains(start)
                                                               : haystack.contains(token));
        }
        QCOMPARE(byExpression, expected);
        const CatalogSearch search(query);
        QCOMPARE(search.accepts(haystack), expected);
        // Level by level, as the tree is searched.
        auto missing = search.allTerms();
        for (const QString &level : haystack.split(u' ')) {
            missing = search.stillMissing(missing, level);
        }
        QCOMPARE(missing.isEmpty(), expected);
    }

    void treeInCatalogOrder()
    {
        const Catalog catalog;
        const QString expected =
            u"Favorites{Tokyo 1}, VIP{Japan{Otto 2}}, "
            u"Nodes{Asia{Japan{Tokyo 1, Otto 2, 東京 4 [turbo]}, Hong_Kong 3}, "
            u"Germany{[5] unavailable}, [9] unavailable}"_s;
        QCOMPARE(shown(catalog.model), expected);
        QCOMPARE(shown(catalog.filter), expected);
    }

    void rolesOfNodes()
    {
        const Catalog catalog;
        const QModelIndex tokyo = catalog.tokyo();
        QCOMPARE(tokyo.data(CatalogTreeModel::DetailTextRole), u"Stream · P2P"_s);
        QCOMPARE(tokyo.data(CatalogTreeModel::FirstMetricRole), 70);
        QVERIFY(!tokyo.data(Qt::ToolTipRole).isValid());
        // Nought is a measurement, nothing is none.
        QCOMPARE(tokyo.siblingAtRow(1).data(CatalogTreeModel::LatencyRole), 0);
        QVERIFY(!tokyo.siblingAtRow(2).data(CatalogTreeModel::LatencyRole).isValid());
        QVERIFY(!tokyo.siblingAtRow(2).data(CatalogTreeModel::FirstMetricRole).isValid());
        const QModelIndex row = catalog.filter.mapFromSource(tokyo);
        QCOMPARE(row.data(CatalogFilterModel::FlagCodeRole), u"jp"_s);
        QCOMPARE(row.data(Qt::AccessibleTextRole), u"Tokyo 1, Japan, 38 ms, Favorite"_s);
        QCOMPARE(row.siblingAtRow(2).data(Qt::AccessibleTextRole), u"東京 4 [turbo], Japan"_s);
    }

    void hostileTexts()
    {
        NodesInfo nodes;
        nodes.nodes = {node(u"1"_s, u"<b>a</b>\n\u202E%2 \\d[.*"_s, u"../../icons/app"_s),
                       node(u"2"_s, QString(100000, u'x'), u"\u212Ap"_s)};
        NodeGroupsInfo groups;
        groups.tabs = {{u"<i>%1</i>"_s, {}, {group(u"\u202E"_s, {}, {u"1"_s, u"2"_s})}},
                       {{}, {}, {}}};
        CatalogTreeModel model;
        model.setCatalog(nodes, groups);
        const QModelIndex parent = model.index(0, 0, model.index(0, 0));
        QCOMPARE(model.index(0, 0, parent).data().toString(), u"<b>a</b> %2 \\d[.*"_s);
        QCOMPARE(model.item(model.index(0, 0, parent)).flagCode, QString());
        QVERIFY(model.index(1, 0, parent).data().toString().size() <= 120);
        CatalogFilterModel filter(model);
        filter.setSearchText(u"\\d[.*"_s);
        QCOMPARE(shown(filter), u"<i>%1</i>{{<b>a</b> %2 \\d[.*}}"_s);
    }

    void filter_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<int>("places"); // In each heading of the last tab.
        QTest::newRow("tab with all below") << u"vip"_s << u"VIP{Japan{Otto 2}}"_s << 1;
        QTest::newRow("alias of a tab") << u"fav"_s << u"Favorites{Tokyo 1}"_s << 1;
        QTest::newRow("group and node")
            << u"japan tokyo"_s << u"Nodes{Asia{Japan{Tokyo 1}}}"_s << 1;
        QTest::newRow("group with all below")
            << u"japan"_s
            << u"VIP{Japan{Otto 2}}, Nodes{Asia{Japan{Tokyo 1, Otto 2, 東京 4 [turbo]}}}"_s << 3;
        QTest::newRow("any script") << u"京"_s << u"Nodes{Asia{Japan{東京 4 [turbo]}}}"_s << 1;
        QTest::newRow("nothing") << u"tokyo germany"_s << QString() << 0;
    }

    void filter()
    {
        QFETCH(QString, query);
        QFETCH(QString, expected);
        Catalog catalog;
        const QString all = shown(catalog.filter);
        const auto lastTab = [&] { return catalog.filter.index(catalog.filter.rowCount() - 1, 0); };
        catalog.filter.setSearchText(query);
        QCOMPARE(shown(catalog.filter), expected);
        for (QModelIndex at = lastTab(); at.isValid() && catalog.filter.hasChildren(at);
             at = catalog.filter.index(0, 0, at)) {
            QTEST(at.data(CatalogFilterModel::PlaceCountRole).toInt(), "places");
        }
        // A catalogue that comes while searching is searched as well.
        NodesInfo fewer = someNodes();
        fewer.nodes.removeLast();
        catalog.model.setCatalog(fewer, someGroups());
        QCOMPARE(shown(catalog.filter), expected);
        catalog.filter.setSearchText(u" - "_s);
        QCOMPARE(shown(catalog.filter), all);
        QCOMPARE(lastTab().data(CatalogFilterModel::PlaceCountRole), QVariant(6));
    }

    void newMeasurementsKeepTheTree()
    {
        Catalog catalog;
        const QPersistentModelIndex tokyo = catalog.tokyo();
        NodesInfo measured = someNodes();
        measured.nodes[0].pingMs = 44;
        measured.nodes[2].signalLevel = 5;
        catalog.model.setCatalog(measured, someGroups());
        QCOMPARE(catalog.resets.size(), 0);
        QCOMPARE(catalog.changes.size(), 3); // the favourite, its group's row, and Hong Kong
        for (const auto &change : std::as_const(catalog.changes)) {
            QCOMPARE(change.at(2).value<Roles>(),
                     (Roles{CatalogTreeModel::FirstMetricRole, CatalogTreeModel::LatencyRole}));
        }
        QCOMPARE(tokyo.data(CatalogTreeModel::LatencyRole), 44);
        QCOMPARE(catalog.model.index(0, 0, catalog.model.index(0, 0))
                     .data(CatalogTreeModel::LatencyRole),
                 44);
        catalog.model.setCatalog(measured, someGroups());
        QCOMPARE(catalog.changes.size(), 3);
    }

    void markersMoveWithoutReset()
    {
        Catalog catalog;
        catalog.model.setCurrentNodes(u"1"_s, u" 1 "_s);
        const QModelIndex tokyo = catalog.tokyo();
        QCOMPARE(tokyo.data(Qt::ToolTipRole), u"Connected server"_s);
        QCOMPARE(tokyo.parent().data(Qt::AccessibleDescriptionRole),
                 u"Contains connected server"_s);
        const QStringList above{u"tab:FAVORITE"_s, u"tab:NODES"_s, u"tab:NODES/group:AS"_s,
                                u"tab:NODES/group:AS/group:Japan"_s};
        QCOMPARE(marked(catalog.model, CatalogTreeModel::ContainsConnectedRole), above);
        catalog.changes.clear();
        catalog.model.setCurrentNodes(u"1"_s, u"3"_s);
        QCOMPARE(tokyo.data(Qt::ToolTipRole), u"Selected server"_s);
        QCOMPARE(marked(catalog.model, CatalogTreeModel::ConnectedRole),
                 QStringList{u"tab:NODES/group:AS/node:3"_s});
        // Two rows of Tokyo, its favourites tab and Japan, and Hong Kong; Asia stays marked.
        QCOMPARE(catalog.changes.size(), 5);
        QVERIFY(!catalog.changes.first().at(2).value<Roles>().contains(Qt::DisplayRole));
        catalog.model.setCurrentNodes({}, {});
        QVERIFY(marked(catalog.model, CatalogTreeModel::ContainsConnectedRole).isEmpty());
        QCOMPARE(marked(catalog.model, CatalogTreeModel::SelectedRole), QStringList());
    }

    void flags()
    {
        for (const qreal ratio : {1.0, 1.5, 2.0}) {
            const QPixmap flag = flagPixmap(flagCode(u" JP "_s), FlagSize::Card, ratio);
            QCOMPARE(flag.size(), (QSizeF(flagExtent(FlagSize::Card)) * ratio).toSize());
            const QColor sun = flag.toImage().pixelColor(flag.rect().center());
            QVERIFY(sun.red() > 180 && sun.green() < 60);
        }
        for (const auto *region : {"JPN", "", "J1", "../", "日本"}) {
            QCOMPARE(flagCode(QString::fromUtf8(region)), QString());
        }
        QVERIFY(flagPixmap(u"qq"_s, FlagSize::Row, 1).isNull());
    }

    void paintingTellsTheStates()
    {
        Catalog catalog;
        QTreeView view;
        CatalogItemDelegate delegate;
        view.setItemDelegate(&delegate);
        view.setModel(&catalog.filter);
        view.expandAll();
        view.resize(500, 700);
        view.show();
        const QModelIndex tokyo = catalog.filter.mapFromSource(catalog.tokyo());
        QCOMPARE(view.visualRect(tokyo).height(), 40);
        QCOMPARE(view.visualRect(tokyo.parent()).height(), 36);
        const auto picture = [&] {
            return view.viewport()->grab(view.visualRect(tokyo)).toImage();
        };
        QList<QImage> pictures{picture()};
        const QList<std::function<void()>> steps{
            [&] { catalog.model.setFavoriteOverride(u"1"_s, false); },
            [&] { catalog.model.setFavoritePending(u"1"_s); },
            [&] { catalog.model.setCurrentNodes(u"1"_s, {}); },
            [&] { catalog.model.setCurrentNodes(u"1"_s, u"1"_s); },
            [&] { delegate.setThemePalette(ThemePalette::forScheme(ColorScheme::Dark)); },
            [&] { view.setLayoutDirection(Qt::RightToLeft); },
            [&] { view.setEnabled(false); },
        };
        for (const auto &step : steps) {
            step();
            pictures << picture();
            QVERIFY(pictures.last() != pictures.at(pictures.size() - 2));
        }
    }
};

QTEST_MAIN(TestCatalog)
#include "tst_catalog.moc"
