#include "TrayMenu.h"

#include "TrayPanelMenu.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QFont>
#include <QMenu>
#include <QStack>

using namespace Qt::StringLiterals;

namespace {

enum class RowKind {
    Entry,
    Check, ///< An entry with a check mark.
    Separator,
    Header,
    Submenu,      ///< The rows up to its End lie inside.
    CheckSubmenu, ///< The same, and its own entry has a check mark.
    RadioSubmenu, ///< A submenu whose entries exclude each other.
    End,
};

enum class RowFor { Both, NestedOnly, FlatOnly };

/// One line of the menu's plan.
struct Row
{
    RowKind kind = RowKind::Separator;
    TrayEntry entry = TrayEntry::None;
    const char *context = nullptr;
    const char *text = nullptr;
    RowFor layout = RowFor::Both;
};

using enum RowKind;

constexpr auto kTray = "VantuTrayApp";
constexpr auto kWords = "TrayMenuText";
constexpr auto kSidebar = "NavigationSidebar";

// clang-format off
/// The whole menu, from top to bottom.
constexpr std::array kPlan{
    Row{Entry, TrayEntry::StatusTitle, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Vantu: starting...")},
    Row{Entry, TrayEntry::StatusDetail, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Daemon: checking...")},
    Row{Separator},
    Row{Entry, TrayEntry::OpenVantu, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Open Vantu...")},
    Row{Separator},
    Row{Entry, TrayEntry::Connect, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Connect")},
    Row{Entry, TrayEntry::Disconnect, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Disconnect")},

    Row{Submenu, TrayEntry::NodeMenu, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Node / Location")},
    Row{Entry, TrayEntry::CurrentNode, kWords, QT_TRANSLATE_NOOP("TrayMenuText", "Current: loading...")},
    Row{Entry, TrayEntry::RefreshNodes, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Refresh Nodes")},
    Row{Separator},
    Row{Entry, TrayEntry::NodesPlaceholder, kWords, QT_TRANSLATE_NOOP("TrayMenuText", "Loading nodes...")},
    Row{Entry, TrayEntry::Slot1},
    Row{Entry, TrayEntry::Slot2},
    Row{Entry, TrayEntry::Slot3},
    Row{Entry, TrayEntry::Slot4},
    Row{Entry, TrayEntry::Slot5},
    Row{Separator, TrayEntry::SlotsSeparator},
    Row{Entry, TrayEntry::Locations, kSidebar, QT_TRANSLATE_NOOP("NavigationSidebar", "Locations")},
    Row{End},

    Row{Separator, TrayEntry::None, nullptr, nullptr, RowFor::NestedOnly},
    Row{Submenu, TrayEntry::ModeMenu, kSidebar, QT_TRANSLATE_NOOP("NavigationSidebar", "Mode"), RowFor::NestedOnly},
    Row{Header, TrayEntry::None, kSidebar, QT_TRANSLATE_NOOP("NavigationSidebar", "Mode"), RowFor::FlatOnly},
    Row{Check, TrayEntry::ModeAuto, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Auto")},
    Row{Check, TrayEntry::ModeWireGuard, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "WireGuard")},
    Row{Header, TrayEntry::None, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Mode: VantuVPN")},
    Row{Check, TrayEntry::VpnGlobal, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Global")},
    Row{Check, TrayEntry::VpnSplit, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Split")},
    Row{CheckSubmenu, TrayEntry::VpnSplitOptions, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Split Options")},
    Row{Check, TrayEntry::VpnDefaultTunnel, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Default: Tunnel")},
    Row{Check, TrayEntry::VpnDefaultDirect, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Default: Direct")},
    Row{Submenu, TrayEntry::VpnRegions, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Regions")},
    Row{End},
    Row{Check, TrayEntry::VpnGFWList, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "GFWList -> Tunnel")},
    Row{Check, TrayEntry::VpnCustomRules, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Custom Split Rules")},
    Row{End},
    Row{Header, TrayEntry::None, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Mode: Vantu Proxy")},
    Row{Check, TrayEntry::ProxyGlobal, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Global")},
    Row{Check, TrayEntry::ProxySplit, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Split")},
    Row{CheckSubmenu, TrayEntry::ProxySplitOptions, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Split Options")},
    Row{Check, TrayEntry::ProxyDefaultProxy, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Default: Proxy")},
    Row{Check, TrayEntry::ProxyDefaultDirect, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Default: Direct")},
    Row{Submenu, TrayEntry::ProxyRegions, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Regions")},
    Row{End},
    Row{Check, TrayEntry::ProxyGFWList, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "GFWList -> Proxy")},
    Row{End},
    Row{End, TrayEntry::None, nullptr, nullptr, RowFor::NestedOnly},

    Row{RadioSubmenu, TrayEntry::SystemProxyMenu, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "System Proxy")},
    Row{Check, TrayEntry::SystemProxyOff, kWords, QT_TRANSLATE_NOOP("TrayMenuText", "Off")},
    Row{Check, TrayEntry::SystemProxyOn, kWords, QT_TRANSLATE_NOOP("TrayMenuText", "On")},
    Row{Check, TrayEntry::SystemProxyLock, kWords, QT_TRANSLATE_NOOP("TrayMenuText", "Lock")},
    Row{End},
    Row{Header, TrayEntry::None, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "LAN Access"), RowFor::FlatOnly},
    Row{RadioSubmenu, TrayEntry::LocalNetworkMenu, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Local Network")},
    Row{Check, TrayEntry::LocalNetworkDirect, kWords, QT_TRANSLATE_NOOP("TrayMenuText", "Direct")},
    Row{Check, TrayEntry::LocalNetworkProtected, kWords, QT_TRANSLATE_NOOP("TrayMenuText", "Protected")},
    Row{End},
    Row{Separator},
    Row{Check, TrayEntry::KillSwitch, kWords, QT_TRANSLATE_NOOP("TrayMenuText", "Kill Switch")},
    Row{Separator},
    Row{Entry, TrayEntry::RefreshStatus, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Refresh Status")},
    Row{Entry, TrayEntry::OpenLogs, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Open Logs")},
    Row{Separator},
    Row{Entry, TrayEntry::Account, kWords, QT_TRANSLATE_NOOP("TrayMenuText", "Account: checking...")},
    Row{Entry, TrayEntry::Logout, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Logout")},
    Row{Separator},
    Row{Entry, TrayEntry::Quit, kTray, QT_TRANSLATE_NOOP("VantuTrayApp", "Quit")},
};
// clang-format on

QString translated(const Row &row)
{
    return row.text == nullptr ? QString{} : QCoreApplication::translate(row.context, row.text);
}

/// Carries the plan out.
class Builder final
{
public:
    Builder(QMenu &root, std::array<QAction *, kTrayEntryCount> &actions, QObject &owner)
        : m_actions(actions)
        , m_owner(owner)
    {
        m_menus.push(&root);
    }

    void add(const Row &row)
    {
        QMenu &menu = *m_menus.top();
        switch (row.kind) {
        case Entry:
        case Check:
            addEntry(row, menu);
            break;
        case Separator:
            addSeparator(row, menu);
            break;
        case Header:
            addHeader(row, menu);
            break;
        case Submenu:
        case CheckSubmenu:
        case RadioSubmenu:
            addSubmenu(row, menu);
            break;
        case End:
            m_menus.pop();
            m_group = nullptr;
            break;
        }
    }

private:
    void remember(TrayEntry entry, QAction *action)
    {
        if (entry != TrayEntry::None) {
            m_actions[static_cast<std::size_t>(entry)] = action;
        }
    }

    void addEntry(const Row &row, QMenu &menu)
    {
        auto *action = new QAction(translated(row), &m_owner);
        action->setCheckable(row.kind == Check);
        if (m_group != nullptr) {
            m_group->addAction(action);
        }
        menu.addAction(action);
        remember(row.entry, action);
    }

    void addSeparator(const Row &row, QMenu &menu)
    {
        auto *action = new QAction(&m_owner);
        action->setSeparator(true);
        menu.addAction(action);
        remember(row.entry, action);
    }

    void addHeader(const Row &row, QMenu &menu)
    {
        menu.addSeparator();
        QAction *title = menu.addAction(u"[ %1 ]"_s.arg(translated(row)));
        title->setEnabled(false);
        QFont font = title->font();
        font.setWeight(QFont::Bold);
        title->setFont(font);
    }

    void addSubmenu(const Row &row, QMenu &menu)
    {
        auto *submenu = new QMenu(translated(row), &menu);
        submenu->menuAction()->setCheckable(row.kind == CheckSubmenu);
        menu.addMenu(submenu);
        remember(row.entry, submenu->menuAction());
        m_menus.push(submenu);
        m_group = row.kind == RadioSubmenu ? new QActionGroup(&m_owner) : nullptr;
    }

    QStack<QMenu *> m_menus;
    QActionGroup *m_group = nullptr;
    std::array<QAction *, kTrayEntryCount> &m_actions;
    QObject &m_owner;
};

void applyTo(QAction &action, const TrayEntryState &state, QMenu &root)
{
    // The setters return early where nothing changes, but for the data.
    if (!state.text.isEmpty()) {
        action.setText(panelmenu::entryText(root, state.text));
    }
    if (action.data().toString() != state.data) {
        action.setData(state.data);
    }
    action.setCheckable(state.checkable);
    action.setChecked(state.checked);
    action.setEnabled(state.enabled);
    action.setVisible(state.visible);
}

} // namespace

TrayMenu::TrayMenu(TrayLayout layout, QObject *parent)
    : QObject(parent)
    , m_root(std::make_unique<QMenu>())
{
    const RowFor omitted = layout == TrayLayout::Flat ? RowFor::NestedOnly : RowFor::FlatOnly;
    m_root->setObjectName(u"VantuTrayMenu"_s);
    Builder builder(*m_root, m_actions, *this);
    for (const Row &row : kPlan) {
        if (row.layout != omitted) {
            builder.add(row);
        }
    }
    for (std::size_t index = 0; index < kTrayEntryCount; ++index) {
        if (QAction *action = m_actions[index]; action != nullptr && action->menu() == nullptr) {
            const auto entry = static_cast<TrayEntry>(index);
            connect(action, &QAction::triggered, this,
                    [this, entry](bool checked) { Q_EMIT chosen(entry, checked); });
        }
    }
}

TrayMenu::~TrayMenu() = default;

QMenu *TrayMenu::submenu(TrayEntry entry) const
{
    const QAction *holder = action(entry);
    return holder == nullptr ? nullptr : holder->menu();
}

void TrayMenu::apply(const TrayMenuState &state)
{
    applyRange(state, TrayEntry::StatusTitle, TrayEntry::Quit);
}

void TrayMenu::applyNodeEntries(const TrayMenuState &state)
{
    applyRange(state, TrayEntry::CurrentNode, TrayEntry::SlotsSeparator);
}

void TrayMenu::applyRange(const TrayMenuState &state, TrayEntry first, TrayEntry last)
{
    for (auto index = static_cast<std::size_t>(first); index <= static_cast<std::size_t>(last);
         ++index) {
        if (m_actions[index] != nullptr) {
            applyTo(*m_actions[index], state.entries[index], *m_root);
        }
    }
}
