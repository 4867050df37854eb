// How the window's pages are connected: what they want is repeated as the window's own
// signals, and what concerns the window or the preferences alone is done here.

#include "AccountPage.h"
#include "AppState.h"
#include "ControlProtocol.h"
#include "GuiAutostart.h"
#include "GuiPreferences.h"
#include "LocationsPage.h"
#include "MainWindow.h"
#include "ModePage.h"
#include "RuntimeFacts.h"
#include "SettingsPage.h"
#include "VendorHost.h"
#include "VpnPage.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPreferencesFailureMs = 5000;

} // namespace

void MainWindow::connectVpnPage()
{
    connect(m_vpn, &VpnPage::connectRuntimeRequested, this, [this] {
        if (connectAllowed()) {
            Q_EMIT connectRuntimeRequested();
        }
    });
    connect(m_vpn, &VpnPage::signInRequested, this, &MainWindow::connectAllowed);
    connect(m_vpn, &VpnPage::cancelConnectRequested, this, &MainWindow::cancelConnectRequested);
    connect(m_vpn, &VpnPage::disconnectRuntimeRequested, this,
            &MainWindow::disconnectRuntimeRequested);
    using Kind = PendingConnectTarget::Kind;
    connect(m_vpn, &VpnPage::connectNodeRequested, this,
            [this](const QString &nodeID, const QString &label, const QString &flagCode) {
                connectTo({Kind::Node, nodeID, label, flagCode});
            });
    connect(m_vpn, &VpnPage::connectSmartRequested, this,
            [this](const QString &selector, const QString &label, const QString &flagCode) {
                connectTo({Kind::Smart, selector, label, flagCode});
            });
    connect(m_vpn, &VpnPage::setNodeFavoriteRequested, this, &MainWindow::setNodeFavoriteRequested);
    connect(m_vpn, &VpnPage::pageRequested, this, &MainWindow::showPage);
    connect(m_vpn, &VpnPage::browseLocationsRequested, this, &MainWindow::browseLocations);
    connect(m_vpn, &VpnPage::recentConnectionsCleared, this, &MainWindow::recentConnectionsCleared);
    connect(m_vpn, &VpnPage::recentsNotCleared, this, [this] {
        showNotice(tr("Could not clear history"), NoticeKind::Error, kPreferencesFailureMs);
    });
    connect(m_vpn, &VpnPage::quickEntryVisibleChanged, this, &MainWindow::publishShowingPlaces);
}

void MainWindow::connectLocationsPage()
{
    connect(m_locations, &LocationsPage::refreshRequested, this,
            &MainWindow::refreshLocationsRequested);
    using Kind = PendingConnectTarget::Kind;
    connect(m_locations, &LocationsPage::connectNodeRequested, this,
            [this](const QString &nodeID, const QString &label) {
                connectTo({Kind::Node, nodeID, label, {}});
            });
    connect(m_locations, &LocationsPage::connectSmartRequested, this,
            [this](const QString &selector, const QString &label) {
                connectTo({Kind::Smart, selector, label, {}});
            });
    connect(m_locations, &LocationsPage::favoriteNodeRequested, this,
            &MainWindow::setNodeFavoriteRequested);
}

bool MainWindow::connectAllowed()
{
    if (facts::isSignedIn(m_state.runtime())) {
        if (m_activity.excludesConnect) {
            Q_EMIT connectRefused();
        }
        return !m_activity.excludesConnect;
    }
    showPage(static_cast<int>(Page::Account));
    m_account->showError(QCoreApplication::translate("AccountPage", "Sign in to connect."));
    m_account->focusSignIn();
    return false;
}

void MainWindow::connectTo(const PendingConnectTarget &target)
{
    if (!connectAllowed()) {
        return;
    }
    setPendingTarget(target);
    if (target.kind == PendingConnectTarget::Kind::Node) {
        Q_EMIT connectNodeRequested(target.id, target.label);
    } else {
        Q_EMIT connectSmartRequested(target.id);
    }
    // Whoever takes the request up has said so by now; a refused place is not named.
    setPendingTarget({});
}

void MainWindow::setPendingTarget(const PendingConnectTarget &target)
{
    if (m_vpn->setPendingConnectTarget(target)) {
        Q_EMIT pendingConnectTargetChanged(target.label);
    }
}

void MainWindow::connectModePage()
{
    connect(m_mode, &ModePage::setModeRequested, this, &MainWindow::setModeRequested);
    connect(m_mode, &ModePage::setLocalNetworkRequested, this,
            &MainWindow::setLocalNetworkRequested);
    connect(m_mode, &ModePage::splitRulesRequested, this, &MainWindow::splitRulesRequested);
    connect(m_mode, &ModePage::importSplitRulesRequested, this,
            &MainWindow::importSplitRulesRequested);
    connect(m_mode, &ModePage::openKillSwitchSettingsRequested, this,
            &MainWindow::showKillSwitchSettings);
}

