#include "LocationsPage.h"

#include "Announce.h"
#include "AppState.h"
#include "ControlProtocol.h"
#include "LocationsItemDelegate.h"
#include "LocationsTabBar.h"
#include "LocationsTexts.h"
#include "LocationsTools.h"
#include "PlainText.h"
#include "RuntimeFacts.h"
#include "SearchField.h"
#include "StyleProperty.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

using Target = LocationsTreeView::Target;

namespace {

constexpr qsizetype kMaxMessageLength = 400;

QString text(const QModelIndex &row, int role)
{
    return row.data(role).toString().trimmed();
}

} // namespace

// Catalogue

void LocationsPage::scheduleCatalog()
{
    m_catalogDue = true;
    if (isVisible()) {
        m_catalogTimer->start();
    }
}

void LocationsPage::applyCatalog()
{
    m_catalogHeld = true;
    m_catalogDue = true;
    if (isVisible()) {
        takeCatalog();
    }
}

void LocationsPage::takeCatalog()
{
    m_catalogDue = false;
    m_catalogTimer->stop();
    const NodesInfo &nodes = m_state.nodes();
    const NodeGroupsInfo &groups = m_state.nodeGroups();
    m_catalogStale = nodes.stale || groups.stale;
    m_catalogHeld = m_catalogHeld || m_catalogStale || !groups.tabs.isEmpty();

    const quint64 before = m_catalog.revision();
    const LocationsTreeView::Snapshot snapshot = m_tree->snapshot();
    m_catalog.setCatalog(nodes, groups);
    takeRuntime();
    if (m_catalog.revision() != before) {
        rebuildTabs();
        m_tree->showBelow(listRoot());
        m_tree->restore(snapshot, m_searchActive);
        if (m_searchActive && !m_tree->currentIndex().isValid()) {
            chooseFirstMatch();
        }
        updateTabsEnabled();
    }
    renderMessage();
    updateList();
}

void LocationsPage::takeRuntime()
{
    if (!m_catalogDue) { // Otherwise the catalogue brings them along.
        const RuntimeInfo &runtime = m_state.runtime();
        m_catalog.setCurrentNodes(facts::effectiveSelected(runtime, m_state.nodes()).id,
                                  facts::effectiveConnected(runtime, m_state.nodes()).id);
    }
    updateRefreshing();
}

// Tabs may come, go and change places; what the user had chosen is found again by key.
void LocationsPage::rebuildTabs()
{
    const QString beforeSearch = m_tabs->keyOf(m_tabBeforeSearch);
    const QString scope = m_tabs->keyOf(m_searchScopeTab);
    QList<LocationsTabBar::Tab> tabs;
    for (int tab = 0; tab < m_catalog.rowCount(); ++tab) {
        tabs.append({text(tabRow(tab), CatalogTreeModel::GroupKeyRole), tabLabel(tab)});
    }
    m_tabs->setTabs(tabs);
    setStyleProperty(*m_list, "vantuRole", tabs.isEmpty() ? u"card"_s : QString());
    m_tabBeforeSearch = m_tabs->find(beforeSearch);
    if (m_searchActive) {
        setSearchScope(m_tabs->find(scope));
    }
}

QModelIndex LocationsPage::tabRow(int tab) const
{
    return tab < 0 ? QModelIndex() : m_catalog.index(tab, 0);
}

QString LocationsPage::tabLabel(int tab) const
{
    return text(tabRow(tab), Qt::DisplayRole);
}

QModelIndex LocationsPage::listRoot() const
{
    return tabRow(m_searchActive ? m_searchScopeTab : m_tabs->currentIndex());
}

// Search

void LocationsPage::focusSearch()
{
    m_tools->search().setFocus(Qt::ShortcutFocusReason);
    m_tools->search().selectAll();
}

void LocationsPage::setSearchText(const QString &query)
{
    m_tools->search().setText(query.trimmed());
    focusSearch();
}

void LocationsPage::onSearchEdited()
{
    const QString query = m_tools->search().text().trimmed();
    if (query.isEmpty()) {
        endSearch();
        return;
    }
    if (!m_searchActive) {
        beginSearch();
    }
    // With nothing chosen, no choice has to be moved along while rows come and go.
    m_tree->choose({});
    m_filter.setSearchText(query);
    updateTabsEnabled();
    updateList();
    m_tree->expandHeadings();
    chooseFirstMatch();
    updateButtons();
}

void LocationsPage::beginSearch()
{
    m_tabBeforeSearch = m_tabs->currentIndex();
    m_beforeSearch = m_tree->snapshot();
    setSearchScope(-1);
    m_searchActive = true;
}

