#pragma once

#include "AccessibleObject.h"

#include <QDBusConnection>
#include <QProcess>

#include <optional>

/// The accessibility bus of the desktop, as a screen reader joins it. Where none runs yet
/// it is started, and ended with this object.
class AccessibleDesktop final
{
    Q_DISABLE_COPY_MOVE(AccessibleDesktop)

public:
    AccessibleDesktop();
    ~AccessibleDesktop();

    /// Joins; false when the desktop has no accessibility bus to offer.
    bool start();

    /// The windows in sight of the program that says it has this name, newest first.
    QList<AccessibleObject> windows(const QString &program) const;

    /// Types as a person does, into whatever has the keyboard.
    void type(const QString &text) const;
    /// Presses a key by its X key symbol, such as 0xff0d for Return.
    void pressKey(int keySymbol) const;

private:
    QString busAddress() const;
    void sendKeys(int keySymbol, const QString &text, uint kind) const;

    QProcess m_launcher;
    std::optional<QDBusConnection> m_bus;
};
