#pragma once

#include "SimCatalog.h"
#include "SimFiles.h"
#include "SimOptions.h"
#include "SimProxy.h"
#include "SimReply.h"
#include "SimRouting.h"
#include "SimScenario.h"
#include "SimSettings.h"
#include "SimSplit.h"
#include "SimTimeline.h"
#include "SimTunnel.h"
#include "SimUpdate.h"

#include <memory>

/// Everything that the simulated daemon knows, and what each request does to it.
/// One model stands behind all endpoints, so their answers always agree. Not
/// thread-safe: SimDaemon holds its lock around every call.
class SimModel final
{
public:
    /// The scenario must be a known one.
    SimModel(const SimOptions &options, SimTimeline &timeline);

    /// Starts over in another scenario; connects under way are given up.
    void reset(const SimScenario &scenario);

    const SimScenario &scenario() const { return *m_scenario; }
    SimTunnel &tunnel() { return m_tunnel; }
    SimUpdate &update() { return m_parts->update; }
    SimSettings &settings() { return m_parts->settings; }
    SimRouting &routing() { return m_parts->routing; }

    QJsonObject versionJson() const;
    QJsonObject statusJson() const;
    QJsonObject pathsJson() const { return m_files.pathsJson(m_options.socketPath); }

    SimReply connect(const QJsonObject &body);
    SimReply disconnect();

    SimReply login(const QString &username, const QString &password);
    SimReply logout();
    SimReply user() const;
    SimReply purchaseUrl(const QString &language) const;

    SimReply nodes() const;
    SimReply groups() const;
    SimReply refreshCatalog();
    SimReply setFavorite(const QString &nodeId, bool favorite);

    SimReply mode() const;
    SimReply setMode(const QJsonObject &request);
    SimReply setKillSwitch(const QString &mode);
    SimReply setListeners(const QJsonArray &listeners);
    SimReply setAutoConnect(const QString &value);

    const SimSplit &split() const { return m_parts->split; }
    SimReply importRules(const QString &kind, const QString &content);
    SimReply setDnsServers(const QJsonArray &servers);
    SimReply setDnsPolicy(const QString &policy);
    SimReply clearDnsServers();
    SimReply resetDns();

    SimReply repairKillSwitch() const;
    SimReply repairProxy(bool force) const;
    SimReply repairTunnel();

private:
    /// What a change of scenario makes anew.
    struct Parts
    {
        Parts(const SimModel &model, SimTimeline &timeline);

        SimCatalog catalog;
        SimRouting routing;
        SimProxy proxy;
        SimSettings settings;
        SimSplit split;
        SimUpdate update;
        QString auth;
        QString account;
        QString selectedId;
        bool stale = false;
        bool refreshing = false;
        int pingSecondsLeft = 0;
    };

    bool isSignedIn() const;
    bool isSplitRunning() const;
    QString connectedId() const;
    SimRefusal chooseTarget(const QJsonObject &body, QString &nodeId, QString &source,
                            QString &target);
    SimReply startConnect(const QString &nodeId, const QString &source, const QString &target);

    /// Answers with the record; when the change needs a new tunnel, once that is
    /// settled.
    SimReply afterRouting(bool reconnect, std::function<QJsonObject()> record);

    void startPingRun();
    void ping();

    const SimOptions m_options;
    const SimScenario *m_scenario;
    SimTimeline &m_timeline;
    SimFiles m_files;
    SimTunnel m_tunnel;
    std::unique_ptr<Parts> m_parts;
};
