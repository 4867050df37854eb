#include "MainWindow.h"

#include "AccountPage.h"
#include "AppState.h"
#include "ConnectProgress.h"
#include "ElidedLabel.h"
#include "GuiPreferences.h"
#include "HandOnTheme.h"
#include "LocationsPage.h"
#include "MemoryLog.h"
#include "ModePage.h"
#include "NotificationHost.h"
#include "OutsetItem.h"
#include "PageScrollArea.h"
#include "RuntimeFacts.h"
#include "SettingsPage.h"
#include "StateLabels.h"
#include "TextStyle.h"
#include "Theme.h"
#include "TrayMenuText.h"
#include "VpnPage.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QShowEvent>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kMinimumSize{780, 620};
constexpr QMargins kContentMargins{PageScrollArea::kSideMargin, 28, PageScrollArea::kSideMargin,
                                   PageScrollArea::kBottomMargin};
/// Pages scroll up to the window's edges and keep off them what they show.
constexpr QMargins kPageOutset{PageScrollArea::kSideMargin, 0, PageScrollArea::kSideMargin,
                               PageScrollArea::kBottomMargin};
constexpr int kContentSpacing = 16;

QString noticeKindName(MainWindow::NoticeKind kind)
{
    switch (kind) {
    case MainWindow::NoticeKind::Success:
        return u"success"_s;
    case MainWindow::NoticeKind::Warning:
        return u"warning"_s;
    case MainWindow::NoticeKind::Error:
        return u"error"_s;
    case MainWindow::NoticeKind::Info:
        break;
    }
    return u"info"_s;
}

} // namespace

MainWindow::MainWindow(AppState &state, GuiPreferences &preferences, Theme &theme, QWidget *parent)
    : QMainWindow(parent)
    , m_state(state)
    , m_preferences(preferences)
    , m_theme(theme)
    , m_recent(preferences)
{
    setWindowTitle(tr("Vantu"));
    setMinimumSize(kMinimumSize);
    addActions();
    buildContent();
    connectVpnPage();
    connectLocationsPage();
    connectModePage();
    connectSettingsPage();
    connectAccountPage();

    connect(&m_theme, &Theme::changed, this, &MainWindow::applyTheme);
    connect(&m_state, &AppState::runtimeChanged, this, &MainWindow::refreshFromState);
    connect(qApp, &QApplication::focusChanged, this, &MainWindow::scrollToFocus);
    applyTheme();
    refreshFromState();
    showPage(static_cast<int>(Page::Vpn));
}

MainWindow::~MainWindow()
{
    // Their ends would be announced to a window that is no longer one.
    m_vpn->closeQuickEntry();
    disconnect(qApp, nullptr, this, nullptr);
    memorylog::log(u"MainWindow destroyed"_s);
}

void MainWindow::addActions()
{
    auto *closeAction = new QAction(this);
    closeAction->setObjectName(u"VantuCloseWindowAction"_s);
    closeAction->setShortcut(QKeySequence::Close);
    closeAction->setShortcutContext(Qt::WindowShortcut);
    connect(closeAction, &QAction::triggered, this, &QWidget::close);
    addAction(closeAction);

    for (int index = 0; index < kPageCount; ++index) {
        auto *shortcut =
            new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + index)), this);
        connect(shortcut, &QShortcut::activated, this, [this, index] { showPage(index); });
    }
}

void MainWindow::buildContent()
{
    auto *root = new QWidget(this);
    root->setObjectName(u"VantuWindowRoot"_s);
    setCentralWidget(root);
    auto *row = new QHBoxLayout(root);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);

    m_sidebar = new NavigationSidebar(root);
    connect(m_sidebar, &NavigationSidebar::pageRequested, this, &MainWindow::showPage);
    auto *divider = new QFrame(root);
    divider->setObjectName(u"VantuSidebarDivider"_s);
    divider->setFixedWidth(1);

    auto *content = new QWidget(root);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(kContentMargins);
    column->setSpacing(kContentSpacing);
    m_title = new ElidedLabel(content);
    m_title->setObjectName(u"VantuCurrentPageTitle"_s);
    setTextStyle(*m_title, TextStyle::PageTitle);
    m_notices = new NotificationHost(*content, m_title); // Tab comes to it before the page.
    m_stack = new QStackedWidget(content);
    column->addWidget(m_title);
    column->addItem(new OutsetItem(*m_stack, kPageOutset));
    column->setStretch(1, 1);
    buildPages();
    m_notices->keepClearOf(m_vpn->primaryButton());
    m_notices->keepClearOf(*m_locations->findChild<QPushButton *>(u"VantuLocationsConnect"_s));
    // A failure is told by its page as well.
    for (const auto &name :
         {u"VantuLocationsMessage"_s, u"VantuSettingsMessage"_s, u"VantuAccountMessage"_s}) {
        m_notices->keepClearOf(*m_stack->findChild<QWidget *>(name));
    }

    row->addWidget(m_sidebar);
    row->addWidget(divider);
    row->addWidget(content, 1);
}

