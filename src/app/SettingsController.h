#pragma once

#include "RequestLink.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

class AppState;
class NoticeSink;
class ServiceCompatibility;

/// The settings that the daemon keeps and that don't concern the connection itself:
/// service address, auto-connect, proxy listeners, split DNS; and the repair. One change
/// at a time.
class SettingsController final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SettingsController)

public:
    /// All arguments must outlive the object.
    SettingsController(RequestLink &link, AppState &state, NoticeSink &notices,
                       ServiceCompatibility &compatibility, QObject *parent = nullptr);

    bool isBusy() const { return m_busy; }

    /// Reads everything that the settings page shows and the status doesn't tell. Failures
    /// are told only if the user waits.
    void fetch(bool tellFailure);
    /// Reads where the daemon keeps its files.
    void fetchConfigPaths(bool tellFailure);
    /// Reads again, quietly, what may be another than is held: a change that failed may
    /// have been made all the same, and the status may name another service. To be called
    /// whenever the status came.
    void fetchOutdated();

    void setAPIURL(const QString &apiURL);
    void resetAPIURL();
    void setAutoConnect(const QString &value);
    void setProxyListeners(const QString &socksAddress, const QString &httpAddress);
    void setSplitDNSLocal(const QStringList &servers);
    void setSplitDNSPolicy(const QString &policy);
    void clearSplitDNSLocal();
    void resetSplitDNS();
    void repair();
    /// Shows the daemon's logs, after asking where they are if that isn't known.
    void openLogs();

    /// Answers that the link still awaited.
    void handleAPIURL(ControlRequest request, const APIURLConfigInfo &info, const QString &error);
    void handleAutoConnect(const AutoConnectConfigInfo &info, const QString &error);
    void handleProxyListen(const ProxyListenResultInfo &info, const QString &error);
    void handleSplitDNS(ControlRequest request, const SplitDNSInfo &info, const QString &error);
    void handleRepair(const RepairResultInfo &info, const QString &error);
    void handleConfigPaths(const ConfigPaths &paths, const QString &error);

Q_SIGNALS:
    void busyChanged(bool busy);
    /// The status may be another now.
    void statusOutdated();
    /// Another service answers from now on.
    void serviceChanged();
    void logDirectoryRequested(const ConfigPaths &paths);

private:
    template<class... Args>
    void change(ControlRequest request, const Args &...args);
    void setBusy(bool busy);
    /// Ends the change; returns whether it succeeded, else tells why not.
    bool finish(const QString &error, const QString &failure);

    RequestLink &m_link;
    AppState &m_state;
    NoticeSink &m_notices;
    ServiceCompatibility &m_compatibility;
    bool m_busy = false;
    bool m_outdated = false;
    bool m_serviceKnown = false;
    std::optional<QString> m_toldAPIURL; ///< By the status.
    bool m_tellPathsFailure = false;
    bool m_openLogsWhenKnown = false;
};