void LocationsPage::endSearch()
{
    if (!m_searchActive) {
        return;
    }
    m_searchActive = false;
    m_searchScopeTab = -1;
    setStyleProperty(*m_tabs, "vantuSearchGlobal", false);
    m_tree->choose({});
    m_filter.setSearchText(QString());
    if (m_tabBeforeSearch >= 0 && m_tabBeforeSearch < m_tabs->count()) {
        const QSignalBlocker quiet(m_tabs);
        m_tabs->setCurrentIndex(m_tabBeforeSearch);
    }
    m_tabBeforeSearch = -1;
    updateTabsEnabled();
    updateList();
    m_tree->restore(m_beforeSearch, false);
    updateButtons();
}

void LocationsPage::setSearchScope(int tab)
{
    m_searchScopeTab = tab;
    setStyleProperty(*m_tabs, "vantuSearchGlobal", tab < 0);
}

void LocationsPage::scopeSearch(int tab)
{
    setSearchScope(tab);
    m_tree->choose({});
    updateTabsEnabled();
    updateList();
    chooseFirstMatch();
}

void LocationsPage::onTabChanged(int tab)
{
    if (m_searchActive) {
        scopeSearch(tab);
        return;
    }
    updateList();
    m_tree->scrollToTop();
}

// A search through all tabs begins with one of them current, which says nothing then and
// can be chosen like the others.
void LocationsPage::onTabClicked(int tab)
{
    if (m_searchActive && m_searchScopeTab < 0 && tab >= 0 && tab == m_tabs->currentIndex()) {
        scopeSearch(tab);
    }
}

// So that Connect goes to what the eye falls on.
void LocationsPage::chooseFirstMatch()
{
    m_tree->choose(m_filter.firstNodeBelow(listRoot()));
}

// Tabs in which a search finds nothing, as long as it finds something in another.
void LocationsPage::updateTabsEnabled()
{
    const bool limits = m_searchActive && m_filter.hasRowsBelow({});
    const QSignalBlocker quiet(m_tabs);
    for (int tab = 0; tab < m_tabs->count(); ++tab) {
        m_tabs->setTabEnabled(tab, !limits || tab == m_tabs->currentIndex() ||
                                       m_filter.hasRowsBelow(tabRow(tab)));
    }
}

// List or what stands in its place

void LocationsPage::updateList()
{
    if (isVisible()) {
        const bool wasEmpty = m_stack->currentWidget() == m_emptyPage;
        const QString before = m_empty->text();
        if (updateEmptyTexts()) {
            m_tree->showBelow(listRoot());
            m_stack->setCurrentWidget(m_tree);
        } else {
            m_stack->setCurrentWidget(m_emptyPage);
            if (!wasEmpty || m_empty->text() != before) {
                announce(*m_empty);
            }
        }
        updateShowAllMatches();
    }
    updateButtons();
}

void LocationsPage::updateShowAllMatches()
{
    const bool limited = m_searchActive && m_searchScopeTab >= 0;
    if (!limited && m_showAllMatches->hasFocus()) {
        // To what it showed, before Qt moves it to wherever Tab would lead.
        if (m_stack->currentWidget() == m_tree) {
            m_tree->setFocus(Qt::OtherFocusReason);
        } else {
            m_tools->search().setFocus(Qt::OtherFocusReason);
        }
    }
    m_showAllMatches->setVisible(limited);
}

/// Returns whether there are rows to show instead.
bool LocationsPage::updateEmptyTexts()
{
    const int tab = m_tabs->currentIndex();
    if (m_searchActive) {
        showEmpty(LocationsTexts::noMatches(tabLabel(m_searchScopeTab)),
                  m_searchScopeTab < 0 ? tr("Clear search") : QString());
        return m_filter.hasRowsBelow(listRoot());
    }
    const QString code = m_tabs->keyOf(tab).toUpper();
    if (!m_catalogHeld) {
        showEmpty(tr("Locations will appear after the catalog loads."), QString());
    } else if (m_tabs->count() == 0 && m_catalogStale) {
        showEmpty(tr("No locations in cached catalog."), tr("Refresh locations"));
    } else {
        showEmpty(LocationsTexts::emptyTab(code, tabLabel(tab)),
                  code == "FAVORITE"_L1 ? QString() : tr("Refresh locations"));
    }
    return tab >= 0 && m_catalog.rowCount(tabRow(tab)) > 0;
}

void LocationsPage::showEmpty(const QString &text, const QString &action)
{
    m_empty->setText(text);
    m_emptyAction->setText(action);
    m_emptyAction->setVisible(!action.isEmpty());
    updateRefreshing();
    // A catalogue that is about to come isn't announced, or the line would only flash.
    m_empty->setVisible(m_catalogHeld || m_searchActive || !m_loadingDelay->isActive());
}

void LocationsPage::runEmptyAction()
{
    if (m_searchActive) {
        m_tools->search().clear();
        m_tools->search().setFocus();
    } else {
        Q_EMIT refreshRequested();
    }
}

// Buttons