void MainWindow::buildPages()
{
    m_vpn = new VpnPage(m_state, m_recent, m_stack);
    m_locations = new LocationsPage(m_state, m_stack);
    m_mode = new ModePage(m_state, m_theme, m_stack);
    m_settings = new SettingsPage(m_state, m_preferences, m_theme, m_stack);
    m_account = new AccountPage(m_state, m_stack);
    // In the order of the pages' numbers.
    m_stack->addWidget(m_vpn);
    m_stack->addWidget(m_locations);
    m_stack->addWidget(m_mode);
    m_stack->addWidget(m_settings);
    m_stack->addWidget(m_account);

    // The list of places answers the same keys itself, and two at once would be none.
    auto *search = new QShortcut(QKeySequence::Find, this);
    connect(search, &QShortcut::activated, this, &MainWindow::focusSearch);
    connect(m_stack, &QStackedWidget::currentChanged, search,
            [search](int page) { search->setEnabled(page != static_cast<int>(Page::Locations)); });
}

void MainWindow::applyTheme()
{
    m_theme.applyTo(*this);
    handOnTheme(*this, m_theme.palette());
    m_sidebar->applyThemePalette(m_theme.palette());
    m_vpn->applyThemePalette(m_theme.palette());
    m_locations->applyThemePalette(m_theme.palette());
    m_mode->applyThemePalette(m_theme.palette());
    m_settings->applyThemePalette(m_theme.palette());
    m_account->applyThemePalette(m_theme.palette());
}

void MainWindow::setAppearancePreference(const QString &appearance)
{
    const QString before = m_preferences.appearance();
    const bool isSaved = m_preferences.setAppearance(appearance);
    const QString now = m_preferences.appearance();
    m_theme.setAppearance(now);
    applyTheme();
    if (now != before) {
        Q_EMIT appearancePreferenceChanged(now);
    }
    if (!isSaved) {
        showSettingsFailure({});
    }
}

Page MainWindow::currentPage() const
{
    return static_cast<Page>(m_stack->currentIndex());
}

void MainWindow::showPage(int index)
{
    if (index < 0 || index >= kPageCount) {
        return;
    }
    const Page page = static_cast<Page>(index);
    if (currentPage() == Page::Mode && page != Page::Mode) {
        m_mode->whenSafeToLeave([this, page] { switchPage(page); });
    } else {
        switchPage(page);
    }
}

void MainWindow::switchPage(Page page)
{
    if (currentPage() == Page::Mode && page != Page::Mode) {
        Q_EMIT modePageLeft();
    }
    m_vpn->closeQuickEntry();
    // The keyboard must not stay on something that is no longer seen.
    const bool focusLeaves =
        page != currentPage() && focusWidget() &&
        (m_stack->isAncestorOf(focusWidget()) || m_sidebar->isAncestorOf(focusWidget()));
    m_stack->setCurrentIndex(static_cast<int>(page));
    m_sidebar->setCurrentPage(page);
    if (focusLeaves) {
        m_sidebar->focusCurrentPage();
    }
    m_title->setText(NavigationSidebar::pageName(page));
    if (page != Page::Account) {
        m_account->clearMessage();
    }
    publishShowingPlaces();
    publishSettingsVisible();
}

void MainWindow::showKillSwitchSettings()
{
    showPage(static_cast<int>(Page::Settings));
    if (currentPage() == Page::Settings) {
        m_settings->showKillSwitch();
    }
}

void MainWindow::focusSearch()
{
    showPage(static_cast<int>(Page::Vpn));
    m_vpn->focusSearch();
}

void MainWindow::browseLocations(const QString &query)
{
    showPage(static_cast<int>(Page::Locations));
    m_locations->setSearchText(query);
}

void MainWindow::setDaemonAvailable(bool available, const QString &reason)
{
    m_vpn->setDaemonAvailable(available, reason);
    m_locations->setDaemonAvailable(available, reason);
    m_mode->setDaemonAvailable(available, reason);
    m_settings->setDaemonAvailable(available, reason);
    m_account->setDaemonAvailable(available, reason);
    offerPrimaryAction();
}

void MainWindow::offerPrimaryAction()
{
    QPushButton &primary = m_vpn->primaryButton();
    if (!m_offerPrimary || !primary.isEnabled()) {
        return;
    }
    m_offerPrimary = false;
    // Return connects in a window that was just opened, but never disconnects: it may
    // have come up under the fingers of somebody who types elsewhere.
    const bool untouched = focusWidget() && m_sidebar->isAncestorOf(focusWidget());
    if (untouched && currentPage() == Page::Vpn && !facts::isConnected(m_state.runtime())) {
        primary.setFocus(Qt::OtherFocusReason);
    }
}

void MainWindow::setConnectProgress(const ConnectProgress &progress)
{
    if (progress.pending && !m_connectPending) {
        dismissOutdatedNotice();
    }
    m_connectPending = progress.pending;
    m_vpn->setConnectProgress(progress);
}

