#pragma once

#include <QString>

#include <optional>

/// A host and port as a listen address names them, and what makes an IP address.
struct SimAddress
{
    QString host;
    int port = 0;

    /// Takes "127.0.0.1:1080", "[::1]:1080" or "localhost:1080".
    static std::optional<SimAddress> parse(const QString &text);

    static bool isIPv4(const QString &text);
    static bool isIPv6(const QString &text);
    static bool isIp(const QString &text) { return isIPv4(text) || isIPv6(text); }

    /// An address with a prefix length, such as "192.0.2.0/24".
    static bool isCidr(const QString &text);

    /// A name of dot-separated labels.
    static bool isHostName(const QString &text);
};
