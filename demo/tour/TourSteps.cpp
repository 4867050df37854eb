// Where the tour goes; how it walks is in Tour.cpp.

#include "Tour.h"

#include <QJsonArray>
#include <QRect>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

// X key symbols.
constexpr int kSpaceKey = 0x20;
constexpr int kReturnKey = 0xff0d;
constexpr int kFKey = 0x66;

/// Where no window manager does it, the window comes back to the keyboard this way after
/// a dialog.
const QString kForward = u"Open Vantu..."_s;

/// What takes a while takes longer by so much, lest a slow machine miss it.
const QString kSlow = u"set pace 3"_s;
const QString kUsualPace = u"set pace 1"_s;

TourClient::Matcher beginsWith(const QString &text)
{
    return [text](const QString &name) { return name.startsWith(text); };
}

TourClient::Matcher contains(const QString &text)
{
    return [text](const QString &name) { return name.contains(text); };
}

bool holdsRule(const TourDaemon &daemon, const QString &rule)
{
    const QJsonObject rules = daemon.get(u"/v1/split/rules"_s).value("rules"_L1).toObject();
    return rules.value("direct"_L1).toObject().value("items"_L1).toArray().contains(rule);
}

bool hasDefaultUrl(const TourDaemon &daemon)
{
    return daemon.status(u"api_url"_s).toString().isEmpty();
}

/// Whether the node that is connected is one of the favourites.
bool isConnectedFavorite(const TourDaemon &daemon)
{
    const QString node = daemon.status(u"connected_node.id"_s).toString();
    const QJsonArray tabs = daemon.get(u"/v1/nodes/groups"_s).value("tabs"_L1).toArray();
    return std::any_of(tabs.begin(), tabs.end(), [&node](const QJsonValue &tab) {
        const QJsonObject group = tab.toObject();
        return group.value("group_type"_L1) == u"FAVORITE"_s &&
               group.value("node_ids"_L1).toArray().contains(node);
    });
}

/// The first entry below `item` that names a node and can be chosen.
const TrayMenuItem *firstNode(const TrayMenuItem &item)
{
    for (const TrayMenuItem &child : item.children) {
        if (child.submenu) {
            if (const TrayMenuItem *node = firstNode(child)) {
                return node;
            }
        } else if (child.checkable && child.enabled && child.visible && !child.checked) {
            return &child;
        }
    }
    return nullptr;
}

} // namespace

void Tour::start(const QStringList &arguments)
{
    step(u"start"_s,
         {{u"the daemon listens"_s,
           [this, arguments] { return m_daemon.start(m_directory + u"/vantu-simd"_s, arguments); }},
          {u"the desktop has a panel"_s, [this] { return m_client.prepare(); }},
          {u"the client starts"_s, [this] { return m_client.start(m_daemon.clientEnvironment()); }},
          {u"the icon stands in the tray"_s, [this] { return !m_client.tray().items().isEmpty(); }},
          reads(u"Not connected"_s),
          offers(u"Connect"_s)});
}

void Tour::signIn()
{
    const QString account = u"tour@example.org"_s;
    step(u"sign-out"_s,
         {click(u"Logout"_s), hasButton(u"Sign In"_s), offers(u"Account: Login Required"_s),
          holds(u"auth_state"_s, u"logged_out"_s)});
    step(u"sign-in-refused"_s,
         {press(u"Sign In"_s), hasButton(u"Remember this account"_s),
          type(u"Email or user ID"_s, account), type(u"Password"_s, u"wrong"_s),
          press(u"Sign In"_s), reads(u"Wrong account or password"_s),
          stands(u"Email or user ID"_s, account), holds(u"auth_state"_s, u"logged_out"_s)});
    step(u"sign-in"_s,
         {type(u"Password"_s, u"a tour's secret"_s), press(u"Sign In"_s), reads(u"Signed in"_s),
          reads(u"Plan: VIP"_s, contains(u"Plan: VIP"_s)), holds(u"auth_state"_s, u"logged_in"_s),
          holds(u"the account"_s, [account](const TourDaemon &daemon) {
              return daemon.get(u"/v1/user"_s).value("email"_L1) == account;
          })});
}

