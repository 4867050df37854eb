#pragma once

#include "RestingFocus.h"

#include <QFrame>
#include <QIcon>
#include <QString>

class QPushButton;
class QToolButton;
class SearchField;
struct ThemePalette;

/// The row above the list of locations: the search and the buttons that fold all groups,
/// refresh the catalogue and connect. It knows when a refresh is free; the page tells it
/// the rest.
class LocationsTools final : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LocationsTools)

public:
    explicit LocationsTools(QWidget *parent = nullptr);

    SearchField &search() const { return *m_search; }

    void applyThemePalette(const ThemePalette &palette);

    /// While it is away neither refresh nor connect is possible; `reason` becomes their
    /// tool tip.
    void setDaemonAvailable(bool available, const QString &reason);
    /// Seconds; below 0 counts as 0.
    void setRefreshCooldown(int seconds);
    void setRefreshing(bool refreshing);
    bool isRefreshFree() const;

    /// `hasRows`: there is a list that may have groups.
    void setGroups(bool hasRows, bool anyExpanded);
    /// `description` says what the button connects to.
    void setConnect(bool hasTarget, const QString &description);

Q_SIGNALS:
    void toggleGroupsRequested();
    void refreshRequested();
    void connectRequested();
    /// isRefreshFree() has another value.
    void refreshFreeChanged();

private:
    void updateRefresh();
    void updateConnect();
    void describe(QWidget &button, const QString &text, bool needsDaemon) const;

    RestingFocus m_focus;
    SearchField *m_search = nullptr;
    QToolButton *m_toggle = nullptr;
    QToolButton *m_refresh = nullptr;
    QPushButton *m_connect = nullptr;
    QIcon m_expandIcon;
    QIcon m_collapseIcon;
    bool m_anyExpanded = false;
    bool m_hasTarget = false;
    QString m_connectText;
    bool m_daemonAvailable = true;
    QString m_unavailableReason;
    bool m_refreshing = false;
    int m_cooldown = 0;
};
