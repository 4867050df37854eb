#include "ModePage.h"

#include "Announce.h"
#include "AppState.h"
#include "ControlProtocol.h"
#include "ElidedLabel.h"
#include "HandOnTheme.h"
#include "ModeDialogs.h"
#include "ModeOption.h"
#include "ModeRequests.h"
#include "ModeTexts.h"
#include "PageScrollArea.h"
#include "PlainText.h"
#include "RegionChoices.h"
#include "RuntimeFacts.h"
#include "SegmentedControl.h"
#include "StyleProperty.h"
#include "ThemePalette.h"

#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Longest text of the status line.
constexpr qsizetype kMaxStatusLength = 300;

bool isProxy(const QString &transport)
{
    return transport == wire::kTransportProxy;
}

/// The mode that the user left a transport in when it was used last.
bool wasSplit(const QString &transport, const QString &lastPolicy)
{
    ModeInfo last;
    last.transport = transport;
    last.policy = lastPolicy;
    return facts::isSplit(last);
}

} // namespace

void ModePage::applyThemePalette(const ThemePalette &palette)
{
    handOnTheme(*this, palette);
}

void ModePage::setDaemonAvailable(bool available, const QString &reason)
{
    m_awayReason = plaintext::singleLine(reason, kMaxStatusLength);
    if (available && !m_available) {
        m_error.clear(); // It was about the time before.
    }
    updateBlocking([this, available] { m_available = available; });
}

void ModePage::setChangeInFlight(bool mode, bool localNetwork)
{
    if (mode || localNetwork) {
        m_error.clear();
    }
    updateBlocking([this, mode, localNetwork] {
        m_changingMode = mode;
        m_changingLocalNetwork = localNetwork;
    });
}

/// Whoever works with the keyboard is put back to where they were once everything can be
/// used again, unless they went elsewhere.
void ModePage::updateBlocking(const std::function<void()> &change)
{
    const bool wasBlocked = !blockingReason().isEmpty();
    change();
    const bool blocked = !blockingReason().isEmpty();
    if (blocked && !wasBlocked) {
        m_focus.rest(*m_scroll);
    }
    render();
    m_focus.giveBack();
}

void ModePage::showOperationError(const QString &message)
{
    const QString line = plaintext::singleLine(message, kMaxStatusLength);
    m_error = line.isEmpty() ? tr("Mode operation failed") : line;
    render();
    announce(*m_status);
}

void ModePage::setSplitRulesLoading(bool loading)
{
    const bool ended = m_rulesLoading && !loading;
    m_rulesLoading = loading;
    if (loading) {
        m_rulesError.clear();
    }
    m_dialogs->setRulesLoading(loading);
    if (ended && m_rulesError.isEmpty()) {
        // Also when the store had the same before, and therefore said nothing.
        m_dialogs->takeRules();
    }
    render();
}

void ModePage::showSplitRulesError(const QString &message)
{
    m_rulesError = message.trimmed();
    m_dialogs->showRulesError(m_rulesError);
    render();
}

void ModePage::finishSplitRulesImport(const QString &error)
{
    m_dialogs->finishImport(error);
}

void ModePage::whenSafeToLeave(std::function<void()> proceed)
{
    m_dialogs->whenSafeToLeave(std::move(proceed));
}

void ModePage::closeDialogs()
{
    m_dialogs->closeAll();
}

const ModeInfo &ModePage::mode() const
{
    return m_state.runtime().mode;
}

SplitProfile ModePage::profile(bool proxy) const
{
    return proxy ? moderequest::proxyProfile(mode()) : moderequest::vantuVPNProfile(mode());
}

/// Why nothing can be changed, fit for a tool tip; empty when it can.
QString ModePage::blockingReason() const
{
    if (!m_available) {
        return plaintext::toolTip(m_awayReason.isEmpty() ? ModeTexts::modeUnavailable()
                                                         : m_awayReason);
    }
    if (m_changingLocalNetwork) {
        return tr("Updating local network...");
    }
    return m_changingMode ? tr("Switching mode...") : QString();
}

