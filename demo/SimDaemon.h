#pragma once

#include "SimModel.h"
#include "SimOptions.h"
#include "SimReply.h"
#include "SimTimeline.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <chrono>
#include <condition_variable>
#include <mutex>

/// The simulated daemon without its sockets: one model under one lock. Requests
/// may come from any thread; one that has to wait lets the others pass.
class SimDaemon final
{
public:
    /// The options' scenario must be a known one.
    explicit SimDaemon(const SimOptions &options);

    /// Answers one request. Blocks for as long as the answer takes.
    SimReply handle(const SimRequest &request);

    /// Carries out a command line of the control socket; returns one line.
    QString command(const QString &line);

    /// What command() understands, for the program's help.
    static QString commandHelp();

    /// Lets every waiting request answer at once; later ones do not wait either.
    void shutDown();

    /// Time since the last request was answered; none while one is open.
    std::chrono::milliseconds idleFor() const;

private:
    using Lock = std::unique_lock<std::mutex>;

    void advance();
    SimReply answer(Lock &lock, const SimRequest &request);
    void pause(Lock &lock, SimTimeline::Clock::duration duration);
    SimReply refusalByVersion() const;
    QString change(const QStringList &words);

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    SimTimeline m_timeline;
    SimModel m_model;
    std::function<void()> m_onQuit;
    QHash<QString, SimReply> m_faults; // answers of the next request, by path
    std::chrono::milliseconds m_latency{0};
    SimTimeline::Clock::time_point m_lastRequest;
    int m_openRequests = 0;
    bool m_down = false;
};
