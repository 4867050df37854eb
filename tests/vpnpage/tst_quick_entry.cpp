#include "VpnPageFixture.h"

#include "PlainText.h"
#include "QuickEntryContent.h"
#include "QuickEntryRow.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

class QuickEntryTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void content_data();
    void content();
    void limits();
    void keyboardWalk();
    void keysOfTheField();
    void history();
    void favorite();
    void moreTags();
    void closesByItself();
    void rowsStayInShape();

private:
    static NodesInfo nodes();
    static NodeGroupsInfo groups();
};

NodesInfo QuickEntryTest::nodes()
{
    NodesInfo info;
    info.nodes = {VpnPageFixture::node(u"1"_s, u"Tokyo 1 [stream]"_s, u"JP"_s, {u"p2p"_s}, 38, 90),
                  VpnPageFixture::node(u"2"_s, u"Osaka otto"_s, u"JP"_s, {u"p2p"_s}),
                  VpnPageFixture::node(u"3"_s, u"\u9999\u6e2f A"_s, u"HK"_s),
                  VpnPageFixture::node(u"4"_s, u"Oslo\n<b>&1"_s, u"NO"_s, {u"p2p"_s, u"stream"_s})};
    return info;
}

NodeGroupsInfo QuickEntryTest::groups()
{
    const NodeGroup japan{u"Japan"_s, u"JP"_s, 0, 0, {u"1"_s, u"2"_s}, {}};
    const NodeGroup europe{u"Europe"_s, u"EU"_s, 0,
                           0,           {},      {{u"Norway"_s, u"NO"_s, 1, 0, {u"4"_s}, {}}}};
    const NodeGroup hongKong{u"Hong Kong"_s, u"HK"_s, 0, 0, {u"3"_s}, {}};
    NodeGroupsInfo info;
    info.tabs = {{u"favorite"_s, {u"2"_s}, {}},
                 {u"VIP"_s, {}, {japan}},
                 {u"NODES"_s, {}, {japan, europe, hongKong}}};
    return info;
}

void QuickEntryTest::content_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QStringList>("expected"); // groups by "@key"
    const auto row = [](const char *query, const QStringList &expected) {
        QTest::newRow(query) << QString::fromUtf8(query) << expected;
    };
    row("japan", {u"2"_s, u"1"_s, u"@JP"_s});
    row("tokyo", {u"1"_s});
    row("TOKYO-japan", {u"1"_s});
    row("hong_kong", {u"3"_s, u"@HK"_s});
    row("\u6e2f", {u"3"_s});
    row("europe norway", {u"4"_s, u"@NO"_s});
    row("vip", {u"1"_s, u"2"_s});
    row("fav", {u"2"_s});
    row("stream", {u"1"_s, u"4"_s});
    row("nowhere", {});
    row(" -_ ", {u"recent 2"_s, u"recent 9"_s});
}

void QuickEntryTest::content()
{
    QFETCH(QString, query);
    QFETCH(QStringList, expected);
    const QuickEntryCatalog catalog(nodes(), groups());
    const QuickEntryHistory history{
        {u"oslo"_s}, {{u"2"_s, u"old"_s, {}}, {u"9"_s, u"gone"_s, u"fr"_s}}, false, {}};
    const QuickEntryContent shown = quickEntryContent(query, catalog, history);
    QStringList found;
    for (const QuickEntryItem &item : shown.items) {
        const bool group = item.kind == QuickEntryItem::Kind::Group;
        found += (group ? u"@"_s : shown.searching ? QString() : u"recent "_s) + item.id;
    }
    if (query == u"japan"_s) {
        // Which of two tabs lists a node first is the catalogue's business.
        found.sort();
        expected.sort();
    }
    QCOMPARE(found, expected);
    QCOMPARE(shown.searches, shown.searching ? QStringList() : QStringList{u"oslo"_s});
    QCOMPARE(shown.tags, shown.searching ? QStringList() : (QStringList{u"p2p"_s, u"stream"_s}));
}

