#pragma once

#include "ColorScheme.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QString>

class QDBusPendingCallWatcher;

/// Asks the desktop portal which colour scheme the user chose, and listens for
/// changes. Never blocks on the portal: answers arrive as signals.
class PortalColorScheme final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PortalColorScheme)

public:
    explicit PortalColorScheme(const QDBusConnection &bus, QObject *parent = nullptr);

    /// Sends the question; `answered` follows if there is a portal that knows this setting.
    /// It is asked anew of one that comes later.
    void ask();

Q_SIGNALS:
    /// The scheme in force: the answer to ask(), and again at every change. A portal
    /// without preference, or with a value from the future, answers Unknown.
    void answered(ColorScheme scheme);

private Q_SLOTS:
    void onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void onReadFinished(QDBusPendingCallWatcher *watcher);

    QDBusConnection m_bus;
};
