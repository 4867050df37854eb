#pragma once

#include <QString>

/// Words of a place's row that the list of locations and the quick entry share.
namespace catalogtexts {

/// "38 ms".
QString latency(int milliseconds);

QString favorite();
/// What marks the node in use.
QString connectedServer();

/// What the row of a place shows.
struct Place
{
    QString name;
    QString group;    ///< May be empty.
    int latency = -1; ///< In milliseconds; -1 = not measured.
    bool favorite = false;
    QString state; ///< Such as connectedServer(); may be empty.
};

/// All of it for those who listen: "Tokyo 1, Japan, 38 ms, Favorite, Connected server".
QString spoken(const Place &place);

} // namespace catalogtexts
