#pragma once

#include <QTimer>
#include <QWidget>

class QAbstractButton;

/// A turning arc inside a button, at its leading edge: what the button started takes
/// its time. It appears only after a moment, so that what is quick never flickers, and
/// takes no room of its own. Decoration: the button's text says the same.
class PrimaryActionProgressOverlay final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PrimaryActionProgressOverlay)

public:
    explicit PrimaryActionProgressOverlay(QAbstractButton &button);

    void setRunning(bool running);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void turn();

    bool m_running = false;
    int m_angle = 0; ///< Degrees.
    QTimer m_delay;
    QTimer m_turn;
};
