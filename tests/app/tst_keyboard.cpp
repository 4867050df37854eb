#include "ElidedLabel.h"
#include "Person.h"
#include "PlainText.h"
#include "WindowController.h"

#include <QAccessible>
#include <QDBusConnection>
#include <QPlainTextEdit>
#include <QScopeGuard>
#include <QSet>
#include <QSignalSpy>
#include <QTranslator>

#include <array>

namespace {

/// The least that the window needs with usual letters.
constexpr QSize kSize{780, 620};
constexpr auto kSplit = R"({"tunnel_state":"connected","auth_state":"logged_in",
    "mode":{"transport":"vantuvpn","policy":"split","local_network":"direct","system_proxy":"auto",
        "split_profile":{"default_route":"tunnel","direct_regions":["jp"],"custom_rules":true}},
    "connected_node":{"id":"t1","name":"Tokyo 1"},"kill_switch":{"enabled":true,"mode":"on"},
    "proxy_listeners":[{"name":"local-http","scheme":"http","address":"127.0.0.1:1081"}]})";
constexpr auto kNobody = R"({"tunnel_state":"off","auth_state":"none"})";

/// What is looked at: a page, or what a button of it opens.
struct Scene
{
    QLatin1StringView tag;
    int page = 1;
    QLatin1StringView button;
};
constexpr auto kScenes = std::to_array<Scene>({
    {"vpn"_L1, 1, {}},
    {"quick entry"_L1, 1, {}},
    {"notice"_L1, 1, {}},
    {"locations"_L1, 2, {}},
    {"mode"_L1, 3, {}},
    {"settings"_L1, 4, {}},
    {"account"_L1, 5, {}},
    {"signing in"_L1, 5, {}},
    {"rules"_L1, 3, "VantuModeVantuCustomRulesEdit"_L1},
    {"regions"_L1, 3, "VantuModeVantuRegions"_L1},
    {"languages"_L1, 4, "VantuSettingsLanguage"_L1},
    {"question"_L1, 4, "VantuSettingsKillSwitchOff"_L1},
    {"refusal"_L1, 3, "VantuModeVantuProxy"_L1},
    {"update"_L1, 4, "VantuSettingsCheckUpdate"_L1},
});

/// Somebody whose daemon has something to say about everything.
struct Visitor : Person
{
    Visitor()
    {
        desk.answer("GET /v1/nodes", R"({"nodes":[{"id":"t1","name":"Tokyo 1","pingMs":38},
            {"id":"b1","name":"Berlin 1","pingMs":9}]})");
        desk.answer("GET /v1/nodes/groups", R"({"tabs":[{"group_type":"Favorite","node_ids":["t1"]},
            {"group_type":"Europe","groups":[{"name":"Germany","node_ids":["b1"]}]}]})");
        desk.answer("POST /v1/nodes/favorite", R"({"nodes":[]})");
        desk.answer("GET /v1/split/rules", R"({"rules":{"block":{"items":["b.example"]}}})");
        desk.answer("GET /v1/split/dns", R"({"config":{"policy":"tunnel-only",
            "local_direct_dns":["1.1.1.1"]},"effective":{"policy":"tunnel-only"}})");
        desk.answer("GET /v1/gui/update/download", R"({"state":"idle"})");
        desk.answer("POST /v1/gui/update/check", R"({"update_available":true,"latest":{
            "version_code":"10.5.0","version_num":7,"change_log":["Faster"]}})");
        desk.answer("GET /v1/kill-switch", R"({"enabled":true,"mode":"on"})");
    }
    /// The window or dialog with the scene; null when it can't be had.
    QWidget *enter(const Scene &scene)
    {
        if (!start()) {
            return nullptr;
        }
        desk.window()->resize(kSize);
        ctrl(Qt::Key_0 + scene.page);
        const bool dialog = !scene.button.isEmpty();
        bool there = desk.poll(scene.tag == "signing in"_L1 ? kNobody : kSplit) &&
                     QTest::qWaitFor([this] { return desk.isIdle(); }) &&
                     (!dialog || QTest::qWaitFor([&] { return press(scene.button); })) &&
                     QTest::qWaitFor([this, dialog] {
                         const QWidget *active = QApplication::activeWindow();
                         return active && (active != desk.window()) == dialog;
                     });
        if (scene.tag == "notice"_L1) {
            desk.shell().windows().showNotice(u"Hello"_s, MainWindow::NoticeKind::Warning, 0);
        } else if (scene.tag == "quick entry"_L1) {
            ctrl(Qt::Key_F);
            type("1");
        } else if (scene.tag == "locations"_L1) {
            there = there && searchAll();
        } else if (scene.tag == "rules"_L1) {
            auto *text = see<QPlainTextEdit>(u"VantuSplitRulesEditorText"_s);
            there = text && QTest::qWaitFor([text] { return !text->isReadOnly(); });
            type("a.example");
        }
        for (int depth = 0; depth < 5; ++depth) { // A layout may have one inside it work anew.
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        }
        return there ? QApplication::activeWindow() : nullptr;
    }
};

