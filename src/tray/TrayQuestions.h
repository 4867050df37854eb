#pragma once

#include <QObject>
#include <QPointer>

#include <memory>

class ConfirmDialog;
class SharedTheme;

/// Asks the questions that choices in the tray menu give rise to, one at a time: while
/// one is open a second call only brings it to the front. Dialogs are made, and with
/// them what they need to look right, when the first is asked.
class TrayQuestions final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TrayQuestions)

public:
    /// `theme` must outlive the object.
    explicit TrayQuestions(SharedTheme &theme, QObject *parent = nullptr);
    ~TrayQuestions() override;

    /// The kill switch was to be turned on in a proxy mode.
    void askForVpnMode();
    /// A proxy mode was chosen while the kill switch is on.
    void askForKillSwitchOff();

Q_SIGNALS:
    void switchToAutoChosen();
    void chooseModeChosen();
    void openSettingsChosen();

private:
    bool raiseOpenDialog();
    ConfirmDialog *show(std::unique_ptr<ConfirmDialog> dialog);

    SharedTheme &m_theme;
    QPointer<ConfirmDialog> m_dialog;
};
