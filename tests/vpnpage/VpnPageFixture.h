#pragma once

#include "AppState.h"
#include "GuiPreferences.h"
#include "RecentActivityStore.h"
#include "ThemePalette.h"
#include "ThemeTemplate.h"
#include "VpnPage.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QVBoxLayout>

/// A page in a window, with a history of its own.
struct VpnPageFixture
{
    VpnPageFixture()
    {
        window.setObjectName(QStringLiteral("VantuWindowRoot"));
        const ThemePalette palette = ThemePalette::forScheme(ColorScheme::Light);
        window.setStyleSheet(themetemplate::render(palette, QGuiApplication::layoutDirection()));
        auto *layout = new QVBoxLayout(&window);
        page = new VpnPage(state, recents, &window);
        page->applyThemePalette(palette);
        layout->addWidget(page);
        window.resize(656, 540);
        window.show();
    }

    template<typename Widget>
    Widget *find(const char *name) const
    {
        return window.findChild<Widget *>(QString::fromLatin1(name));
    }

    static NodeEntry node(const QString &id, const QString &name, const QString &region,
                          const QStringList &tags = {}, int pingMs = -1, int signal = -1)
    {
        return {id, name, tags, region, {}, signal, pingMs};
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
    RecentActivityStore recents{preferences};
    AppState state;
    QWidget window;
    VpnPage *page = nullptr;
};
