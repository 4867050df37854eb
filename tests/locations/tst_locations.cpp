#include "AppState.h"
#include "LocationsItemDelegate.h"
#include "LocationsPage.h"
#include "LocationsTabBar.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

NodeEntry node(const QString &id, const QString &name)
{
    return {.id = id, .name = name, .tags = {}, .region = u"JP"_s, .type = {}};
}

NodeGroup group(const QString &name, const QString &code, const QStringList &ids)
{
    return {.name = name, .code = code, .nodeIds = ids, .subgroups = {}};
}

NodesInfo someNodes()
{
    NodesInfo nodes;
    nodes.nodes = {node(u"t1"_s, u"Tokyo 1"_s), node(u"t2"_s, u"Tokyo 2"_s),
                   node(u"b1"_s, u"Berlin 1"_s), node(u"x"_s, u"<b>A&B</b>\n\u202Eevil %1"_s)};
    return nodes;
}

NodeGroupsInfo someGroups()
{
    NodeGroupsInfo groups;
    groups.tabs = {{u"FAVORITE"_s, {u"b1"_s}, {}},
                   {u"Asia"_s, {}, {group(u"Japan"_s, u"JP"_s, {u"t1"_s, u"t2"_s})}},
                   {u"A&B"_s, {u"x"_s}, {group(u"Germany"_s, u"DE"_s, {u"b1"_s})}},
                   {u"FREE"_s, {}, {}}};
    return groups;
}

/// A shown page over a store that holds the catalogue above.
struct Fixture
{
    AppState state;
    LocationsPage page{state};
    QLineEdit &search = *page.findChild<QLineEdit *>(u"VantuLocationsSearch"_s);
    LocationsTabBar &tabs = *page.findChild<LocationsTabBar *>();
    LocationsTreeView &tree = *page.findChild<LocationsTreeView *>();
    QPushButton &connectButton = *page.findChild<QPushButton *>(u"VantuLocationsConnect"_s);
    QToolButton &toggle = *page.findChild<QToolButton *>(u"VantuLocationsToggleGroups"_s);
    QToolButton &refresh = *page.findChild<QToolButton *>(u"VantuLocationsRefresh"_s);
    QPushButton &showAll = *page.findChild<QPushButton *>(u"VantuLocationsShowAllMatches"_s);
    QLabel &empty = *page.findChild<QLabel *>(u"VantuLocationsEmpty"_s);
    QLabel &message = *page.findChild<QLabel *>(u"VantuLocationsMessage"_s);
    QSignalSpy nodeSpy{&page, &LocationsPage::connectNodeRequested};
    QSignalSpy smartSpy{&page, &LocationsPage::connectSmartRequested};
    QSignalSpy favoriteSpy{&page, &LocationsPage::favoriteNodeRequested};

    explicit Fixture(Qt::LayoutDirection direction = Qt::LeftToRight)
    {
        page.setLayoutDirection(direction);
        page.resize(620, 500);
        page.show();
        state.setNodes(someNodes());
        state.setNodeGroups(someGroups());
        QCoreApplication::processEvents(); // delivers the one coalesced update
    }

    QModelIndex row(const QString &text) const
    {
        const auto found = tree.model()->match(tree.model()->index(0, 0), Qt::DisplayRole, text, -1,
                                               Qt::MatchExactly | Qt::MatchRecursive);
        for (const QModelIndex &index : found) {
            if (tree.visualRect(index).isValid()) {
                return index;
            }
        }
        return {};
    }
    void pressKey(Qt::Key key) { QTest::keyClick(&tree, key); }
    void clickStar(const QModelIndex &index)
    {
        const QRect star =
            CatalogItemDelegate::favoriteRect(tree.visualRect(index), tree.layoutDirection());
        QVERIFY(star.width() >= 28 && star.height() >= 28);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, star.center());
    }
    bool listIsShown() const { return tree.isVisible(); }
};

bool isFavorite(const QModelIndex &index)
{
    return index.data(CatalogTreeModel::FavoriteRole).toBool();
}

} // namespace

