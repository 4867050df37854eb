#pragma once

#include "CatalogFilterModel.h"
#include "CatalogTreeModel.h"
#include "LocationsTreeView.h"
#include "RestingFocus.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QWidget>

class AppState;
class LocationsTabBar;
class LocationsTools;
class QFrame;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTimer;
class QVBoxLayout;
struct ThemePalette;

/// The page on which a place is found and chosen: the catalogue in tabs over a tree, a
/// search, favourites, and a connect to a node or to the best one of a group, a tab or
/// the whole catalogue.
///
/// Takes catalogue, markers and cool-down from the store by itself, several changes in
/// one go; hidden, it waits until it is shown. Whatever the user wants leaves it as a
/// signal, and only a favourite is shown before the daemon has said yes. Lives on the
/// GUI thread.
class LocationsPage final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LocationsPage)

public:
    /// `state` must outlive the page.
    explicit LocationsPage(AppState &state, QWidget *parent = nullptr);

    void applyThemePalette(const ThemePalette &palette);

    /// While the daemon is away nothing can be asked of it; the list stays readable and
    /// `reason` stands above it.
    void setDaemonAvailable(bool available, const QString &reason);

    /// Puts the keyboard into the search field, its text selected.
    void focusSearch();
    /// Searches for `text`, as if the user had typed it.
    void setSearchText(const QString &text);

    /// Takes the store's catalogue as one that was received, even if there is nothing in
    /// it, which the store alone can't tell. At once, unless the page is hidden.
    void applyCatalog();

    /// Seconds for which a refresh is held back; below 0 counts as 0.
    void setRefreshCooldown(int seconds);
    /// A refresh was sent and not yet answered. One that the status tells of counts too.
    void setRefreshing(bool refreshing);

    /// Shows why an operation failed, until clearMessage().
    void showOperationError(const QString &message);
    void clearMessage();

    void setFavoriteOverride(const QString &nodeId, bool favorite)
    {
        m_catalog.setFavoriteOverride(nodeId, favorite);
    }
    void clearFavoriteOverrides() { m_catalog.clearFavoriteOverrides(); }
    void clearFavoritePending() { m_catalog.clearFavoritePending(); }
    /// Shows exactly these favourites as set by the user and not yet confirmed, by node
    /// id, and all others as the catalogue has them. Those `awaited` can't be changed.
    void setUnconfirmedFavorites(const QHash<QString, bool> &favorites,
                                 const QSet<QString> &awaited);

Q_SIGNALS:
    void refreshRequested();
    void connectNodeRequested(const QString &nodeID, const QString &label);
    /// The best node of a group or tab; of all when `selector` is empty.
    void connectSmartRequested(const QString &selector, const QString &label);
    void favoriteNodeRequested(const QString &nodeID, bool favorite);

protected:
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildMessage(QVBoxLayout &column);
    void buildList(QVBoxLayout &column);
    QWidget *buildEmptyPage();
    void connectWidgets();
    void connectState();

    void scheduleCatalog();
    void takeCatalog();
    void takeRuntime();
    void rebuildTabs();

    void onSearchEdited();
    void beginSearch();
    void endSearch();
    void scopeSearch(int tab);
    void onTabChanged(int tab);
    void onTabClicked(int tab);
    void setSearchScope(int tab);
    void chooseFirstMatch();
    void updateTabsEnabled();

    void updateList();
    void updateShowAllMatches();
    bool updateEmptyTexts();
    void showEmpty(const QString &text, const QString &action);
    void runEmptyAction();
    QModelIndex listRoot() const;
    QModelIndex tabRow(int tab) const;
    QString tabLabel(int tab) const;

    void updateButtons();
    void updateToggle();
    void updateConnect();
    void updateRefreshing();
    void toggleGroups();
    LocationsTreeView::Target connectTarget() const;
    void connectToTarget();
    void connectToNode(const QModelIndex &index);
    void onFavoriteClicked(const QModelIndex &index, bool favorite);
    void renderMessage();

    AppState &m_state;
    CatalogTreeModel m_catalog;
    CatalogFilterModel m_filter;

    bool m_daemonAvailable = true;
    QString m_unavailableReason;
    bool m_refreshing = false;
    QString m_error; ///< Trimmed; meaningful while m_errorShown.
    bool m_errorShown = false;
    bool m_catalogStale = false;
    bool m_catalogHeld = false;
    bool m_catalogDue = true; ///< The store has one that the page doesn't show yet.

    bool m_searchActive = false;
    int m_tabBeforeSearch = -1;
    int m_searchScopeTab = -1; ///< -1 searches all tabs.
    LocationsTreeView::Snapshot m_beforeSearch;

    LocationsTools *m_tools = nullptr;
    QLabel *m_message = nullptr;
    LocationsTabBar *m_tabs = nullptr;
    LocationsTreeView *m_tree = nullptr;
    QFrame *m_list = nullptr;
    QStackedWidget *m_stack = nullptr;
    QWidget *m_emptyPage = nullptr;
    QLabel *m_empty = nullptr;
    QPushButton *m_emptyAction = nullptr;
    RestingFocus m_focus;
    QPushButton *m_showAllMatches = nullptr;
    QTimer *m_catalogTimer = nullptr;
    QTimer *m_loadingDelay = nullptr;
};
