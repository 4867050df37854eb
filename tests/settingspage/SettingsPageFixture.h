#pragma once

#include "AppState.h"
#include "DesktopColorScheme.h"
#include "FactBlock.h"
#include "GuiPreferences.h"
#include "SettingsPage.h"
#include "Theme.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

/// A page in a window, with preferences of its own and a daemon that has told all.
struct SettingsPageFixture
{
    SettingsPageFixture()
    {
        window.setObjectName(QStringLiteral("VantuWindowRoot"));
        auto *layout = new QVBoxLayout(&window);
        page = new SettingsPage(state, preferences, theme, &window);
        layout->addWidget(page);
        theme.applyTo(window);
        page->applyThemePalette(theme.palette());
        page->setDaemonAvailable(true, {});
        window.resize(656, 540);
        window.show();
    }

    template<typename Widget = QWidget>
    Widget *find(const char *name) const
    {
        return window.findChild<Widget *>(QString::fromLatin1(name));
    }

    void click(const char *name) const
    {
        QTest::mouseClick(find<QAbstractButton>(name), Qt::LeftButton);
    }

    QString text(const char *name) const { return find<QLabel>(name)->text(); }
    QString facts(const char *name) const { return find<FactBlock>(name)->text(); }

    /// Puts `text` in place of what a field holds.
    void type(const char *name, const QString &text) const
    {
        auto *edit = find<QLineEdit>(name);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }

    /// Answers the question on the screen; false if there is none.
    static bool answer(const char *button)
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        auto *choice =
            dialog ? dialog->findChild<QPushButton *>(QString::fromLatin1(button)) : nullptr;
        if (choice) {
            choice->click();
        }
        return choice != nullptr;
    }

    /// "mode/guard"; empty for an unknown one.
    void setKillSwitch(const QString &killSwitch)
    {
        KillSwitchInfo info;
        info.known = !killSwitch.isEmpty();
        info.mode = killSwitch.section(u'/', 0, 0);
        info.guard = killSwitch.section(u'/', 1);
        info.enabled = info.known && info.mode != QLatin1StringView("off");
        state.setKillSwitch(info);
    }

    /// "transport/policy/local network"
    void setMode(const QString &mode)
    {
        RuntimeInfo runtime = state.runtime();
        runtime.mode.known = true;
        runtime.mode.transport = mode.section(u'/', 0, 0);
        runtime.mode.policy = mode.section(u'/', 1, 1);
        runtime.mode.localNetwork = mode.section(u'/', 2);
        state.setRuntime(runtime);
    }

    /// `http` where it isn't the same.
    void setListeners(const QString &socks, const QString &http = {})
    {
        RuntimeInfo runtime = state.runtime();
        runtime.proxyListeners = {{{}, QStringLiteral("socks5"), socks},
                                  {{}, QStringLiteral("http"), http.isEmpty() ? socks : http}};
        state.setRuntime(runtime);
    }

    /// The daemon's values of all settings that are unavailable without them.
    void tellAll()
    {
        setKillSwitch(QStringLiteral("off"));
        RuntimeInfo runtime = state.runtime();
        runtime.mode.systemProxy = QStringLiteral("off");
        state.setRuntime(runtime);
        SplitDNSInfo dns;
        dns.known = true;
        state.setSplitDNS(dns);
    }

    /// Keeps the preferences in a place of their own.
    struct PrivateSettings
    {
        PrivateSettings()
        {
            QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, dir.path());
        }
        QTemporaryDir dir;
    } settings;
    GuiPreferences preferences;
    AppState state;
    DesktopColorScheme desktop;
    Theme theme{desktop, QStringLiteral("light")};
    QWidget window;
    SettingsPage *page = nullptr;
};
