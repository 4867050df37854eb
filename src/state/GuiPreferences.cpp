#include "GuiPreferences.h"

#include "Language.h"

#include <QDebug>
#include <QFile>
#include <QSaveFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A stored value: its name in the file and what counts when it is not there.
template<typename Value>
struct Key
{
    QLatin1StringView name;
    Value fallback;
};
using BoolKey = Key<bool>;
using NumberKey = Key<qint64>;
using TextKey = Key<QLatin1StringView>;

constexpr BoolKey kShowOnLaunch{QLatin1StringView{"window/showOnLaunch"}, true};
constexpr BoolKey kLaunchAtLogin{QLatin1StringView{"window/launchAtLogin"}, false};
constexpr TextKey kAppearance{QLatin1StringView{"appearance"}, QLatin1StringView{"system"}};
constexpr TextKey kLastLanguage{QLatin1StringView{"language/lastEffective"}, {}};
constexpr TextKey kRecentSearches{QLatin1StringView{"vpn/recentSearches"}, {}};
constexpr TextKey kRecentNodes{QLatin1StringView{"vpn/recentNodes"}, {}};
constexpr TextKey kRecentNodeId{QLatin1StringView{"id"}, {}};
constexpr TextKey kRecentNodeLabel{QLatin1StringView{"label"}, {}};
constexpr TextKey kRecentNodeFlag{QLatin1StringView{"flagCode"}, {}};
constexpr BoolKey kRecentNodesCleared{QLatin1StringView{"vpn/recentNodesCleared"}, false};
constexpr TextKey kUpdateVersion{QLatin1StringView{"update/currentVersion"}, {}};
constexpr NumberKey kUpdateAttempt{QLatin1StringView{"update/lastAttemptAt"}, 0};
constexpr NumberKey kUpdateSuccess{QLatin1StringView{"update/lastSuccessfulCheckAt"}, 0};
constexpr NumberKey kUpdateNotified{QLatin1StringView{"update/lastNotifiedAt"}, 0};
constexpr NumberKey kUpdateNotifiedNum{QLatin1StringView{"update/lastNotifiedVersionNum"}, 0};
constexpr BoolKey kUpdateForced{QLatin1StringView{"update/forceUpgrade"}, false};

constexpr qsizetype kMaxSearchesLookedAt = 32;
constexpr int kMaxNodesLookedAt = 20;

// An INI file holds only text, and users edit it: QVariant's own conversions would
// take every unknown word for "true".
bool read(const QSettings &settings, const BoolKey &key)
{
    const QString word = settings.value(key.name).toString().trimmed().toLower();
    if (word == "true"_L1 || word == "1"_L1) {
        return true;
    }
    if (word == "false"_L1 || word == "0"_L1) {
        return false;
    }
    return key.fallback;
}

qint64 read(const QSettings &settings, const NumberKey &key)
{
    bool isNumber = false;
    const qint64 number = settings.value(key.name).toString().toLongLong(&isNumber);
    return isNumber ? number : key.fallback;
}

QString read(const QSettings &settings, const TextKey &key)
{
    const QString text = settings.value(key.name).toString();
    return text.isEmpty() ? QString(key.fallback) : text;
}

QString normalisedAppearance(const QString &appearance)
{
    const QString word = appearance.trimmed().toLower();
    return word == "light"_L1 || word == "dark"_L1 ? word : QString(kAppearance.fallback);
}

QStringList normalisedSearches(const QStringList &searches)
{
    QStringList kept;
    for (const QString &search : searches.first(std::min(searches.size(), kMaxSearchesLookedAt))) {
        const QString text = search.trimmed();
        if (!text.isEmpty() && !kept.contains(text) &&
            kept.size() < GuiPreferences::kMaxRecentSearches) {
            kept.append(text);
        }
    }
    return kept;
}

