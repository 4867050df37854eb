#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>

class AppState;
class CatalogController;

/// Fetches the nodes again and again while the daemon measures them and somebody is
/// looking at the result; sleeps otherwise.
class NodePingPoll final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(NodePingPoll)

public:
    static constexpr std::chrono::milliseconds kInterval{5000};

    /// All arguments must outlive the object.
    NodePingPoll(AppState &state, CatalogController &catalog, QObject *parent = nullptr);

    /// Somebody looks at places: a list of them is on the screen.
    void setWatched(bool watched);
    void setDaemonAvailable(bool available);
    void poll();

private:
    bool isWanted() const;
    void update();

    AppState &m_state;
    CatalogController &m_catalog;
    QTimer m_timer;
    bool m_watched = false;
    bool m_available = false;
};
