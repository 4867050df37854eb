#pragma once

#include "AccountRecords.h"
#include "CatalogRecords.h"
#include "ModeRecords.h"
#include "RuntimeRecords.h"
#include "ServiceRecords.h"
#include "SplitRecords.h"
#include "UpdateRecords.h"

/// Registers every record by name, so that calls made by method name can carry
/// them to another thread. Cheap and safe to call more than once.
void registerControlRecords();