QList<RecentNode> normalisedNodes(const QList<RecentNode> &nodes)
{
    QList<RecentNode> kept;
    for (RecentNode node : nodes) {
        node.id = node.id.trimmed();
        const bool isRepeated =
            std::any_of(kept.cbegin(), kept.cend(),
                        [&node](const RecentNode &earlier) { return earlier.id == node.id; });
        if (!node.id.isEmpty() && !isRepeated && kept.size() < GuiPreferences::kMaxRecentNodes) {
            kept.append(node);
        }
    }
    return kept;
}

std::unique_ptr<QSettings> openSettings()
{
    auto settings = std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                                u"VantuVPN"_s, u"Vantu"_s);
    // The user's own file alone counts; leftovers of a system-wide one would
    // bring back what the user removed.
    settings->setFallbacksEnabled(false);
    return settings;
}

/// The next write rewrites the file without the lines that could not be read, so
/// they are saved for whoever wants to mend them.
void keepDamagedFile(const QString &fileName)
{
    const QString copy = fileName + u".damaged"_s;
    if (QFile::exists(copy)) {
        QFile::remove(copy);
    }
    if (QFile::copy(fileName, copy)) {
        qWarning() << "GuiPreferences: the settings file is damaged, a copy is kept as" << copy;
    } else {
        qWarning() << "GuiPreferences: the settings file is damaged and could not be copied to"
                   << copy;
    }
}

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The text of a settings file with this many keys: each has a line, which ends.
bool isWhole(const QByteArray &text, qsizetype keys)
{
    const QByteArrayList lines = text.split('\n');
    const auto assigned = std::count_if(lines.cbegin(), lines.cend(),
                                        [](const QByteArray &line) { return line.contains('='); });
    return assigned == keys && lines.constLast().isEmpty();
}

void putBack(const QString &fileName, const QByteArray &text)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush() ||
        !file.commit()) {
        qWarning() << "GuiPreferences: the settings file could not be put back";
    }
}

} // namespace

GuiPreferences::GuiPreferences()
    : m_settings(openSettings())
{
    // A section is parsed when something in it is first asked for, and only then
    // is damage noticed.
    (void)m_settings->allKeys();
    if (m_settings->status() == QSettings::FormatError) {
        keepDamagedFile(m_settings->fileName());
    }
}

bool GuiPreferences::showOnLaunch() const
{
    return read(*m_settings, kShowOnLaunch);
}

bool GuiPreferences::setShowOnLaunch(bool show)
{
    return write(kShowOnLaunch.name, show);
}

bool GuiPreferences::launchAtLogin() const
{
    return read(*m_settings, kLaunchAtLogin);
}

bool GuiPreferences::setLaunchAtLogin(bool launch)
{
    return write(kLaunchAtLogin.name, launch);
}

QString GuiPreferences::appearance() const
{
    return normalisedAppearance(read(*m_settings, kAppearance));
}

bool GuiPreferences::setAppearance(const QString &appearance)
{
    return write(kAppearance.name, normalisedAppearance(appearance));
}

QString GuiPreferences::lastEffectiveLanguage() const
{
    return language::resolve(read(*m_settings, kLastLanguage));
}

bool GuiPreferences::setLastEffectiveLanguage(const QString &code)
{
    if (!code.trimmed().isEmpty()) {
        return write(kLastLanguage.name, language::normalise(code));
    }
    m_settings->remove(kLastLanguage.name);
    return persist();
}

QStringList GuiPreferences::recentSearches() const
{
    return normalisedSearches(m_settings->value(kRecentSearches.name).toStringList());
}

bool GuiPreferences::setRecentSearches(const QStringList &searches)
{
    return write(kRecentSearches.name, normalisedSearches(searches));
}

QList<RecentNode> GuiPreferences::recentNodes() const
{
    QList<RecentNode> nodes;
    const int size = std::min(m_settings->beginReadArray(kRecentNodes.name), kMaxNodesLookedAt);
    for (int i = 0; i < size; ++i) {
        m_settings->setArrayIndex(i);
        nodes.append({read(*m_settings, kRecentNodeId), read(*m_settings, kRecentNodeLabel),
                      read(*m_settings, kRecentNodeFlag)});
    }
    m_settings->endArray();
    return normalisedNodes(nodes);
}