void Tour::connectAndCancel()
{
    step(u"connect"_s,
         {open(u"VPN"_s), tell(kSlow), press(u"Connect"_s), reads(u"Connecting..."_s),
          hasButton(u"Cancel"_s), offers(u"Cancel"_s), holds(u"tunnel_state"_s, u"connecting"_s)});
    step(u"cancel"_s, {tell(kUsualPace), press(u"Cancel"_s), reads(u"Not connected"_s),
                       offers(u"Connect"_s), holds(u"tunnel_state"_s, u"disconnected"_s)});
    step(u"connect-again"_s, {press(u"Connect"_s), reads(u"Connected"_s), offers(u"Disconnect"_s),
                              holds(u"tunnel_state"_s, u"connected"_s)});
    step(u"disconnect"_s, {press(u"Disconnect"_s), reads(u"Not connected"_s), offers(u"Connect"_s),
                           holds(u"tunnel_state"_s, u"disconnected"_s)});
}

void Tour::useTray()
{
    const QString submenu = u"Node / Location"_s;
    const auto chosen = std::make_shared<QString>();
    step(u"tray-node"_s, {{u"choose a node in the tray"_s,
                           [this, submenu, chosen] {
                               TrayHost &tray = m_client.tray();
                               const TrayMenuItem closed = tray.menu();
                               if (const TrayMenuItem *entry = closed.find(submenu)) {
                                   tray.aboutToShow(entry->id);
                               }
                               const TrayMenuItem menu = tray.menu();
                               const TrayMenuItem *places = menu.find(submenu);
                               const TrayMenuItem *node = places ? firstNode(*places) : nullptr;
                               if (!node) {
                                   return false;
                               }
                               *chosen = node->label;
                               return tray.sendEvent(node->id, u"clicked"_s);
                           }},
                          {u"it is ticked there"_s,
                           [this, chosen] {
                               const TrayMenuItem menu = m_client.tray().menu();
                               const TrayMenuItem *node = menu.find(*chosen);
                               return node && node->checked;
                           }},
                          reads(u"Connected"_s),
                          holds(u"tunnel_state"_s, u"connected"_s)});
    step(u"tray-kill-switch"_s,
         {click(u"Kill Switch"_s), ticked(u"Kill Switch"_s, true), hasButton(u"Kill Switch, On"_s),
          holds(u"kill_switch.mode"_s, u"on"_s)});
    step(u"tray-kill-switch-off"_s,
         {click(u"Kill Switch"_s), ticked(u"Kill Switch"_s, false),
          hasButton(u"Kill Switch, Off"_s), holds(u"kill_switch.mode"_s, u"off"_s)});
    step(u"tray-disconnect"_s, {click(u"Disconnect"_s), reads(u"Not connected"_s),
                                holds(u"tunnel_state"_s, u"disconnected"_s)});
}

void Tour::findPlace()
{
    const QString place = u"Tokyo 01"_s;
    step(u"search"_s, {open(u"Locations"_s), type(u"Search locations or nodes"_s, u"tokyo"_s),
                       lists(place, beginsWith(place))});
    step(u"connect-place"_s, {key(u"Return"_s, kReturnKey),
                              press(u"Connect"_s, beginsWith(u"Connect"_s)),
                              holds(u"connected_node.name"_s, place),
                              holds(u"tunnel_state"_s, u"connected"_s),
                              {u"its row is marked as connected"_s, [this, place] {
                                   const auto row =
                                       m_client.find(u"tree item"_s, beginsWith(place));
                                   return row && row->description() == "Connected server"_L1;
                               }}});
    step(u"star"_s, {key(u"F"_s, kFKey),
                     lists(place + u", favorite"_s,
                           [place](const QString &name) {
                               return name.startsWith(place) && name.contains("Favorite"_L1);
                           }),
                     holds(place + u" as a favorite"_s, &isConnectedFavorite)});
    step(u"refresh"_s,
         {press(u"Refresh locations"_s), holds(u"catalog_refresh"_s, u"refreshing"_s)});
}

void Tour::changeMode()
{
    step(u"mode"_s, {open(u"Mode"_s), press(u"WireGuard"_s, contains(u"WireGuard"_s)),
                     holds(u"mode.transport"_s, u"wireguard"_s), ticked(u"WireGuard"_s, true)});
    step(u"split"_s,
         {press(u"VantuVPN"_s, beginsWith(u"VantuVPN"_s)), press(u"Routing: Split"_s),
          holds(u"mode.transport"_s, u"vantuvpn"_s), holds(u"mode.policy"_s, u"split"_s),
          hasButton(u"Edit"_s, contains(u"Edit"_s))});
    step(u"regions"_s, {press(u"Regions"_s, beginsWith(u"Regions use"_s)),
                        type(u"Search regions"_s, u"jap"_s), key(u"Return"_s, kReturnKey),
                        key(u"Space"_s, kSpaceKey), reads(u"2 regions selected"_s)});
    step(u"regions-applied"_s,
         {press(u"Apply"_s), hasButton(u"2 regions selected"_s, contains(u"2 regions selected"_s)),
          holds(u"Japan as a region that goes direct"_s, [](const TourDaemon &daemon) {
              return daemon.status(u"mode.split_profile.direct_regions"_s)
                  .toArray()
                  .contains("JP"_L1);
          })});
    step(u"local-network"_s,
         {press(u"Local Network: Protected"_s), holds(u"mode.local_network"_s, u"protected"_s)});
}