class TestLocations final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyTab();
    void connectTarget();
    void searchScopesAndEnds();
    void foldAndUnfold();
    void messages();
    void stateSurvivesRefresh();
    void keyboard();
    void keyboardMirrored() { keyboardIn(Qt::RightToLeft); }
    void favorites();
    void daemonAway();
    void quietPoll();

private:
    static void keyboardIn(Qt::LayoutDirection direction);
};

void TestLocations::emptyTab()
{
    const QList<QStringList> cases{{u" favorite "_s, u"No favorites yet."_s},
                                   {u"vip"_s, u"No VIP locations available."_s},
                                   {u"50%2<b>"_s, u"No locations in 50%2<b>."_s},
                                   {u" "_s, u"No locations available."_s}};
    Fixture f;
    QCOMPARE(f.empty.textFormat(), Qt::PlainText);
    for (const QStringList &one : cases) {
        f.state.setNodeGroups({false, {{one.at(0), {}, {}}}});
        QCoreApplication::processEvents();
        QCOMPARE(f.empty.text(), one.at(1));
        QVERIFY(!f.listIsShown() && !f.toggle.isEnabled() && !f.connectButton.isEnabled());
    }
}

void TestLocations::connectTarget()
{
    struct Case
    {
        QString query;
        int tab; // -1: left as it is
        QString row;
        QStringList sent; // id or selector, and label
        QString toolTip;
    };
    const QString best = u"Connect auto-selected server"_s;
    const QString chosen = u"Connect selected location"_s;
    const QList<Case> cases{
        {{}, 1, {}, {u"Asia"_s, u"Asia"_s}, best + u" in Asia"_s},
        {{}, 1, u"Japan"_s, {u"JP"_s, u"Japan"_s}, best + u" in Japan"_s},
        {{}, 1, u"Tokyo 2"_s, {u"t2"_s, u"Tokyo 2"_s}, chosen},
        {u"tokyo"_s, 1, {}, {u"t1"_s, u"Tokyo 1"_s}, chosen}, // the first match
        {u"tokyo"_s, -1, u"Japan"_s, {QString(), QString()}, best},
    };
    for (const Case &one : cases) {
        Fixture f;
        f.search.setText(one.query);
        f.tabs.setCurrentIndex(one.tab < 0 ? f.tabs.currentIndex() : one.tab);
        f.tree.expandHeadings();
        if (!one.row.isEmpty()) {
            f.tree.choose(f.row(one.row));
        }
        QCOMPARE(f.connectButton.toolTip(), one.toolTip);
        f.connectButton.click();
        QSignalSpy &spy = one.toolTip == chosen ? f.nodeSpy : f.smartSpy;
        QCOMPARE(f.nodeSpy.size() + f.smartSpy.size(), 1);
        QCOMPARE(spy.value(0), (QVariantList{one.sent.at(0), one.sent.at(1)}));
    }
}

void TestLocations::searchScopesAndEnds()
{
    Fixture f;
    f.tabs.setCurrentIndex(0);
    f.page.setSearchText(u"  tokyo "_s);
    QCOMPARE(f.search.selectedText(), u"tokyo"_s);
    QVERIFY(f.tabs.property("vantuSearchGlobal").toBool() && !f.showAll.isVisible());
    QVERIFY(!f.tree.rootIndex().isValid());
    QCOMPARE(f.tree.currentIndex(), f.row(u"Tokyo 1"_s));
    QVERIFY(!f.tabs.isTabEnabled(2)); // nothing of Tokyo there, and a click says so
    QTest::mouseClick(&f.tabs, Qt::LeftButton, {}, f.tabs.tabRect(2).center());
    QCOMPARE(f.tabs.currentIndex(), 0);
    QVERIFY(f.tabs.property("vantuSearchGlobal").toBool());

    QTest::mouseClick(&f.tabs, Qt::LeftButton, {}, f.tabs.tabRect(1).center());
    QVERIFY(!f.tabs.property("vantuSearchGlobal").toBool() && f.showAll.isVisible());
    QCOMPARE(f.tree.rootIndex().data().toString(), u"Asia"_s);
    f.search.setText(u"berlin"_s);
    QCOMPARE(f.empty.text(), u"No matches in Asia."_s);
    QVERIFY(!f.listIsShown() && !f.connectButton.isEnabled());
    QVERIFY(QTest::qWaitForWindowActive(&f.page));
    f.showAll.setFocus();
    f.showAll.click();
    QVERIFY(f.listIsShown() && f.tabs.property("vantuSearchGlobal").toBool());
    QVERIFY(f.tree.hasFocus()); // what Down is meant for
    f.search.setText(u"nowhere"_s);
    QCOMPARE(f.empty.text(), u"No matching locations."_s);
    QVERIFY(f.tabs.isTabEnabled(2));

    QTest::keyClick(&f.search, Qt::Key_Escape);
    QVERIFY(f.search.text().isEmpty() && f.listIsShown());
    QCOMPARE(f.tabs.currentIndex(), 0);
    QCOMPARE(f.tree.rootIndex().data().toString(), u"Favorites"_s);
    QVERIFY(!f.tree.currentIndex().isValid());
}

