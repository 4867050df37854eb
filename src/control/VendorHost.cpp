#include "VendorHost.h"

namespace control {

// A plain address with a static life: safe in any other file's initialisation.
constinit const QLatin1StringView kVendorHost{VANTU_VENDOR_HOST};

} // namespace control