void Tour::editRules()
{
    const QString rules = u"Rules, one per line"_s;
    const QString rule = u"suffix:tour.example"_s;
    const QString refused = u"no rule at all"_s;
    step(u"rules"_s, {press(u"Custom Rules: Edit"_s, contains(u"Edit"_s)),
                      stands(rules, u"example.cn"_s), type(rules, rule), stands(rules, rule)});
    step(u"rules-applied"_s,
         {press(u"Apply"_s), hasButton(u"Custom Rules: Edit"_s),
          holds(rule, [rule](const TourDaemon &daemon) { return holdsRule(daemon, rule); })});
    step(u"rules-refused"_s,
         {press(u"Custom Rules: Edit"_s, contains(u"Edit"_s)), stands(rules, rule),
          type(rules, refused), press(u"Apply"_s),
          reads(u"not a rule"_s, contains(u"not a rule: "_s + refused)), stands(rules, refused),
          holds(rule + u" still"_s,
                [rule](const TourDaemon &daemon) { return holdsRule(daemon, rule); })});
    step(u"rules-discard"_s, {press(u"Cancel"_s), reads(u"Discard changes?"_s)});
    step(u"rules-discarded"_s, {press(u"Discard Changes"_s), hasButton(u"Custom Rules: Edit"_s)});
}

void Tour::lockDown()
{
    step(u"lockdown-question"_s,
         {open(u"Settings"_s), press(u"Kill Switch Lockdown"_s), reads(u"Enable Lockdown?"_s),
          holds(u"kill_switch.mode"_s, u"off"_s)});
    step(u"lockdown"_s,
         {press(u"Enable Lockdown"_s),
          reads(u"Kill Switch: Lockdown"_s, beginsWith(u"Kill Switch: Lockdown"_s)),
          holds(u"kill_switch.mode"_s, u"lockdown"_s), holds(u"mode.policy"_s, u"global"_s)});
    step(u"kill-switch-question"_s,
         {press(u"Kill Switch Off"_s), reads(u"Turn Off Kill Switch?"_s)});
    step(u"kill-switch-off"_s, {press(u"Turn Off Kill Switch"_s), reads(u"Kill Switch: Off"_s),
                                holds(u"kill_switch.mode"_s, u"off"_s)});
}

void Tour::changeAddresses()
{
    const QString address = u"127.0.0.1:1090"_s;
    const QString nowhere = u"https://api.example.invalid"_s;
    const QString elsewhere = u"https://api.example.net"_s;
    step(u"listen-address"_s,
         {click(kForward), type(u"Listen Address"_s, address),
          tabAndPress(u"Apply listen address"_s), reads(u"HTTP: "_s + address),
          holds(address, [address](const TourDaemon &daemon) {
              const QJsonArray listeners = daemon.status(u"proxy_listeners"_s).toArray();
              return listeners.size() == 2 &&
                     std::all_of(listeners.begin(), listeners.end(),
                                 [&address](const QJsonValue &each) {
                                     return each.toObject().value("address"_L1) == address;
                                 });
          })});
    step(u"api-url-refused"_s,
         {type(u"API URL"_s, nowhere), tabAndPress(u"Apply API URL"_s),
          reads(u"does not answer"_s, contains(u"does not answer"_s)),
          stands(u"API URL"_s, nowhere), holds(u"no API URL of its own"_s, &hasDefaultUrl)});
    step(u"api-url"_s, {type(u"API URL"_s, elsewhere), tabAndPress(u"Apply API URL"_s),
                        reads(u"API URL: "_s + elsewhere), holds(u"api_url"_s, elsewhere)});
    step(u"api-url-reset"_s, {press(u"Reset API URL"_s), reads(u"API URL: default"_s),
                              holds(u"no API URL of its own"_s, &hasDefaultUrl)});
}

