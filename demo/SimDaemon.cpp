#include "SimDaemon.h"

#include "SimRoutes.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kControlVersion = "1";
constexpr auto kOtherControlVersion = "2";

} // namespace

SimDaemon::SimDaemon(const SimOptions &options)
    : m_timeline(options.pace)
    , m_model(options, m_timeline)
    , m_onQuit(options.onQuit)
    , m_latency(options.latencyMs)
    , m_lastRequest(SimTimeline::Clock::now())
{}

void SimDaemon::advance()
{
    if (m_timeline.advance(SimTimeline::Clock::now())) {
        m_changed.notify_all();
    }
}

void SimDaemon::pause(Lock &lock, SimTimeline::Clock::duration duration)
{
    if (duration > SimTimeline::Clock::duration::zero()) {
        m_changed.wait_for(lock, duration, [this] { return m_down; });
    }
}

SimReply SimDaemon::refusalByVersion() const
{
    SimReply reply = SimReply::error(409, u"this client speaks another control version"_s);
    reply.headers = {
        {"X-Vantu-Control-Version",
         m_model.scenario().incompatible ? kOtherControlVersion : kControlVersion},
        {"X-Vantu-Daemon-Version", m_model.versionJson().value(u"version"_s).toString().toUtf8()}};
    return reply;
}

SimReply SimDaemon::handle(const SimRequest &request)
{
    Lock lock(m_mutex);
    ++m_openRequests;
    SimReply reply = answer(lock, request);
    --m_openRequests;
    m_lastRequest = SimTimeline::Clock::now();
    return reply;
}

SimReply SimDaemon::answer(Lock &lock, const SimRequest &request)
{
    pause(lock, m_latency);
    if (m_faults.contains(request.path)) {
        return m_faults.take(request.path);
    }
    if (m_model.scenario().incompatible || request.controlVersion != kControlVersion) {
        return refusalByVersion();
    }
    if (m_model.scenario().oldDaemon && request.path == "/v1/kill-switch/mode"_L1) {
        SimReply reply;
        reply.status = 404;
        reply.contentType = "text/plain";
        reply.body = "404 page not found\n";
        return reply;
    }
    const SimMatch match = matchSimRoute(request);
    if (!match.route) {
        return match.refusal;
    }
    pause(lock, m_timeline.scaled(match.route->effortMs));
    advance();
    SimReply reply = match.route->run(m_model, match.call);
    m_changed.notify_all(); // it may have given up what another request waits for
    while (reply.pending) {
        advance();
        if (!reply.pending() || m_down) {
            reply = reply.finish();
        } else if (const auto next = m_timeline.next()) {
            m_changed.wait_until(lock, *next);
        } else {
            m_changed.wait(lock);
        }
    }
    return reply;
}

QString SimDaemon::commandHelp()
{
    return uR"(scenario NAME                    start over in another scenario
drop                             lose the tunnel; it is looked for again
catalogue refresh                refresh the locations
update fail TEXT                 break a running client download off
set latency MS                   delay every answer
set pace FACTOR                  stretch (or below 1 shorten) every duration
set fail-next PATH STATUS TEXT   answer the next request to PATH with an error
status                           print the status record
quit                             end the program
)"_s;
}

QString SimDaemon::command(const QString &line)
{
    const QStringList words = line.simplified().split(u' ');
    if (words == QStringList{u"quit"_s}) {
        if (m_onQuit) {
            m_onQuit();
        }
        return u"ok"_s;
    }
    const Lock lock(m_mutex);
    advance();
    if (words == QStringList{u"status"_s}) {
        return QString::fromUtf8(
            QJsonDocument(m_model.statusJson()).toJson(QJsonDocument::Compact));
    }
    const QString problem = change(words);
    m_changed.notify_all();
    return problem.isEmpty() ? u"ok"_s : u"error: "_s + problem;
}

QString SimDaemon::change(const QStringList &words)
{
    const QString what = words.mid(0, 2).join(u' ');
    bool number = true;
    if (words.first() == "scenario"_L1 && words.size() == 2) {
        const SimScenario *scenario = SimScenario::find(words.at(1));
        if (!scenario) {
            return u"no such scenario"_s;
        }
        m_model.reset(*scenario);
    } else if (words == QStringList{u"drop"_s}) {
        if (!m_model.tunnel().isConnected()) {
            return u"not connected"_s;
        }
        m_model.tunnel().drop(u"dropped by command"_s);
    } else if (what == "catalogue refresh"_L1 && words.size() == 2) {
        m_model.refreshCatalog();
    } else if (what == "update fail"_L1) {
        m_model.update().fail(words.mid(2).join(u' '));
    } else if (what == "set latency"_L1 && words.size() == 3) {
        const int latency = words.at(2).toInt(&number);
        m_latency = std::chrono::milliseconds(number ? latency : 0);
    } else if (what == "set pace"_L1 && words.size() == 3) {
        const double pace = words.at(2).toDouble(&number);
        m_timeline.setPace(number ? pace : 1.0);
    } else if (what == "set fail-next"_L1 && words.size() >= 4) {
        const int status = words.at(3).toInt(&number);
        m_faults.insert(words.at(2),
                        SimReply::error(number ? status : 500, words.mid(4).join(u' ')));
    } else {
        return u"unknown command"_s;
    }
    return number ? QString() : u"not a number"_s;
}

void SimDaemon::shutDown()
{
    const Lock lock(m_mutex);
    m_down = true;
    m_changed.notify_all();
}

std::chrono::milliseconds SimDaemon::idleFor() const
{
    const Lock lock(m_mutex);
    if (m_openRequests > 0) {
        return {};
    }
    return std::chrono::duration_cast<std::chrono::milliseconds>(SimTimeline::Clock::now() -
                                                                 m_lastRequest);
}
