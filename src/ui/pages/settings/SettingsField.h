#pragma once

#include <QList>
#include <QWidget>

#include <functional>

class ElidedLabel;
class QHBoxLayout;
class QLineEdit;
class QPushButton;

/// A field for a setting that is typed in, with its buttons at its side and a line of
/// words below it: a note, or what is wrong with the text.
///
/// What the user typed stays until it was taken: setStored() shows a new value only while
/// the user has nothing unsaved in the field, or as the outcome of what was sent.
class SettingsField final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SettingsField)

public:
    struct Texts
    {
        QString name;
        QString objectName;
        QString placeholder;
        QString note;
    };
    /// What is wrong with a text, for the user; empty for nothing.
    using Check = std::function<QString(const QString &)>;

    SettingsField(const Texts &texts, Check check, QWidget *parent = nullptr);

    /// A button at the end of the line. Owned by the field.
    QPushButton *addButton(const QString &text, const QString &accessibleName,
                           const QString &objectName);

    QString text() const;
    /// Puts another spelling of what the user typed into the field.
    void setText(const QString &text);

    /// The value in force.
    void setStored(const QString &stored);
    /// The text goes to the daemon: the next change of the value in force is its outcome.
    void markSent();
    /// The daemon refused what was sent.
    void markRefused();
    /// Gives up what the user typed.
    void revert();

    /// Disables the field and its buttons for `reason`; an empty one enables them.
    void setBlocked(const QString &reason);

Q_SIGNALS:
    /// Return was pressed in the field.
    void submitted();

private:
    void onEdited();
    void showHint();

    Check m_check;
    QString m_note;
    QString m_stored;
    bool m_edited = false;
    bool m_sent = false;
    QHBoxLayout *m_line = nullptr;
    QLineEdit *m_edit = nullptr;
    QList<QPushButton *> m_buttons;
    ElidedLabel *m_hint = nullptr;
};
