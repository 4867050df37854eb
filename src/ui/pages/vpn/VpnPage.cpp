#include "VpnPage.h"

#include "AppState.h"
#include "CardButton.h"
#include "ChevronLabel.h"
#include "ElidedLabel.h"
#include "HandOnTheme.h"
#include "PageScrollArea.h"
#include "PlainText.h"
#include "RuntimeFacts.h"
#include "SearchField.h"
#include "ThemePalette.h"
#include "TrayMenuText.h"
#include "VpnQuickEntry.h"
#include "VpnStatusCard.h"

#include <QApplication>
#include <QDateTime>
#include <QGridLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <chrono>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

constexpr int kSpacing = 16;
/// How often "connected for" is counted on while the page is looked at.
constexpr auto kDurationInterval = 15s;

// Where the cards lead.
constexpr int kLocationsPage = 1;
constexpr int kModePage = 2;
constexpr int kSettingsPage = 3;

void setCard(CardButton &card, const QString &value, const QString &accessibleName)
{
    card.setValue(value);
    card.setAccessibleName(accessibleName);
}

} // namespace

VpnPage::VpnPage(AppState &state, RecentActivityStore &recents, QWidget *parent)
    : QWidget(parent)
    , m_state(state)
{
    buildContent();
    m_quickEntry = new VpnQuickEntry(state, recents, *m_search);
    m_durationTimer.setInterval(kDurationInterval);
    connectSignals();
    render();
}

VpnPage::~VpnPage() = default;

void VpnPage::buildContent()
{
    m_search = new SearchField(tr("Search locations or nodes"), this);
    m_search->setObjectName(u"VantuVPNSearch"_s);
    m_search->setMaximumWidth(PageScrollArea::kColumnWidth);
    auto *top = new QVBoxLayout;
    top->setContentsMargins(PageScrollArea::kSideMargin, 0, PageScrollArea::kSideMargin, 0);
    top->addWidget(m_search);

    // Large fonts on a small screen need more room than there is.
    auto *content = new QWidget;
    auto *scroll = new PageScrollArea(this);
    QVBoxLayout *column = scroll->setContent(*content);
    column->setSpacing(kSpacing);
    m_statusCard = new VpnStatusCard(content);
    column->addWidget(m_statusCard);
    column->addLayout(buildCards());
    column->addStretch(1);

    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(kSpacing);
    page->addLayout(top);
    page->addWidget(scroll, 1);
}

