#pragma once

#include <QString>

struct KillSwitchInfo;
struct ModeInfo;

/// What comes next when the user picks a state of the kill switch.
enum class KillSwitchStep {
    Nothing,         ///< It is so already, or nobody knows what it is.
    RefuseLockdown,  ///< Lockdown can't be had in a proxy mode.
    ConfirmLockdown, ///< Lockdown would change other settings.
    SetLockdown,
    LeaveLockdown, ///< From lockdown back to on.
    ChooseMode,    ///< On, in a proxy mode, which excludes it.
    Enable,
    ConfirmOff,
};

/// The kill switch as one of its choices: "off", "on" or "lockdown".
QString killSwitchChoice(const KillSwitchInfo &killSwitch);

/// `wanted` is one of the choices.
KillSwitchStep killSwitchStep(const KillSwitchInfo &killSwitch, const ModeInfo &mode,
                              const QString &wanted);

/// VantuVPN divides traffic, which the kill switch can't hold back.
bool isVantuVPNSplit(const ModeInfo &mode);
