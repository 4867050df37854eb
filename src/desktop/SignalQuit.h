#pragma once

#include <QObject>

/// Turns the signals by which a session, a terminal or an administrator ends a program
/// (SIGTERM, SIGINT, SIGHUP) into a wish to quit that the event loop handles.
///
/// A signal that was ignored when the program started stays ignored. One object a
/// process; lives on the GUI thread. Its end gives the signals their effect back.
class SignalQuit final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SignalQuit)

public:
    explicit SignalQuit(QObject *parent = nullptr);
    ~SignalQuit() override;

    /// A signal has come and was told.
    bool isRequested() const { return m_isRequested; }

Q_SIGNALS:
    /// Told in the event loop, also in a nested one; once for several signals that came
    /// before it.
    void requested();

private:
    void handleReadable();

    int m_ends[2] = {-1, -1}; ///< The handler writes into the second.
    bool m_isRequested = false;
};
