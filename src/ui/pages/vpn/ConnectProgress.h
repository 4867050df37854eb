#pragma once

#include <QString>

/// What the shell does for the connection right now, as the window shows it. At
/// most one of `disconnecting` and `cancelling` is set, and only together with
/// `pending`.
struct ConnectProgress
{
    bool pending = false;       ///< An operation of the shell runs.
    bool disconnecting = false; ///< It is a disconnect that the user asked for.
    bool cancelling = false;    ///< It takes back a connect.
    QString label;              ///< The place being connected to, if one was named.

    bool operator==(const ConnectProgress &) const = default;
};
