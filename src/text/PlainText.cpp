#include "PlainText.h"

#include <QChar>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar kEllipsis{u'\u2026'};

/// Tells what has no business inside a line: it is neither seen nor a blank.
bool isHiddenMark(QChar character)
{
    // Joiners shape the letters of several scripts and are harmless.
    if (character == QChar{u'\u200c'} || character == QChar{u'\u200d'}) {
        return false;
    }
    return character.category() == QChar::Other_Format ||
           character.category() == QChar::Other_NotAssigned;
}

bool isBlank(QChar character)
{
    return character.isSpace() || character.category() == QChar::Other_Control;
}

} // namespace

namespace plaintext {

QString singleLine(const QString &text, qsizetype maxLength)
{
    QString line;
    line.reserve(qMin(text.size(), maxLength + 1));
    bool blankDue = false;
    for (const QChar character : text) {
        if (isBlank(character)) {
            blankDue = !line.isEmpty();
            continue;
        }
        if (isHiddenMark(character)) {
            continue;
        }
        if (blankDue) {
            line += u' ';
            blankDue = false;
        }
        line += character;
        if (line.size() > maxLength) {
            break;
        }
    }
    if (line.size() <= maxLength) {
        return line;
    }
    line.truncate(qMax<qsizetype>(maxLength - 1, 0));
    if (!line.isEmpty() && line.back().isHighSurrogate()) {
        line.chop(1);
    }
    return line + kEllipsis;
}

QString menuText(const QString &text)
{
    return singleLine(text).replace(u'&', u"&&"_s);
}

QString toolTip(const QString &text)
{
    // Said to be markup, since a text without any sign of it would be shown as it is,
    // escapes and all.
    return u"<qt>"_s + text.toHtmlEscaped().replace(u'\n', u"<br>"_s) + u"</qt>"_s;
}

QString messageText(const QString &text)
{
    // Escaping would show "&lt;" where the server takes the text as it is, so that
    // the brackets give way to look-alikes instead.
    return singleLine(text).replace(u'<', u'\u2039').replace(u'>', u'\u203a');
}

} // namespace plaintext
