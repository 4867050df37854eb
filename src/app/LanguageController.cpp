#include "LanguageController.h"

#include "AppState.h"
#include "ControlProtocol.h"
#include "GuiPreferences.h"
#include "Language.h"
#include "NoticeSink.h"
#include "RequestLink.h"
#include "ShellText.h"

#include <QApplication>

#include <chrono>

using namespace std::chrono_literals;

namespace {

/// How long to wait before looking again whether a restart would disturb.
constexpr auto kRestartRetry = 500ms;

} // namespace

LanguageController::LanguageController(RequestLink &link, AppState &state, NoticeSink &notices,
                                       GuiPreferences &preferences, std::function<bool()> isIdle,
                                       QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_state(state)
    , m_notices(notices)
    , m_preferences(preferences)
    , m_isIdle(std::move(isIdle))
{
    m_retryTimer.setSingleShot(true);
    m_retryTimer.setInterval(kRestartRetry);
    connect(&m_retryTimer, &QTimer::timeout, this, &LanguageController::tryRestart);
    connect(&state, &AppState::runtimeChanged, this,
            [this](const RuntimeInfo &runtime) { follow(runtime.effectiveLanguage); });
    connect(&state, &AppState::languageConfigChanged, this,
            [this](const LanguageConfigInfo &info) { follow(info.effectiveLanguage); });
}

void LanguageController::fetch()
{
    // The answer to a change tells the same, and must not be missed.
    if (!m_link.isPending(ControlRequest::SetLanguageIfSource)) {
        m_link.send(ControlRequest::FetchLanguageConfig);
    }
}

void LanguageController::handleLanguage(const LanguageConfigInfo &info, const QString &error)
{
    // A language that can't be read is no news to the user: the current one stays.
    if (!error.isEmpty()) {
        return;
    }
    m_state.setLanguageConfig(info);
    follow(info.effectiveLanguage);
    adoptSystemLanguage(info);
}

void LanguageController::adoptSystemLanguage(const LanguageConfigInfo &info)
{
    // The daemon runs as another user and can't know this desktop's language; it is
    // told once, and only while it is set to follow the system.
    if (m_systemLanguageTold || info.source.trimmed() != wire::kLanguageSourceSystem) {
        return;
    }
    m_systemLanguageTold = true;
    const QString ours = language::systemCode();
    if (language::normalise(info.language) != ours) {
        m_link.send(ControlRequest::SetLanguageIfSource, QString(wire::kLanguageSourceSystem), ours,
                    QString(wire::kLanguageSourceSystem));
    }
}

void LanguageController::follow(const QString &effectiveLanguage)
{
    if (effectiveLanguage.trimmed().isEmpty()) {
        return;
    }
    const QString code = language::normalise(effectiveLanguage);
    if (m_preferences.lastEffectiveLanguage() != code) {
        m_preferences.setLastEffectiveLanguage(code);
    }
    // A language that is not shipped would load English again, and restart again.
    m_wanted = code != m_loaded && language::hasTranslation(code) ? code : QString();
    tryRestart();
}

void LanguageController::tryRestart()
{
    m_retryTimer.stop();
    if (!m_restartAllowed || m_restartRequested || m_wanted.isEmpty()) {
        return;
    }
    if (!m_isIdle() || QApplication::activeModalWidget()) {
        m_retryTimer.start();
        return;
    }
    m_restartRequested = true;
    m_notices.show(ShellText::tr("Restarting Vantu to apply the interface language."),
                   MainWindow::NoticeKind::Info);
    Q_EMIT restartRequested();
}

void LanguageController::handleRestartFailed()
{
    m_notices.error({}, ShellText::tr("Could not restart Vantu. Please restart the app manually."));
}