QGridLayout *VpnPage::buildCards()
{
    m_locationCard = addCard(tr("Location"), u"VantuVPNLocationCard"_s, kLocationsPage);
    m_modeCard = addCard(tr("Mode"), u"VantuVPNModeCard"_s, kModePage);
    m_killSwitchCard = addCard(tr("Kill Switch"), u"VantuVPNKillSwitchCard"_s, kSettingsPage);
    m_localNetworkCard = addCard(tr("Local Network"), u"VantuVPNLocalNetworkCard"_s, kModePage);
    m_locationCard->valueLabel()->setObjectName(u"VantuVPNLocationValue"_s);
    m_modeCard->valueLabel()->setObjectName(u"VantuVPNModeValue"_s);
    m_killSwitchCard->valueLabel()->setObjectName(u"VantuVPNKillSwitchValue"_s);

    auto *grid = new QGridLayout;
    grid->setSpacing(kSpacing);
    grid->addWidget(m_locationCard, 0, 0);
    grid->addWidget(m_modeCard, 0, 1);
    grid->addWidget(m_killSwitchCard, 1, 0);
    grid->addWidget(m_localNetworkCard, 1, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

CardButton *VpnPage::addCard(const QString &title, const QString &name, int page)
{
    auto *card = new CardButton(title, m_statusCard->parentWidget());
    card->setObjectName(name);
    card->titleLabel()->setObjectName(u"VantuVPNCardTitle"_s);
    card->chevron()->setObjectName(u"VantuVPNCardChevron"_s);
    connect(card, &QPushButton::clicked, this, [this, page] { Q_EMIT pageRequested(page); });
    return card;
}

void VpnPage::connectSignals()
{
    connect(&m_state, &AppState::runtimeChanged, this, [this](const RuntimeInfo &runtime) {
        if (facts::isConnected(runtime) || !facts::isSignedIn(runtime)) {
            m_situation.connectError.clear();
        }
        render();
    });
    connect(&m_state, &AppState::nodesChanged, this, &VpnPage::render);
    connect(&m_state, &AppState::killSwitchChanged, this, &VpnPage::render);
    connect(&m_durationTimer, &QTimer::timeout, this, &VpnPage::render);
    connect(m_statusCard, &VpnStatusCard::triggered, this, &VpnPage::trigger);

    connect(m_quickEntry, &VpnQuickEntry::connectNodeRequested, this,
            &VpnPage::connectNodeRequested);
    connect(m_quickEntry, &VpnQuickEntry::connectSmartRequested, this,
            &VpnPage::connectSmartRequested);
    connect(m_quickEntry, &VpnQuickEntry::setNodeFavoriteRequested, this,
            &VpnPage::setNodeFavoriteRequested);
    connect(m_quickEntry, &VpnQuickEntry::browseLocationsRequested, this,
            &VpnPage::browseLocationsRequested);
    connect(m_quickEntry, &VpnQuickEntry::recentConnectionsCleared, this,
            &VpnPage::recentConnectionsCleared);
    connect(m_quickEntry, &VpnQuickEntry::recentsNotCleared, this, &VpnPage::recentsNotCleared);
    connect(m_quickEntry, &VpnQuickEntry::visibleChanged, this, &VpnPage::quickEntryVisibleChanged);
    connect(m_quickEntry, &VpnQuickEntry::leftForward, this,
            [this] { m_statusCard->primaryButton()->setFocus(Qt::TabFocusReason); });
}

void VpnPage::setDaemonAvailable(bool available, const QString &reason)
{
    if (available && !m_situation.available) {
        m_situation.connectError.clear(); // It was about the time before.
    }
    m_situation.available = available;
    m_situation.unavailableReason = reason;
    render();
}

void VpnPage::setConnectProgress(const ConnectProgress &progress)
{
    m_situation.progress = progress;
    m_quickEntry->setConnecting(progress.pending);
    if (progress.pending) {
        m_situation.connectError.clear();
    } else {
        m_situation.target = {};
    }
    render();
}

void VpnPage::showConnectError(const QString &message)
{
    if (!facts::isConnected(m_state.runtime())) {
        m_situation.connectError = message;
        render();
    }
}

bool VpnPage::setPendingConnectTarget(const PendingConnectTarget &target)
{
    if (m_situation.progress.pending) {
        return false;
    }
    m_situation.target = target;
    return true;
}

void VpnPage::applyThemePalette(const ThemePalette &palette)
{
    handOnTheme(*this, palette);
    m_quickEntry->applyThemePalette(palette);
}

void VpnPage::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
    m_quickEntry->open();
}

QPushButton &VpnPage::primaryButton() const
{
    return *m_statusCard->primaryButton();
}

bool VpnPage::isQuickEntryOpen() const
{
    return m_quickEntry->isOpen();
}

void VpnPage::closeQuickEntry()
{
    m_quickEntry->close();
}

void VpnPage::render()
{
    const VpnSummary summary = vpnSummary(m_state, m_situation, QDateTime::currentDateTimeUtc());
    m_statusCard->render(summary);
    setCard(*m_locationCard, summary.location, tr("Location, %1").arg(summary.location));
    setCard(*m_modeCard, summary.mode, tr("Mode, %1").arg(summary.mode));
    m_modeCard->setToolTip(plaintext::toolTip(TrayMenuText::modeLine(summary.mode)));
    setCard(*m_killSwitchCard, summary.killSwitch, tr("Kill Switch, %1").arg(summary.killSwitch));
    setCard(*m_localNetworkCard, summary.localNetwork,
            tr("Local Network, %1").arg(summary.localNetwork));

    // Counting on only while somebody can see it keeps an idle program asleep.
    if (summary.countsTime && isVisible()) {
        if (!m_durationTimer.isActive()) {
            m_durationTimer.start();
        }
    } else {
        m_durationTimer.stop();
    }
}

void VpnPage::trigger(PrimaryAction::Intent intent)
{
    closeQuickEntry();
    switch (intent) {
    case PrimaryAction::Intent::Connect:
        Q_EMIT connectRuntimeRequested();
        break;
    case PrimaryAction::Intent::Disconnect:
        Q_EMIT disconnectRuntimeRequested();
        break;
    case PrimaryAction::Intent::Cancel:
        Q_EMIT cancelConnectRequested();
        break;
    case PrimaryAction::Intent::SignIn:
        Q_EMIT signInRequested();
        break;
    }
}

bool VpnPage::focusNextPrevChild(bool next)
{
    if (next && m_quickEntry->isOpen() && m_search->hasFocus()) {
        m_quickEntry->enterPopup();
        return true;
    }
    return QWidget::focusNextPrevChild(next);
}

void VpnPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    render();
}

void VpnPage::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_durationTimer.stop();
}