void QuickEntryTest::limits()
{
    NodesInfo many;
    NodeGroup group{u"Land"_s, u"LA"_s, 0, 0, {}, {}};
    for (int i = 0; i < 5000; ++i) {
        many.nodes += VpnPageFixture::node(QString::number(i), u"Land %1"_s.arg(i), u"LA"_s);
        group.nodeIds += QString::number(i);
    }
    const QuickEntryCatalog catalog(many, {false, {{u"NODES"_s, {}, {group}}}});
    QCOMPARE(catalog.search(u"land"_s).size(), 20);
    QCOMPARE(catalog.search(u"land"_s).constLast().kind, QuickEntryItem::Kind::Group);
    QBENCHMARK
    {
        QVERIFY(catalog.search(u"land nowhere"_s).isEmpty());
    }

    // Before there are groups, nodes are found by themselves; without nodes, what is
    // remembered is taken as it is; the connected place stands in for a history.
    QCOMPARE(QuickEntryCatalog(nodes(), {}).search(u"osaka"_s).size(), 1);
    const QuickEntryHistory remembered{{}, {{u"9"_s, u"Old place"_s, u"fr"_s}}, false, {}};
    const QuickEntryItem item = quickEntryContent({}, {}, remembered).items.constFirst();
    QVERIFY(item.available && item.label == u"Old place"_s && item.flagCode == u"fr"_s);
    const QuickEntryCatalog small(nodes(), groups());
    QVERIFY(!quickEntryContent({}, small, remembered).items.constFirst().available);
    for (const bool cleared : {false, true}) {
        const QuickEntryHistory none{{}, {}, cleared, nodes().nodes.constFirst()};
        QCOMPARE(quickEntryContent({}, small, none).items.size(), cleared ? 0 : 1);
    }
}

void QuickEntryTest::keyboardWalk()
{
    VpnPageFixture test;
    test.recents.addSearch(u"oslo"_s);
    test.recents.addNode({u"2"_s, u"Osaka"_s, u"jp"_s});
    test.state.setNodes(nodes());
    test.state.setNodeGroups(groups());
    auto *field = test.find<QLineEdit>("VantuVPNSearch");
    QVERIFY(QTest::qWaitForWindowActive(&test.window));
    field->setFocus();

    const auto focus = [] {
        const auto *button = qobject_cast<QPushButton *>(QApplication::focusWidget());
        return button ? button->objectName().mid(18) + plaintext::singleLine(button->text())
                      : u"field"_s;
    };
    const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    QStringList walk;
    for (int i = 0; i < 5; ++i) {
        press(Qt::Key_Down);
        walk += focus();
    }
    QCOMPARE(walk, (QStringList{u"Pilloslo"_s, u"Item"_s, u"Pillp2p"_s,
                                u"FooterBrowse in Locations"_s, u"FooterBrowse in Locations"_s}));
    press(Qt::Key_Up);
    press(QApplication::isRightToLeft() ? Qt::Key_Left : Qt::Key_Right);
    QCOMPARE(focus(), u"Pillstream"_s);
    press(Qt::Key_Up);
    QCOMPARE(focus(), u"Item"_s);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    QCOMPARE(focus(), u"field"_s);
    press(Qt::Key_Down);
    press(Qt::Key_Tab); // "Clear" of the connections
    QCOMPARE(focus(), u"ClearConnectionsClear"_s);
    press(Qt::Key_X); // typing goes on in the field
    QCOMPARE(focus(), u"field"_s);
    QCOMPARE(field->text(), u"x"_s);
}

