#pragma once

#include "CatalogRecords.h"
#include "ModeRecords.h"

#include <QList>
#include <QObject>
#include <QString>

class QMenu;

/// One region that a split mode may treat apart.
struct TrayRegion
{
    QString code;
    QString name; ///< Plain, for people.
    bool checked = false;

    bool operator==(const TrayRegion &) const = default;
};

/// The regions worth offering: those configured and those of the catalogue, by name.
QList<TrayRegion> trayRegions(const SplitProfile &profile, const NodeGroupsInfo &groups);

/// A "Regions" submenu. Fills the menu that it is given, which must outlive it; as long
/// as it is empty a disabled line stands in, since some panels drop an empty submenu.
class TrayRegionMenu final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TrayRegionMenu)

public:
    explicit TrayRegionMenu(QMenu &menu, QObject *parent = nullptr);

    /// Touches the menu only when something differs from what it shows.
    void show(const QList<TrayRegion> &regions);
    /// Empties the menu, to give its memory back.
    void release();
    qsizetype regionCount() const { return m_regions.size(); }

Q_SIGNALS:
    void regionChosen(const QString &code);

private:
    void rebuild();

    QMenu &m_menu;
    QList<TrayRegion> m_regions;
};
