#include "TrayQuestions.h"

#include "ConfirmDialog.h"
#include "KillSwitchConfirm.h"
#include "SharedTheme.h"

TrayQuestions::TrayQuestions(SharedTheme &theme, QObject *parent)
    : QObject(parent)
    , m_theme(theme)
{}

TrayQuestions::~TrayQuestions()
{
    delete m_dialog;
}

void TrayQuestions::askForVpnMode()
{
    if (raiseOpenDialog()) {
        return;
    }
    const ConfirmDialog *dialog = show(KillSwitchConfirm::needsVpnMode(m_theme.get()));
    connect(dialog, &QDialog::finished, this, [this](int answer) {
        if (answer == ConfirmDialog::AcceptAnswer) {
            Q_EMIT switchToAutoChosen();
        } else if (answer == ConfirmDialog::AlternateAnswer) {
            Q_EMIT chooseModeChosen();
        }
    });
}

void TrayQuestions::askForKillSwitchOff()
{
    if (raiseOpenDialog()) {
        return;
    }
    const ConfirmDialog *dialog = show(KillSwitchConfirm::needsKillSwitchOff(m_theme.get()));
    connect(dialog, &QDialog::finished, this, [this](int answer) {
        if (answer == ConfirmDialog::AcceptAnswer) {
            Q_EMIT openSettingsChosen();
        }
    });
}

bool TrayQuestions::raiseOpenDialog()
{
    if (m_dialog.isNull() || !m_dialog->isVisible()) {
        return false;
    }
    m_dialog->raise();
    m_dialog->activateWindow();
    return true;
}

ConfirmDialog *TrayQuestions::show(std::unique_ptr<ConfirmDialog> dialog)
{
    m_dialog = dialog.release();
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->open();
    m_dialog->raise();
    m_dialog->activateWindow();
    return m_dialog;
}
