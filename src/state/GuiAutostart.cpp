#include "GuiAutostart.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kEntryName{"com.vantuvpn.vantu.desktop"};

/// %1 is the quoted executable, %2 the plain one.
constexpr QLatin1StringView kEntryText{"[Desktop Entry]\n"
                                       "Type=Application\n"
                                       "Name=Vantu VPN\n"
                                       "Comment=Start Vantu VPN in the desktop session\n"
                                       "Exec=%1 --vantu-autostart\n"
                                       "TryExec=%2\n"
                                       "Icon=com.vantuvpn.vantu\n"
                                       "Terminal=false\n"
                                       "NoDisplay=true\n"
                                       "X-GNOME-Autostart-enabled=true\n"
                                       "X-VantuVPN-Autostart=true\n"};

/// One word of an Exec line.
QString quotedForExec(QString path)
{
    path.replace(u'\\', u"\\\\"_s); // First, or it would escape the escapes.
    for (const QChar special : {u'"', u'`', u'$'}) {
        path.replace(special, u"\\"_s + special);
    }
    path.replace(u'%', u"%%"_s); // A single one begins a field code.
    return u'"' + path + u'"';
}

/// A path can stand in the entry: absolute, and without a line end that would
/// begin a key of its own.
bool isUsableExecutable(const QString &path)
{
    return QDir::isAbsolutePath(path) && !path.contains(u'\n') && !path.contains(u'\r');
}

bool fail(QString *error, const QString &text)
{
    if (error != nullptr) {
        *error = text;
    }
    return false;
}

} // namespace

GuiAutostart::GuiAutostart(const QString &configDirectory, const QString &executable,
                           const QString &flatpakMark)
    : m_configDirectory(configDirectory)
    , m_executable(executable)
    , m_flatpakMark(flatpakMark)
{}

QString GuiAutostart::entryPath() const
{
    QString directory = m_configDirectory;
    if (directory.isEmpty()) {
        directory = qEnvironmentVariable("XDG_CONFIG_HOME").trimmed();
    }
    if (directory.isEmpty()) {
        directory = QDir::home().filePath(u".config"_s);
    }
    return QDir(QDir::cleanPath(directory)).filePath("autostart/"_L1 + kEntryName);
}

bool GuiAutostart::reconcile(bool enabled, QString *error) const
{
    const QString path = entryPath();
    if (!enabled) {
        if (QFile::exists(path) && !QFile::remove(path)) {
            return fail(error, tr("Could not remove Vantu from login startup."));
        }
        return true;
    }

    const QString executable = m_executable.isEmpty() ? QCoreApplication::applicationFilePath()
                                                      : QDir::cleanPath(m_executable.trimmed());
    // A Flatpak's own path means nothing to the desktop, which doesn't look for the entry
    // in there either.
    if (!isUsableExecutable(executable) || QFile::exists(m_flatpakMark)) {
        return fail(error, tr("Could not resolve the Vantu executable for login startup."));
    }
    if (!QDir().mkpath(QFileInfo(path).path())) {
        return fail(error, tr("Could not prepare the login startup directory."));
    }
    return writeEntry(path, executable, error);
}

bool GuiAutostart::writeEntry(const QString &path, const QString &executable, QString *error) const
{
    const QByteArray text = QString(kEntryText).arg(quotedForExec(executable), executable).toUtf8();

    QSaveFile file(path);
    // Flushed by hand: a commit takes no notice of what the disk had no room for.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text) || file.write(text) != text.size() ||
        !file.flush() || !file.commit()) {
        return fail(error, tr("Could not update Vantu login startup."));
    }
    if (!QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner)) {
        QFile::remove(path);
        return fail(error, tr("Could not secure Vantu login startup."));
    }
    return true;
}
