#pragma once

#include "TrayHostWatch.h"
#include "TrayMenu.h"
#include "TrayMenuState.h"
#include "TrayMenuWatch.h"
#include "TrayNodeMenu.h"
#include "TrayRegionMenu.h"

#include <QIcon>
#include <QObject>
#include <QSystemTrayIcon>

#include <chrono>
#include <memory>

class AppState;

/// What the user sees of the tray: the icon, its messages and the menu with its
/// submenus. Shows what it is told and says what was chosen; it decides nothing.
class TrayFace final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TrayFace)

public:
    static constexpr std::chrono::milliseconds kMessageTime{2500};

    /// Shows nodes and regions out of `state`, which must outlive it.
    TrayFace(const AppState &state, TrayLayout layout, QObject *parent = nullptr);

    /// Puts the icon into the desktop's tray, as soon as there is one.
    void showIcon();
    /// Shows a desktop message, if the desktop can.
    void showMessage(const QString &title, const QString &text);

    /// Brings the icon up to date, and the menu too unless it is open; it follows when
    /// the menu closes.
    void update(const TrayCondition &condition);
    /// Nodes or node groups differ from what the submenus were made of.
    void catalogueChanged() { m_planOld = true; }

Q_SIGNALS:
    /// The desktop's tray has the icon from now on.
    void iconShown();
    /// Time has passed unseen: call update() now, the menu is about to open.
    void opening();
    void nodeMenuOpening();
    void activated(QSystemTrayIcon::ActivationReason reason);
    /// `checked` is what the entry's mark would be then; the mark itself stays as it
    /// was. `asCancel`: the connect entry read "Cancel" when it was chosen.
    void chosen(TrayEntry entry, bool checked, bool asCancel);
    void nodeChosen(const QString &nodeID);
    void proxyRegionChosen(const QString &code);
    void vpnRegionChosen(const QString &code);

private:
    void connectMenu();
    void updateIcon();
    void updateMenu();
    void fillNodes();
    void fillRegions();
    void handleEntryChosen();
    void handleNodeMenuOpening();
    void handleClosed();
    void releaseSubmenus();

    const AppState &m_state;
    const TrayLayout m_layout;
    TrayMenu m_menu;
    TrayMenuWatch m_watch;
    TrayNodeMenu m_nodeMenu;
    TrayRegionMenu m_proxyRegions;
    TrayRegionMenu m_vpnRegions;
    const QIcon m_iconOn;
    const QIcon m_iconOff;
    TrayHostWatch m_hosts;
    std::unique_ptr<QSystemTrayIcon> m_icon; ///< None until there is a tray to put it in.

    TrayMenuState m_shown; ///< The latest state; the menu lags behind while it is open.
    TrayNodePlan m_plan;
    bool m_planOld = true; ///< The catalogue has changed since the plan was made.
    bool m_dirty = false;
    bool m_asCancel = false; ///< What the menu's connect entry reads.
    bool m_iconIsOn = false;
};