Target LocationsPage::connectTarget() const
{
    return m_stack->currentWidget() == m_tree ? m_tree->target(m_searchActive) : Target();
}

void LocationsPage::updateButtons()
{
    updateToggle();
    updateConnect();
}

void LocationsPage::updateToggle()
{
    const bool hasRows = m_stack->currentWidget() == m_tree && m_filter.hasRowsBelow(listRoot());
    m_tools->setGroups(hasRows, hasRows && m_tree->isAnyHeadingExpanded());
}

void LocationsPage::updateConnect()
{
    const Target target = connectTarget();
    m_tools->setConnect(target.kind != Target::Kind::None,
                        target.kind == Target::Kind::Node
                            ? LocationsTexts::connectNode()
                            : LocationsTexts::connectSmart(target.label.trimmed()));
}

void LocationsPage::updateRefreshing()
{
    m_tools->setRefreshing(m_refreshing ||
                           m_state.runtime().catalogRefresh == wire::kCatalogRefreshing);
    m_focus.setEnabled(*m_emptyAction, m_searchActive || m_tools->isRefreshFree());
}

void LocationsPage::toggleGroups()
{
    if (m_tree->isAnyHeadingExpanded()) {
        m_tree->foldAll();
    } else {
        m_tree->expandTop();
    }
    updateButtons();
}

void LocationsPage::connectToTarget()
{
    const Target target = connectTarget();
    if (target.kind == Target::Kind::Node) {
        Q_EMIT connectNodeRequested(target.id, target.label);
    } else if (target.kind == Target::Kind::Smart) {
        Q_EMIT connectSmartRequested(target.id, target.label);
    }
}

void LocationsPage::connectToNode(const QModelIndex &index)
{
    if (m_daemonAvailable) {
        const Target node = LocationsTreeView::nodeTarget(index);
        Q_EMIT connectNodeRequested(node.id, node.label);
    }
}

void LocationsPage::setRefreshCooldown(int seconds)
{
    m_tools->setRefreshCooldown(seconds);
}

void LocationsPage::setRefreshing(bool refreshing)
{
    m_refreshing = refreshing;
    updateRefreshing();
}

void LocationsPage::setDaemonAvailable(bool available, const QString &reason)
{
    m_daemonAvailable = available;
    m_unavailableReason = available ? QString() : reason.trimmed();
    m_tools->setDaemonAvailable(available, m_unavailableReason);
    renderMessage();
}

// Messages

void LocationsPage::showOperationError(const QString &message)
{
    const QString line = plaintext::singleLine(message, kMaxMessageLength);
    m_error = line.isEmpty() ? tr("Operation failed") : line;
    m_errorShown = true;
    renderMessage();
    announce(*m_message);
}

void LocationsPage::clearMessage()
{
    m_errorShown = false;
    m_error.clear();
    m_message->clear();
    m_message->hide();
    scheduleCatalog(); // What else there is to say comes back with it.
}

void LocationsPage::renderMessage()
{
    QString message;
    if (m_errorShown) {
        message = m_error;
    } else if (!m_daemonAvailable) {
        message = plaintext::singleLine(m_unavailableReason, kMaxMessageLength);
    } else if (m_catalogStale) {
        message = tr("Cached locations may be stale. Refresh to update.");
    }
    setStyleProperty(*m_message, "vantuRole", m_errorShown ? u"error"_s : u"muted"_s);
    m_message->setText(message);
    m_message->setVisible(!message.isEmpty());
}

// Favourites

void LocationsPage::onFavoriteClicked(const QModelIndex &index, bool favorite)
{
    if (!m_daemonAvailable) {
        return;
    }
    const QString nodeId = text(index, CatalogTreeModel::NodeIdRole);
    m_catalog.setFavoriteOverride(nodeId, favorite);
    m_catalog.setFavoritePending(nodeId);
    announce(*m_tree, text(index, Qt::AccessibleTextRole));
    Q_EMIT favoriteNodeRequested(nodeId, favorite);
}

void LocationsPage::setUnconfirmedFavorites(const QHash<QString, bool> &favorites,
                                            const QSet<QString> &awaited)
{
    m_catalog.clearFavoriteOverrides();
    m_catalog.clearFavoritePending();
    for (auto favorite = favorites.cbegin(); favorite != favorites.cend(); ++favorite) {
        m_catalog.setFavoriteOverride(favorite.key(), favorite.value());
    }
    for (const QString &nodeId : awaited) {
        m_catalog.setFavoritePending(nodeId);
    }
}

// Events

void LocationsPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_catalogDue) {
        takeCatalog();
    } else {
        updateList();
    }
}

void LocationsPage::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !m_tools->search().text().isEmpty()) {
        m_tools->search().clear();
    } else {
        QWidget::keyPressEvent(event);
    }
}

bool LocationsPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_tools->search() && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if ((key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter) &&
            m_stack->currentWidget() == m_tree) {
            m_tree->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
