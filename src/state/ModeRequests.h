#pragma once

#include "ModeRecords.h"

#include <QString>

/// Builds the requests of mode changes, and judges the answers. The daemon replaces a
/// split profile as a whole and a request can't say "off" for a single member, so that
/// each change sends the whole current profile with the one member changed.
namespace moderequest {

ModeInfo autoMode();
ModeInfo wireGuard();
ModeInfo vantuVPNGlobal();
ModeInfo vantuVPNSplit(const ModeInfo &current);
ModeInfo proxyGlobal();
ModeInfo proxySplit(const ModeInfo &current);

/// The split profile in force for VantuVPN, or else the last one, or else one
/// that sends everything through the tunnel.
SplitProfile vantuVPNProfile(const ModeInfo &current);
/// The same for the proxy.
SplitProfile proxyProfile(const ModeInfo &current);

/// Requests of a split mode with the given profile in place of the current one.
ModeInfo vantuVPNSplitWith(const SplitProfile &profile);
ModeInfo proxySplitWith(const SplitProfile &profile);

/// The regions that count under a profile's default route: those sent direct
/// when the default is a tunnel or proxy, those sent through it otherwise.
QStringList regionsInForce(const SplitProfile &profile);

/// The profile with `region` (compared without regard to case) put in or taken
/// out of the regions in force. A spelling that is already listed is kept; a new
/// code is written upper-case.
SplitProfile withRegionToggled(SplitProfile profile, const QString &region);

/// The profile with the regions in force replaced by `regions`.
SplitProfile withRegions(SplitProfile profile, const QStringList &regions);

/// What the change of a single preference asks for, to be compared with its answer.
ModeInfo localNetwork(const QString &value);
ModeInfo systemProxy(const QString &value);

/// Whether the mode the daemon reports shows what `request` asked for; only the
/// members that the request set are compared.
bool isShownBy(const ModeInfo &request, const ModeInfo &answer);
/// The same for the kill switch: its mode if the request names one, else on or off.
bool isShownBy(const KillSwitchInfo &request, const KillSwitchInfo &answer);

} // namespace moderequest
