#pragma once

#include "CatalogRecords.h"

#include <QMap>
#include <QString>
#include <QStringList>

/// Names of regions by their two-letter codes, which are compared without regard to case.
/// The catalogue's names come first, since the daemon gives them in the interface's
/// language; for all other regions there is the English name, the only one that Qt knows
/// in every language.
class RegionNames final
{
public:
    RegionNames() = default;
    explicit RegionNames(const NodeGroupsInfo &groups);

    /// A plain line, never empty unless `code` is: an unknown code stands for itself.
    QString name(const QString &code) const;

    /// The codes that the catalogue has places in, upper-case and in order.
    QStringList catalogueCodes() const { return m_byCode.keys(); }
    /// The codes of all countries and territories of the world, upper-case.
    static QStringList worldCodes();

private:
    void collect(const QList<NodeGroup> &groups);

    QMap<QString, QString> m_byCode;
};
