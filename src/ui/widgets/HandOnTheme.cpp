#include "HandOnTheme.h"

#include "NotificationHost.h"
#include "SearchField.h"
#include "ThemePalette.h"
#include "ThemedScrollBar.h"
#include "ToggleSwitch.h"

#include <QColor>
#include <QList>
#include <QWidget>

namespace {

constexpr int kThumbBorderAlpha = 70;

/// `root` and all below it that are of one class.
template<typename Widget>
QList<Widget *> allOf(QWidget &root)
{
    QList<Widget *> found = root.findChildren<Widget *>();
    if (auto *self = qobject_cast<Widget *>(&root)) {
        found.prepend(self);
    }
    return found;
}

} // namespace

void handOnTheme(QWidget &root, const ThemePalette &palette)
{
    const QColor accent(palette.accent);
    const QColor muted(palette.textMuted);
    QColor thumbBorder(Qt::black);
    thumbBorder.setAlpha(kThumbBorderAlpha);
    for (ToggleSwitch *toggle : allOf<ToggleSwitch>(root)) {
        toggle->setProperty("vantuSwitchCheckedTrack", accent);
        toggle->setProperty("vantuSwitchUncheckedTrack", QColor(palette.surfaceBorder));
        // The track alone hardly stands out from a card.
        toggle->setProperty("vantuSwitchUncheckedOutline", muted);
        toggle->setProperty("vantuSwitchThumb", QColor(Qt::white));
        toggle->setProperty("vantuSwitchThumbBorder", thumbBorder);
        toggle->setProperty("vantuSwitchFocus", accent);
        toggle->update();
    }
    for (ThemedScrollBar *bar : allOf<ThemedScrollBar>(root)) {
        bar->setHandleColors(QColor(palette.disabledText), muted);
    }
    for (SearchField *field : allOf<SearchField>(root)) {
        field->setIconColor(muted);
    }
    for (NotificationHost *host : allOf<NotificationHost>(root)) {
        host->setCloseColor(muted);
    }
}
