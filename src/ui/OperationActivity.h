#pragma once

/// What the client is doing for the user at the moment, as far as the pages show it.
struct OperationActivity
{
    bool changingMode = false;
    bool changingLocalNetwork = false;
    bool changingSettings = false; ///< Anything of the settings page.
    bool checkingUpdate = false;   ///< Looking for a newer client, by itself or when asked.
    bool signingInOrOut = false;
    bool openingRenewal = false;
    bool loadingSplitRules = false;
    bool refreshingLocations = false;
    /// No connection can be begun beside what runs, in whatever face it was asked for.
    bool excludesConnect = false;

    /// Something of the user's has begun since `before`.
    bool hasBegunSince(const OperationActivity &before) const
    {
        return (changingMode && !before.changingMode) ||
               (changingLocalNetwork && !before.changingLocalNetwork) ||
               (changingSettings && !before.changingSettings) ||
               (signingInOrOut && !before.signingInOrOut) ||
               (openingRenewal && !before.openingRenewal) ||
               (refreshingLocations && !before.refreshingLocations);
    }

    bool operator==(const OperationActivity &) const = default;
};
