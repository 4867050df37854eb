#pragma once

#include "VpnSummary.h"

#include <QTimer>
#include <QWidget>

class AppState;
class CardButton;
class QGridLayout;
class QPushButton;
class RecentActivityStore;
class SearchField;
class VpnQuickEntry;
class VpnStatusCard;
struct ThemePalette;

/// The first page of the window: the state of the connection with the one button that
/// changes it, a summary of what is set, and a field to go to a place quickly.
///
/// Reads the store and the history, and reports what the user wants by signals; it never
/// talks to the daemon. On the GUI thread.
class VpnPage final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(VpnPage)

public:
    /// Both must outlive the page.
    VpnPage(AppState &state, RecentActivityStore &recents, QWidget *parent = nullptr);
    ~VpnPage() override;

    /// Whether the daemon answers; `reason` tells the user why not.
    void setDaemonAvailable(bool available, const QString &reason);
    void setConnectProgress(const ConnectProgress &progress);
    /// Why a connect of the user's failed. Stands in the status card, as far as the daemon
    /// itself gives no reason, until the next operation begins, a connection is up, the
    /// account signs out or the daemon comes back. Not kept while a connection stands.
    void showConnectError(const QString &message);
    /// The place of a connect, to be named while it is in progress. Set it before the
    /// request goes out, and none after one that nobody took up; it is forgotten when the
    /// operation ends. Does nothing and returns false during an operation, which has its
    /// own.
    bool setPendingConnectTarget(const PendingConnectTarget &target);

    /// For what paints itself; the rest follows the window's style sheet.
    void applyThemePalette(const ThemePalette &palette);

    /// Puts the focus into the search field, with its text selected, and opens the quick
    /// entry.
    void focusSearch();
    /// The one button that changes the connection.
    QPushButton &primaryButton() const;
    bool isQuickEntryOpen() const;
    void closeQuickEntry();

Q_SIGNALS:
    void connectRuntimeRequested();
    void cancelConnectRequested();
    void disconnectRuntimeRequested();
    void signInRequested();
    /// `flagCode` is as in PendingConnectTarget.
    void connectNodeRequested(const QString &nodeID, const QString &label, const QString &flagCode);
    /// `selector` is a group's key.
    void connectSmartRequested(const QString &selector, const QString &label,
                               const QString &flagCode);
    void setNodeFavoriteRequested(const QString &nodeID, bool favorite);
    /// A page by its index in the window.
    void pageRequested(int index);
    /// The list of locations, searched for `query` unless that is empty.
    void browseLocationsRequested(const QString &query);
    void recentConnectionsCleared();
    /// What the user cleared is still there.
    void recentsNotCleared();
    void quickEntryVisibleChanged(bool visible);

protected:
    bool focusNextPrevChild(bool next) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void buildContent();
    QGridLayout *buildCards();
    CardButton *addCard(const QString &title, const QString &name, int page);
    void connectSignals();
    void render();
    void trigger(PrimaryAction::Intent intent);

    AppState &m_state;
    VpnSituation m_situation;
    QTimer m_durationTimer;
    SearchField *m_search = nullptr;
    VpnQuickEntry *m_quickEntry = nullptr;
    VpnStatusCard *m_statusCard = nullptr;
    CardButton *m_locationCard = nullptr;
    CardButton *m_modeCard = nullptr;
    CardButton *m_killSwitchCard = nullptr;
    CardButton *m_localNetworkCard = nullptr;
};
