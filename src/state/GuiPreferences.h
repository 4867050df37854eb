#pragma once

#include <QList>
#include <QSettings>
#include <QString>
#include <QStringList>

#include <memory>

/// A place that the user connected to lately.
struct RecentNode
{
    QString id;
    QString label;
    QString flagCode; ///< Two-letter region code in lower case, or empty.

    bool operator==(const RecentNode &) const = default;
};

/// What is remembered about looking for client updates. Times are Unix seconds,
/// 0 for never.
struct UpdateBookkeeping
{
    qint64 lastAttemptAt = 0;
    qint64 lastSuccessfulCheckAt = 0;
    qint64 lastNotifiedAt = 0;
    qint64 lastNotifiedVersionNum = 0;
    bool forceUpgrade = false;

    bool operator==(const UpdateBookkeeping &) const = default;
};

/// The few settings that belong to the client itself rather than to the daemon,
/// kept in one INI file of the user.
///
/// A plain value store for the GUI thread; several instances may be open on the
/// same file, since every setter writes through at once. Setters return false and
/// log a warning when the file could not be written; the value then holds for this
/// process only. What is missing in the file or of the wrong type reads as its
/// default. A damaged file is reported in the log and kept as "<name>.damaged"; what
/// can still be read of it counts.
class GuiPreferences final
{
    Q_DISABLE_COPY_MOVE(GuiPreferences)

public:
    static constexpr int kMaxRecentSearches = 8;
    static constexpr int kMaxRecentNodes = 5;

    GuiPreferences();

    bool showOnLaunch() const;
    bool setShowOnLaunch(bool show);

    bool launchAtLogin() const;
    bool setLaunchAtLogin(bool launch);

    /// "light", "dark" or "system".
    QString appearance() const;
    bool setAppearance(const QString &appearance);

    /// The interface language last in effect, normalised; empty when none was.
    QString lastEffectiveLanguage() const;
    bool setLastEffectiveLanguage(const QString &code);

    /// Stored trimmed, without empty and repeated texts.
    QStringList recentSearches() const;
    bool setRecentSearches(const QStringList &searches);

    /// Stored without entries whose id is empty or repeated.
    QList<RecentNode> recentNodes() const;
    bool setRecentNodes(const QList<RecentNode> &nodes);
    /// Empties the list and notes that the user did so; puts both back when the
    /// file can't be written.
    bool clearRecentNodes();
    bool recentNodesCleared() const;
    bool setRecentNodesCleared(bool cleared);

    /// What was stored for this version of the client; zeros for any other.
    UpdateBookkeeping updateBookkeeping(const QString &version) const;
    bool setUpdateBookkeeping(const QString &version, const UpdateBookkeeping &bookkeeping);

private:
    bool persist();
    bool write(QLatin1StringView key, const QVariant &value);
    void writeRecentNodes(const QList<RecentNode> &nodes);

    std::unique_ptr<QSettings> m_settings;
};
