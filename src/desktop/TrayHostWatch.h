#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QTimer>

/// Tells when the desktop's tray comes, and asks Qt about it only then.
///
/// Qt keeps its first answer about the tray for as long as a process lives, and makes an
/// icon for that kind of tray alone: asked too early, it would never show one. Both kinds
/// are looked for, the StatusNotifier host on the session bus and the X11 desktop's old
/// tray. Lives on the GUI thread.
class TrayHostWatch final : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TrayHostWatch)

public:
    explicit TrayHostWatch(QObject *parent = nullptr);
    ~TrayHostWatch() override;

    /// A tray of either kind is there now. Waits at most half a second for the bus.
    static bool isHostPresent();
    /// The same, and Qt can put an icon there.
    static bool isTrayAvailable();

    /// Begins to wait; false where no tray is to be expected, with neither a session bus
    /// nor an X11 display.
    bool start();

Q_SIGNALS:
    /// A host has come, or another one.
    void hostAppeared();

private Q_SLOTS:
    /// Asks a watcher on the bus for its host, without waiting.
    void ask();

private:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    void watchBus();
    void handleWatcherAppeared();

    bool m_isStarted = false;
    QTimer m_retry; ///< For watchers that don't tell when their host comes.
    int m_retriesLeft = 0;
};
