#pragma once

#include <QCoreApplication>
#include <QString>

/// Keeps the XDG autostart entry in line with the user's wish to start the
/// client at login.
class GuiAutostart final
{
    Q_DECLARE_TR_FUNCTIONS(GuiAutostart)

public:
    /// Both arguments replace what the environment gives: the configuration
    /// directory (else XDG_CONFIG_HOME, else ~/.config) and the executable (else
    /// the running program).
    explicit GuiAutostart(const QString &configDirectory = {}, const QString &executable = {});

    /// The entry's path.
    QString entryPath() const;

    /// Writes the entry when `enabled`, removes it otherwise. On failure returns
    /// false with a text for the user in `error`.
    bool reconcile(bool enabled, QString *error) const;

private:
    bool writeEntry(const QString &path, const QString &executable, QString *error) const;

    QString m_configDirectory;
    QString m_executable;
};
