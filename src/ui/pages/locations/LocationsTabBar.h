#pragma once

#include <QList>
#include <QTabBar>

/// The tabs over the list of locations, each known by a key that stays the same from one
/// catalogue to the next. Clicks on disabled tabs go nowhere, so that they don't count as
/// clicks on the bar either.
class LocationsTabBar final : public QTabBar
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LocationsTabBar)

public:
    struct Tab
    {
        QString key;
        QString label; ///< Plain text, as it came.
    };

    explicit LocationsTabBar(QWidget *parent = nullptr);

    /// Replaces the tabs, without a signal; the current one stays so by its key, and is
    /// the first one when it is gone.
    void setTabs(const QList<Tab> &tabs);

    /// In lower case; empty for an index without a tab.
    QString keyOf(int tab) const;
    /// -1 when no tab has this key, and for an empty key.
    int find(const QString &key) const;

protected:
    bool event(QEvent *event) override;
};
