#pragma once

#include <QString>

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

/// For tool tips, which may be read as markup: `text` as markup that shows it plainly,
/// line breaks kept.
QString toolTip(const QString &text);

/// For desktop notifications, whose servers may read markup and don't say so:
/// singleLine without angle brackets.
QString messageText(const QString &text);

} // namespace plaintext
