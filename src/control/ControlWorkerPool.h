#pragma once

#include "RequestLink.h"

#include <QObject>
#include <QThread>

#include <array>
#include <chrono>

/// Owns the three workers and the threads that they live on. Built and destroyed
/// on the GUI thread; starts the threads at once.
class ControlWorkerPool final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ControlWorkerPool)

public:
    /// How long the destructor waits for one thread.
    static constexpr std::chrono::milliseconds kThreadWait{2000};

    /// An empty socket name means the daemon's own.
    explicit ControlWorkerPool(const QString &socketName = {}, QObject *parent = nullptr);
    ~ControlWorkerPool() override;

    /// Dangling once shut down.
    const ControlWorkers &workers() const { return m_workers; }

    /// Cancels what runs, drops what is queued, and ends the threads. A thread
    /// that has not ended by then is left behind with a warning, since destroying
    /// a running thread would abort the process. Called by the destructor; safe to
    /// call twice.
    void shutDown();

private:
    std::array<QThread *, 3> m_threads{};
    ControlWorkers m_workers{}; ///< Each is deleted when its thread ends.
    bool m_isShutDown = false;
};