void MainWindow::setUnconfirmedFavorites(const QHash<QString, bool> &favorites,
                                         const QSet<QString> &awaited)
{
    m_locations->setUnconfirmedFavorites(favorites, awaited);
}

void MainWindow::noteCatalogReceived()
{
    m_locations->applyCatalog();
}

void MainWindow::scrollToFocus(QWidget *old, QWidget *now)
{
    Q_UNUSED(old)
    // What is pressed must stay under the pointer, or the click is lost.
    if (QApplication::mouseButtons() != Qt::NoButton) {
        return;
    }
    // Tab scrolls by itself; a screen reader gives the focus without it.
    for (QWidget *each = now; each && isAncestorOf(each); each = each->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(each)) {
            area->ensureWidgetVisible(now);
        }
    }
}

void MainWindow::setActivity(const OperationActivity &activity)
{
    if (activity.hasBegunSince(m_activity)) {
        dismissOutdatedNotice();
    }
    m_activity = activity;
    m_locations->setRefreshing(activity.refreshingLocations);
    m_mode->setChangeInFlight(activity.changingMode, activity.changingLocalNetwork);
    m_mode->setSplitRulesLoading(activity.loadingSplitRules);
    m_settings->setRequestInFlight(activity.changingSettings);
    m_settings->setUpdateCheckInFlight(activity.checkingUpdate);
    m_account->setBusy(activity.signingInOrOut);
    m_account->setOpening(activity.openingRenewal);
}

void MainWindow::showPageError(Page page, const QString &message)
{
    switch (page) {
    case Page::Vpn:
        m_vpn->showConnectError(message);
        break;
    case Page::Locations:
        m_locations->showOperationError(message);
        break;
    case Page::Mode:
        m_mode->showOperationError(message);
        break;
    case Page::Settings:
        m_settings->showOperationError(message);
        m_settings->redraw();
        break;
    case Page::Account:
        m_account->showError(message);
        break;
    }
}

void MainWindow::showSplitRulesError(const QString &message)
{
    m_mode->showSplitRulesError(message);
}

void MainWindow::finishSplitRulesImport(const QString &failure)
{
    m_mode->finishSplitRulesImport(failure);
}

void MainWindow::clearLocationsError()
{
    m_locations->clearMessage();
}

void MainWindow::refreshFromState()
{
    m_sidebar->setModeLine(TrayMenuText::modeLine(labels::mode(m_state.runtime().mode)));
}

/// A new attempt overtakes what was said of the last one.
void MainWindow::dismissOutdatedNotice()
{
    if (m_noticePasses) {
        m_notices->dismiss();
    }
}

void MainWindow::showNotice(const QString &message, NoticeKind kind, int timeoutMs)
{
    m_noticePasses = timeoutMs > 0;
    m_notices->showMessage(message, noticeKindName(kind), timeoutMs);
}

bool MainWindow::isShowingPlaces() const
{
    return isVisible() && (currentPage() == Page::Locations || m_vpn->isQuickEntryOpen());
}

void MainWindow::publishShowingPlaces()
{
    const bool showing = isShowingPlaces();
    if (m_showingPlaces != showing) {
        m_showingPlaces = showing;
        Q_EMIT showingPlacesChanged(showing);
    }
}

void MainWindow::publishSettingsVisible()
{
    const bool visible = isVisible() && currentPage() == Page::Settings;
    if (m_settingsVisible != visible) {
        m_settingsVisible = visible;
        if (visible) {
            Q_EMIT settingsVisibleRequested();
        }
    }
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_exitAllowed) {
        m_mode->closeDialogs();
        leaveScreen();
        disconnect(&m_state, nullptr, this, nullptr);
        event->accept();
        return;
    }
    event->ignore();
    m_mode->whenSafeToLeave([this] {
        if (m_hideToTray && m_trayProbe()) {
            leaveScreen();
            hide();
        } else {
            Q_EMIT quitRequested();
        }
    });
}

void MainWindow::keyPressEvent(QKeyEvent *event)
{
    // Return presses what has the keyboard, like Space.
    auto *button = qobject_cast<QAbstractButton *>(focusWidget());
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && button) {
        button->click();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void MainWindow::leaveScreen()
{
    m_vpn->closeQuickEntry();
    if (currentPage() == Page::Mode) {
        Q_EMIT modePageLeft();
    }
    Q_EMIT hiddenToTray();
}

void MainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (!event->spontaneous() && currentPage() == Page::Vpn) {
        m_sidebar->focusCurrentPage();
        m_offerPrimary = true;
        offerPrimaryAction();
    }
    publishShowingPlaces();
    publishSettingsVisible();
}

void MainWindow::hideEvent(QHideEvent *event)
{
    QMainWindow::hideEvent(event);
    publishShowingPlaces();
    publishSettingsVisible();
}
