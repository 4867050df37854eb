#pragma once

#include <QByteArray>
#include <QString>

/// What a launcher gives the program that it starts, so that the desktop knows the window
/// that comes to the front as the user's own wish.
///
/// A second launch leaves its token to the running client in a file of the user's
/// run-time folder, before it asks that client to come forward.
class LaunchToken final
{
public:
    LaunchToken() = default;
    /// A part that is too long, or not printable ASCII throughout, counts as empty.
    LaunchToken(const QByteArray &activation, const QByteArray &startupId);

    /// Of this process's own launch. To be read before the application object is made,
    /// which may take it out of the environment.
    static LaunchToken fromEnvironment();

    /// Where tokens for this instance's name lie; empty without a run-time folder.
    static QString filePath(const QString &instanceName);

    /// Takes the token that was left there, and the file away. Empty unless it is a
    /// regular file of the user's alone, no older than ten seconds.
    static LaunchToken take(const QString &path);

    /// Puts the token there, whole or not at all; false when that failed. Does nothing
    /// with an empty token.
    bool leave(const QString &path) const;

    /// The next window that asks to come forward uses the Wayland part.
    void useForNextWindow() const;
    /// No window uses the token of this process's own launch any more.
    static void forgetOwn();

    bool isEmpty() const { return m_activation.isEmpty() && m_startupId.isEmpty(); }
    /// For Wayland: XDG_ACTIVATION_TOKEN, or else DESKTOP_STARTUP_ID, where launchers
    /// built on GLib before 2.76 put their token.
    const QByteArray &activation() const { return m_activation; }
    /// For X11: DESKTOP_STARTUP_ID.
    const QByteArray &startupId() const { return m_startupId; }

private:
    QByteArray m_activation;
    QByteArray m_startupId;
};
