#pragma once

#include <QString>
#include <QSysInfo>
#include <QUrl>

struct UpdateInfo;

/// Where a newer client can be had by hand.
namespace updatelink {

/// The link that suits this computer best: the one that the daemon recommends, else its
/// file, else the one for `architecture` (as QSysInfo names it), else the one for all.
/// Only links to https are taken; invalid when there is none.
QUrl downloadLink(const UpdateInfo &update,
                  const QString &architecture = QSysInfo::currentCpuArchitecture());

} // namespace updatelink