bool GuiPreferences::setRecentNodes(const QList<RecentNode> &nodes)
{
    writeRecentNodes(nodes);
    return persist();
}

bool GuiPreferences::clearRecentNodes()
{
    const QList<RecentNode> previousNodes = recentNodes();
    const bool previouslyCleared = recentNodesCleared();

    writeRecentNodes({});
    if (write(kRecentNodesCleared.name, true)) {
        return true;
    }
    writeRecentNodes(previousNodes);
    write(kRecentNodesCleared.name, previouslyCleared);
    return false;
}

bool GuiPreferences::recentNodesCleared() const
{
    return read(*m_settings, kRecentNodesCleared);
}

bool GuiPreferences::setRecentNodesCleared(bool cleared)
{
    return write(kRecentNodesCleared.name, cleared);
}

UpdateBookkeeping GuiPreferences::updateBookkeeping(const QString &version) const
{
    const QString wanted = version.trimmed();
    if (wanted.isEmpty() || wanted != read(*m_settings, kUpdateVersion).trimmed()) {
        return {};
    }
    return {read(*m_settings, kUpdateAttempt), read(*m_settings, kUpdateSuccess),
            read(*m_settings, kUpdateNotified), read(*m_settings, kUpdateNotifiedNum),
            read(*m_settings, kUpdateForced)};
}

bool GuiPreferences::setUpdateBookkeeping(const QString &version,
                                          const UpdateBookkeeping &bookkeeping)
{
    m_settings->setValue(kUpdateVersion.name, version.trimmed());
    m_settings->setValue(kUpdateAttempt.name, bookkeeping.lastAttemptAt);
    m_settings->setValue(kUpdateSuccess.name, bookkeeping.lastSuccessfulCheckAt);
    m_settings->setValue(kUpdateNotified.name, bookkeeping.lastNotifiedAt);
    m_settings->setValue(kUpdateNotifiedNum.name, bookkeeping.lastNotifiedVersionNum);
    m_settings->setValue(kUpdateForced.name, bookkeeping.forceUpgrade);
    return persist();
}

bool GuiPreferences::persist()
{
    // A QSettings keeps its first error for ever; only a fresh one tells how this
    // write goes. It takes over what is still unwritten, since it is opened while
    // the old one lives.
    const QString fileName = m_settings->fileName();
    const QByteArray before = contentOf(fileName);
    if (m_settings->status() != QSettings::NoError) {
        m_settings = openSettings();
    }
    m_settings->sync();
    QSettings::Status status = m_settings->status();
    // On a full disk a QSettings replaces the file by as much of the new one as went in,
    // maybe nothing, and calls that a success.
    const QByteArray after = contentOf(fileName);
    if (after != before && !isWhole(after, m_settings->allKeys().size())) {
        putBack(fileName, before);
        status = QSettings::AccessError;
    }
    if (status != QSettings::NoError) {
        qWarning() << "GuiPreferences: failed to persist settings, status" << status;
    }
    return status == QSettings::NoError;
}

bool GuiPreferences::write(QLatin1StringView key, const QVariant &value)
{
    m_settings->setValue(key, value);
    return persist();
}

void GuiPreferences::writeRecentNodes(const QList<RecentNode> &nodes)
{
    const QList<RecentNode> entries = normalisedNodes(nodes);
    m_settings->remove(kRecentNodes.name);
    m_settings->beginWriteArray(kRecentNodes.name, static_cast<int>(entries.size()));
    for (int i = 0; i < static_cast<int>(entries.size()); ++i) {
        const RecentNode &node = entries.at(i);
        m_settings->setArrayIndex(i);
        m_settings->setValue(kRecentNodeId.name, node.id);
        m_settings->setValue(kRecentNodeLabel.name, node.label);
        m_settings->setValue(kRecentNodeFlag.name, node.flagCode);
    }
    m_settings->endArray();
}
