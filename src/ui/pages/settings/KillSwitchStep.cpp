#include "KillSwitchStep.h"

#include "ControlProtocol.h"
#include "ModeRecords.h"
#include "RuntimeFacts.h"

QString killSwitchChoice(const KillSwitchInfo &killSwitch)
{
    const QString mode = killSwitch.mode.trimmed().toLower();
    return !mode.isEmpty()      ? mode
           : killSwitch.enabled ? QString(wire::kKillSwitchOn)
                                : QString(wire::kKillSwitchOff);
}

bool isVantuVPNSplit(const ModeInfo &mode)
{
    return facts::isVantuVPNMode(mode) && facts::isSplit(mode);
}

KillSwitchStep killSwitchStep(const KillSwitchInfo &killSwitch, const ModeInfo &mode,
                              const QString &wanted)
{
    if (!killSwitch.known || killSwitchChoice(killSwitch) == wanted) {
        return KillSwitchStep::Nothing;
    }
    const bool isProxy = facts::isProxyMode(mode);
    if (wanted == wire::kKillSwitchLockdown) {
        if (isProxy) {
            return KillSwitchStep::RefuseLockdown;
        }
        return isVantuVPNSplit(mode) || mode.localNetwork == wire::kLocalNetworkDirect
                   ? KillSwitchStep::ConfirmLockdown
                   : KillSwitchStep::SetLockdown;
    }
    if (wanted == wire::kKillSwitchOn) {
        if (facts::isLockdown(killSwitch)) {
            return KillSwitchStep::LeaveLockdown;
        }
        return isProxy ? KillSwitchStep::ChooseMode : KillSwitchStep::Enable;
    }
    return wanted == wire::kKillSwitchOff ? KillSwitchStep::ConfirmOff : KillSwitchStep::Nothing;
}
