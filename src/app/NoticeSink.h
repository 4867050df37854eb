#pragma once

#include "MainWindow.h"
#include "ShellText.h"

#include <QObject>

#include <optional>

/// Where the shell's concerns drop what the user should read. Whoever owns the
/// window shows it; without a window it is lost, by design.
class NoticeSink final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(NoticeSink)

public:
    using QObject::QObject;

    static constexpr int kTimeoutMs = 5000;
    /// Stays until the user dismisses it.
    static constexpr int kUntilDismissed = 0;

    /// What a failure says: the daemon's own words, or `fallback` where it gave none.
    static QString wording(const QString &message, const QString &fallback)
    {
        const QString trimmed = message.trimmed();
        return trimmed.isEmpty() ? fallback : trimmed;
    }

    /// `message` may be a daemon's text; when it is blank, `fallback` is shown, and
    /// without one the words that the page has for it. With a `page`, the text also
    /// stays there until the page's next request.
    void error(const QString &message, const QString &fallback,
               std::optional<Page> page = std::nullopt)
    {
        Q_EMIT failed(wording(message, fallback), page);
    }

    void show(const QString &message, MainWindow::NoticeKind kind, int timeoutMs = kTimeoutMs)
    {
        Q_EMIT noticeRequested(message, kind, timeoutMs);
    }

    /// Why a change was not begun: another one runs.
    void pleaseWait()
    {
        show(ShellText::tr("Please wait for the current operation to finish"),
             MainWindow::NoticeKind::Info);
    }

Q_SIGNALS:
    void noticeRequested(const QString &message, MainWindow::NoticeKind kind, int timeoutMs);
    /// An operation failed that belongs to `page`, or to none.
    void failed(const QString &message, std::optional<Page> page);
    /// The user must see what follows: bring the window forward first.
    void attentionRequested();
};
