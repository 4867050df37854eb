#pragma once

/// What the client is doing for the user at the moment, as far as the pages show it.
struct OperationActivity
{
    bool changingMode = false;
    bool changingLocalNetwork = false;
    bool changingSettings = false; ///< Anything of the settings page.
    bool checkingUpdate = false;   ///< The user's own look for a newer client.
    bool signingInOrOut = false;
    bool openingRenewal = false;
    bool loadingSplitRules = false;
    bool refreshingLocations = false;

    /// Something has begun since `before`.
    bool hasBegunSince(const OperationActivity &before) const
    {
        return (changingMode && !before.changingMode) ||
               (changingLocalNetwork && !before.changingLocalNetwork) ||
               (changingSettings && !before.changingSettings) ||
               (checkingUpdate && !before.checkingUpdate) ||
               (signingInOrOut && !before.signingInOrOut) ||
               (openingRenewal && !before.openingRenewal) ||
               (refreshingLocations && !before.refreshingLocations);
    }

    bool operator==(const OperationActivity &) const = default;
};
