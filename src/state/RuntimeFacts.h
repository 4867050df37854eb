#pragma once

#include "CatalogRecords.h"
#include "ModeRecords.h"
#include "RuntimeRecords.h"

#include <QLatin1StringView>
#include <QString>

class AppState;

/// What the daemon's records mean. Every face of the program asks here, so that
/// the tray and the window can never disagree about the connection.
namespace facts {

/// The daemon's words are compared as they are meant: blanks around them and their case
/// don't count.
bool isWord(const QString &text, QLatin1StringView word);

/// The record says how the daemon is. Answers to changes may come without that, and then
/// are no news of it.
bool tellsState(const RuntimeInfo &runtime);

/// One of the state fields says so in as many words.
bool reportsConnected(const RuntimeInfo &runtime);

/// The word of a state field for a connection on the way.
bool isPendingState(const QString &state);

/// The connection is up: a state field says so, or an active node connection is
/// reported. In a VPN mode a tunnel that the daemon calls down is never counted
/// as up, whatever node it still names.
bool isConnected(const RuntimeInfo &runtime);

/// Not connected, and on the way there.
bool isPending(const RuntimeInfo &runtime);

/// The account may connect.
bool isSignedIn(const RuntimeInfo &runtime);

bool isProxyMode(const ModeInfo &mode);
bool isVantuVPNMode(const ModeInfo &mode);

/// The choice that a system-proxy value stands for, compared exactly: "lock" or "on", and
/// "off" for anything else, nothing included.
QLatin1StringView systemProxyChoice(const QString &value);

/// A VantuVPN or proxy mode that divides traffic.
bool isSplit(const ModeInfo &mode);

/// The node that the next connect uses: the status wins over the catalogue,
/// which is fetched more rarely. Empty when the daemon chooses by itself.
NodeEntry effectiveSelected(const RuntimeInfo &runtime, const NodesInfo &nodes);

/// The node in use; empty unless connected.
NodeEntry effectiveConnected(const RuntimeInfo &runtime, const NodesInfo &nodes);

/// The kill switch: its own answers are the authority, the copy inside the
/// status serves only while there is none.
const KillSwitchInfo &effectiveKillSwitch(const AppState &state);

/// The kill switch holds traffic back (on or lockdown).
bool isKillSwitchOn(const KillSwitchInfo &killSwitch);
bool isLockdown(const KillSwitchInfo &killSwitch);

} // namespace facts
