#include "KillSwitchSection.h"

#include "AppState.h"
#include "ConfirmDialog.h"
#include "ControlProtocol.h"
#include "ElidedLabel.h"
#include "KillSwitchConfirm.h"
#include "RuntimeFacts.h"
#include "SegmentedControl.h"
#include "SettingsRow.h"
#include "SettingsSituation.h"
#include "SettingsTexts.h"
#include "StateLabels.h"

#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QString summaryText(const KillSwitchInfo &killSwitch, const ModeInfo &mode)
{
    if (!killSwitch.known) {
        return SettingsTexts::tr("Kill Switch: unavailable");
    }
    const QString label = labels::killSwitch(killSwitch, "SettingsPage");
    if (facts::isKillSwitchOn(killSwitch)) {
        return SettingsTexts::tr("Kill Switch: %1. Vantu Proxy is unavailable while Kill Switch "
                                 "is on.")
            .arg(label);
    }
    return facts::isProxyMode(mode)
               ? SettingsTexts::tr("Kill Switch: %1. Not available in Vantu Proxy.").arg(label)
               : SettingsTexts::tr("Kill Switch: %1").arg(label);
}

} // namespace

KillSwitchSection::KillSwitchSection(const AppState &state, Theme &theme, QWidget *parent)
    : SettingsSection(SettingsTexts::tr("Kill Switch"), u"VantuSettingsSafetySection"_s, parent)
    , m_state(state)
    , m_theme(theme)
{
    build();
    connect(m_choices, &SegmentedControl::chosen, this, &KillSwitchSection::choose);
    connect(m_link, &QPushButton::clicked, this, &KillSwitchSection::routingModeRequested);
}

void KillSwitchSection::build()
{
    SettingsRow *row = addRow();
    m_summary = row->addLine({}, u"VantuSettingsKillSwitchSummary"_s);
    row->addNote(SettingsTexts::tr("Block internet traffic whenever the VPN is not connected."));
    m_choices = row->setChoices(
        SettingsTexts::tr("Kill Switch"),
        {{wire::kKillSwitchOff, SettingsTexts::tr("Off"), u"VantuSettingsKillSwitchOff"_s,
          SettingsTexts::tr("Kill Switch Off")},
         {wire::kKillSwitchOn, SettingsTexts::tr("On"), u"VantuSettingsKillSwitchOn"_s,
          SettingsTexts::tr("Kill Switch On")},
         {wire::kKillSwitchLockdown, SettingsTexts::tr("Lockdown"),
          u"VantuSettingsKillSwitchLockdown"_s, SettingsTexts::tr("Kill Switch Lockdown")}});

    m_exceptionsRow = new QWidget(row);
    m_lockdownText = SettingsRow::makeNote(
        SettingsTexts::tr("Lockdown uses global VPN routing, protects the local network, and "
                          "closes active VantuVPN Direct sessions. Essential Vantu and network "
                          "setup traffic remains allowed."),
        m_exceptionsRow);
    m_lockdownText->setObjectName(u"VantuSettingsKillSwitchExceptions"_s);
    m_lanText = SettingsRow::makeNote(
        SettingsTexts::tr("Local network stays direct while Kill Switch is on."), m_exceptionsRow);
    m_lanText->setObjectName(u"VantuSettingsKillSwitchLANExceptionText"_s);
    m_splitText = SettingsRow::makeNote(
        SettingsTexts::tr("While VantuVPN Split is connected, traffic routed Direct by the split "
                          "settings bypasses the VPN even with Kill Switch on; sites may see your "
                          "network's exit IP."),
        m_exceptionsRow);
    m_splitText->setObjectName(u"VantuSettingsKillSwitchSplitExceptionText"_s);
    m_link =
        makeButton(SettingsTexts::tr("Change in Mode"), u"VantuSettingsRoutingExceptionLink"_s);

    auto *column = new QVBoxLayout(m_exceptionsRow);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_lockdownText);
    column->addWidget(m_lanText);
    column->addWidget(m_splitText);
    column->addWidget(m_link, 0, Qt::AlignLeading);
    row->addBelow(m_exceptionsRow);
}

void KillSwitchSection::render(const SettingsSituation &situation)
{
    const KillSwitchInfo &killSwitch = facts::effectiveKillSwitch(m_state);
    m_summary->setText(summaryText(killSwitch, m_state.runtime().mode));
    m_choices->setValue(killSwitch.known ? killSwitchChoice(killSwitch) : QString());
    const QString reason = situation.blockReason(killSwitch.known);
    m_blocked = !reason.isEmpty();
    allowUnless(reason, *m_choices);
    renderExceptions();
}

void KillSwitchSection::renderExceptions()
{
    const KillSwitchInfo &killSwitch = facts::effectiveKillSwitch(m_state);
    const ModeInfo &mode = m_state.runtime().mode;
    const bool isLockdown = killSwitch.known && facts::isLockdown(killSwitch);
    const bool lanException = killSwitch.known && !isLockdown &&
                              facts::isKillSwitchOn(killSwitch) &&
                              mode.localNetwork == wire::kLocalNetworkDirect;
    const bool splitException = !isLockdown && isVantuVPNSplit(mode);
    m_lockdownText->setVisible(isLockdown);
    m_lanText->setVisible(lanException);
    m_splitText->setVisible(splitException);
    m_link->setVisible(lanException || splitException);
    m_exceptionsRow->setVisible(isLockdown || lanException || splitException);
}