void ModePage::render()
{
    renderSummary();
    for (const Choice &choice : std::as_const(m_choices)) {
        renderChoice(choice);
    }
    renderLocalNetwork();
    closeOutdatedRegions();
    updateRulesWanted();
}

void ModePage::renderSummary()
{
    const ModeSummary summary = ModeTexts::summary(mode(), m_regionNames);
    m_summaryTitle->setText(summary.title);
    m_summaryDetail->setText(summary.detail);
    const bool inFlight = m_changingMode || m_changingLocalNetwork;
    QString status = inFlight ? blockingReason() : m_error;
    if (!m_available) {
        status = m_awayReason;
    }
    const bool isError = m_available && !inFlight && !m_error.isEmpty();
    setStyleProperty(*m_status, "vantuRole", isError ? u"error"_s : u"muted"_s);
    m_status->setText(status);
}

void ModePage::renderChoice(const Choice &choice)
{
    const KillSwitchInfo &killSwitch = facts::effectiveKillSwitch(m_state);
    const bool lockdown = facts::isLockdown(killSwitch);
    const bool proxy = isProxy(choice.transport);
    const QString blocked = blockingReason();
    QString hint = blocked;
    if (proxy && lockdown) {
        hint = ModeTexts::lockdownBlocksMode();
    } else if (proxy && facts::isKillSwitchOn(killSwitch)) {
        hint = tr("Kill Switch blocks Vantu Proxy. Open Settings to turn it off.");
    }
    const bool current = mode().known && mode().transport.trimmed().compare(
                                             choice.transport, Qt::CaseInsensitive) == 0;
    choice.option->setChecked(current);
    choice.option->setEnabled(blocked.isEmpty() && !(proxy && lockdown));
    choice.option->setToolTip(hint);
    if (choice.routing) {
        choice.routing->setVisible(current);
        renderRouting(*choice.routing, proxy);
    }
}

void ModePage::renderRouting(ModeRouting &routing, bool proxy)
{
    // Lockdown lets nothing past the tunnel, which is what dividing traffic is for.
    const bool lockdown = facts::isLockdown(facts::effectiveKillSwitch(m_state));
    const QString lockdownReason = lockdown ? ModeTexts::lockdownBlocksMode() : QString();
    RoutingView view;
    view.split = facts::isSplit(mode());
    view.profile = profile(proxy);
    view.customRules = ModeTexts::customRules(m_state.splitRules());
    view.customRulesProblem = m_rulesError.isEmpty() ? QString() : plaintext::toolTip(m_rulesError);
    view.blocked = blockingReason();
    view.splitBlocked = lockdownReason;
    if (proxy && view.blocked.isEmpty()) {
        view.blocked = lockdownReason;
    }
    routing.render(view);
}

void ModePage::renderLocalNetwork()
{
    const bool isProtected = mode().localNetwork == wire::kLocalNetworkProtected;
    const QLatin1StringView value =
        isProtected ? wire::kLocalNetworkProtected : wire::kLocalNetworkDirect;
    m_localNetwork->setValue(mode().known ? QString(value) : QString());

    const QString blocked = blockingReason();
    QString directBlocked = blocked;
    if (facts::isLockdown(facts::effectiveKillSwitch(m_state))) {
        directBlocked = tr("Turn off Lockdown to allow direct local network access.");
    } else if (blocked.isEmpty() && !mode().known) {
        directBlocked = ModeTexts::modeUnavailable();
    }
    QPushButton *direct = m_localNetwork->segment(wire::kLocalNetworkDirect);
    direct->setEnabled(directBlocked.isEmpty());
    direct->setToolTip(directBlocked);
    QPushButton *protectedSegment = m_localNetwork->segment(wire::kLocalNetworkProtected);
    protectedSegment->setEnabled(blocked.isEmpty());
    protectedSegment->setToolTip(blocked);
}

