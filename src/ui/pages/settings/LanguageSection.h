#pragma once

#include "SettingsSection.h"

#include <QPointer>

class AppState;
class ElidedLabel;
class GuiPreferences;
class LanguagePickerDialog;
class QPushButton;
class Theme;
struct SettingsSituation;

/// The language in use, and the way to another.
class LanguageSection final : public SettingsSection
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LanguageSection)

public:
    LanguageSection(const AppState &state, const GuiPreferences &preferences, Theme &theme,
                    QWidget *parent = nullptr);

    void render(const SettingsSituation &situation);

Q_SIGNALS:
    /// `source` is "system" or "explicit".
    void languageRequested(const QString &source, const QString &language);

private:
    void openPicker();

    const AppState &m_state;
    const GuiPreferences &m_preferences;
    Theme &m_theme;
    QPushButton *m_button = nullptr;
    ElidedLabel *m_name = nullptr;
    QPointer<LanguagePickerDialog> m_picker;
};
