#pragma once

#include "SplitRecords.h"

#include <QObject>
#include <QString>

class AppState;
class NoticeSink;
class RequestLink;
class ServiceCompatibility;

/// The user's own split rules: read from the daemon, and sent to it a list at a time.
class SplitRulesController final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SplitRulesController)

public:
    /// All arguments must outlive the object.
    SplitRulesController(RequestLink &link, AppState &state, NoticeSink &notices,
                         ServiceCompatibility &compatibility, QObject *parent = nullptr);

    bool isLoading() const { return m_loading; }

    void fetch();
    /// Replaces the list of this kind by the lines of `content`.
    void import(const QString &kind, const QString &content);

    /// Answers that the link still awaited.
    void handleRules(const SplitRulesInfo &rules, const QString &error);
    void handleImport(const SplitRuleMutationInfo &info, const QString &error);

Q_SIGNALS:
    void loadingChanged(bool loading);
    /// The text is for the user.
    void loadFailed(const QString &message);
    /// An import ended; the text for the user is empty if it was taken.
    void importFinished(const QString &failure);

private:
    void setLoading(bool loading);

    RequestLink &m_link;
    AppState &m_state;
    NoticeSink &m_notices;
    ServiceCompatibility &m_compatibility;
    bool m_loading = false;
    bool m_afterImport = false; ///< The rules are read to show what an import made of them.
};
