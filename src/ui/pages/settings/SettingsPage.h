#pragma once

#include "RestingFocus.h"
#include "SettingsSituation.h"

#include <QStringList>
#include <QUrl>
#include <QWidget>

class AboutSection;
class AdvancedSection;
class AppearanceSection;
class AppState;
class DiagnosticsSection;
class GeneralSection;
class GuiPreferences;
class KillSwitchSection;
class LanguageSection;
class PageScrollArea;
class ProxySection;
class QLabel;
class SplitDNSSection;
class Theme;
struct ThemePalette;

/// The page of all that can be set: start-up, kill switch, proxy, split DNS, look,
/// language, service address, diagnostics, and what this program is.
///
/// Shows what the store and the preferences say and never what was clicked; the fields
/// that the user types in keep their text until it was taken. Whatever the user wants
/// leaves it as a signal. Lives on the GUI thread.
class SettingsPage final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SettingsPage)

public:
    /// All must outlive the page.
    SettingsPage(AppState &state, GuiPreferences &preferences, Theme &theme,
                 QWidget *parent = nullptr);

    void applyThemePalette(const ThemePalette &palette);
    /// While the daemon is away its values stay readable; `reason` stands above them.
    void setDaemonAvailable(bool available, const QString &reason);

    /// A change of a setting is on its way to the daemon.
    void setRequestInFlight(bool inFlight);
    /// The daemon looks for a newer client.
    void setUpdateCheckInFlight(bool inFlight);
    /// Why the last change failed; stays until the next one. An empty message becomes
    /// "Settings operation failed".
    void showOperationError(const QString &message);
    /// Shows the store and the preferences anew, also where nothing changed: a control
    /// that the user moved goes back.
    void redraw();
    /// Brings the kill switch section into view and the keyboard to it.
    void showKillSwitch();

Q_SIGNALS:
    void openRoutingModeRequested();
    void setKillSwitchEnabledRequested(bool enabled);
    void setKillSwitchModeRequested(const QString &mode);
    void switchToAutoAndEnableKillSwitchRequested();
    void chooseModeForKillSwitchRequested();
    void setSystemProxyRequested(const QString &value);
    void setAPIURLRequested(const QString &apiURL);
    void resetAPIURLRequested();
    void setAutoConnectRequested(bool value);
    void setLanguageRequested(const QString &source, const QString &language);
    void checkUpdateRequested();
    void setProxyListenersRequested(const QString &socksAddress, const QString &httpAddress);
    void setSplitDNSLocalRequested(const QStringList &servers);
    void setSplitDNSPolicyRequested(const QString &policy);
    void clearSplitDNSLocalRequested();
    void resetSplitDNSRequested();
    void repairDiagnosticsRequested();
    void openLogsRequested();
    void openExternalURLRequested(const QUrl &url);
    void appearancePreferenceRequested(const QString &preference);
    void showWindowOnLaunchRequested(bool show);
    void launchAtLoginRequested(bool launch);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void buildMessage();
    void buildContent(AppState &state, GuiPreferences &preferences, Theme &theme);
    void connectState(const AppState &state);
    void connectSections();
    void connectInputs();
    template<typename Section, typename... Arguments>
    void forward(Section *section, void (Section::*request)(Arguments...),
                 void (SettingsPage::*signal)(Arguments...));

    void render();
    void renderMessage();
    void showError(const QString &message);
    void clearError();

    SettingsSituation m_situation;
    QString m_error;
    RestingFocus m_focus;
    QLabel *m_message = nullptr;
    PageScrollArea *m_scroll = nullptr;
    GeneralSection *m_general = nullptr;
    KillSwitchSection *m_killSwitch = nullptr;
    ProxySection *m_proxy = nullptr;
    SplitDNSSection *m_splitDNS = nullptr;
    AppearanceSection *m_appearance = nullptr;
    LanguageSection *m_language = nullptr;
    AdvancedSection *m_advanced = nullptr;
    DiagnosticsSection *m_diagnostics = nullptr;
    AboutSection *m_about = nullptr;
};
