#pragma once

#include "ColorScheme.h"

#include <QObject>

#include <optional>

/// The colour scheme that the desktop asks for, from the best source at hand: Qt
/// where it knows, else the desktop portal, else how light the application's palette
/// is. The portal is asked in the background, so that `current` may be a guess for
/// the first moments; `changed` then mends it.
class DesktopColorScheme final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DesktopColorScheme)

public:
    explicit DesktopColorScheme(QObject *parent = nullptr);

    ColorScheme current() const;

Q_SIGNALS:
    /// `current` has a new value.
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void askPortal();
    void onPortalAnswered(ColorScheme scheme);
    void refresh();
    ColorScheme read() const;

    /// Empty as long as no portal has answered.
    std::optional<ColorScheme> m_portalScheme;
    ColorScheme m_current = ColorScheme::Unknown;
};
