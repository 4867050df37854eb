#include "DesktopColorScheme.h"

#include "PortalColorScheme.h"
#include "QtCompat.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace {

/// Below this lightness of its windows a desktop counts as dark.
constexpr int kDarkBelowLightness = 128;

} // namespace

DesktopColorScheme::DesktopColorScheme(QObject *parent)
    : QObject(parent)
{
    qtcompat::onColorSchemeHintChanged(this, &DesktopColorScheme::refresh);
    if (qtcompat::colorSchemeHint() == ColorScheme::Unknown) {
        askPortal();
    }
    m_current = read();
}

ColorScheme DesktopColorScheme::current() const
{
    return m_current;
}

void DesktopColorScheme::askPortal()
{
    auto *portal = new PortalColorScheme(QDBusConnection::sessionBus(), this);
    connect(portal, &PortalColorScheme::answered, this, &DesktopColorScheme::onPortalAnswered);
    portal->ask();
    // Until and unless the portal answers, the palette is what there is.
    qGuiApp->installEventFilter(this);
}

void DesktopColorScheme::onPortalAnswered(ColorScheme scheme)
{
    qGuiApp->removeEventFilter(this);
    m_portalScheme = scheme;
    refresh();
}

bool DesktopColorScheme::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange) {
        refresh();
    }
    return QObject::eventFilter(watched, event);
}

void DesktopColorScheme::refresh()
{
    const ColorScheme scheme = read();
    if (scheme != m_current) {
        m_current = scheme;
        Q_EMIT changed();
    }
}

ColorScheme DesktopColorScheme::read() const
{
    if (const ColorScheme hint = qtcompat::colorSchemeHint(); hint != ColorScheme::Unknown) {
        return hint;
    }
    if (m_portalScheme) {
        return *m_portalScheme;
    }
    return QGuiApplication::palette().color(QPalette::Window).lightness() < kDarkBelowLightness
               ? ColorScheme::Dark
               : ColorScheme::Light;
}