QString nameOf(const QWidget *widget)
{
    return QLatin1StringView(widget->metaObject()->className()) + u' ' + widget->objectName() +
           u' ' + widget->property("text").toString();
}

QWidgetList shown(const QWidget &root)
{
    QWidgetList list = root.findChildren<QWidget *>();
    list.removeIf([&](QWidget *widget) { return !widget->isVisible() || widget->isWindow(); });
    return list;
}

QRect place(const QWidget *widget, const QWidget *in)
{
    return {widget->mapTo(in, QPoint()), widget->size()};
}

/// Whether somebody who reads line by line from left to right comes from one to the other.
bool follows(const QWidget *next, const QWidget *before)
{
    const QWidget *common = before->parentWidget();
    while (!common->isAncestorOf(next)) {
        common = common->parentWidget();
    }
    const QPoint from = place(before, common).center();
    const QPoint to = place(next, common).topLeft();
    return to.y() > from.y() || to.x() > from.x();
}

/// Whether more than a caret tells that the widget has the keyboard.
bool showsFocus(QWidget *widget)
{
    const QRect around = place(widget, widget->window());
    const QImage with = widget->window()->grab(around).toImage();
    widget->clearFocus();
    const QImage without = widget->window()->grab(around).toImage();
    widget->setFocus(Qt::TabFocusReason);
    int count = 0;
    for (int at = 0; at < with.width() * with.height(); ++at) {
        const QPoint point(at % with.width(), at / with.width());
        count += with.pixel(point) != without.pixel(point);
    }
    return count > 60;
}

/// Whether it tells what it is and, where one of several is chosen, of which.
bool speaks(QWidget *widget, QSet<QString> &spoken)
{
    auto *voice = QAccessible::queryAccessibleInterface(widget);
    const auto role = voice->role();
    const QString name = voice->text(QAccessible::Name);
    const QString said = u"%1, %2, %3"_s.arg(name, voice->text(QAccessible::Description)).arg(role);
    const bool more = !name.isEmpty() && !spoken.contains(said) && voice->state().focused &&
                      role != QAccessible::Client && role != QAccessible::NoRole;
    spoken += said;
    const auto *button = qobject_cast<QAbstractButton *>(widget);
    const bool isChoice = button && button->isCheckable() && role != QAccessible::CheckBox;
    while (isChoice && voice && voice->role() != QAccessible::Grouping &&
           voice->text(QAccessible::Name) != "Pages"_L1) {
        voice = voice->parent();
    }
    return more && (!isChoice || (role == QAccessible::RadioButton && voice &&
                                  !voice->text(QAccessible::Name).isEmpty()));
}

