#pragma once

#include <QPointer>
#include <QWidget>

/// Keeps the keyboard for a control while it is disabled. Qt would hand it on to the next
/// one, where the user's next Return does something else; so it waits on what lies around
/// the control, and goes back unless the user went elsewhere meanwhile.
///
/// Belongs to whoever disables the controls. For the GUI thread.
class RestingFocus final
{
    Q_DISABLE_COPY_MOVE(RestingFocus)

public:
    RestingFocus() = default;

    /// Call before controls inside `place`, where the keyboard waits, are disabled.
    void rest(QWidget &place);
    /// Call after controls may have been enabled again.
    void giveBack();
    /// Gives the keyboard to a control, as soon as it is enabled.
    void handTo(QWidget &control);

    /// Both around setEnabled(), for a control that comes and goes by itself. The keyboard
    /// waits on the control's parent.
    void setEnabled(QWidget &control, bool enabled);

private:
    QPointer<QWidget> m_control; ///< Had the keyboard; none while nothing waits.
    QPointer<QWidget> m_place;
};