void QuickEntryTest::keysOfTheField()
{
    VpnPageFixture test;
    test.state.setNodes(nodes());
    test.state.setNodeGroups(groups());
    QSignalSpy connects(test.page, &VpnPage::connectNodeRequested);
    QSignalSpy smart(test.page, &VpnPage::connectSmartRequested);
    QSignalSpy browse(test.page, &VpnPage::browseLocationsRequested);
    auto *field = test.find<QLineEdit>("VantuVPNSearch");
    QVERIFY(QTest::qWaitForWindowActive(&test.window));
    field->setFocus();

    QTest::keyClicks(field, u"tokyo"_s);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(connects, (QList<QVariantList>{{u"1"_s, u"JP - Tokyo 1 [stream]"_s, u"jp"_s}}));
    QVERIFY(!test.page->isQuickEntryOpen());
    QCOMPARE(test.recents.searches(), QStringList{u"tokyo"_s});

    field->clear(); // Nobody took the place up.
    QTest::keyClicks(field, u"norway"_s);
    QTest::keyClick(field, Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(smart, (QList<QVariantList>{{u"NO"_s, u"Europe - Norway"_s, u"no"_s}}));

    field->clear();
    QTest::keyClicks(field, u"nowhere"_s);
    QVERIFY(test.find<QLabel>("VantuVPNQuickEntryEmpty")->isVisible());
    auto *footer = test.find<QPushButton>("VantuVPNQuickEntryFooter");
    QCOMPARE(footer->text(), u"See all matches in Locations \u203a"_s);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(connects.size(), 1);
    footer->click();
    QCOMPARE(browse, (QList<QVariantList>{{u"nowhere"_s}}));
}

void QuickEntryTest::history()
{
    VpnPageFixture test;
    test.recents.addSearch(u"osaka"_s);
    test.recents.addNode({u"2"_s, u"Osaka"_s, u"jp"_s});
    test.state.setNodes(nodes());
    QSignalSpy cleared(test.page, &VpnPage::recentConnectionsCleared);
    QSignalSpy notCleared(test.page, &VpnPage::recentsNotCleared);
    test.page->focusSearch();
    const QString folder = test.settings.dir.path();
    QVERIFY(QDir().rename(folder, folder + u".away"_s) && QFile(folder).open(QFile::WriteOnly));
    for (const char *clear :
         {"VantuVPNQuickEntryClearConnections", "VantuVPNQuickEntryClearSearches"}) {
        test.find<QPushButton>(clear)->click(); // Nothing can be written.
        QVERIFY(test.find<QuickEntryRow>("VantuVPNQuickEntryItem")->isVisible());
        QVERIFY(test.find<QPushButton>("VantuVPNQuickEntryPill")->isVisible());
    }
    QVERIFY(notCleared.size() == 2 && cleared.isEmpty());
    QVERIFY(QFile::remove(folder) && QDir().rename(folder + u".away"_s, folder));
    auto *pill = test.find<QPushButton>("VantuVPNQuickEntryPill");
    test.find<QPushButton>("VantuVPNQuickEntryClearConnections")->click();
    QCOMPARE(cleared.size(), 1);
    QVERIFY(test.recents.nodes().isEmpty());
    QVERIFY(!test.find<QuickEntryRow>("VantuVPNQuickEntryItem")->isVisible());
    pill->click();
    QCOMPARE(test.find<QLineEdit>("VantuVPNSearch")->text(), u"osaka"_s);
    QVERIFY(test.find<QuickEntryRow>("VantuVPNQuickEntryItem")->isVisible());
    test.find<QLineEdit>("VantuVPNSearch")->clear();
    test.find<QPushButton>("VantuVPNQuickEntryClearSearches")->click();
    QVERIFY(test.recents.searches().isEmpty());
    QVERIFY(!pill->isVisible());
    QVERIFY(test.page->isQuickEntryOpen());
}

void QuickEntryTest::favorite()
{
    VpnPageFixture test;
    test.state.setNodes(nodes());
    test.state.setNodeGroups(groups());
    QSignalSpy favorites(test.page, &VpnPage::setNodeFavoriteRequested);
    test.page->focusSearch();
    auto *field = test.find<QLineEdit>("VantuVPNSearch");
    field->setText(u"osaka"_s);
    const auto *row = test.find<QuickEntryRow>("VantuVPNQuickEntryItem");
    QCOMPARE(row->accessibleName(), u"JP - Osaka otto, Favorite"_s);
    QTest::keyClick(field, Qt::Key_D, Qt::ControlModifier);
    row->star()->click();
    QVERIFY(row->star()->isChecked()); // Until the daemon says otherwise.
    NodeGroupsInfo without = groups();
    without.tabs[0].nodeIds.clear();
    test.state.setNodeGroups(without);
    QTRY_COMPARE(row->accessibleName(), u"JP - Osaka otto"_s);
    QVERIFY(!row->star()->isChecked());
    row->star()->click();
    QCOMPARE(favorites, (QList<QVariantList>{{u"2"_s, false}, {u"2"_s, false}, {u"2"_s, true}}));
}

void QuickEntryTest::moreTags()
{
    VpnPageFixture test;
    NodesInfo info = nodes();
    for (int i = 0; i < 40; ++i) {
        info.nodes[0].tags += u"tag & %1"_s.arg(i);
    }
    test.state.setNodes(info);
    test.page->focusSearch();
    const auto shown = [&test] {
        const auto pills = test.window.findChildren<QPushButton *>(u"VantuVPNQuickEntryPill"_s);
        return std::count_if(pills.begin(), pills.end(),
                             [](const QPushButton *pill) { return pill->isVisible(); });
    };
    QCOMPARE(shown(), 30);
    auto *more = test.find<QPushButton>("VantuVPNQuickEntryPillMore");
    QCOMPARE(more->text(), u"+12"_s);
    QVERIFY(QTest::qWaitForWindowActive(&test.window));
    more->setFocus();
    QTest::keyClick(more, Qt::Key_Return);
    QCOMPARE(shown(), 42);
    QVERIFY(!more->isVisible() && test.page->isQuickEntryOpen());
    const auto pills = test.window.findChildren<QPushButton *>(u"VantuVPNQuickEntryPill"_s);
    QCOMPARE(QApplication::focusWidget(), pills.at(30)); // The first of the new ones.

    // A row that goes hands the keyboard to the field, not to what Tab would come to.
    auto *field = test.find<QLineEdit>("VantuVPNSearch");
    field->setText(u"osaka"_s);
    test.find<QuickEntryRow>("VantuVPNQuickEntryItem")->setFocus();
    info.nodes.removeAt(1);
    test.state.setNodes(info);
    QTRY_VERIFY(field->hasFocus());
    QVERIFY(test.page->isQuickEntryOpen());
}

void QuickEntryTest::closesByItself()
{
    VpnPageFixture test;
    auto *card = test.find<QPushButton>("VantuVPNModeCard");
    QVERIFY(QTest::qWaitForWindowActive(&test.window));
    test.page->focusSearch();
    QVERIFY(test.page->isQuickEntryOpen());
    QTest::mouseClick(test.find<QWidget>("VantuStatusCard"), Qt::LeftButton);
    QVERIFY(!test.page->isQuickEntryOpen());
    test.page->focusSearch();
    card->setFocus();
    QVERIFY(!test.page->isQuickEntryOpen());
    test.page->focusSearch();
    test.page->hide();
    QVERIFY(!test.page->isQuickEntryOpen());
    QVERIFY(!test.find<QWidget>("VantuVPNQuickEntry")->isVisible());
}

void QuickEntryTest::rowsStayInShape()
{
    VpnPageFixture test;
    NodesInfo info = nodes();
    info.nodes[3].name += QString(4000, u'y');
    test.state.setNodes(info);
    test.page->focusSearch();
    auto *field = test.find<QLineEdit>("VantuVPNSearch");
    field->setText(u"oslo"_s);
    const auto *row = test.find<QuickEntryRow>("VantuVPNQuickEntryItem");
    const auto *popup = test.find<QWidget>("VantuVPNQuickEntry");
    QTRY_COMPARE(row->height(), 36);
    QVERIFY(row->accessibleName().startsWith(u"NO - Oslo <b>&1yyy"_s));
    QCOMPARE(popup->width(), field->width());
    QCOMPARE(popup->mapToGlobal(QPoint()).x(), field->mapToGlobal(QPoint()).x());
    QVERIFY(popup->geometry().bottom() < test.window.height());
}

QTEST_MAIN(QuickEntryTest)
#include "tst_quick_entry.moc"