void ModePage::chooseMode(const QString &transport)
{
    if (mode().known && mode().transport.trimmed().compare(transport, Qt::CaseInsensitive) == 0) {
        return;
    }
    if (transport == wire::kTransportAuto) {
        request(moderequest::autoMode());
    } else if (transport == wire::kTransportWireGuard) {
        request(moderequest::wireGuard());
    } else {
        const bool proxy = isProxy(transport);
        const bool lockdown = facts::isLockdown(facts::effectiveKillSwitch(m_state));
        const QString &policy = proxy ? mode().lastProxyPolicy : mode().lastVantuVPNPolicy;
        chooseRouting(proxy, !lockdown && wasSplit(transport, policy));
    }
}

void ModePage::chooseRouting(bool proxy, bool split)
{
    if (proxy) {
        request(split ? moderequest::proxySplit(mode()) : moderequest::proxyGlobal());
    } else {
        request(split ? moderequest::vantuVPNSplit(mode()) : moderequest::vantuVPNGlobal());
    }
}

void ModePage::chooseProfile(bool proxy, const SplitProfile &profile)
{
    request(proxy ? moderequest::proxySplitWith(profile) : moderequest::vantuVPNSplitWith(profile));
}

void ModePage::chooseLocalNetwork(const QString &value)
{
    m_error.clear();
    render();
    Q_EMIT setLocalNetworkRequested(value);
}

void ModePage::request(const ModeInfo &mode)
{
    m_error.clear();
    render();
    if (facts::isProxyMode(mode) && facts::isKillSwitchOn(facts::effectiveKillSwitch(m_state))) {
        m_dialogs->askForKillSwitchOff();
        return;
    }
    Q_EMIT setModeRequested(mode);
}

void ModePage::chooseRegions(bool proxy)
{
    const SplitProfile current = profile(proxy);
    m_regionsOfProxy = proxy;
    m_regionsRoute = ModeTexts::regionsRoute(current, proxy);
    m_dialogs->pickRegions(m_regionsRoute, regionChoices(current, m_regionNames),
                           moderequest::regionsInForce(current));
}

void ModePage::applyRegions(const QStringList &regions)
{
    chooseProfile(m_regionsOfProxy, moderequest::withRegions(profile(m_regionsOfProxy), regions));
}

/// The tray or another program may change what the picker is open for; its result would
/// then go into another list than the one in its title.
void ModePage::closeOutdatedRegions()
{
    const bool modeFits =
        m_regionsOfProxy ? facts::isProxyMode(mode()) : facts::isVantuVPNMode(mode());
    if (!modeFits || !facts::isSplit(mode()) ||
        ModeTexts::regionsRoute(profile(m_regionsOfProxy), m_regionsOfProxy) != m_regionsRoute) {
        m_dialogs->closeRegions();
    }
}

void ModePage::stepFocus(const ModeOption *from, int step)
{
    const auto at = [this](qsizetype index) { return m_choices.at(index).option; };
    qsizetype index = 0;
    while (index < m_choices.size() && at(index) != from) {
        ++index;
    }
    for (index += step; index >= 0 && index < m_choices.size(); index += step) {
        if (at(index)->isEnabled()) {
            at(index)->setFocus(Qt::TabFocusReason);
            m_scroll->ensureWidgetVisible(at(index));
            break;
        }
    }
}

void ModePage::updateRulesWanted()
{
    const bool wanted =
        isVisible() && m_available && facts::isVantuVPNMode(mode()) && facts::isSplit(mode());
    const bool wasWanted = std::exchange(m_rulesWanted, wanted);
    if (wanted && !wasWanted && !m_rulesLoading && !m_state.splitRules().known) {
        requestRules();
    }
}

void ModePage::requestRules()
{
    m_error.clear();
    renderSummary();
    Q_EMIT splitRulesRequested();
}

void ModePage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    updateRulesWanted();
}

void ModePage::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_rulesWanted = false;
}
