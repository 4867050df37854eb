#pragma once

#include "ConfirmDialog.h"

#include <QCoreApplication>

#include <memory>

/// The two questions that come up because the kill switch and the proxy modes exclude
/// each other. Each call makes a dialog ready for open(); see ConfirmDialog for how to
/// hold it.
class KillSwitchConfirm final
{
    Q_DECLARE_TR_FUNCTIONS(KillSwitchConfirm)

public:
    /// Asked when the kill switch is to be turned on in a proxy mode. AcceptAnswer:
    /// switch to Auto and enable it; AlternateAnswer: let the user choose a mode.
    static std::unique_ptr<ConfirmDialog> needsVpnMode(Theme &theme, QWidget *parent = nullptr);

    /// Asked when a proxy mode is chosen while the kill switch is on. AcceptAnswer:
    /// open the settings.
    static std::unique_ptr<ConfirmDialog> needsKillSwitchOff(Theme &theme,
                                                             QWidget *parent = nullptr);
};
