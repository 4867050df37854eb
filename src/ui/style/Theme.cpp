#include "Theme.h"

#include "DesktopColorScheme.h"
#include "ThemeTemplate.h"
#include "TitleBarThemer.h"

#include <QColor>
#include <QGuiApplication>
#include <QWidget>

#include <utility>

using namespace Qt::StringLiterals;

Theme::Theme(const DesktopColorScheme &desktop, const QString &appearance, QObject *parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_appearance(appearance)
    , m_scheme(effectiveScheme(appearance, desktop.current()))
    , m_palette(ThemePalette::forScheme(m_scheme))
{
    connect(&desktop, &DesktopColorScheme::changed, this, &Theme::refresh);
}

void Theme::setAppearance(const QString &appearance)
{
    m_appearance = appearance;
    refresh();
}

void Theme::setTitleBarHook(TitleBarHook hook)
{
    m_titleBarHook = std::move(hook);
}

ColorScheme Theme::effectiveScheme(const QString &appearance, ColorScheme desktop)
{
    if (appearance == "light"_L1) {
        return ColorScheme::Light;
    }
    if (appearance == "dark"_L1) {
        return ColorScheme::Dark;
    }
    return desktop == ColorScheme::Dark ? ColorScheme::Dark : ColorScheme::Light;
}

void Theme::refresh()
{
    const ColorScheme scheme = effectiveScheme(m_appearance, m_desktop.current());
    if (scheme != m_scheme) {
        m_scheme = scheme;
        m_palette = ThemePalette::forScheme(scheme);
        Q_EMIT changed();
    }
}

void Theme::applyTo(QWidget &window) const
{
    if (m_titleBarHook) {
        m_titleBarHook(window, QColor(m_palette.windowBg), QColor(m_palette.textPrimary),
                       m_scheme == ColorScheme::Dark);
    }
    style(window);
}

void Theme::attach(QWidget &dialog)
{
    style(dialog);
    connect(this, &Theme::changed, &dialog, [this, &dialog] { style(dialog); });
    new TitleBarThemer(dialog, m_titleBarHook);
}

void Theme::style(QWidget &widget) const
{
    const QString sheet = themetemplate::render(m_palette, QGuiApplication::layoutDirection());
    if (sheet != widget.styleSheet()) {
        widget.setStyleSheet(sheet);
    }
    // On the widget, never on the application: its palette tells the desktop's scheme. And
    // after the sheet, since a sheet that goes puts back the palette which it had found.
    widget.setPalette(m_palette.toQPalette());
}
