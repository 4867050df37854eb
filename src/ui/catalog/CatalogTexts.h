#pragma once

#include <QString>

/// Words of a place's row that the list of locations and the quick entry share.
namespace catalogtexts {

/// "38 ms".
QString latency(int milliseconds);

QString favorite();

} // namespace catalogtexts
