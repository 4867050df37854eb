#pragma once

#include "AccessibleDesktop.h"
#include "TrayHost.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QRect>
#include <QString>

#include <functional>
#include <optional>

/// The client as a person has it in front of them: a window that is read and operated
/// over the accessibility bus, keys, and an icon with a menu in the tray. Nothing here
/// knows the program from inside.
///
/// A step that can't be taken yet returns false and changes nothing: what a click brings
/// takes its time.
class TourClient final
{
    Q_DISABLE_COPY_MOVE(TourClient)

public:
    /// Takes the names of what is meant.
    using Matcher = std::function<bool(const QString &name)>;

    /// `program` is the demonstration to run.
    explicit TourClient(const QString &program);
    ~TourClient();

    /// Sets up panel and accessibility bus; false when the desktop can't have them.
    bool prepare();
    /// Starts the program; it may be started again once it has ended.
    bool start(const QProcessEnvironment &environment);
    /// The running process has left, with status 0.
    bool hasLeft();
    /// One that left for a new language has another in its place, which counts as the
    /// running process from then on.
    bool hasSuccessor();

    // The window

    /// The first object in sight of this kind, dialogs before the main window.
    std::optional<AccessibleObject> find(const QString &role, const Matcher &matches) const;
    /// The first button of whatever kind that can be pressed.
    std::optional<AccessibleObject> findButton(const Matcher &matches) const;
    bool press(const Matcher &matches) const;
    /// Gives the keyboard to a button, as Tab would: it is scrolled into sight.
    bool tabTo(const Matcher &matches) const;
    /// Types into a field, in place of what stands there.
    bool typeInto(const QString &field, const QString &text) const;
    /// All that can be read in the windows in sight, for whoever looks for a failure.
    QString reading() const;
    /// What the windows in sight take of the screen.
    QRect place() const;
    const AccessibleDesktop &desktop() const { return m_desktop; }

    // The tray

    TrayHost &tray() { return m_tray; }

private:
    std::optional<AccessibleObject> find(const AccessibleObject::Test &test) const;

    QString m_program;
    AccessibleDesktop m_desktop;
    TrayHost m_tray;
    QProcess m_process;
    qint64 m_successor = 0; ///< Process id of the one that took over; 0 without one.
};