void TestLocations::foldAndUnfold()
{
    Fixture f;
    f.tabs.setCurrentIndex(1);
    QCOMPARE(f.toggle.toolTip(), u"Expand location groups"_s);
    f.toggle.click();
    QVERIFY(f.tree.isExpanded(f.row(u"Japan"_s)));
    QCOMPARE(f.toggle.accessibleName(), u"Collapse location groups"_s);
    f.page.setSearchText(u"berlin"_s);
    f.search.clear();
    QVERIFY(f.tree.isExpanded(f.row(u"Japan"_s))); // as it was before the search
    f.toggle.click();
    QVERIFY(!f.tree.isExpanded(f.row(u"Japan"_s)));
    f.tabs.setCurrentIndex(3);
    QVERIFY(!f.toggle.isEnabled());
}

void TestLocations::messages()
{
    Fixture f;
    f.page.showOperationError(u" <b>down</b> "_s);
    NodesInfo stale = someNodes();
    stale.stale = true;
    f.state.setNodes(stale);
    QCoreApplication::processEvents();
    QCOMPARE(f.message.text(), u"<b>down</b>"_s);
    QCOMPARE(f.message.textFormat(), Qt::PlainText);
    f.page.clearMessage();
    QVERIFY(!f.message.isVisible());
    QTRY_COMPARE(f.message.text(), u"Cached locations may be stale. Refresh to update."_s);
    f.state.setNodes(someNodes());
    QTRY_VERIFY(!f.message.isVisible());
}

