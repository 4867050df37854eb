#pragma once

#include "SettingsSection.h"

class GuiPreferences;
class SegmentedControl;

/// Light, dark, or as the desktop is.
class AppearanceSection final : public SettingsSection
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AppearanceSection)

public:
    explicit AppearanceSection(const GuiPreferences &preferences, QWidget *parent = nullptr);

    void render();

Q_SIGNALS:
    void appearanceRequested(const QString &appearance);

private:
    const GuiPreferences &m_preferences;
    SegmentedControl *m_choices = nullptr;
};