/// What keeps the widget that has the keyboard from being seen, understood and used.
QString complaint(QWidget *at, QSet<QString> &spoken)
{
    for (const QWidget *each = at; !each->isWindow(); each = each->parentWidget()) {
        if (!place(each, at->window()).contains(place(at, at->window()))) {
            return u" is out of sight"_s;
        }
    }
    if (!speaks(at, spoken) || !showsFocus(at)) {
        return u" says or shows too little"_s;
    }
    if (auto *button = qobject_cast<QAbstractButton *>(at)) {
        QObject::disconnect(button, &QAbstractButton::clicked, nullptr, nullptr);
        const QSignalSpy clicked(button, &QAbstractButton::clicked);
        Person::key(Qt::Key_Space);
        Person::key(Qt::Key_Return);
        return clicked.count() == 2 && button->hasFocus() ? QString() : u" isn't pressed by keys"_s;
    }
    return {};
}

/// Makes every text as much longer as other languages do.
class Longer final : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        const QString text = QString::fromUtf8(source);
        return text + u"o ny"_s.repeated((text.size() + 9) / 10);
    }
};

bool isClipped(const QWidget *widget)
{
    constexpr int kSpareMargin = 2;
    const QRect at = widget->geometry();
    const QRect parent = widget->parentWidget()->rect();
    const QSize least = widget->minimumSizeHint();
    const auto *label = qobject_cast<const ElidedLabel *>(widget);
    const bool isButton = qobject_cast<const QPushButton *>(widget);
    return at.left() < parent.left() || at.right() > parent.right() || least.width() > at.width() ||
           (widget->hasHeightForWidth() && widget->heightForWidth(at.width()) > at.height()) ||
           (isButton && least.height() > at.height() + kSpareMargin) ||
           // Cards cut off what the mode has to tell, and tell it when asked.
           (label && label->isElided() && !label->property("vantuCardValue").toBool());
}

QStringList &heard()
{
    static QStringList list;
    return list;
}

void listen(QAccessibleEvent *event)
{
    // All that screen readers speak by themselves is a notification that shows up.
    const auto *voice = event->accessibleInterface();
    if (event->type() == QAccessible::ObjectShow && voice->role() == QAccessible::Notification) {
        heard() += voice->text(QAccessible::Name);
    }
}

} // namespace

/// Somebody who listens: the program speaks only then.
class Listener final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.a11y.Bus")

public Q_SLOTS:
    QString GetAddress() { return qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"); }
};

/// The window for those who have no mouse, no eyes, large letters or another direction.
class TestKeyboard final : public QObject
{
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1"); }

private Q_SLOTS:
    void walk_data() { scenes(); }
    void walk();
    void largeLetters_data() { scenes(); }
    void largeLetters();
    void mirrored_data() { scenes(); }
    void mirrored();
    void places();
    void news();
    void heldReturn();

private:
    static void scenes()
    {
        QTest::addColumn<int>("scene");
        for (int i = 0; i < int(kScenes.size()); ++i) {
            QTest::newRow(kScenes.at(std::size_t(i)).tag.data()) << i;
        }
    }
};

