#pragma once

#include "ConnectProgress.h"
#include "ModeRecords.h"
#include "NavigationSidebar.h"
#include "OperationActivity.h"
#include "PendingConnectTarget.h"
#include "RecentActivityStore.h"

#include <QHash>
#include <QMainWindow>
#include <QSet>
#include <QUrl>

#include <functional>
#include <utility>

class AccountPage;
class AppState;
class ElidedLabel;
class GuiPreferences;
class LocationsPage;
class ModePage;
class NotificationHost;
class QCloseEvent;
class QStackedWidget;
class SettingsPage;
class Theme;
class VpnPage;

/// The program's window: the sidebar and the five pages.
///
/// Owned by WindowController, on the GUI thread. Its pages read the store and report
/// what the user wants by signals, which the window repeats; neither ever talks to the
/// daemon. Closing the window hides it, unless hiding to the tray is switched off or
/// the program is leaving.
class MainWindow final : public QMainWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MainWindow)

public:
    /// How a notice looks.
    enum class NoticeKind { Info, Success, Warning, Error };

    /// All arguments must outlive the window.
    MainWindow(AppState &state, GuiPreferences &preferences, Theme &theme,
               QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Off: closing the window asks to leave the program, because without a tray
    /// nothing would be left to bring it back.
    void setHideToTray(bool hide) { m_hideToTray = hide; }
    /// Asked at each close with hiding on: whether a tray is still there.
    void setTrayProbe(std::function<bool()> probe) { m_trayProbe = std::move(probe); }
    /// On: the program is leaving, and a close really closes.
    void setExitAllowed(bool allowed) { m_exitAllowed = allowed; }

    /// Whether the daemon answers; `reason` tells the user why not.
    void setDaemonAvailable(bool available, const QString &reason);
    void setConnectProgress(const ConnectProgress &progress);
    /// Favourites that the daemon has not confirmed yet, by node id; those `awaited` are
    /// under way.
    void setUnconfirmedFavorites(const QHash<QString, bool> &favorites,
                                 const QSet<QString> &awaited);
    /// A catalogue was received, even if there is nothing in it.
    void noteCatalogReceived();
    /// What runs for the user at the moment; the pages show it.
    void setActivity(const OperationActivity &activity);

    /// Shows a notice for `timeoutMs`; 0 leaves it until it is dismissed. An empty
    /// message hides what stands there.
    void showNotice(const QString &message, NoticeKind kind, int timeoutMs);
    /// A failed operation that belongs to a page: told there, too.
    void showPageError(Page page, const QString &message);
    void clearLocationsError();
    /// Why the split rules could not be had.
    void showSplitRulesError(const QString &message);
    /// An import of split rules ended; `failure` is empty if it was taken.
    void finishSplitRulesImport(const QString &failure);

    /// "light", "dark" or anything else for the desktop's own; kept in the preferences.
    void setAppearancePreference(const QString &appearance);

    /// A list of places is on the screen.
    bool isShowingPlaces() const;
    Page currentPage() const;

Q_SIGNALS:
    void hiddenToTray();
    void connectRuntimeRequested();
    void cancelConnectRequested();
    void disconnectRuntimeRequested();
    /// The user asked for a connection while something runs that excludes it.
    void connectRefused();
    void setModeRequested(const ModeInfo &mode);
    void splitRulesRequested();
    void importSplitRulesRequested(const QString &kind, const QString &content);
    void setLocalNetworkRequested(const QString &value);
    void refreshLocationsRequested();
    void connectNodeRequested(const QString &nodeID, const QString &label);
    void recentConnectionsCleared();
    void connectSmartRequested(const QString &selector);
    void pendingConnectTargetChanged(const QString &label);
    void setNodeFavoriteRequested(const QString &nodeID, bool favorite);
    void openLogsRequested();
    void openExternalURLRequested(const QUrl &url);
    void settingsVisibleRequested();
    void setKillSwitchEnabledRequested(bool enabled);
    void setKillSwitchModeRequested(const QString &mode);
    void switchToAutoAndEnableKillSwitchRequested();
    void chooseModeForKillSwitchRequested();
    void modePageLeft();
    void setSystemProxyRequested(const QString &value);
    void setAPIURLRequested(const QString &apiURL);
    void resetAPIURLRequested();
    void setAutoConnectRequested(const QString &value);
    void setLanguageRequested(const QString &source, const QString &language);
    void checkUpdateRequested();
    void setProxyListenersRequested(const QString &socksAddress, const QString &httpAddress);
    void setSplitDNSLocalRequested(const QStringList &servers);
    void setSplitDNSPolicyRequested(const QString &policy);
    void clearSplitDNSLocalRequested();
    void resetSplitDNSRequested();
    void repairDiagnosticsRequested();
    void loginRequested(const QString &username, const QString &password, bool rememberMe);
    void logoutRequested();
    void purchaseURLRequested(const QString &lang);
    void appearancePreferenceChanged(const QString &appearance);

    /// Close was asked for while hiding to the tray is off.
    void quitRequested();
    /// isShowingPlaces() has another value.
    void showingPlacesChanged(bool showing);

public Q_SLOTS:
    void refreshFromState();
    /// Selects a page by its number; numbers that no page has are ignored. The user may
    /// be asked first, and stay, while something typed on the present page would be lost.
    void showPage(int index);
    void showKillSwitchSettings();

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void addActions();
    void buildContent();
    void buildPages();
    void connectVpnPage();
    void connectLocationsPage();
    void connectModePage();
    void connectSettingsPage();
    void connectAccountPage();
    void applyTheme();
    bool connectAllowed();
    void connectTo(const PendingConnectTarget &target);
    void setPendingTarget(const PendingConnectTarget &target);
    void focusSearch();
    void browseLocations(const QString &query);
    void offerPrimaryAction();
    void publishShowingPlaces();
    void publishSettingsVisible();
    void scrollToFocus(QWidget *old, QWidget *now);
    void switchPage(Page page);
    void leaveScreen();
    void dismissOutdatedNotice();
    void openVendorPage(const QString &path);
    void setLaunchAtLogin(bool launch);
    void setShowOnLaunch(bool show);
    void showSettingsFailure(const QString &message);

    AppState &m_state;
    GuiPreferences &m_preferences;
    Theme &m_theme;
    RecentActivityStore m_recent;
    bool m_hideToTray = true;
    std::function<bool()> m_trayProbe = [] { return true; };
    bool m_exitAllowed = false;
    bool m_showingPlaces = false;
    bool m_settingsVisible = false;
    bool m_noticePasses = false; ///< The last notice goes by itself after a while.
    bool m_connectPending = false;
    OperationActivity m_activity;
    /// The window was shown and the keyboard is to go to the main button, once it can.
    bool m_offerPrimary = false;

    NavigationSidebar *m_sidebar = nullptr;
    ElidedLabel *m_title = nullptr;
    QStackedWidget *m_stack = nullptr;
    VpnPage *m_vpn = nullptr;
    LocationsPage *m_locations = nullptr;
    ModePage *m_mode = nullptr;
    SettingsPage *m_settings = nullptr;
    AccountPage *m_account = nullptr;
    NotificationHost *m_notices = nullptr;
};
