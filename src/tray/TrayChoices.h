#pragma once

#include "ModeRecords.h"
#include "TrayMenuState.h"

class VantuTrayApp;

/// Calls what a chosen menu entry stands for, for all entries that stand for one call:
/// everything but the connect entry and the recent nodes. `mode` is the mode in force,
/// `checked` what the entry's mark would be then.
void carryOutTrayChoice(VantuTrayApp &app, const ModeInfo &mode, TrayEntry entry, bool checked);
