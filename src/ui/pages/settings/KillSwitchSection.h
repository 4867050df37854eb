#pragma once

#include "KillSwitchStep.h"
#include "SettingsSection.h"

class AppState;
class ConfirmDialog;
class ElidedLabel;
class QPushButton;
class SegmentedControl;
class Theme;
struct ConfirmTexts;
struct SettingsSituation;

/// The kill switch: its state, what it doesn't hold back, and the questions that come
/// before a change with consequences.
class KillSwitchSection final : public SettingsSection
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KillSwitchSection)

public:
    KillSwitchSection(const AppState &state, Theme &theme, QWidget *parent = nullptr);

    void render(const SettingsSituation &situation);
    /// Moves the keyboard to the choice in force.
    void focusChoice();

Q_SIGNALS:
    void enabledRequested(bool enabled);
    void modeRequested(const QString &mode);
    void switchToAutoAndEnableRequested();
    void chooseModeRequested();
    void routingModeRequested();
    /// A choice that can't be carried out, and why.
    void refused(const QString &message);

private:
    void build();
    void renderExceptions();
    KillSwitchStep stepTo(const QString &wanted) const;
    void choose(const QString &wanted);
    void confirmLockdown();
    void confirmOff();
    void chooseMode();
    /// Shows a question about the choice of `wanted`, and carries out its answers with
    /// `answered` if the choice still has to be asked about as `asked` says.
    using Answered = void (KillSwitchSection::*)(int answer);
    void ask(ConfirmDialog *dialog, KillSwitchStep asked, const QString &wanted, Answered answered);
    void onLockdownAnswered(int answer);
    void onOffAnswered(int answer);
    void onModeAnswered(int answer);

    const AppState &m_state;
    Theme &m_theme;
    bool m_blocked = true;
    ElidedLabel *m_summary = nullptr;
    SegmentedControl *m_choices = nullptr;
    QWidget *m_exceptionsRow = nullptr;
    ElidedLabel *m_lockdownText = nullptr;
    ElidedLabel *m_lanText = nullptr;
    ElidedLabel *m_splitText = nullptr;
    QPushButton *m_link = nullptr;
};
