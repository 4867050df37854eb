#include "DiagnosticsSection.h"

#include "AppState.h"
#include "ElidedLabel.h"
#include "FactBlock.h"
#include "PlainText.h"
#include "SettingsRow.h"
#include "SettingsSituation.h"
#include "SettingsTexts.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

/// Longest path that is shown.
constexpr qsizetype kMaxPathLength = 1024;

} // namespace

DiagnosticsSection::DiagnosticsSection(const AppState &state, QWidget *parent)
    : SettingsSection(SettingsTexts::tr("Diagnostics"), {}, parent)
    , m_state(state)
{
    SettingsRow *logs = addRow();
    logs->addLine(SettingsTexts::tr("Logs"));
    QPushButton *open = makeButton(SettingsTexts::tr("Open Logs"), u"VantuSettingsOpenLogs"_s);
    logs->setControl(open);
    m_logPath = new FactBlock(u"VantuSettingsLogPath"_s, this);
    logs->addBelow(m_logPath);

    SettingsRow *repair = addRow();
    repair->addNote(SettingsTexts::tr(
        "Repair puts Kill Switch, proxy and VPN settings of this computer in order."));
    m_repair = makeButton(SettingsTexts::tr("Repair"), u"VantuSettingsRepair"_s);
    repair->setControl(m_repair);

    connect(open, &QPushButton::clicked, this, &DiagnosticsSection::openLogsRequested);
    connect(m_repair, &QPushButton::clicked, this, &DiagnosticsSection::repairRequested);
}

void DiagnosticsSection::render(const SettingsSituation &situation)
{
    const QString path = plaintext::singleLine(m_state.configPaths().logDir, kMaxPathLength);
    m_logPath->setFacts(
        {{path.isEmpty() ? SettingsTexts::tr("Log directory unavailable") : path, path}});
    allowUnless(situation.blockReason(), *m_repair);
}
