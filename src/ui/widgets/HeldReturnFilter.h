#pragma once

#include <QObject>

/// Swallows the repeats of a Return that is held down, in the whole program. Buttons take
/// each for a press of its own, so that one hold would answer the question that it opened, or
/// undo what it began. Only what takes several lines of text gets them.
///
/// Works from its making to its end. For the GUI thread.
class HeldReturnFilter final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(HeldReturnFilter)

public:
    explicit HeldReturnFilter(QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    quint64 m_released = 0; ///< When the key was let go last, in the events' own time; 0 = never.
};
