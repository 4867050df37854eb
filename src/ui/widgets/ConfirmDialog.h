#pragma once

#include <QDialog>
#include <QString>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;
class Theme;

/// One button of a ConfirmDialog: its text and, where the text is too short to stand
/// alone, the longer description that a screen reader and the tool tip give.
struct ConfirmButton
{
    QString text;
    QString description;
};

/// What a ConfirmDialog says. All texts are shown plainly, never as markup.
struct ConfirmTexts
{
    QString title;
    QString message;
    QString detail; ///< Quieter second text; empty for none.
    ConfirmButton accept;
    bool destructive = false; ///< Accept can't be undone: danger colours, not the default.
    ConfirmButton alternate;  ///< A second way to go on; no text for none.
    ConfirmButton reject;
};

/// A modal question with two or three answers, in the client's own look.
///
/// Use open() and the `finished` signal, whose argument is an Answer, rather than
/// exec(), which runs a loop of its own under the caller's feet. Escape and the
/// window's close button answer RejectAnswer. The dialog follows `theme` while it is open;
/// its owner deletes it after `finished`, not within it (or sets
/// Qt::WA_DeleteOnClose).
class ConfirmDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ConfirmDialog)

public:
    enum Answer { RejectAnswer = 0, AcceptAnswer = 1, AlternateAnswer = 2 };

    ConfirmDialog(const ConfirmTexts &texts, Theme &theme, QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;

private:
    QVBoxLayout *buildTexts(const ConfirmTexts &texts);
    QHBoxLayout *buildButtons(const ConfirmTexts &texts);
    QPushButton *addButton(QHBoxLayout &row, const ConfirmButton &button, Answer answer);
    void renderIcon();

    const Theme &m_theme;
    QLabel *m_icon = nullptr;
};
