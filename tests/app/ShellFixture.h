#pragma once

#include "GuiPreferences.h"
#include "ScriptedDaemon.h"
#include "TrayHost.h"
#include "VantuAppShell.h"
#include "VantuTrayApp.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <memory>

class MainWindow;
class QPushButton;

/// A status record. `more` holds further members, each with a comma in front.
QByteArray status(const QByteArray &tunnel, const QByteArray &mode = "vantuvpn",
                  const QByteArray &more = {});

/// A shell with its real workers on the test's desktop with a panel, and a well-behaved
/// scripted daemon with the kill switch off. The shell sees a name that can be led to any
/// other daemon. Preferences are empty at first.
class ShellFixture final
{
    Q_DISABLE_COPY_MOVE(ShellFixture)

public:
    ShellFixture();
    ~ShellFixture();

    /// Answers every request of the route from now on; `held` first waits for a release.
    void answer(const QByteArray &route, const QByteArray &json, int code = 200);
    void answerHeld(const QByteArray &route, const QByteArray &json = "{}");
    /// The shell's name for the socket leads to `socketName` from now on.
    void leadTo(const QString &socketName);

    /// Made at the first call, after the test has set the preferences.
    VantuAppShell &shell();
    /// Starts, and waits until everything that is asked for at first has come, and the icon.
    bool start();
    bool isReady();
    /// One more status poll; true once it was answered.
    bool poll();
    /// The same, with another status from now on.
    bool poll(const QByteArray &status);
    bool isIdle() { return shell().tray().guardPasses(); }

    // What the user sees; `window` exists once it was shown.
    MainWindow *window() const;
    QString notice() const; ///< Empty when none stands there.
    bool noticeStays() const;
    QString text(const QString &objectName) const;
    QPushButton *button() const;
    QString trayTitle() { return host.menu().labels().value(0); }
    QString trayDetail() { return host.menu().labels().value(1); }
    bool canChoose(const QString &trayEntry);

    qsizetype count(const QByteArray &route) const { return daemon.routes().count(route); }
    /// Body of the last request of a route.
    QByteArray body(const QByteArray &route) const;

    TrayHost host;
    ScriptedDaemon daemon;

private:
    QTemporaryDir m_directory;
    std::unique_ptr<VantuAppShell> m_shell;
};
