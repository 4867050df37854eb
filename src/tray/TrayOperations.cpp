#include "TrayOperations.h"

void TrayOperations::begin(TrayBusy kind, const QString &progressText)
{
    m_busy.setFlag(kind);
    if (!progressText.isEmpty()) {
        m_progressText = progressText;
    }
}

void TrayOperations::end(TrayBusy kind)
{
    m_busy.setFlag(kind, false);
    if (!any()) {
        m_progressText.clear();
    }
}

void TrayOperations::beginShell(TrayBusy kind, const ShellOperation &operation,
                                const QString &progressText, bool cancellable)
{
    m_busy.setFlag(TrayBusy::Connect, false);
    m_busy.setFlag(TrayBusy::Logout, false);
    m_shell = operation;
    m_cancellable = cancellable;
    begin(kind, progressText);
}

std::optional<ShellOperation> TrayOperations::endShell(quint64 requestId)
{
    if (!m_shell || m_shell->requestId != requestId) {
        return std::nullopt;
    }
    const ShellOperation operation = *m_shell;
    m_shell.reset();
    m_cancellable = false;
    end(TrayBusy::Connect);
    end(TrayBusy::Logout);
    return operation;
}
