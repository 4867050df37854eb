#pragma once

#include "ServiceRecords.h"

#include <QObject>
#include <QTimer>

#include <functional>

class AppState;
class GuiPreferences;
class NoticeSink;
class RequestLink;

/// Follows the daemon's interface language: remembers it, and asks once for a
/// restart of the program when it is not the one that was loaded.
class LanguageController final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LanguageController)

public:
    /// `isIdle` tells that no operation runs which a restart would interrupt. All
    /// arguments must outlive the object.
    LanguageController(RequestLink &link, AppState &state, NoticeSink &notices,
                       GuiPreferences &preferences, std::function<bool()> isIdle,
                       QObject *parent = nullptr);

    void setLoadedLanguage(const QString &code) { m_loaded = code; }
    void setRestartAllowed(bool allowed) { m_restartAllowed = allowed; }

    void fetch();
    /// The answer to a language request that the link still awaited.
    void handleLanguage(const LanguageConfigInfo &info, const QString &error);
    void handleRestartFailed();

Q_SIGNALS:
    /// At most once in a process.
    void restartRequested();

private:
    void follow(const QString &effectiveLanguage);
    void tryRestart();
    void adoptSystemLanguage(const LanguageConfigInfo &info);

    RequestLink &m_link;
    AppState &m_state;
    NoticeSink &m_notices;
    GuiPreferences &m_preferences;
    std::function<bool()> m_isIdle;
    QString m_loaded;
    QString m_wanted;
    bool m_restartAllowed = false;
    bool m_restartRequested = false;
    bool m_systemLanguageTold = false;
    QTimer m_retryTimer;
};
