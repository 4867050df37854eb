#pragma once

#include <QLatin1StringView>

namespace control {

/// The vendor's web host, such as "www.vantuvpn.com": home of the account pages and
/// the only host that a purchase link may name. Chosen when the program is
/// configured (VANTU_VENDOR_HOST).
extern const QLatin1StringView kVendorHost;

} // namespace control
