#pragma once

#include <QLabel>

class QEvent;
class QPaintEvent;

/// A label for plain text of any length: it shrinks to nothing and elides what doesn't
/// fit, at the end where reading stops. The whole text is in the tool tip whenever a
/// part of it is cut off, unless the label has a tool tip of its own.
class ElidedLabel final : public QLabel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ElidedLabel)

public:
    explicit ElidedLabel(QWidget *parent = nullptr);
    explicit ElidedLabel(const QString &text, QWidget *parent = nullptr);

    /// One line unless set. With more, the text wraps and is broken where it says so, only
    /// the last line is elided, and the size hint keeps room for all of them, so that
    /// nothing jumps as texts change.
    void setMaximumLines(int lines);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// The height of as many lines as the text takes up at this width.
    int heightForWidth(int width) const override;
    /// Whether the text doesn't fit at the present size.
    bool isElided() const;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int m_maximumLines = 1;
};