void Tour::changeSwitches()
{
    const QString server = u"9.9.9.9"_s;
    const auto dns = [this](const QString &words, const QString &policy,
                            const QJsonArray &servers) {
        return holds(words, [policy, servers](const TourDaemon &daemon) {
            const QJsonObject config = daemon.get(u"/v1/split/dns"_s).value("config"_L1).toObject();
            return config.value("policy"_L1) == policy &&
                   config.value("local_direct_dns"_L1).toArray() == servers;
        });
    };
    step(u"auto-connect"_s,
         {press(u"Connect when Vantu launches"_s), holds(u"auto_connect"_s, u"on"_s)});
    step(u"system-proxy"_s, {press(u"System Proxy: Lock"_s), reads(u"System Proxy: Lock"_s),
                             holds(u"mode.system_proxy"_s, u"lock"_s)});
    step(u"split-dns"_s,
         {press(u"Policy: Dual Explicit"_s), dns(u"the policy"_s, u"dual-explicit"_s, {}),
          type(u"Local DNS"_s, server), tabAndPress(u"Apply local DNS"_s),
          dns(u"policy and server"_s, u"dual-explicit"_s, {server})});
    step(u"split-dns-clear"_s,
         {press(u"Clear local DNS"_s), dns(u"the policy alone"_s, u"dual-explicit"_s, {})});
    step(u"split-dns-reset"_s, {press(u"Reset Split DNS"_s), dns(u"neither"_s, QString(), {}),
                                reads(u"Configured policy: default"_s)});
    step(u"repair"_s,
         {tabAndPress(u"Repair"_s), reads(u"Repair completed"_s, contains(u"Repair completed"_s))});
}

void Tour::update()
{
    const auto downloads = [this](const QString &state) {
        return holds(u"a download that is "_s + state, [state](const TourDaemon &daemon) {
            return daemon.get(u"/v1/gui/update/download"_s).value("state"_L1) == state;
        });
    };
    step(u"update"_s, {tell(u"scenario update"_s), tabAndPress(u"Check for Updates"_s),
                       reads(u"A new Vantu update is available"_s)});
    step(u"update-download"_s, {tell(kSlow), press(u"Download and install the Vantu update"_s),
                                reads(u"Downloading more than nothing"_s,
                                      [](const QString &name) {
                                          return name.startsWith("Downloading"_L1) &&
                                                 name.contains("24.0"_L1) &&
                                                 !name.contains(" 0.0"_L1);
                                      }),
                                downloads(u"downloading"_s)});
    step(u"update-cancel"_s, {tell(kUsualPace), press(u"Cancel the update download"_s),
                              reads(u"Download canceled."_s), downloads(u"canceled"_s)});
    step(u"update-later"_s, {press(u"Not Now"_s), hasButton(u"Check for Updates"_s)});
}

void Tour::changeLanguage()
{
    step(u"language"_s, {click(kForward), tabAndPress(u"Language: English (US)"_s),
                         type(u"Search languages"_s, u"deutsch"_s)});
    step(u"german"_s,
         {press(u"Apply"_s),
          left(),
          {u"another has taken its place"_s, [this] { return m_client.hasSuccessor(); }},
          reads(u"Nicht verbunden"_s),
          offers(u"Verbinden"_s),
          holds(u"language"_s, u"de"_s)});
    // A process that was started for a language leaves the next restart to the user.
    step(u"arabic-chosen"_s,
         {open(u"Einstellungen"_s), press(u"Sprache"_s, contains(u"Deutsch"_s)),
          type(u"Sprachen suchen"_s, u"arabic"_s), press(u"Anwenden"_s),
          reads(u"Bitte starten Sie die App von Hand neu."_s, contains(u"von Hand"_s)),
          holds(u"language"_s, u"ar"_s)});
    step(u"quit-german"_s, {quit(), left()});
    step(u"arabic"_s,
         {{u"the client starts"_s, [this] { return m_client.start(m_daemon.clientEnvironment()); }},
          reads(u"غير متصل"_s),
          {u"the sidebar stands on the right"_s, [this] {
               const auto page = m_client.findButton([](const QString &) { return true; });
               return page && page->place().left() > m_client.place().center().x();
           }}});
    step(u"quit"_s, {quit(), left()});
}

Tour::Part Tour::quit()
{
    return {u"choose the last entry in the tray"_s, [this] {
                const QStringList labels = m_client.tray().menu().labels();
                return !labels.isEmpty() && m_client.tray().click(labels.constLast());
            }};
}

Tour::Part Tour::left()
{
    return {u"the client has left with status 0"_s, [this] { return m_client.hasLeft(); }};
}
