#include "SplitRulesController.h"

#include "AppState.h"
#include "NoticeSink.h"
#include "PlainText.h"
#include "RequestLink.h"
#include "ServiceCompatibility.h"
#include "ShellText.h"

#include <utility>

SplitRulesController::SplitRulesController(RequestLink &link, AppState &state, NoticeSink &notices,
                                           ServiceCompatibility &compatibility, QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_state(state)
    , m_notices(notices)
    , m_compatibility(compatibility)
{}

void SplitRulesController::setLoading(bool loading)
{
    if (m_loading != loading) {
        m_loading = loading;
        Q_EMIT loadingChanged(loading);
    }
}

void SplitRulesController::fetch()
{
    setLoading(true);
    m_link.send(ControlRequest::FetchSplitRules, QString());
}

void SplitRulesController::import(const QString &kind, const QString &content)
{
    if (!m_compatibility.changeGuardPasses()) {
        Q_EMIT importFinished(m_compatibility.reason());
    } else if (m_link.isPending(ControlRequest::ImportSplitRules)) {
        Q_EMIT importFinished(ShellText::tr("Please wait for the current operation to finish"));
    } else {
        m_link.send(ControlRequest::ImportSplitRules, kind, content);
    }
}

void SplitRulesController::handleRules(const SplitRulesInfo &rules, const QString &error)
{
    const bool afterImport = std::exchange(m_afterImport, false);
    if (error.isEmpty()) {
        m_state.setSplitRules(rules);
    } else {
        const QString failure = ShellText::tr("Could not load split rules");
        if (afterImport) {
            m_notices.show(
                ShellText::tr("Custom split rules updated, but rules could not be refreshed"),
                MainWindow::NoticeKind::Warning);
        } else {
            m_notices.error(error, failure, Page::Mode);
        }
        // What is held is not to be edited in either case: it may be of the time before.
        Q_EMIT loadFailed(NoticeSink::wording(error, failure));
    }
    // Last, since who waits for the end then looks at what has come.
    setLoading(false);
}

void SplitRulesController::handleImport(const SplitRuleMutationInfo &info, const QString &error)
{
    if (!error.isEmpty()) {
        const QString failure = ShellText::tr("Could not import split rules");
        const QString reason = error.trimmed();
        // Not on the page: the editor, which is open over it, shows the reason itself.
        m_notices.error(reason.isEmpty() ? failure : failure + u'\n' + reason, failure);
        Q_EMIT importFinished(reason.isEmpty() ? failure : reason);
        return;
    }
    m_notices.show(info.changed ? plaintext::pluralText(
                                      ShellText::tr("Custom split rules updated (%n rule(s))",
                                                    nullptr, info.count),
                                      info.count)
                                : ShellText::tr("Custom split rules unchanged"),
                   MainWindow::NoticeKind::Success);
    m_afterImport = true;
    Q_EMIT importFinished({});
    fetch();
}
