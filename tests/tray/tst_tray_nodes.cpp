#include "MenuSamples.h"
#include "TrayNodeMenu.h"
#include "TrayNodePlan.h"
#include "TrayRegionMenu.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

NodeGroup group(const QString &name, const QStringList &ids, const QList<NodeGroup> &inner = {})
{
    NodeGroup result;
    result.name = name;
    result.code = name.left(2);
    result.nodeIds = ids;
    result.subgroups = inner;
    return result;
}

} // namespace

class TestTrayNodes final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plans();
    void nodeMenu();
    void regions();
};

void TestTrayNodes::plans()
{
    NodesInfo nodes;
    QVERIFY(planTrayNodes(nodes, {}).groups.isEmpty());
    QStringList many;
    for (int i = 0; i < 70; ++i) {
        many << QString::number(i);
        nodes.nodes << node(many.constLast(), u"Node & %1"_s.arg(i));
    }
    const TrayNodePlan all = planTrayNodes(nodes, {});
    QVERIFY(all.allNodes);
    QCOMPARE(all.groups.constFirst().items.size(), 70);
    QCOMPARE(all.groups.constFirst().items.constFirst().text, u"Node && 0"_s);

    // A long group is divided by subgroups, a short one is not; ids that the catalogue
    // doesn't know are left out; a lone tab needs no submenu.
    NodeGroupsInfo groups;
    groups.tabs.resize(1);
    groups.tabs[0].groupType = u"NODES"_s;
    groups.tabs[0].groups = {
        group(u"Long"_s, {u"0"_s},
              {group(u"East"_s, many.mid(0, 40)), group(u"West"_s, many.mid(40))}),
        group(u"Short"_s, {u"gone"_s}, {group(u"In\nner"_s, {u"1"_s, u"2"_s})})};
    TrayNodePlan plan = planTrayNodes(nodes, groups);
    QVERIFY(!plan.allNodes);
    QCOMPARE(plan.groups.size(), 2);
    QCOMPARE(plan.groups.at(0).items.size(), 1);
    QCOMPARE(plan.groups.at(0).groups.at(1).items.size(), 30);
    QCOMPARE(plan.groups.at(1).items.size(), 2);
    QVERIFY(plan.groups.at(1).groups.isEmpty());

    // Several tabs stand side by side, with what belongs to none of their groups.
    groups.tabs.prepend(NodeGroupTab{u"FAVORITE"_s, {u"3"_s}, {}});
    plan = planTrayNodes(nodes, groups);
    QCOMPARE(plan.groups.at(0).title, u"Favorites"_s);
    QCOMPARE(plan.groups.at(0).items.constFirst().id, u"3"_s);
    QCOMPARE(plan.groups.at(1).title, u"Nodes"_s);
    QCOMPARE(plan.groups.at(1).groups.at(0).title, u"Long"_s);
}

void TestTrayNodes::nodeMenu()
{
    QMenu menu;
    QAction *last = menu.addAction(u"Locations"_s);
    TrayNodeMenu nodeMenu(menu, *last);
    nodeMenu.show({}, {}, false);
    QCOMPARE(menu.actions().constFirst()->isVisible(), false);
    nodeMenu.show({}, {}, true);
    QVERIFY(menu.actions().constFirst()->isVisible());
    QCOMPARE(outline(menu), u"No cached nodes|-|Locations"_s);
    QVERIFY(!menu.actions().constFirst()->isEnabled());

    NodesInfo nodes;
    nodes.nodes = {node(u"a"_s, u"One"_s), node(u"b"_s, u"Two"_s)};
    nodeMenu.show(planTrayNodes(nodes, {}), u"b"_s, true);
    QCOMPARE(outline(menu), u"All Nodes{One|Two [selected]}|No cached nodes|-|Locations"_s);
    QAction *holder = menu.actions().constFirst();
    QVERIFY(holder->isChecked());
    QVERIFY(!menu.actions().at(1)->isVisible());

    // The selection moves without a rebuild, and a click doesn't move it.
    nodeMenu.show(planTrayNodes(nodes, {}), u"a"_s, true);
    QCOMPARE(menu.actions().constFirst(), holder);
    QCOMPARE(outline(*holder->menu()), u"One [selected]|Two"_s);
    QSignalSpy chosen(&nodeMenu, &TrayNodeMenu::nodeChosen);
    holder->menu()->actions().at(1)->trigger();
    QCOMPARE(chosen.constFirst(), QVariantList{u"b"_s});
    QVERIFY(!holder->menu()->actions().at(1)->isChecked());

    nodeMenu.release();
    QCOMPARE(nodeMenu.nodeActionCount(), 0);
    QCOMPARE(outline(menu), u"No cached nodes|-|Locations"_s);
}

void TestTrayNodes::regions()
{
    NodeGroupsInfo groups;
    groups.tabs.resize(1);
    groups.tabs[0].groups = {group(u"JP"_s, {}), group(u"Atlantis"_s, {})};
    groups.tabs[0].groups[0].name = u"Nippon & Co"_s;
    groups.tabs[0].groups[1].code = u"not a code"_s;
    SplitProfile profile;
    profile.defaultRoute = u"direct"_s;
    profile.proxyRegions = {u"jp"_s, u"CN"_s};

    QMenu menu;
    TrayRegionMenu regionMenu(menu);
    QCOMPARE(outline(menu), u"None"_s);
    regionMenu.show(trayRegions(profile, groups));
    QCOMPARE(outline(menu), u"China|Nippon && Co"_s);
    QSignalSpy chosen(&regionMenu, &TrayRegionMenu::regionChosen);
    menu.actions().at(1)->trigger();
    QCOMPARE(chosen.constFirst().constFirst().toString(), u"jp"_s);
    QVERIFY(menu.actions().at(1)->isChecked());
}

QTEST_MAIN(TestTrayNodes)
#include "tst_tray_nodes.moc"
