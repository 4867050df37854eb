#pragma once

#include <QFlags>
#include <QString>

#include <optional>

/// Where the user asked for an operation that the shell carries out. Its failure is
/// told there and only there.
enum class OperationOrigin { Tray, Window };

/// What may lock the tray's menu.
enum class TrayBusy {
    Connect = 1, ///< Connect, cancel or disconnect.
    Logout = 2,
    Mode = 4, ///< Mode, routing, system proxy or local network.
    KillSwitch = 8,
    External = 16, ///< An operation of the shell's that the tray knows no more of.
};

/// An operation that the shell carries out and the tray watches.
struct ShellOperation
{
    quint64 requestId = 0;
    OperationOrigin origin = OperationOrigin::Window;
};

/// Which operations run just now, as far as they concern the tray.
class TrayOperations final
{
public:
    bool any() const { return m_busy != QFlags<TrayBusy>{}; }
    bool has(TrayBusy kind) const { return m_busy.testFlag(kind); }
    /// Of the operation begun last; empty when none runs or it has none.
    const QString &progressText() const { return m_progressText; }
    bool isConnectCancellable() const { return m_cancellable; }

    void begin(TrayBusy kind, const QString &progressText);
    void end(TrayBusy kind);

    /// Takes the place of an earlier operation of the shell's that hasn't ended.
    void beginShell(TrayBusy kind, const ShellOperation &operation, const QString &progressText,
                    bool cancellable);
    /// Ends the shell's operation and returns it, if it is the one with this id.
    std::optional<ShellOperation> endShell(quint64 requestId);
    /// A connect under way can't be cancelled any more: the daemon is gone.
    void forbidCancel() { m_cancellable = false; }

private:
    QFlags<TrayBusy> m_busy;
    QString m_progressText;
    std::optional<ShellOperation> m_shell;
    bool m_cancellable = false;
};
