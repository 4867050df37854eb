#include "LanguageController.h"

#include "AppState.h"
#include "ControlProtocol.h"
#include "GuiPreferences.h"
#include "Language.h"
#include "NoticeSink.h"
#include "ServiceCompatibility.h"
#include "ShellText.h"

#include <QApplication>

#include <chrono>

using namespace std::chrono_literals;

namespace {

/// How long to wait before looking again whether a restart would disturb.
constexpr auto kRestartRetry = 500ms;

} // namespace

LanguageController::LanguageController(Parts parts, QObject *parent)
    : QObject(parent)
    , m_parts(std::move(parts))
{
    m_retryTimer.setSingleShot(true);
    m_retryTimer.setInterval(kRestartRetry);
    connect(&m_retryTimer, &QTimer::timeout, this, &LanguageController::tryRestart);
    connect(&m_parts.state, &AppState::runtimeChanged, this,
            [this](const RuntimeInfo &runtime) { follow(runtime.effectiveLanguage); });
    connect(&m_parts.state, &AppState::languageConfigChanged, this,
            [this](const LanguageConfigInfo &info) { follow(info.effectiveLanguage); });
}

void LanguageController::fetch()
{
    // The answer to a change tells the same, and must not be missed.
    if (!m_busy && !m_parts.link.isPending(ControlRequest::SetLanguageIfSource)) {
        m_parts.link.send(ControlRequest::FetchLanguageConfig);
    }
}

void LanguageController::setBusy(bool busy)
{
    if (m_busy != busy) {
        m_busy = busy;
        Q_EMIT busyChanged(busy);
    }
}

void LanguageController::change(const QString &source, const QString &language)
{
    if (!m_parts.compatibility.changeGuardPasses()) {
        return;
    }
    if (m_busy) {
        m_parts.notices.pleaseWait();
        return;
    }
    setBusy(true);
    m_parts.link.forget(ControlRequest::FetchLanguageConfig);
    m_parts.link.send(ControlRequest::SetLanguage, source, language);
}

void LanguageController::handleLanguage(ControlRequest request, const LanguageConfigInfo &info,
                                        const QString &error)
{
    const bool chosen = request == ControlRequest::SetLanguage;
    if (chosen) {
        setBusy(false);
    }
    if (!error.isEmpty()) {
        // A language that can't be read is no news to the user: the current one stays.
        if (chosen) {
            m_parts.notices.error(error, ShellText::tr("Could not update language"),
                                  Page::Settings);
        }
        return;
    }
    m_changed = m_changed || chosen;
    m_parts.state.setLanguageConfig(info);
    follow(info.effectiveLanguage);
    if (!chosen) {
        adoptSystemLanguage(info);
    }
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
        m_parts.link.send(ControlRequest::SetLanguageIfSource, QString(wire::kLanguageSourceSystem),
                          ours, QString(wire::kLanguageSourceSystem));
    }
}

void LanguageController::follow(const QString &effectiveLanguage)
{
    if (effectiveLanguage.trimmed().isEmpty()) {
        return;
    }
    const QString code = language::normalise(effectiveLanguage);
    if (m_parts.preferences.lastEffectiveLanguage() != code) {
        m_parts.preferences.setLastEffectiveLanguage(code);
    }
    // A language that is not shipped would load English again, and restart again.
    m_wanted = code != m_loaded && language::hasTranslation(code) ? code : QString();
    tryRestart();
}

void LanguageController::tryRestart()
{
    m_retryTimer.stop();
    if (m_restartRequested || m_wanted.isEmpty()) {
        return;
    }
    if (!m_restartAllowed) {
        // This process was itself started for a language; another one takes the user's
        // own hand, and is told of once.
        if (m_changed) {
            m_restartRequested = true;
            handleRestartFailed();
        }
        return;
    }
    if (!m_parts.isIdle() || QApplication::activeModalWidget()) {
        m_retryTimer.start();
        return;
    }
    m_restartRequested = true;
    m_parts.notices.show(ShellText::tr("Restarting Vantu to apply the interface language."),
                         MainWindow::NoticeKind::Info);
    Q_EMIT restartRequested();
}

void LanguageController::handleRestartFailed()
{
    m_parts.notices.error(
        {}, ShellText::tr("Could not restart Vantu. Please restart the app manually."));
}