void MainWindow::connectSettingsPage()
{
    using Settings = SettingsPage;
    using Window = MainWindow;
    SettingsPage *page = m_settings;
    connect(page, &Settings::openRoutingModeRequested, this,
            [this] { showPage(static_cast<int>(Page::Mode)); });
    connect(page, &Settings::setKillSwitchEnabledRequested, this,
            &Window::setKillSwitchEnabledRequested);
    connect(page, &Settings::setKillSwitchModeRequested, this, &Window::setKillSwitchModeRequested);
    connect(page, &Settings::switchToAutoAndEnableKillSwitchRequested, this,
            &Window::switchToAutoAndEnableKillSwitchRequested);
    connect(page, &Settings::chooseModeForKillSwitchRequested, this,
            &Window::chooseModeForKillSwitchRequested);
    connect(page, &Settings::setSystemProxyRequested, this, &Window::setSystemProxyRequested);
    connect(page, &Settings::setAPIURLRequested, this, &Window::setAPIURLRequested);
    connect(page, &Settings::resetAPIURLRequested, this, &Window::resetAPIURLRequested);
    connect(page, &Settings::setAutoConnectRequested, this,
            [this](bool on) { Q_EMIT setAutoConnectRequested(on ? wire::kOn : wire::kOff); });
    connect(page, &Settings::setLanguageRequested, this, &Window::setLanguageRequested);
    connect(page, &Settings::checkUpdateRequested, this, &Window::checkUpdateRequested);
    connect(page, &Settings::setProxyListenersRequested, this, &Window::setProxyListenersRequested);
    connect(page, &Settings::setSplitDNSLocalRequested, this, &Window::setSplitDNSLocalRequested);
    connect(page, &Settings::setSplitDNSPolicyRequested, this, &Window::setSplitDNSPolicyRequested);
    connect(page, &Settings::clearSplitDNSLocalRequested, this,
            &Window::clearSplitDNSLocalRequested);
    connect(page, &Settings::resetSplitDNSRequested, this, &Window::resetSplitDNSRequested);
    connect(page, &Settings::repairDiagnosticsRequested, this, &Window::repairDiagnosticsRequested);
    connect(page, &Settings::openLogsRequested, this, &Window::openLogsRequested);
    connect(page, &Settings::openExternalURLRequested, this, &Window::openExternalURLRequested);
    connect(page, &Settings::appearancePreferenceRequested, this, &Window::setAppearancePreference);
    connect(page, &Settings::showWindowOnLaunchRequested, this, &Window::setShowOnLaunch);
    connect(page, &Settings::launchAtLoginRequested, this, &Window::setLaunchAtLogin);
}

void MainWindow::connectAccountPage()
{
    connect(m_account, &AccountPage::loginRequested, this, &MainWindow::loginRequested);
    connect(m_account, &AccountPage::logoutRequested, this, &MainWindow::logoutRequested);
    connect(m_account, &AccountPage::renewRequested, this,
            [this] { Q_EMIT purchaseURLRequested(m_preferences.lastEffectiveLanguage()); });
    connect(m_account, &AccountPage::signUpRequested, this,
            [this] { openVendorPage(u"signup"_s); });
    connect(m_account, &AccountPage::forgotPasswordRequested, this,
            [this] { openVendorPage(u"forgot-password"_s); });
}

void MainWindow::openVendorPage(const QString &path)
{
    Q_EMIT openExternalURLRequested(QUrl(u"https://%1/%2"_s.arg(control::kVendorHost, path)));
}

void MainWindow::setLaunchAtLogin(bool launch)
{
    QString error;
    if (!GuiAutostart().reconcile(launch, &error)) {
        // The switch goes back: it must not promise what will not happen.
        showSettingsFailure(error);
    } else if (!m_preferences.setLaunchAtLogin(launch)) {
        showSettingsFailure({});
    }
    m_settings->redraw();
}

void MainWindow::setShowOnLaunch(bool show)
{
    if (!m_preferences.setShowOnLaunch(show)) {
        showSettingsFailure({});
    }
    m_settings->redraw();
}

void MainWindow::showSettingsFailure(const QString &message)
{
    const QString text = message.isEmpty()
                             ? tr("The setting holds until Vantu quits; it could not be saved.")
                             : message;
    showPageError(Page::Settings, text);
    showNotice(text, NoticeKind::Error, kPreferencesFailureMs);
}
