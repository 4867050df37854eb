#include "TrayFace.h"

#include "AppState.h"
#include "EmbeddedIcon.h"
#include "MemoryLog.h"
#include "ModeRequests.h"
#include "PlainText.h"
#include "RuntimeFacts.h"
#include "TrayPanelMenu.h"

#include <QAction>
#include <QMenu>

#include <utility>

using namespace Qt::StringLiterals;

TrayFace::TrayFace(const AppState &state, TrayLayout layout, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_layout(layout)
    , m_menu(layout)
    , m_watch(m_menu.root())
    , m_nodeMenu(*m_menu.submenu(TrayEntry::NodeMenu), *m_menu.action(TrayEntry::Locations))
    , m_proxyRegions(*m_menu.submenu(TrayEntry::ProxyRegions))
    , m_vpnRegions(*m_menu.submenu(TrayEntry::VpnRegions))
    , m_iconOn(embeddedIcon(u":/icons/tray-on.png"_s))
    , m_iconOff(embeddedIcon(u":/icons/tray-off.png"_s))
{
    connect(&m_hosts, &TrayHostWatch::hostAppeared, this, &TrayFace::showIcon);
    connectMenu();
}

void TrayFace::connectMenu()
{
    connect(&m_menu, &TrayMenu::chosen, this, [this](TrayEntry entry, bool checked) {
        // A slot is the node that it showed, whatever the list says by now.
        if (const QString nodeID = m_menu.action(entry)->data().toString(); !nodeID.isEmpty()) {
            Q_EMIT nodeChosen(nodeID);
        } else {
            Q_EMIT chosen(entry, checked, m_asCancel);
        }
        handleEntryChosen();
    });
    connect(&m_nodeMenu, &TrayNodeMenu::nodeChosen, this, [this](const QString &nodeID) {
        Q_EMIT nodeChosen(nodeID);
        handleEntryChosen();
    });
    connect(&m_proxyRegions, &TrayRegionMenu::regionChosen, this, [this](const QString &code) {
        Q_EMIT proxyRegionChosen(code);
        handleEntryChosen();
    });
    connect(&m_vpnRegions, &TrayRegionMenu::regionChosen, this, [this](const QString &code) {
        Q_EMIT vpnRegionChosen(code);
        handleEntryChosen();
    });
    connect(m_menu.submenu(TrayEntry::NodeMenu), &QMenu::aboutToShow, this,
            &TrayFace::handleNodeMenuOpening);
    for (const TrayEntry regions : {TrayEntry::ProxyRegions, TrayEntry::VpnRegions}) {
        connect(m_menu.submenu(regions), &QMenu::aboutToShow, this, &TrayFace::fillRegions);
    }
    connect(&m_watch, &TrayMenuWatch::opening, this, &TrayFace::opening);
    connect(&m_watch, &TrayMenuWatch::closed, this, &TrayFace::handleClosed);
}

void TrayFace::showIcon()
{
    if (m_icon) {
        return; // Qt itself follows a tray that comes back.
    }
    if (!TrayHostWatch::isTrayAvailable()) {
        m_hosts.start();
        return;
    }
    m_icon = std::make_unique<QSystemTrayIcon>(m_iconIsOn ? m_iconOn : m_iconOff);
    connect(m_icon.get(), &QSystemTrayIcon::activated, this, &TrayFace::activated);
    m_icon->setToolTip(m_shown.toolTip);
    m_icon->setContextMenu(&m_menu.root());
    updateMenu(); // It may have to be whole from now on.
    m_icon->show();
    Q_EMIT iconShown();
}

void TrayFace::showMessage(const QString &title, const QString &text)
{
    if (m_icon && QSystemTrayIcon::supportsMessages()) {
        m_icon->showMessage(plaintext::messageText(title), plaintext::messageText(text),
                            QSystemTrayIcon::Information, static_cast<int>(kMessageTime.count()));
    }
}

void TrayFace::update(const TrayCondition &condition)
{
    m_shown = deriveTrayMenu(m_state, condition);
    updateIcon();
    if (m_watch.isOpen()) {
        m_dirty = true;
    } else {
        updateMenu();
    }
}

void TrayFace::updateIcon()
{
    const bool wasOn = std::exchange(m_iconIsOn, m_shown.iconOn);
    if (!m_icon) {
        return;
    }
    if (m_iconIsOn != wasOn) {
        m_icon->setIcon(m_iconIsOn ? m_iconOn : m_iconOff);
    }
    if (m_icon->toolTip() != m_shown.toolTip) {
        m_icon->setToolTip(m_shown.toolTip);
    }
}

void TrayFace::updateMenu()
{
    m_dirty = false;
    m_menu.apply(m_shown);
    m_asCancel = m_shown.connectCancels;
    // A panel shows its own copy of the menu, which must be whole at any time; a popup
    // is filled when it opens.
    if (panelmenu::isExported(m_menu.root())) {
        fillNodes();
        fillRegions();
    }
}

void TrayFace::fillNodes()
{
    if (m_planOld) {
        m_plan = planTrayNodes(m_state.nodes(), m_state.nodeGroups());
        m_planOld = false;
    }
    m_nodeMenu.show(m_plan, facts::effectiveSelected(m_state.runtime(), m_state.nodes()).id,
                    m_shown.nodesHeld);
}

void TrayFace::fillRegions()
{
    if (m_layout == TrayLayout::Nested) {
        return; // The nested layout keeps the split options hidden.
    }
    const ModeInfo &mode = m_state.runtime().mode;
    const NodeGroupsInfo &groups = m_state.nodeGroups();
    m_proxyRegions.show(trayRegions(moderequest::proxyProfile(mode), groups));
    m_vpnRegions.show(trayRegions(moderequest::vantuVPNProfile(mode), groups));
}

void TrayFace::handleEntryChosen()
{
    m_watch.entryChosen();
    // The click has turned the entry's mark, which belongs to the daemon's word.
    if (m_watch.isOpen()) {
        m_dirty = true;
    } else {
        updateMenu();
    }
}

void TrayFace::handleNodeMenuOpening()
{
    Q_EMIT nodeMenuOpening();
    m_menu.applyNodeEntries(m_shown);
    fillNodes();
}

void TrayFace::handleClosed()
{
    if (m_dirty) {
        updateMenu();
    }
    if (!panelmenu::isExported(m_menu.root())) {
        releaseSubmenus();
    }
}

void TrayFace::releaseSubmenus()
{
    const int expanded = m_nodeMenu.expandedCount();
    const qsizetype nodes = m_nodeMenu.nodeActionCount();
    const qsizetype proxyRegions = m_proxyRegions.regionCount();
    const qsizetype vpnRegions = m_vpnRegions.regionCount();
    m_nodeMenu.release();
    m_proxyRegions.release();
    m_vpnRegions.release();
    if (!memorylog::isEnabled()) {
        return;
    }
    const auto text = [](qsizetype count) { return QString::number(count); };
    memorylog::log(u"tray submenu release: nodes expanded=%1 actions %2->%3 (catalog nodes=%4); "
                   "proxy regions %5->%6; vantuvpn regions %7->%8"_s.arg(
                       text(expanded), text(nodes), text(m_nodeMenu.nodeActionCount()),
                       text(m_state.nodes().nodes.size()), text(proxyRegions),
                       text(m_proxyRegions.regionCount()), text(vpnRegions),
                       text(m_vpnRegions.regionCount())));
}