void KillSwitchSection::focusChoice()
{
    QPushButton *button = m_choices->segment(m_choices->value());
    if (!button) {
        button = m_choices->segment(wire::kKillSwitchOff);
    }
    button->setFocus(Qt::OtherFocusReason);
}

KillSwitchStep KillSwitchSection::stepTo(const QString &wanted) const
{
    return m_blocked ? KillSwitchStep::Nothing
                     : killSwitchStep(facts::effectiveKillSwitch(m_state), m_state.runtime().mode,
                                      wanted);
}

void KillSwitchSection::choose(const QString &wanted)
{
    switch (stepTo(wanted)) {
    case KillSwitchStep::Nothing:
        break;
    case KillSwitchStep::RefuseLockdown:
        Q_EMIT refused(SettingsTexts::tr("Choose a VPN mode before enabling Lockdown."));
        break;
    case KillSwitchStep::ConfirmLockdown:
        confirmLockdown();
        break;
    case KillSwitchStep::SetLockdown:
    case KillSwitchStep::LeaveLockdown:
        Q_EMIT modeRequested(wanted);
        break;
    case KillSwitchStep::ChooseMode:
        chooseMode();
        break;
    case KillSwitchStep::Enable:
        Q_EMIT enabledRequested(true);
        break;
    case KillSwitchStep::ConfirmOff:
        confirmOff();
        break;
    }
}

void KillSwitchSection::confirmLockdown()
{
    const ConfirmTexts texts{
        .title = SettingsTexts::tr("Enable Lockdown?"),
        .message =
            isVantuVPNSplit(m_state.runtime().mode)
                ? SettingsTexts::tr("VantuVPN Split will switch to Global, the local network will "
                                    "become Protected, and active VantuVPN Direct sessions will "
                                    "close.")
                : SettingsTexts::tr("The local network will become Protected. Existing LAN "
                                    "connections may be interrupted."),
        .detail = {},
        .accept = {SettingsTexts::tr("Enable Lockdown"), {}},
        .destructive = false,
        .alternate = {},
        .reject = {SettingsTexts::tr("Cancel"), {}},
    };
    ask(new ConfirmDialog(texts, m_theme, window()), KillSwitchStep::ConfirmLockdown,
        wire::kKillSwitchLockdown, &KillSwitchSection::onLockdownAnswered);
}

void KillSwitchSection::confirmOff()
{
    const ConfirmTexts texts{
        .title = SettingsTexts::tr("Turn Off Kill Switch?"),
        .message = SettingsTexts::tr("While Kill Switch is off, traffic may leave unprotected if "
                                     "the VPN disconnects."),
        .detail = SettingsTexts::tr("Turn Kill Switch off only if you understand the risk."),
        .accept = {SettingsTexts::tr("Turn Off"), SettingsTexts::tr("Turn Off Kill Switch")},
        .destructive = true,
        .alternate = {},
        .reject = {SettingsTexts::tr("Keep On"), SettingsTexts::tr("Keep Kill Switch On")},
    };
    ask(new ConfirmDialog(texts, m_theme, window()), KillSwitchStep::ConfirmOff,
        wire::kKillSwitchOff, &KillSwitchSection::onOffAnswered);
}

void KillSwitchSection::chooseMode()
{
    ask(KillSwitchConfirm::needsVpnMode(m_theme, window()).release(), KillSwitchStep::ChooseMode,
        wire::kKillSwitchOn, &KillSwitchSection::onModeAnswered);
}

void KillSwitchSection::ask(ConfirmDialog *dialog, KillSwitchStep asked, const QString &wanted,
                            Answered answered)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, [this, asked, wanted, answered](int answer) {
        // What was asked may have been settled meanwhile, or need no asking any more.
        const KillSwitchStep step = stepTo(wanted);
        if (step == asked || step == KillSwitchStep::SetLockdown) {
            (this->*answered)(answer);
        }
    });
    dialog->open();
}

void KillSwitchSection::onLockdownAnswered(int answer)
{
    if (answer == ConfirmDialog::AcceptAnswer) {
        Q_EMIT modeRequested(wire::kKillSwitchLockdown);
    }
}

void KillSwitchSection::onOffAnswered(int answer)
{
    if (answer == ConfirmDialog::AcceptAnswer) {
        Q_EMIT enabledRequested(false);
    }
}

void KillSwitchSection::onModeAnswered(int answer)
{
    if (answer == ConfirmDialog::AcceptAnswer) {
        Q_EMIT switchToAutoAndEnableRequested();
    } else if (answer == ConfirmDialog::AlternateAnswer) {
        Q_EMIT chooseModeRequested();
    }
}
