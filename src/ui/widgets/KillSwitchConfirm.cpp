#include "KillSwitchConfirm.h"

std::unique_ptr<ConfirmDialog> KillSwitchConfirm::needsVpnMode(Theme &theme, QWidget *parent)
{
    const ConfirmTexts texts{
        .title = tr("Kill Switch needs a VPN mode"),
        .message = tr("Kill Switch can’t run in Vantu Proxy. Switch to Auto (recommended), "
                      "VantuVPN, or WireGuard to enable it."),
        .detail = {},
        .accept = {tr("Switch to Auto and enable"), tr("Switch to Auto and enable Kill Switch")},
        .destructive = false,
        .alternate = {tr("Choose mode…"), tr("Choose a mode for Kill Switch")},
        .reject = {tr("Cancel"), {}},
    };
    return std::make_unique<ConfirmDialog>(texts, theme, parent);
}

std::unique_ptr<ConfirmDialog> KillSwitchConfirm::needsKillSwitchOff(Theme &theme, QWidget *parent)
{
    const ConfirmTexts texts{
        .title = tr("Vantu Proxy needs Kill Switch off"),
        .message = tr("Kill Switch blocks Vantu Proxy. Turn Kill Switch off in Settings first, "
                      "then switch modes."),
        .detail = {},
        .accept = {tr("Open Settings"), tr("Open Settings to turn off Kill Switch")},
        .destructive = false,
        .alternate = {},
        .reject = {tr("Cancel"), {}},
    };
    return std::make_unique<ConfirmDialog>(texts, theme, parent);
}
