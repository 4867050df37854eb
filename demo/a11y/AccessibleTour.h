#pragma once

#include "AccessibleDesktop.h"
#include "AccessibleReading.h"

#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// Uses the client as somebody does who only hears it and has no mouse: goes through its
/// pages and dialogs over the accessibility bus, prints what each offers, goes round it
/// with Tab, and leaves dialogs with Escape.
class AccessibleTour final
{
    Q_DISABLE_COPY_MOVE(AccessibleTour)

public:
    /// `program` is the demonstration to run.
    explicit AccessibleTour(const QString &program);
    ~AccessibleTour();

    /// Looks at all pages and dialogs, with arguments only at the pages of the
    /// demonstration that gets these. True when everything that can be acted on has a
    /// role, a name that nothing else beside it has, and a state; when Tab comes to all of
    /// it; and when the rows of places say what they show.
    bool run(const QStringList &arguments);

private:
    bool start(const QStringList &arguments);
    void stop();

    bool pages();
    bool quickEntry();
    bool placeRow();
    bool dialogs();
    bool forcedUpdate();

    // Each says what it couldn't do, and returns whether it could.
    bool openPage(const QString &name);
    bool press(const QString &name);
    bool typeInto(const QString &field, const QString &text);
    /// Presses a button of the page that opens a dialog, and looks at that.
    bool openDialog(const QString &page, const QString &button);
    bool lookAtDialog();
    bool leaveDialog(int windowsLeft);
    bool lookAt(const QString &title);
    static bool fail(const QString &words);

    QList<AccessibleObject> windows() const { return m_desktop.windows(QStringLiteral("Vantu")); }
    /// The newest of the client's windows, which has the keyboard.
    std::optional<AccessibleObject> window() const;
    static bool until(const std::function<bool()> &condition);

    QString m_program;
    AccessibleDesktop m_desktop;
    AccessibleReading m_reading;
    QProcess m_client;
};
