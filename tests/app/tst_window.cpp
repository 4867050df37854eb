#include "AppState.h"
#include "CatalogItemDelegate.h"
#include "CatalogTreeModel.h"
#include "MainWindow.h"
#include "Person.h"
#include "RequestLink.h"
#include "WindowController.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QTreeView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kConnect = "POST /v1/connect";
constexpr auto kDisconnect = "POST /v1/disconnect";
constexpr auto kFavorite = "POST /v1/nodes/favorite";
constexpr auto kRefresh = "POST /v1/nodes/refresh";
constexpr auto kRefusal = R"({"error":"No."})";
using Act = bool (*)(const Person &);

} // namespace

Q_DECLARE_METATYPE(Act)

/// The window over the whole shell, as its user meets it.
class TestWindow final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void signInGuard_data()
    {
        QTest::addColumn<Act>("ask");
        QTest::newRow("button") << Act(
            [](const Person &p) { return p.press(u"VantuVPNPrimaryAction"_s); });
        QTest::newRow("quick entry") << Act([](const Person &p) {
            p.ctrl(Qt::Key_F);
            p.type("tok");
            p.key(Qt::Key_Return);
            return true;
        });
        QTest::newRow("place") << Act(
            [](const Person &p) { return p.searchAll() && p.press(u"VantuLocationsConnect"_s); });
    }
    void signInGuard()
    {
        QFETCH(Act, ask);
        Person p;
        QVERIFY(p.start() && p.desk.poll(R"({"tunnel_state":"off","auth_state":"expired"})"));
        QCOMPARE(p.desk.button()->text(), u"Sign In"_s);
        QVERIFY(ask(p));
        QCOMPARE(p.title(), u"Account"_s);
        QVERIFY(p.reads(u"Sign in to connect."_s) && p.desk.poll());
        QCOMPARE(p.desk.count(kConnect), 0);
    }

    void primaryButton_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QByteArray>("route");
        QTest::addColumn<QString>("during");
        QTest::newRow("disconnected") << u"Connect"_s << QByteArray(kConnect) << u"Cancel"_s;
        QTest::newRow("connected")
            << u"Disconnect"_s << QByteArray(kDisconnect) << u"Disconnecting..."_s;
        QTest::newRow("retrying") << u"Cancel"_s << QByteArray(kDisconnect) << u"Canceling..."_s;
    }
    void primaryButton()
    {
        QFETCH(QString, label);
        QFETCH(QByteArray, route);
        QFETCH(QString, during);
        Person p;
        QVERIFY(p.start() && p.desk.poll(status(QTest::currentDataTag())));
        p.desk.answer(route, kRefusal, 500);
        QVERIFY(p.press(u"VantuVPNPrimaryAction"_s));
        QTRY_COMPARE(p.desk.notice(), u"No."_s);
        QTRY_COMPARE(p.desk.button()->text(), label);
        p.desk.answerHeld(route);
        QVERIFY(p.press(u"VantuVPNPrimaryAction"_s));
        QCOMPARE(p.desk.button()->text(), during);
        QTRY_COMPARE(p.desk.count(route), 2);
        QCOMPARE(p.desk.body(route), "{}");
        p.desk.daemon.release();
        QTRY_COMPARE(p.desk.button()->text(), label);
        p.desk.daemon.stop();
        QVERIFY(p.desk.poll());
        QTRY_COMPARE(p.desk.text(u"VantuStatusTitle"_s), u"Daemon unavailable"_s);
        QCOMPARE(p.desk.button()->text(), u"Connect"_s);
        QVERIFY(!p.press(u"VantuVPNPrimaryAction"_s));
    }

    /// Only a place that is connected to is named.
    void refusedPlace()
    {
        Person p;
        QVERIFY(p.start());
        const auto smart = p.desk.text(u"VantuVPNLocationValue"_s);
        const auto namedAfter = [&p](bool asked) {
            Person::ctrl(Qt::Key_1);
            return asked ? p.desk.text(u"VantuVPNLocationValue"_s) : u"?"_s;
        };
        p.desk.answerHeld(kConnect);
        p.desk.shell().windows().showNotice(u"Old"_s, MainWindow::NoticeKind::Info);
        QVERIFY(p.press(u"VantuVPNPrimaryAction"_s));
        QVERIFY(p.desk.notice().isEmpty());
        QCOMPARE(namedAfter(p.searchAll() && p.press(u"VantuLocationsConnect"_s)), smart);
        QTRY_COMPARE(p.desk.count(kConnect), 1);
        p.desk.daemon.release();
        QTRY_VERIFY(p.desk.isIdle());

        p.desk.answerHeld("POST /v1/mode");
        p.desk.shell().setModePreference({});
        QVERIFY(p.searchAll() && p.press(u"VantuLocationsConnect"_s));
        QTRY_COMPARE(p.desk.count("POST /v1/mode"), 1);
        p.desk.shell().windows().showNotice({}, MainWindow::NoticeKind::Info);
        p.ctrl(Qt::Key_1);
        p.ctrl(Qt::Key_F);
        p.type("tok");
        p.key(Qt::Key_Return);
        QCOMPARE(p.desk.notice(), u"Please wait for the current operation to finish"_s);
        QVERIFY(p.press(u"VantuNotificationClose"_s));
        QCOMPARE(p.see<QLineEdit>(u"VantuVPNSearch"_s)->text(), u"tok"_s);
        p.desk.daemon.release();
        QTRY_VERIFY(p.desk.isIdle());
        p.desk.shell().connectRuntimeFromTray();
        QCOMPARE(namedAfter(!p.desk.isIdle()), smart);
        QTRY_COMPARE(p.desk.count(kConnect), 2);
        p.desk.daemon.release();
        QTRY_VERIFY(p.desk.isIdle());
        QCOMPARE(namedAfter(p.searchAll() && p.press(u"VantuLocationsConnect"_s)), u"Tokyo 1"_s);
        p.desk.daemon.release();
    }

    void quickEntry()
    {
        Person p;
        p.desk.answer(kConnect, kRefusal, 500);
        QVERIFY(p.start());
        p.ctrl(Qt::Key_4);
        p.ctrl(Qt::Key_F);
        p.type("ber");
        QVERIFY(p.see(u"VantuVPNQuickEntry"_s));
        p.key(Qt::Key_Escape);
        QVERIFY(!p.see(u"VantuVPNQuickEntry"_s));
        QCOMPARE(p.see<QLineEdit>(u"VantuVPNSearch"_s)->text(), u"ber"_s);
        p.key(Qt::Key_Escape);
        QVERIFY(p.see<QLineEdit>(u"VantuVPNSearch"_s)->text().isEmpty());
        p.type("ber");
        p.key(Qt::Key_Return);
        QTRY_COMPARE(p.desk.body(kConnect), R"({"node":"b1"})");
        QTRY_COMPARE(p.desk.notice(), u"No."_s);
        QVERIFY(!p.see(u"VantuVPNQuickEntry"_s) && p.press(u"VantuNotificationClose"_s));
        QVERIFY(p.see<QLineEdit>(u"VantuVPNSearch"_s)->text().isEmpty());
    }

    void searchAndScope()
    {
        Person p;
        p.desk.answer(kConnect, kRefusal, 500);
        QVERIFY(p.start() && p.searchAll());
        auto *tabs = p.see<QTabBar>(u"VantuLocationsTabs"_s);
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
        QVERIFY(p.row("Berlin 1").isValid() && !p.row("Tokyo 1").isValid());
        QVERIFY(p.press(u"VantuLocationsShowAllMatches"_s) && p.row("Tokyo 1").isValid());
        p.ctrl(Qt::Key_F); // Works whatever has the focus.
        p.key(Qt::Key_Escape);
        QVERIFY(!p.row("Berlin 1").isValid() && p.press(u"VantuLocationsConnect"_s));
        QTRY_COMPARE(p.desk.body(kConnect), R"({"group":"Asia","smart":true})");
        QTRY_COMPARE(p.desk.notice(), u"No."_s);
    }

    void favorites()
    {
        Person p;
        QVERIFY(p.start() && p.searchAll());
        p.desk.answer("GET /v1/nodes/groups", {}, 500); // The groups alone fail for a while.
        p.desk.answerHeld(kFavorite, Person::kNodes);
        p.pressStar("Tokyo 1");
        p.pressStar("Berlin 1");
        QVERIFY(p.isStarred("Tokyo 1") && p.isStarred("Berlin 1"));
        for (const char *body :
             {R"({"favorite":true,"node":"t1"})", R"({"favorite":true,"node":"b1"})"}) {
            QTRY_COMPARE(p.desk.body(kFavorite), body);
            p.desk.daemon.release();
        }
        const auto isPending = [&p](const char *text) {
            return p.row(text).data(CatalogTreeModel::FavoritePendingRole).toBool();
        };
        QTRY_VERIFY(!p.desk.notice().isEmpty() && !isPending("Berlin 1"));
        QVERIFY(p.isStarred("Tokyo 1") && p.isStarred("Berlin 1"));
        p.desk.answer("GET /v1/nodes/groups",
                      R"({"tabs":[{"group_type":"Favorite","node_ids":["t1","b1"]}]})");
        QVERIFY(p.desk.poll());
        QTRY_COMPARE(p.desk.shell().state().nodeGroups().tabs.constFirst().nodeIds.size(), 2);
        QTRY_VERIFY(p.isStarred("Tokyo 1") && !isPending("Tokyo 1"));
        QTRY_VERIFY(p.isStarred("Berlin 1") && !isPending("Berlin 1"));

        for (const QString &error : {u" No room. "_s, u" "_s}) {
            p.pressStar("Tokyo 1");
            QVERIFY(!p.isStarred("Tokyo 1"));
            const quint64 first = RequestLink::kShellFirstId;
            for (quint64 id = first; id < first + 999 && !p.isStarred("Tokyo 1"); ++id) {
                p.desk.shell().handleWindowNodesFinished(id, {}, error);
            }
            QCOMPARE(p.desk.notice(),
                     error == " "_L1 ? u"Could not update favorite"_s : error.trimmed());
        }
    }

    void refresh()
    {
        Person p;
        QVERIFY(p.start() && p.searchAll());
        p.desk.answer(kRefresh, kRefusal, 500);
        QVERIFY(p.press(u"VantuLocationsRefresh"_s));
        QTRY_COMPARE(p.desk.text(u"VantuLocationsMessage"_s), u"No."_s);
        p.desk.answerHeld(kRefresh, Person::kNodes);
        QVERIFY(p.press(u"VantuLocationsRefresh"_s) && !p.press(u"VantuLocationsRefresh"_s));
        QTRY_COMPARE(p.desk.count(kRefresh), 2);
        QCOMPARE(p.desk.body(kRefresh), "{}");
        p.pressStar("Berlin 1");
        QCOMPARE(p.desk.notice(), u"A locations update is already in progress"_s);
        QVERIFY(!p.isStarred("Berlin 1"));
        p.desk.daemon.release();
        QTRY_COMPARE(p.desk.notice(), u"Locations updated"_s);
        const QWidget *button = p.see(u"VantuLocationsRefresh"_s);
        QVERIFY(button->accessibleName().startsWith("Refresh available in "_L1));
        QVERIFY(!button->isEnabled() && p.desk.count(kFavorite) == 0);
    }

    void navigation()
    {
        Person p;
        QVERIFY(p.start());
        const auto isAt = [&p](int page) {
            const auto *card =
                p.desk.window()
                    ->findChildren<QPushButton *>(QRegularExpression(u"^VantuSidebar"_s))
                    .value(page);
            return card->isChecked() && p.title() == card->text() &&
                   p.desk.window()->currentPage() == Page(page);
        };
        for (const int page : {4, 3, 2, 1, 0}) {
            p.ctrl(Qt::Key_1 + page);
            QVERIFY(isAt(page));
        }
        p.see(u"VantuSidebarVPN"_s)->setFocus();
        for (const int page : {1, 2, 3, 4, 4}) {
            p.key(Qt::Key_Down);
            QVERIFY(isAt(page));
        }
    }

    void leavingModePage()
    {
        QStringList seen;
        Person p;
        QVERIFY(p.start());
        connect(p.desk.window(), &MainWindow::modePageLeft, this, [&] { seen += u"left"_s; });
        connect(p.desk.window(), &MainWindow::hiddenToTray, this, [&] { seen += u"hidden"_s; });
        for (const int key : {Qt::Key_3, Qt::Key_3, Qt::Key_4, Qt::Key_3, Qt::Key_W}) {
            p.ctrl(key);
        }
        QCOMPARE(seen, QStringList({u"left"_s, u"left"_s, u"hidden"_s}));
        QVERIFY(!p.desk.window()->isVisible());
    }

    void appearance()
    {
        Person p;
        QVERIFY(p.start());
        const QSignalSpy changed(p.desk.window(), &MainWindow::appearancePreferenceChanged);
        for (const auto &wish : {u"dark"_s, u"dark"_s, u"light"_s, u"blue"_s, QString()}) {
            p.desk.window()->setAppearancePreference(wish);
            QCOMPARE(GuiPreferences().appearance(),
                     wish == "dark"_L1 || wish == "light"_L1 ? wish : u"system"_s);
        }
        QCOMPARE(changed.count(), 3);
        QVERIFY(p.desk.notice().isEmpty());
        const QString file =
            QSettings(QSettings::IniFormat, QSettings::UserScope, u"VantuVPN"_s, u"Vantu"_s)
                .fileName();
        QVERIFY(QFile::remove(file) && QDir().mkpath(file)); // Nothing can be saved there.
        p.desk.window()->setAppearancePreference(u"dark"_s);
        QVERIFY(p.desk.notice().startsWith("The setting holds until Vantu quits"_L1));
    }

    void everythingHasName()
    {
        Person p;
        QVERIFY(p.start());
        p.desk.shell().windows().showNotice(u"Hello"_s, MainWindow::NoticeKind::Info);
        for (const int key : {Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5, Qt::Key_1, Qt::Key_F}) {
            p.ctrl(key);
            for (QWidget *widget : p.desk.window()->findChildren<QWidget *>()) {
                const auto *spoken = QAccessible::queryAccessibleInterface(widget);
                QVERIFY2(!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus ||
                             !spoken->text(QAccessible::Name).isEmpty(),
                         qPrintable(widget->objectName()));
            }
        }
    }

    void tabReachesAll()
    {
        Person p;
        QVERIFY(p.start());
        p.ctrl(Qt::Key_4);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"VantuSidebarSettings"_s);
        p.ctrl(Qt::Key_1);
        QStringList reached;
        for (int step = 0; step < 20; ++step) {
            p.key(Qt::Key_Tab);
            reached += QApplication::focusWidget()->objectName();
        }
        for (const auto *name : {"SidebarVPN", "VPNPrimaryAction", "VPNLocationCard", "VPNModeCard",
                                 "VPNKillSwitchCard", "VPNLocalNetworkCard", "VPNSearch"}) {
            QVERIFY2(reached.contains("Vantu"_L1 + QLatin1StringView(name)), name);
        }
    }

    void pingsWhileLookedAt()
    {
        Person p;
        QVERIFY(p.start());
        const auto fetched = [&p] {
            p.desk.daemon.clearRequests();
            p.desk.shell().pollWindowNodePing();
            return p.desk.poll() && p.desk.count("GET /v1/nodes") > 0;
        };
        for (const int key : {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_F, Qt::Key_W}) {
            p.ctrl(key);
            const bool looks = key == Qt::Key_2 || key == Qt::Key_F;
            QVERIFY(QTest::qWaitFor([&] { return fetched() == looks; }));
        }
    }

    /// The focus that a press gives must not scroll the button away from under it.
    void clickOnHalfHidden()
    {
        QUrl opened;
        Person p;
        QVERIFY(p.start());
        Person::ctrl(Qt::Key_4);
        p.desk.shell().windows().setLinkOpener([&opened](const QUrl &url) {
            opened = url;
            return true;
        });
        auto *area = p.see<QScrollArea>(u"VantuSettingsScrollArea"_s);
        auto *link = p.desk.window()->findChild<QWidget *>(u"VantuSettingsFAQ"_s);
        const int top = link->mapTo(area->widget(), QPoint()).y();
        area->verticalScrollBar()->setValue(top + 10 - area->viewport()->height());
        QTest::mouseClick(p.desk.window()->windowHandle(), Qt::LeftButton, {},
                          link->mapTo(p.desk.window(), QPoint(link->width() / 2, 5)));
        QTRY_COMPARE(opened, QUrl(u"https://www.vantuvpn.com/faq"_s));
    }
};

QTEST_MAIN(TestWindow)
#include "tst_window.moc"
