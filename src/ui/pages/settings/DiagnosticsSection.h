#pragma once

#include "SettingsSection.h"

class AppState;
class FactBlock;
class QPushButton;
struct SettingsSituation;

/// Where to look and what to press when something is wrong.
class DiagnosticsSection final : public SettingsSection
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DiagnosticsSection)

public:
    explicit DiagnosticsSection(const AppState &state, QWidget *parent = nullptr);

    void render(const SettingsSituation &situation);

Q_SIGNALS:
    void openLogsRequested();
    void repairRequested();

private:
    const AppState &m_state;
    FactBlock *m_logPath = nullptr;
    QPushButton *m_repair = nullptr;
};
