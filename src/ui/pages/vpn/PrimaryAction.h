#pragma once

#include "ConnectProgress.h"
#include "RuntimeRecords.h"

#include <QString>

/// The connection as the status card tells it, and the one button beside it.
struct PrimaryAction
{
    /// What a press of the button asks for.
    enum class Intent { Connect, Disconnect, Cancel, SignIn };

    QString title;
    QString button;
    QString statusState; ///< "connected", "disconnected" or "unavailable".
    QString role;        ///< "connect" or "disconnect".
    bool enabled = false;
    bool pending = false;
    Intent intent = Intent::Connect;

    bool operator==(const PrimaryAction &) const = default;
};

/// Derives the card from the daemon's status. `available` is false while the
/// daemon can't be talked to; then nothing that it said before is trusted.
PrimaryAction primaryAction(const RuntimeInfo &runtime, bool available,
                            const ConnectProgress &progress);
