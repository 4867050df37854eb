#pragma once

#include "RegionPickerDialog.h"

#include <QList>

class RegionNames;
struct SplitProfile;

/// All regions that a split profile may treat apart, by name: those it lists, in its own
/// spelling, those of the catalogue, and the rest of the world, since the region that is
/// to go direct is often one without a place to connect to.
QList<RegionChoice> regionChoices(const SplitProfile &profile, const RegionNames &names);