/// Tab comes to everything that can be acted on, in reading order, and round to the start.
void TestKeyboard::walk()
{
    QFETCH(int, scene);
    Visitor p;
    const QWidget *root = p.enter(kScenes.at(std::size_t(scene)));
    QVERIFY(root);
    QWidgetList missing = shown(*root);
    missing.removeIf([](const QWidget *widget) {
        return !widget->isEnabled() || !(widget->focusPolicy() & Qt::TabFocus);
    });
    QWidget *const top = missing.value(0);
    QWidget *const first = QApplication::focusWidget() ? QApplication::focusWidget() : top;
    QWidget *at = first;
    at->setFocus();
    QSet<QString> spoken;
    QStringList wrong;
    for (int step = 0; step == 0 || (at != first && step < 200); ++step) {
        const QWidget *before = at;
        Person::key(Qt::Key_Tab);
        at = QApplication::focusWidget();
        QVERIFY2(at, qPrintable(nameOf(before)));
        missing.removeOne(at);
        if (before->isVisible()) { // A popup that was left is gone.
            Person::key(Qt::Key_Backtab);
            QCOMPARE(nameOf(QApplication::focusWidget()), nameOf(before));
            at->setFocus(Qt::TabFocusReason);
        }
        const QString problem = complaint(at, spoken);
        // A notice lies on what comes after it.
        const bool onTop = before->objectName() == "VantuNotificationClose"_L1;
        if (before->isVisible() && !onTop && at != top && !follows(at, before)) {
            wrong += nameOf(at) + u" comes after "_s + nameOf(before);
        } else if (!problem.isEmpty()) {
            wrong += nameOf(at) + problem;
        }
    }
    for (const QWidget *widget : std::as_const(missing)) {
        wrong += nameOf(widget) + u" isn't reached"_s;
    }
    QVERIFY2(wrong.isEmpty() && at == first, qPrintable(wrong.join(u'\n')));
}

/// Half as large again, and as long as in other languages, all texts still fit.
void TestKeyboard::largeLetters()
{
    QFETCH(int, scene);
    const QFont usual = QApplication::font();
    const auto restore = qScopeGuard([&] { QApplication::setFont(usual); });
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 1.5);
    QApplication::setFont(large);
    Longer longer;
    for (int language = 0; language < 2; ++language) {
        Visitor p;
        const QWidget *root = p.enter(kScenes.at(std::size_t(scene)));
        QVERIFY(root);
        QWidgetList clipped = shown(*root);
        clipped.removeIf([](const QWidget *widget) { return !isClipped(widget); });
        QVERIFY2(clipped.isEmpty(), qPrintable(nameOf(clipped.value(0, p.desk.window()))));
        QCOMPARE(p.desk.window()->size(), kSize);
        QCoreApplication::installTranslator(&longer);
    }
}

/// From right to left everything stands where a mirror shows it, but for what reads from
/// left to right in every language.
void TestKeyboard::mirrored()
{
    QFETCH(int, scene);
    const auto restore = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
    QList<QRect> places;
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QGuiApplication::setLayoutDirection(direction);
        Visitor p;
        const QWidget *root = p.enter(kScenes.at(std::size_t(scene)));
        QVERIFY(root);
        for (const QWidget *widget : shown(*root)) {
            const QRect here = place(widget, root);
            if (direction == Qt::LeftToRight) {
                places += here;
                continue;
            }
            QVERIFY2(!places.isEmpty(), qPrintable(nameOf(widget)));
            QRect there = places.takeFirst();
            there.moveLeft(root->width() - there.x() - there.width());
            QVERIFY2(here.adjusted(-1, -1, 1, 1).contains(there) &&
                         there.adjusted(-1, -1, 1, 1).contains(here),
                     qPrintable(nameOf(widget)));
        }
        for (const auto *name : {"SettingsAPIURL", "SettingsProxyListen", "SettingsSplitDNSLocal",
                                 "SplitRulesEditorText"}) {
            const auto *widget = root->findChild<QWidget *>(u"Vantu"_s + QLatin1StringView(name));
            QVERIFY2(!widget || widget->layoutDirection() == Qt::LeftToRight, name);
        }
        for (const auto *name : {"VersionSummary", "APIURLSummary", "LogPath", "ProxyListeners"}) {
            const auto *facts =
                root->findChild<QWidget *>(u"VantuSettings"_s + QLatin1StringView(name));
            for (const auto *label : facts ? facts->findChildren<QLabel *>() : QList<QLabel *>()) {
                QVERIFY2(label->layoutDirection() == Qt::LeftToRight, name);
            }
        }
        if (const auto *label = root->findChild<QLabel *>(u"VantuUpdateVersion"_s)) {
            const QString version = u"10.5.0"_s;
            QVERIFY(label->text().contains(
                direction == Qt::LeftToRight ? version : plaintext::isolated(version)));
        }
    }
    QVERIFY(places.isEmpty());
}

