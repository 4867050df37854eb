#include "SharedTheme.h"

#include "DesktopColorScheme.h"
#include "Theme.h"

#include <utility>

SharedTheme::SharedTheme(std::function<QString()> appearance)
    : m_appearance(std::move(appearance))
{}

SharedTheme::~SharedTheme() = default;

Theme &SharedTheme::get()
{
    if (!m_theme) {
        m_desktop = std::make_unique<DesktopColorScheme>();
        m_theme = std::make_unique<Theme>(*m_desktop, m_appearance());
    }
    return *m_theme;
}
