#pragma once

#include <QLatin1StringView>

#include <chrono>

/// The fixed facts of the daemon's control protocol: where it listens, which
/// version this program speaks, how long the transport waits, and the words that
/// travel as JSON strings. What sends or compares such a word names it as here.
namespace control {

/// The daemon's Unix socket; members of the group "vantucli" may open it.
inline constexpr QLatin1StringView kSocketPath{"/run/vantucli/control.sock"};

/// Sent with every request and compared with what the daemon reports.
inline constexpr QLatin1StringView kControlVersion{"1"};

/// Bounds connect and write, and the read too when the caller gave a time-out.
inline constexpr std::chrono::milliseconds kDefaultTimeout{30000};

/// The longest single wait, so that cancelling and deadlines are noticed promptly.
inline constexpr std::chrono::milliseconds kWaitSlice{250};

/// An answer that grows past this many bytes is refused, so that a daemon which
/// never stops sending can't eat the machine's memory.
inline constexpr qsizetype kMaxResponseBytes = qsizetype{64} * 1024 * 1024;

/// What an exchange says that took too long; also the word by which a change is told from
/// one that was refused.
inline constexpr QLatin1StringView kTimedOut{"control request timed out"};

} // namespace control

/// Words of the wire, as sent and compared.
namespace wire {

// Transports of a connection mode.
inline constexpr QLatin1StringView kTransportAuto{"auto"};
inline constexpr QLatin1StringView kTransportWireGuard{"wireguard"};
inline constexpr QLatin1StringView kTransportVantuVPN{"vantuvpn"};
inline constexpr QLatin1StringView kTransportProxy{"proxy"};

// Policies. Any other policy that a daemon reports counts as split.
inline constexpr QLatin1StringView kPolicyGlobal{"global"};
inline constexpr QLatin1StringView kPolicySplit{"split"};

// Default routes of a split profile.
inline constexpr QLatin1StringView kRouteTunnel{"tunnel"};
inline constexpr QLatin1StringView kRouteProxy{"proxy"};
inline constexpr QLatin1StringView kRouteDirect{"direct"};

/// The list of split rules whose traffic is stopped; the others are named as the routes.
inline constexpr QLatin1StringView kRulesBlock{"block"};

// Preferences.
inline constexpr QLatin1StringView kLocalNetworkDirect{"direct"};
inline constexpr QLatin1StringView kLocalNetworkProtected{"protected"};
inline constexpr QLatin1StringView kOn{"on"};
inline constexpr QLatin1StringView kOff{"off"};
inline constexpr QLatin1StringView kSystemProxyLock{"lock"};
inline constexpr QLatin1StringView kSystemProxyLockOn{"lock-on"};

// Kill switch.
inline constexpr QLatin1StringView kKillSwitchOff{"off"};
inline constexpr QLatin1StringView kKillSwitchOn{"on"};
inline constexpr QLatin1StringView kKillSwitchLockdown{"lockdown"};
inline constexpr QLatin1StringView kGuardActive{"active"};

// Connection states.
inline constexpr QLatin1StringView kStateConnected{"connected"};
inline constexpr QLatin1StringView kStateDisconnected{"disconnected"};
inline constexpr QLatin1StringView kStateConnecting{"connecting"};
inline constexpr QLatin1StringView kStateDisconnecting{"disconnecting"};
inline constexpr QLatin1StringView kStateReady{"ready"};
inline constexpr QLatin1StringView kStateQueued{"queued"};
inline constexpr QLatin1StringView kStateRetrying{"retrying"};
inline constexpr QLatin1StringView kStateFailed{"failed"};
inline constexpr QLatin1StringView kStateError{"error"};

// Account states that count as signed in.
inline constexpr QLatin1StringView kAuthLoggedIn{"logged_in"};
inline constexpr QLatin1StringView kAuthCached{"cached"};

// Catalogue refresh.
inline constexpr QLatin1StringView kCatalogRefreshing{"refreshing"};

// Proxy listeners.
inline constexpr QLatin1StringView kListenerSocks{"local-socks"};
inline constexpr QLatin1StringView kListenerHttp{"local-http"};
inline constexpr QLatin1StringView kSchemeSocks5{"socks5"};
inline constexpr QLatin1StringView kSchemeHttp{"http"};

// Sources of the daemon's language setting.
inline constexpr QLatin1StringView kLanguageSourceSystem{"system"};
inline constexpr QLatin1StringView kLanguageSourceExplicit{"explicit"};

// Kinds of a catalogue tab.
inline constexpr QLatin1StringView kGroupTypeFavorite{"favorite"};

} // namespace wire
