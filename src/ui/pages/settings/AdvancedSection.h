#pragma once

#include "SettingsSection.h"

class AppState;
class FactBlock;
class SettingsField;
struct SettingsSituation;

/// The address of the service that the daemon talks to.
class AdvancedSection final : public SettingsSection
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AdvancedSection)

public:
    explicit AdvancedSection(const AppState &state, QWidget *parent = nullptr);

    void render(const SettingsSituation &situation);
    /// The daemon refused the last change.
    void keepTyped();

Q_SIGNALS:
    void apiURLRequested(const QString &apiURL);
    void resetRequested();

private:
    QString current() const;
    void apply();
    void reset();

    const AppState &m_state;
    FactBlock *m_summary = nullptr;
    SettingsField *m_field = nullptr;
};
