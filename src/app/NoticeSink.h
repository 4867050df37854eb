#pragma once

#include "MainWindow.h"

#include <QObject>

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

    /// `message` may be a daemon's text; when it is blank, `fallback` is shown.
    void error(const QString &message, const QString &fallback)
    {
        const QString trimmed = message.trimmed();
        show(trimmed.isEmpty() ? fallback : trimmed, MainWindow::NoticeKind::Error);
    }

    void show(const QString &message, MainWindow::NoticeKind kind, int timeoutMs = kTimeoutMs)
    {
        Q_EMIT noticeRequested(message, kind, timeoutMs);
    }

Q_SIGNALS:
    void noticeRequested(const QString &message, MainWindow::NoticeKind kind, int timeoutMs);
    /// The user must see what follows: bring the window forward first.
    void attentionRequested();
};
