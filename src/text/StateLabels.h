#pragma once

#include "AccountRecords.h"
#include "RuntimeRecords.h"

#include <QString>
#include <QStringList>

/// From the daemon's values to words for the user. Values that the program doesn't
/// know are shown as the daemon sent them, as one plain line.
namespace labels {

/// The word for a connection state; an empty state is "ready".
QString connectionState(const QString &state);
/// The word for the connection as a whole, which the status spreads over two fields.
QString connectionState(const RuntimeInfo &runtime);

QString route(const QString &route);
QString systemProxy(const QString &value);
QString localNetwork(const QString &value);

/// The state of the kill switch. `context` is the translation context of the face
/// that shows it, one of those listed in StateLabels.cpp.
QString killSwitch(const KillSwitchInfo &killSwitch, const char *context);

/// Who is signed in: e-mail address, else user number, else what is known of the
/// plan. Empty when a record is held but says nothing of these. `context` as above.
QString account(const UserInfo &user, const char *context);

/// The mode with its options, such as "Vantu Proxy: Global"; "None" without a mode.
QString mode(const ModeInfo &mode);
/// The options of the split mode in force, such as "gfwlist tunnel", in the order in
/// which they are shown. Empty in any other mode.
QStringList splitParts(const ModeInfo &mode);

/// `label` (or `fallback` in place of an empty one) with "+count" put behind it when
/// `count` is above 0 and the label doesn't end so already.
QString withCount(const QString &label, int count, const QString &fallback);

} // namespace labels
