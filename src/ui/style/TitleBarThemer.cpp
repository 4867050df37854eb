#include "TitleBarThemer.h"

#include <QEvent>
#include <QPalette>

#include <utility>

namespace {

/// Below this lightness of its ground a window counts as dark.
constexpr int kDarkBelowLightness = 128;

} // namespace

TitleBarThemer::TitleBarThemer(QWidget &dialog, TitleBarHook hook)
    : QObject(&dialog)
    , m_dialog(dialog)
    , m_hook(std::move(hook))
{
    dialog.installEventFilter(this);
}

bool TitleBarThemer::eventFilter(QObject *watched, QEvent *event)
{
    if (m_hook && watched == &m_dialog &&
        (event->type() == QEvent::Show || event->type() == QEvent::PaletteChange)) {
        const QPalette palette = m_dialog.palette();
        const QColor background = palette.color(QPalette::Window);
        m_hook(m_dialog, background, palette.color(QPalette::WindowText),
               background.lightness() < kDarkBelowLightness);
    }
    return QObject::eventFilter(watched, event);
}
