#pragma once

#include "AppState.h"
#include "ControlWorkerPool.h"
#include "ScriptedDaemon.h"
#include "SharedTheme.h"
#include "VantuTrayApp.h"

#include <QSignalSpy>
#include <QTest>

using Reply = ScriptedDaemon::Reply;

inline constexpr auto kStatus =
    R"({"tunnel_state":"%1","auth_state":"logged_in","mode":{"transport":
    "%2","policy":"split","system_proxy":"off","local_network":"direct","split_profile":
    {"default_route":"tunnel","direct_regions":["CN"],"gfwlist":true}}})";
inline constexpr auto kNodes = R"({"nodes":[{"id":"a","name":"Tokyo & <b>Co</b>","region":"JP"},
    {"id":"b","name":"Reno\nNevada\u202e","region":"US","tags":["p2p"]}],
    "selected":{"id":"a","name":"Tokyo","region":"JP"}})";

inline QByteArray status(const QByteArray &tunnel, const QByteArray &transport = "vantuvpn")
{
    return QByteArray(kStatus).replace("%1", tunnel).replace("%2", transport);
}

/// An answer that waits for the daemon's release().
inline Reply heldJson(const QByteArray &body)
{
    return Reply::nothing().hold().send("HTTP/1.1 200 OK\r\nContent-Length: " +
                                        QByteArray::number(body.size()) + "\r\n\r\n" + body);
}

/// A tray behind real workers that talk to a scripted daemon, on the test's desktop.
struct Desk
{
    Desk()
        : pool(daemon.socketName())
        , tray(state, pool.workers(), preferences, theme)
    {
        daemon.setDefault("GET /v1/status", Reply::json(status("disconnected")));
        daemon.setDefault("GET /v1/nodes", Reply::json(kNodes));
        daemon.setDefault("GET /v1/nodes/groups", Reply::json(R"({"tabs":[]})"));
        daemon.setDefault("GET /v1/user", Reply::json(R"({"email":"me_too@example.org"})"));
        daemon.setDefault("GET /v1/kill-switch", Reply::json(R"({"enabled":false})"));
    }

    /// Starts, and waits until the first poll has brought everything.
    bool start()
    {
        tray.start();
        tray.setDaemonAvailable(true, {});
        return QTest::qWaitFor([this] {
            return state.user().email == QLatin1String("me_too@example.org") &&
                   !state.nodes().nodes.isEmpty() && state.killSwitch().known &&
                   daemon.routes().contains("GET /v1/nodes/groups");
        });
    }
    bool poll(const QByteArray &answer) { return poll(Reply::json(answer)); }
    bool poll(const Reply &answer)
    {
        daemon.setDefault("GET /v1/status", answer);
        QSignalSpy polled(&tray, &VantuTrayApp::statusPolled);
        tray.pollSoon(); // Drops an answer under way, which may still be the old one.
        tray.refreshStatus();
        return polled.wait();
    }
    /// From now on a status doesn't come, so that a notification can be read until it is
    /// given up, 1.5 s later.
    void holdPolls() { daemon.setDefault("GET /v1/status", heldJson(status("held"))); }
    /// Body of the last request of a route; empty when there was none.
    QByteArray body(const QByteArray &route) const
    {
        const qsizetype index = daemon.routes().lastIndexOf(route);
        const QByteArray request = index < 0 ? QByteArray() : daemon.requests().at(index);
        return request.mid(request.indexOf("\r\n\r\n") + 4);
    }

    ScriptedDaemon daemon;
    ControlWorkerPool pool;
    AppState state;
    GuiPreferences preferences;
    SharedTheme theme{[this] { return preferences.appearance(); }};
    VantuTrayApp tray;
};
