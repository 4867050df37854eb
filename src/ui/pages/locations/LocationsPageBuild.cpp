// How the Locations page is put together; what it does is in LocationsPage.cpp.

#include "LocationsPage.h"

#include "AppState.h"
#include "LocationsItemDelegate.h"
#include "LocationsTabBar.h"
#include "LocationsTools.h"
#include "PageScrollArea.h"
#include "SearchField.h"
#include "StyleProperty.h"
#include "TextStyle.h"
#include "ThemePalette.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <chrono>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

constexpr int kGap = 8;
constexpr int kListMargin = 4;
constexpr int kEmptyMargin = 24;
/// What takes less than this isn't called loading.
constexpr auto kLoadingDelay = 300ms;

} // namespace

LocationsPage::LocationsPage(AppState &state, QWidget *parent)
    : QWidget(parent)
    , m_state(state)
    , m_filter(m_catalog)
    , m_catalogTimer(new QTimer(this))
    , m_loadingDelay(new QTimer(this))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(PageScrollArea::kSideMargin, 0, PageScrollArea::kSideMargin,
                               PageScrollArea::kBottomMargin);
    column->setSpacing(0);
    m_tools = new LocationsTools(this);
    auto *top = new QVBoxLayout;
    top->setSpacing(kGap); // A hidden message takes none.
    top->addWidget(m_tools);
    buildMessage(*top);
    column->addLayout(top);
    column->addSpacing(2 * kGap);
    buildList(*column);
    m_catalogTimer->setSingleShot(true);
    m_loadingDelay->setSingleShot(true);
    m_loadingDelay->start(kLoadingDelay);
    connectWidgets();
    connectState();
    applyThemePalette(ThemePalette::forScheme(ColorScheme::Light));
    setRefreshCooldown(m_state.nodesRefreshCooldown());
    updateEmptyTexts();
    updateButtons();
}

void LocationsPage::buildMessage(QVBoxLayout &column)
{
    m_message = new QLabel(this);
    m_message->setObjectName(u"VantuLocationsMessage"_s);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    keepToLeadingEdge(*m_message);
    m_message->hide();

    column.addWidget(m_message);
}

void LocationsPage::buildList(QVBoxLayout &column)
{
    m_tabs = new LocationsTabBar(this);
    m_tabs->setAccessibleName(tr("Kinds of locations"));

    m_list = new QFrame(this);
    m_list->setObjectName(u"VantuLocationsListGroup"_s);
    setStyleProperty(*m_list, "vantuRole", u"card"_s);
    m_stack = new QStackedWidget(m_list);
    m_stack->setObjectName(u"VantuLocationsListStack"_s);
    m_tree = new LocationsTreeView(m_catalog, m_filter, m_stack);
    m_tree->setObjectName(u"VantuLocationsTree"_s);
    m_tree->setAccessibleName(tr("Locations"));
    m_emptyPage = buildEmptyPage();
    m_stack->addWidget(m_emptyPage);
    m_stack->addWidget(m_tree);
    m_showAllMatches = new QPushButton(tr("Show all matches"), m_list);
    m_showAllMatches->setObjectName(u"VantuLocationsShowAllMatches"_s);
    m_showAllMatches->setAutoDefault(true); // Return presses it, like Space.
    m_showAllMatches->hide();

    auto *layout = new QVBoxLayout(m_list);
    layout->setContentsMargins(kListMargin, kListMargin, kListMargin, kListMargin);
    layout->setSpacing(kListMargin);
    layout->addWidget(m_stack, 1);
    layout->addWidget(m_showAllMatches);
    column.addWidget(m_tabs);
    column.addWidget(m_list, 1);
}

QWidget *LocationsPage::buildEmptyPage()
{
    auto *page = new QWidget(m_stack);
    page->setObjectName(u"VantuLocationsEmptyPage"_s);
    m_empty = new QLabel(page);
    m_empty->setObjectName(u"VantuLocationsEmpty"_s);
    m_empty->setTextFormat(Qt::PlainText);
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    setStyleProperty(*m_empty, "vantuRole", u"muted"_s);
    m_emptyAction = new QPushButton(page);
    m_emptyAction->setObjectName(u"VantuLocationsEmptyAction"_s);
    m_emptyAction->setAutoDefault(true);

    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(kEmptyMargin, kEmptyMargin, kEmptyMargin, kEmptyMargin);
    layout->setSpacing(2 * kGap);
    layout->addStretch(1);
    layout->addWidget(m_empty);
    layout->addWidget(m_emptyAction, 0, Qt::AlignHCenter);
    layout->addStretch(1);
    return page;
}

void LocationsPage::connectWidgets()
{
    connect(&m_tools->search(), &QLineEdit::textChanged, this, &LocationsPage::onSearchEdited);
    m_tools->search().installEventFilter(this);
    auto *find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, this, &LocationsPage::focusSearch);

    connect(m_tools, &LocationsTools::toggleGroupsRequested, this, &LocationsPage::toggleGroups);
    connect(m_tools, &LocationsTools::refreshRequested, this, &LocationsPage::refreshRequested);
    connect(m_tools, &LocationsTools::connectRequested, this, &LocationsPage::connectToTarget);
    connect(m_tools, &LocationsTools::refreshFreeChanged, this, &LocationsPage::updateRefreshing);
    connect(m_emptyAction, &QPushButton::clicked, this, &LocationsPage::runEmptyAction);
    connect(m_showAllMatches, &QPushButton::clicked, this, [this] { scopeSearch(-1); });

    connect(m_tabs, &QTabBar::currentChanged, this, &LocationsPage::onTabChanged);
    connect(m_tabs, &QTabBar::tabBarClicked, this, &LocationsPage::onTabClicked);

    connect(m_tree, &LocationsTreeView::nodeActivated, this, &LocationsPage::connectToNode);
    connect(m_tree, &QTreeView::expanded, this, &LocationsPage::updateToggle);
    connect(m_tree, &QTreeView::collapsed, this, &LocationsPage::updateToggle);
    connect(m_tree->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &LocationsPage::updateConnect);
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &LocationsPage::updateConnect);
    connect(&m_tree->rows(), &LocationsItemDelegate::favoriteClicked, this,
            &LocationsPage::onFavoriteClicked);
    connect(m_loadingDelay, &QTimer::timeout, this, &LocationsPage::updateList);
}

void LocationsPage::connectState()
{
    // Nodes and groups come one after the other and are shown in one go.
    connect(&m_state, &AppState::nodesChanged, this, &LocationsPage::scheduleCatalog);
    connect(&m_state, &AppState::nodeGroupsChanged, this, &LocationsPage::scheduleCatalog);
    connect(m_catalogTimer, &QTimer::timeout, this, &LocationsPage::takeCatalog);
    connect(&m_state, &AppState::runtimeChanged, this, &LocationsPage::takeRuntime);
    connect(&m_state, &AppState::nodesRefreshCooldownChanged, this,
            &LocationsPage::setRefreshCooldown);
}

void LocationsPage::applyThemePalette(const ThemePalette &palette)
{
    m_tree->applyThemePalette(palette);
    m_tools->applyThemePalette(palette);
}
