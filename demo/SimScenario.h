#pragma once

#include <QList>
#include <QString>

/// A situation that the simulated daemon starts in and the way it behaves then.
/// Durations are milliseconds at normal pace.
struct SimScenario
{
    QString name;
    QString summary; ///< One line for the list of scenarios.

    QString authState = QStringLiteral("logged_in");
    QString transport = QStringLiteral("auto");
    QString policy{}; ///< Of the transport; empty keeps that transport's usual one.
    QString killSwitch = QStringLiteral("off");
    QString language = QStringLiteral("en-US");
    int nodes = 140;
    int queuedMs = 300;
    int connectingMs = 1500;
    int uptimeMs = 0; ///< The tunnel is lost after this long; 0 keeps it up.
    bool connectFails = false;
    bool incompatible = false;
    bool oldDaemon = false; ///< Lacks the route of the kill switch's modes.
    bool staleCatalog = false;
    bool hostileNames = false;
    bool updateAvailable = false;
    bool updateForced = false;

    static const QList<SimScenario> &all();

    /// The scenario of that name, or null.
    static const SimScenario *find(const QString &name);
};