void TestLocations::stateSurvivesRefresh()
{
    Fixture f;
    QStringList ids;
    NodesInfo nodes = someNodes();
    for (int i = 0; i < 60; ++i) {
        ids.append(u"n%1"_s.arg(i));
        nodes.nodes.append(node(ids.last(), u"Osaka %1"_s.arg(i)));
    }
    NodeGroupsInfo groups = someGroups();
    groups.tabs[1].groups[0].nodeIds += ids;
    f.state.setNodes(nodes);
    f.state.setNodeGroups(groups);
    QCoreApplication::processEvents();
    f.tabs.setCurrentIndex(1);
    f.toggle.click();
    f.tree.choose(f.row(u"Osaka 20"_s));
    f.tree.scrollTo(f.row(u"Osaka 19"_s), QTreeView::PositionAtTop);
    const auto atTop = [&f] { return f.tree.indexAt(QPoint(300, 2)).data().toString(); };
    QCOMPARE(atTop(), u"Osaka 19"_s);

    // Other places before all of these, in another order of tabs.
    std::reverse(groups.tabs.begin(), groups.tabs.end());
    groups.tabs[2].groups.prepend(group(u"Korea"_s, u"KR"_s, {u"b1"_s}));
    groups.tabs[2].groups[1].nodeIds.prepend(u"x"_s);
    QSignalSpy resets(f.tree.model(), &QAbstractItemModel::modelReset);
    f.state.setNodeGroups(groups);
    nodes.stale = true;
    f.state.setNodes(nodes);
    QCoreApplication::processEvents();
    QCOMPARE(resets.size(), 1);
    QCOMPARE(f.tabs.tabText(f.tabs.currentIndex()), u"Asia"_s);
    QCOMPARE(f.tree.currentIndex().data().toString(), u"Osaka 20"_s);
    QVERIFY(f.tree.selectionModel()->isSelected(f.tree.currentIndex()));
    QVERIFY(f.tree.isExpanded(f.row(u"Osaka 20"_s).parent()));
    QVERIFY(!f.tree.isExpanded(f.tree.rootIndex().model()->index(0, 0, f.tree.rootIndex())));
    QCOMPARE(atTop(), u"Osaka 19"_s);

    // A search goes on, in the tab that it was limited to.
    f.search.setText(u"osaka"_s);
    f.tabs.setCurrentIndex(0);
    f.tabs.setCurrentIndex(2);
    groups.tabs.removeFirst();
    f.state.setNodeGroups(groups);
    QCoreApplication::processEvents();
    QCOMPARE(f.tree.rootIndex().data().toString(), u"Asia"_s);
    QVERIFY(f.row(u"Osaka 0"_s).isValid() && f.showAll.isVisible());

    // Connect goes on to a match when the chosen one has gone.
    f.tree.choose(f.row(u"Osaka 20"_s));
    groups.tabs[1].groups[1].nodeIds.removeOne(u"n20"_s);
    f.state.setNodeGroups(groups);
    QCoreApplication::processEvents();
    f.connectButton.click();
    QCOMPARE(f.nodeSpy.value(0).value(0), u"n0"_s);
}

void TestLocations::keyboard()
{
    keyboardIn(Qt::LeftToRight);
}

void TestLocations::keyboardIn(Qt::LayoutDirection direction)
{
    const bool mirrored = direction == Qt::RightToLeft;
    Fixture f(direction);
    f.tabs.setCurrentIndex(1);
    f.tree.setFocus();
    f.tree.choose(f.row(u"Japan"_s));
    f.pressKey(mirrored ? Qt::Key_Left : Qt::Key_Right);
    QVERIFY(f.tree.isExpanded(f.row(u"Japan"_s)));
    f.pressKey(mirrored ? Qt::Key_Right : Qt::Key_Left);
    QVERIFY(!f.tree.isExpanded(f.row(u"Japan"_s)));
    f.pressKey(Qt::Key_Return);
    f.pressKey(Qt::Key_Down);
    f.pressKey(Qt::Key_Return);
    QCOMPARE(f.nodeSpy.takeFirst(), (QVariantList{u"t1"_s, u"Tokyo 1"_s}));
    QTest::keyClicks(&f.tree, u"tokyo 2"_s);
    QCOMPARE(f.tree.currentIndex().data().toString(), u"Tokyo 2"_s);
    f.pressKey(Qt::Key_F);
    QVERIFY(f.favoriteSpy.isEmpty()); // a letter of what is typed
    QTest::mouseDClick(f.tree.viewport(), Qt::LeftButton, {},
                       f.tree.visualRect(f.row(u"Tokyo 2"_s)).center());
    QCOMPARE(f.nodeSpy.takeFirst().at(0), u"t2"_s);
    f.clickStar(f.row(u"Tokyo 1"_s));
    QCOMPARE(f.favoriteSpy.takeFirst().at(0), u"t1"_s);
    QCOMPARE(f.tree.currentIndex().data().toString(), u"Tokyo 2"_s);

    QTest::keyClicks(&f.search, u"ber"_s);
    QTest::keyClick(&f.search, Qt::Key_Return);
    f.pressKey(Qt::Key_Return);
    QCOMPARE(f.nodeSpy.takeFirst().at(0), u"b1"_s);
    f.pressKey(Qt::Key_Escape);
    QVERIFY(f.search.text().isEmpty());
}

