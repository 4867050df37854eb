#pragma once

#include "SettingsSection.h"

class AppState;
class GuiPreferences;
class ToggleSwitch;

/// What happens when the program or the desktop starts.
class GeneralSection final : public SettingsSection
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(GeneralSection)

public:
    GeneralSection(const AppState &state, const GuiPreferences &preferences,
                   QWidget *parent = nullptr);

    void render();

Q_SIGNALS:
    void autoConnectRequested(bool value);
    void launchAtLoginRequested(bool launch);
    void showWindowOnLaunchRequested(bool show);

private:
    using Request = void (GeneralSection::*)(bool);
    ToggleSwitch *addToggle(const QString &text, const QString &objectName, Request request,
                            const QString &note = {});

    const AppState &m_state;
    const GuiPreferences &m_preferences;
    ToggleSwitch *m_autoConnect = nullptr;
    ToggleSwitch *m_launchAtLogin = nullptr;
    ToggleSwitch *m_showWindow = nullptr;
};
