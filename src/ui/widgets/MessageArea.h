#pragma once

#include <QWidget>

class QLabel;

/// Room kept free for a message, so that nothing moves as messages come and go; only one
/// that takes more lines makes it grow. The message stands at the lower edge and at the
/// side where the interface begins to be read, whatever its own language.
class MessageArea final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MessageArea)

public:
    enum class Tone { Muted, Error };

    /// `labelName` is the object name of the label, by which the style template knows it.
    MessageArea(const QString &labelName, int lines, QWidget *parent = nullptr);

    /// Longest foreign message; use plaintext::singleLine().
    static constexpr qsizetype kMaxLength = 400;

    /// Shows `text` plainly; an empty one shows nothing.
    void showMessage(const QString &text, Tone tone);
    /// Tells screen readers of what is shown, if anything is.
    void announce();

private:
    QLabel *m_label = nullptr;
};