void TestLocations::favorites()
{
    Fixture f;
    f.tree.choose(f.row(u"Berlin 1"_s));
    f.pressKey(Qt::Key_F);
    QCOMPARE(f.favoriteSpy.takeFirst(), (QVariantList{u"b1"_s, false}));
    const auto berlin = [&f] { return f.row(u"Berlin 1"_s); };
    QVERIFY(!isFavorite(berlin()));
    f.clickStar(berlin()); // still on its way
    QVERIFY(f.favoriteSpy.isEmpty());

    f.page.setUnconfirmedFavorites({{u"t1"_s, true}},
                                   {u"t1"_s}); // refused; another one is under way
    QVERIFY(isFavorite(berlin()));
    QTest::keyClick(&f.tree, Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(f.favoriteSpy.takeFirst(), (QVariantList{u"b1"_s, false}));
    f.page.clearFavoritePending();
    f.clickStar(berlin());
    QCOMPARE(f.favoriteSpy.takeFirst(), (QVariantList{u"b1"_s, true}));
    f.page.setFavoriteOverride(u" b1 "_s, false);
    QVERIFY(!isFavorite(berlin()));
    f.page.clearFavoriteOverrides();
    QVERIFY(isFavorite(berlin()));

    // The keyboard stays where the row was.
    f.tree.setFocus();
    for (const auto *ids : {"t1 b1 t2", "t1 t2", "t1"}) {
        NodeGroupsInfo groups = someGroups();
        groups.tabs[0].nodeIds = QString::fromLatin1(ids).split(u' ');
        f.state.setNodeGroups(groups);
        QCoreApplication::processEvents();
        QCOMPARE(f.tree.currentIndex().row(), groups.tabs[0].nodeIds.size() > 1 ? 1 : 0);
    }
}

void TestLocations::daemonAway()
{
    Fixture f;
    f.page.setDaemonAvailable(false, u"No <b>daemon"_s);
    QCOMPARE(f.message.text(), u"No <b>daemon"_s);
    QVERIFY(!f.connectButton.isEnabled() && !f.refresh.isEnabled() && f.listIsShown());
    QCOMPARE(f.connectButton.toolTip(), u"<qt>No &lt;b&gt;daemon</qt>"_s);
    f.tree.choose(f.row(u"Berlin 1"_s));
    f.pressKey(Qt::Key_Return);
    f.pressKey(Qt::Key_F);
    QVERIFY(f.nodeSpy.isEmpty() && f.favoriteSpy.isEmpty() && isFavorite(f.row(u"Berlin 1"_s)));
    f.page.setDaemonAvailable(true, {});
    QVERIFY(f.connectButton.isEnabled() && f.refresh.isEnabled() && !f.message.isVisible());

    f.refresh.setFocus();
    f.page.setRefreshing(true);
    QVERIFY(f.page.focusWidget() && f.page.focusWidget() != &f.connectButton);
    f.page.setRefreshing(false);
    QCOMPARE(f.page.focusWidget(), &f.refresh);
}

class PaintCounter final : public QObject
{
public:
    int count = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

void TestLocations::quietPoll()
{
    Fixture f;
    QVERIFY(QTest::qWaitForWindowExposed(&f.page));
    RuntimeInfo runtime;
    runtime.connectedNode = {u"b1"_s, {}, {}, {}};
    PaintCounter paints;
    f.tree.viewport()->installEventFilter(&paints);
    f.state.setRuntime(runtime);
    QTRY_VERIFY(paints.count > 0);
    while (std::exchange(paints.count, 0) > 0) {
        QCoreApplication::processEvents();
    }
    runtime.message = u"nothing for this page"_s;
    f.state.setRuntime(runtime);
    NodesInfo nodes = someNodes();
    nodes.pingRunning = true;
    f.state.setNodes(nodes);
    QCoreApplication::processEvents();
    QCOMPARE(paints.count, 0);
    nodes.nodes[2].pingMs = 0;
    f.state.setNodes(nodes);
    QTRY_VERIFY(paints.count > 0);
}

QTEST_MAIN(TestLocations)
#include "tst_locations.moc"
