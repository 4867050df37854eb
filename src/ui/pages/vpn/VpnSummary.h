#pragma once

#include "ConnectProgress.h"
#include "PendingConnectTarget.h"
#include "PrimaryAction.h"

#include <QString>

class AppState;
class QDateTime;

/// What the window knows about the connection beyond the daemon's records.
struct VpnSituation
{
    bool available = false;    ///< The daemon answers.
    QString unavailableReason; ///< Why it doesn't; empty before anything is known.
    ConnectProgress progress;
    PendingConnectTarget target; ///< Counts only while a connect is in progress.
    QString connectError;        ///< Why the last connect failed; may be empty.
};

/// Every text of the VPN page that depends on the state, as plain single lines.
struct VpnSummary
{
    PrimaryAction action;
    QString detail;
    bool detailIsError = false;
    bool countsTime = false; ///< `detail` holds the time since the connection came up.
    QString flagCode;        ///< Of the place in use or on the way; may be empty.
    QString location;
    QString mode;
    QString killSwitch;
    QString localNetwork;

    bool operator==(const VpnSummary &) const = default;
};

/// Derives the page's texts. `now` is for the time connected (UTC).
VpnSummary vpnSummary(const AppState &state, const VpnSituation &situation, const QDateTime &now);

/// How the automatic choice of a place is called.
QString smartSelectText();
