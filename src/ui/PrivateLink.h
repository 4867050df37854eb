#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QUrl>

#include <functional>

/// Opens links that nobody else may see, such as one with an access token.
///
/// The desktop's portal takes them over the user's own bus, whereas the command line of
/// any program can be read by everybody on the machine. Lives on the GUI thread.
class PrivateLink final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PrivateLink)

public:
    explicit PrivateLink(const QDBusConnection &bus, QObject *parent = nullptr);

    /// Hands `url` to the portal and calls `refused` if there is none that takes it.
    void open(const QUrl &url, std::function<void()> refused);

private:
    QDBusConnection m_bus;
};
