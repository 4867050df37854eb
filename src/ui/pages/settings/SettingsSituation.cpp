#include "SettingsSituation.h"

#include "PlainText.h"
#include "SettingsTexts.h"

#include <QWidget>

QString SettingsSituation::absenceReason(bool known) const
{
    if (!available) {
        return unavailableReason.isEmpty() ? SettingsTexts::tr("Vantu is not available just now.")
                                           : unavailableReason;
    }
    return known ? QString() : SettingsTexts::tr("Vantu has not reported this setting yet.");
}

QString SettingsSituation::blockReason(bool known) const
{
    if (available && requestInFlight) {
        return SettingsTexts::tr("Another change is still on its way.");
    }
    return absenceReason(known);
}

void allowUnless(const QString &reason, QWidget &widget, const QString &toolTip)
{
    widget.setEnabled(reason.isEmpty());
    const QString shown = reason.isEmpty() ? toolTip : reason;
    widget.setToolTip(shown.isEmpty() ? QString() : plaintext::toolTip(shown));
}
