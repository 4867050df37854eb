#pragma once

#include <QCoreApplication>
#include <QString>

/// Keeps the XDG autostart entry in line with the user's wish to start the
/// client at login.
class GuiAutostart final
{
    Q_DECLARE_TR_FUNCTIONS(GuiAutostart)

public:
    /// A file that stands in every Flatpak, and nowhere else.
    static constexpr QLatin1StringView kFlatpakMark{"/.flatpak-info"};

    /// All arguments replace what the environment gives: the configuration
    /// directory (else XDG_CONFIG_HOME, else ~/.config), the executable (else
    /// the running program), and the file by which a Flatpak is known.
    explicit GuiAutostart(const QString &configDirectory = {}, const QString &executable = {},
                          const QString &flatpakMark = kFlatpakMark);

    /// The entry's path.
    QString entryPath() const;

    /// Writes the entry when `enabled`, removes it otherwise. On failure returns
    /// false with a text for the user in `error`.
    bool reconcile(bool enabled, QString *error) const;

private:
    bool writeEntry(const QString &path, const QString &executable, QString *error) const;

    QString m_configDirectory;
    QString m_executable;
    QString m_flatpakMark;
};
