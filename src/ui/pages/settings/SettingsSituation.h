#pragma once

#include <QString>

class QWidget;

/// What decides, besides the stored values, which settings can be changed just now.
struct SettingsSituation
{
    bool available = true; ///< The daemon answers.
    QString unavailableReason;
    bool requestInFlight = false;
    bool updateCheckInFlight = false;

    /// Why a setting of the daemon can't be changed now; empty when it can. `known`:
    /// the daemon has told its value.
    QString blockReason(bool known = true) const;
    /// The same for settings that another change on its way doesn't hold up.
    QString absenceReason(bool known) const;
};

/// Enables `widget` when there is no reason against it, and otherwise gives the reason in
/// its tool tip. `toolTip` is what it says while enabled.
void allowUnless(const QString &reason, QWidget &widget, const QString &toolTip = {});
