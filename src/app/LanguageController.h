#pragma once

#include "RequestLink.h"

#include <QObject>
#include <QTimer>

#include <functional>

class AppState;
class GuiPreferences;
class NoticeSink;
class ServiceCompatibility;

/// Follows the daemon's interface language: remembers it, and asks once for a
/// restart of the program when it is not the one that was loaded.
class LanguageController final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LanguageController)

public:
    /// What it works with; everything must outlive the object.
    struct Parts
    {
        RequestLink &link;
        AppState &state;
        NoticeSink &notices;
        GuiPreferences &preferences;
        ServiceCompatibility &compatibility;
        /// No operation runs which a restart would interrupt.
        std::function<bool()> isIdle;
    };

    explicit LanguageController(Parts parts, QObject *parent = nullptr);

    /// A change that the user asked for is on its way.
    bool isBusy() const { return m_busy; }

    void setLoadedLanguage(const QString &code) { m_loaded = code; }
    void setRestartAllowed(bool allowed) { m_restartAllowed = allowed; }

    void fetch();
    /// The user's choice: `source` is "system" or "explicit".
    void change(const QString &source, const QString &language);
    /// The answer to a language request that the link still awaited.
    void handleLanguage(ControlRequest request, const LanguageConfigInfo &info,
                        const QString &error);
    void handleRestartFailed();

Q_SIGNALS:
    void busyChanged(bool busy);
    /// At most once in a process.
    void restartRequested();

private:
    void follow(const QString &effectiveLanguage);
    void setBusy(bool busy);
    void tryRestart();
    void adoptSystemLanguage(const LanguageConfigInfo &info);

    Parts m_parts;
    QString m_loaded;
    QString m_wanted;
    bool m_restartAllowed = false;
    bool m_restartRequested = false;
    bool m_systemLanguageTold = false;
    bool m_busy = false;
    bool m_changed = false; ///< The user chose a language in this process.
    QTimer m_retryTimer;
};