/// A place says what its row shows.
void TestKeyboard::places()
{
    Visitor p;
    QVERIFY(p.enter(kScenes.at(3)));
    const auto *list =
        QAccessible::queryAccessibleInterface(p.see<QTreeView>(u"VantuLocationsTree"_s));
    QStringList rows;
    for (int i = 0; i < list->childCount(); ++i) {
        const QAccessibleInterface *row = list->child(i);
        rows += row->text(QAccessible::Name) + u'|' + row->text(QAccessible::Description);
    }
    QVERIFY(rows.contains(u"Tokyo 1, 38 ms, Favorite, Connected server|Connected server"_s));
    QVERIFY(rows.contains(u"Berlin 1, Germany, 9 ms|"_s));
    p.ctrl(Qt::Key_1);
    p.ctrl(Qt::Key_F);
    p.type("tokyo");
    QCOMPARE(p.see(u"VantuVPNQuickEntryItem"_s)->accessibleName(),
             u"Tokyo 1, 38 ms, Favorite, Connected server"_s);
}

/// Who can't see what comes up is told.
void TestKeyboard::news()
{
    Listener listener;
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.registerObject(u"/org/a11y/bus"_s, &listener, QDBusConnection::ExportAllSlots);
    Visitor p;
    QVERIFY(p.start() && bus.registerService(u"org.a11y.Bus"_s));
    QTRY_VERIFY(QAccessible::isActive());
    QAccessible::installUpdateHandler(listen);
    p.desk.shell().windows().showNotice(u"Hello"_s, MainWindow::NoticeKind::Info);
    p.ctrl(Qt::Key_4); // Of the state it is heard on every page.
    QVERIFY(p.desk.poll(kSplit) && p.desk.poll(status("disconnected")));
    for (const Page page : {Page::Locations, Page::Mode, Page::Settings, Page::Account}) {
        p.desk.window()->showPageError(page, u"No %1"_s.arg(int(page)));
    }
    QVERIFY(p.searchAll());
    p.type("zz");
    Person::key(Qt::Key_Escape);
    p.type("tokyo");
    Person::key(Qt::Key_Down);
    Person::key(Qt::Key_F);
    p.ctrl(Qt::Key_1);
    p.ctrl(Qt::Key_F);
    p.type("nowhere");
    p.ctrl(Qt::Key_5);
    QVERIFY(p.desk.poll(kNobody));
    QAccessible::installUpdateHandler(nullptr);
    QCOMPARE(heard(),
             QStringList({u"Notification: Hello"_s, u"Connected"_s, u"Not connected"_s, u"No 1"_s,
                          u"No 2"_s, u"No 3"_s, u"No 4"_s, u"No matching locations."_s,
                          u"Tokyo 1, 38 ms"_s, u"No matching locations."_s, u"Sign in"_s}));
}

/// A Return that is held down presses once, and goes on only where lines are written.
void TestKeyboard::heldReturn()
{
    const auto repeat = [] {
        // As X11 does it when Qt doesn't notice.
        for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
            QKeyEvent event(type, Qt::Key_Return, {}, u"\r"_s);
            event.setTimestamp(7);
            QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
        }
    };
    {
        Visitor p;
        QVERIFY(p.enter(kScenes.at(11)));
        repeat();
        QVERIFY(QApplication::activeModalWidget()); // The question isn't answered.
    }
    Visitor p;
    QVERIFY(p.enter(kScenes.at(8)));
    repeat();
    QCOMPARE(p.see<QPlainTextEdit>(u"VantuSplitRulesEditorText"_s)->toPlainText(),
             u"a.example\n"_s);
}

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
