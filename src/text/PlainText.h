#pragma once

#include <QString>
#include <QStringList>

/// Keeps texts that come from a server or from the user from doing anything but
/// being read: node names, error messages and the like may hold line breaks, marks
/// that turn the reading direction round, markup, or a whole book.
namespace plaintext {

/// Longest foreign text shown in one line, in UTF-16 units.
inline constexpr qsizetype kMaxLineLength = 120;

/// `text` as one plain line: trimmed, runs of white space and control characters
/// become one blank, invisible and direction marks vanish, and what is longer than
/// `maxLength` ends in an ellipsis.
QString singleLine(const QString &text, qsizetype maxLength = kMaxLineLength);

/// For texts of actions, buttons and tabs, which take "&" for a mnemonic: singleLine
/// with every "&" doubled. Don't use it on the program's own texts.
QString menuText(const QString &text);

/// For tool tips, which may be read as markup: `text` as it is where it is short and
/// can't be, else as markup that shows it plainly, line breaks kept.
QString toolTip(const QString &text);

/// `text`, plain and of foreign origin, made to keep its own reading direction among text
/// that runs the other way, as where an English "10 Gbit/s" stands on an Arabic button.
/// Do it last: the marks that this takes are what singleLine() removes.
QString isolated(const QString &text);

/// The direction in which a line is read: that of the program, unless not a single
/// letter of it is written that way.
Qt::LayoutDirection readingDirection(const QString &line, Qt::LayoutDirection program);

/// For desktop notifications, whose servers may read markup and don't say so:
/// singleLine without angle brackets.
QString messageText(const QString &text);

/// `parts` as they are listed within a sentence of the program's language: "a, b, c".
QString list(const QStringList &parts);

/// For texts counted by tr(…, count): English has no translation file that could choose
/// its plural, so that the "(s)" of an untranslated text is resolved here.
QString pluralText(QString text, int count);

} // namespace plaintext
