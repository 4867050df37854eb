#pragma once

#include "ConnectProgress.h"
#include "ControlRecords.h"
#include "HeldReturnFilter.h"
#include "MainWindow.h"
#include "PrivateLink.h"
#include "UpdateRecords.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QUrl>

#include <functional>
#include <optional>

class AppState;
class GuiPreferences;
class SharedTheme;
class UpdateDialog;

/// The shell's one handle on the main window.
///
/// It makes the window only when it is first needed, repeats the window's
/// requests as its own signals, opens links and folders, shows the update dialog, and is
/// the place where notices are shown; a notice without a window is dropped. Lives on the GUI
/// thread; the store, the preferences and the theme that it is given must outlive it.
class WindowController final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WindowController)

public:
    /// Opens a link with the desktop; returns whether that worked.
    using LinkOpener = std::function<bool(const QUrl &url)>;
    /// Opens a local file with the desktop; returns whether that worked.
    using FileLauncher = std::function<bool(const QString &path)>;
    /// Returns whether the desktop has a tray now.
    using TrayProbe = std::function<bool()>;

    /// How long an ordinary notice stays.
    static constexpr int kNoticeTimeoutMs = 5000;

    WindowController(AppState &state, GuiPreferences &preferences, SharedTheme &theme,
                     QObject *parent = nullptr);
    ~WindowController() override;

    void setHideToTray(bool hide);
    /// See MainWindow. Call before there is a window.
    void setTrayProbe(TrayProbe probe) { m_trayProbe = std::move(probe); }
    void setExitAllowed(bool allowed);
    void setLinkOpener(LinkOpener opener) { m_linkOpener = std::move(opener); }
    void setFileLauncher(FileLauncher launcher) { m_fileLauncher = std::move(launcher); }

    /// How many windows were made so far.
    int windowsCreated() const { return m_windowsCreated; }

    /// Closes the window for good, before the program leaves.
    void closeForExit();

    void setDaemonAvailable(bool available, const QString &reason);
    void setConnectProgress(const ConnectProgress &progress);

    /// A notice in the window; see MainWindow::showNotice().
    void showNotice(const QString &message, MainWindow::NoticeKind kind,
                    int timeoutMs = kNoticeTimeoutMs);
    /// An error notice; an empty message becomes "Operation failed". With a page, the
    /// message also stays there, and an empty one becomes the page's own words.
    void showError(const QString &message, std::optional<Page> page = std::nullopt);

    /// Opens `url` with the desktop. An invalid one is ignored.
    void openLink(const QUrl &url);
    /// The same for a link that nobody else may see.
    void openPrivateLink(const QUrl &url);
    /// Hands `path` to the desktop; false unless it is an absolute path of an
    /// existing regular file that could be opened.
    bool launchFile(const QString &path);
    void openLogDirectory(const ConfigPaths &paths);

    /// Wishes that the daemon has not confirmed; see MainWindow.
    void setUnconfirmedFavorites(const QHash<QString, bool> &favorites,
                                 const QSet<QString> &awaited);
    void clearLocationsError();
    /// A catalogue was received, even if there is nothing in it.
    void noteCatalogReceived();
    /// What runs for the user at the moment.
    void setActivity(const OperationActivity &activity);
    void showSplitRulesError(const QString &message);
    void finishSplitRulesImport(const QString &failure);

    /// Offers a release in the update dialog, which is made when first needed.
    void showUpdate(const UpdateInfo &update);
    /// There is nothing to offer any more.
    void withdrawUpdate();
    void setUpdateDownload(const GUIUpdateDownloadInfo &download);
    /// Brings the dialog forward, if there is one.
    void raiseUpdateDialog();
    void setUpdateNote(const QString &text, bool error);
    void setUpdateWaiting(bool waiting);

Q_SIGNALS:
    void connectRuntimeRequested();
    void cancelConnectRequested();
    void disconnectRuntimeRequested();
    void connectRefused();
    void setModeRequested(const ModeInfo &mode);
    void splitRulesRequested();
    void importSplitRulesRequested(const QString &kind, const QString &content);
    void setLocalNetworkRequested(const QString &value);
    void refreshLocationsRequested();
    void connectNodeRequested(const QString &nodeID, const QString &label);
    void recentConnectionsCleared();
    void connectSmartRequested(const QString &selector);
    void setNodeFavoriteRequested(const QString &nodeID, bool favorite);
    void openLogsRequested();
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
    void updateDownloadRequested();
    void updateDownloadCancelRequested();
    void setProxyListenersRequested(const QString &socksAddress, const QString &httpAddress);
    void setSplitDNSLocalRequested(const QStringList &servers);
    void setSplitDNSPolicyRequested(const QString &policy);
    void clearSplitDNSLocalRequested();
    void resetSplitDNSRequested();
    void repairDiagnosticsRequested();
    void loginRequested(const QString &username, const QString &password, bool rememberMe);
    void logoutRequested();
    void purchaseURLRequested(const QString &lang);
    void forceUpdateExitRequested();

    /// The window was closed while it can't be hidden to a tray.
    void quitRequested();
    /// Somebody looks at a list of places, or no longer does.
    void showingPlacesChanged(bool showing);
    void updateDialogVisibleChanged(bool visible);

public Q_SLOTS:
    void showOrRaise();
    void showAccount();
    void showLocations();
    void showModePage();
    void showKillSwitchSettings();
    void activateFromApplication();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void ensureWindow();
    void connectWindow();
    void handleHiddenToTray();
    void showPage(Page page);
    void ensureUpdateDialog();
    void openDownloadPage();

    AppState &m_state;
    GuiPreferences &m_preferences;
    SharedTheme &m_theme;
    HeldReturnFilter m_heldReturn;
    QPointer<MainWindow> m_window;
    QPointer<UpdateDialog> m_updateDialog; ///< Owned; has no parent, to live without a window.
    bool m_hideToTray = true;
    TrayProbe m_trayProbe = [] { return true; };
    bool m_exitAllowed = false;
    bool m_daemonAvailable = false;
    QString m_unavailableReason;
    ConnectProgress m_progress;
    OperationActivity m_activity;
    UpdateInfo m_update;
    QHash<QString, bool> m_unconfirmedFavorites;
    QSet<QString> m_awaitedFavorites;
    bool m_catalogReceived = false;
    int m_windowsCreated = 0;
    LinkOpener m_linkOpener;
    PrivateLink m_privateLink;
    FileLauncher m_fileLauncher;
};
