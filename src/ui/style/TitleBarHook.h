#pragma once

#include <QColor>
#include <QObject>
#include <QWidget>

#include <functional>

/// Tells the platform how to colour the title bar of a window. `dark` is whether the
/// title bar's own buttons should be the light-on-dark ones.
///
/// Linux desktops draw frames in colours of their own choice, so that the program
/// leaves this hook empty there.
using TitleBarHook =
    std::function<void(QWidget &window, const QColor &background, const QColor &text, bool dark)>;
