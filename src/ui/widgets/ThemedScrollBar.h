#pragma once

#include <QColor>
#include <QScrollBar>

class QEvent;
class QPaintEvent;

/// A thin scroll bar that paints nothing but its handle. Hand it to a scroll area by
/// setVerticalScrollBar() or setHorizontalScrollBar().
class ThemedScrollBar final : public QScrollBar
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ThemedScrollBar)

public:
    explicit ThemedScrollBar(Qt::Orientation orientation, QWidget *parent = nullptr);

    /// The handle's colour at rest, and under the mouse or pressed; handOnTheme() sets
    /// them. An invalid colour falls back to the palette.
    void setHandleColors(const QColor &idle, const QColor &active);

    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_idle;
    QColor m_active;
};
