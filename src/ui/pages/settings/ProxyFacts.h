#pragma once

#include <QHostAddress>
#include <QList>
#include <QString>
#include <QStringList>

struct RuntimeInfo;

/// Where the local proxy can be reached, worked out from what the daemon reports.
namespace proxyfacts {

/// An address of this machine.
struct InterfaceAddress
{
    QHostAddress address;
    bool isUp = true;
    bool isPointToPoint = false; ///< A tunnel, whose far end is no local network.
};

/// "host:port" in its two parts, as they were written. An IPv6 host stands in brackets,
/// which are taken off.
struct HostPort
{
    QString host;
    QString port; ///< Empty when there is none.
    bool bracketed = false;
};
HostPort splitHostPort(const QString &text);

/// The number of a port as it was written; 0 when it is none.
int portNumber(const QString &text);

/// The address that the proxy's field shows: that of the SOCKS listener, or else the
/// other's. Empty when there is no listener.
QString listenAddress(const RuntimeInfo &runtime);
/// Both listeners are at `address`.
bool listensAt(const RuntimeInfo &runtime, const QString &address);

/// The address of the proxy auto-configuration file; empty when there is none.
QString pacAddress(const RuntimeInfo &runtime);

/// The addresses under which other devices of the local network reach the proxy: those
/// that the daemon names, or else what follows from the listeners and `own`, the addresses
/// of this machine.
QStringList lanAddresses(const RuntimeInfo &runtime, const QList<InterfaceAddress> &own);

/// The addresses that this machine has now.
QList<InterfaceAddress> ownAddresses();

} // namespace proxyfacts
