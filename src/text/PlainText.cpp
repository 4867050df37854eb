#include "PlainText.h"

#include <QChar>
#include <QCoreApplication>
#include <QList>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar kEllipsis{u'\u2026'};
/// Longer tool tips need more than one line.
constexpr qsizetype kMaxToolTipLine = 80;

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

/// Adds up the letters of a text by the direction that they are written in.
struct Letters
{
    bool leftToRight = false;
    bool rightToLeft = false;
};

Letters lettersOf(const QString &text)
{
    Letters letters;
    for (const char32_t character : text.toUcs4()) {
        const QChar::Direction direction = QChar::direction(character);
        letters.leftToRight |= direction == QChar::DirL;
        letters.rightToLeft |= direction == QChar::DirR || direction == QChar::DirAL;
    }
    return letters;
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
    // What can't be taken for markup stays as it is, for screen readers are told it too.
    if (text.size() <= kMaxToolTipLine && !text.contains(u'<')) {
        return text;
    }
    // Said to be markup, since a text without any sign of it would be shown as it is,
    // escapes and all; only markup is broken into lines.
    return u"<qt>"_s + text.toHtmlEscaped().replace(u'\n', u"<br>"_s) + u"</qt>"_s;
}

QString isolated(const QString &text)
{
    const QChar firstStrongIsolate{u'\u2068'};
    const QChar popDirectionalIsolate{u'\u2069'};
    return firstStrongIsolate + text + popDirectionalIsolate;
}

Qt::LayoutDirection readingDirection(const QString &line, Qt::LayoutDirection program)
{
    const Letters letters = lettersOf(line);
    if (program == Qt::RightToLeft) {
        return letters.leftToRight && !letters.rightToLeft ? Qt::LeftToRight : Qt::RightToLeft;
    }
    return letters.rightToLeft && !letters.leftToRight ? Qt::RightToLeft : Qt::LeftToRight;
}

QString messageText(const QString &text)
{
    // Escaping would show "&lt;" where the server takes the text as it is, so that
    // the brackets give way to look-alikes instead.
    return singleLine(text).replace(u'<', u'\u2039').replace(u'>', u'\u203a');
}

QString list(const QStringList &parts)
{
    //: What stands between the parts of a list, such as the names of several regions.
    const QString pair = QCoreApplication::translate("PlainText", "%1, %2");
    return parts.join(pair.arg(QString(), QString()));
}

QString pluralText(QString text, int count)
{
    return text.replace("(s)"_L1, count == 1 ? QLatin1StringView() : "s"_L1);
}

} // namespace plaintext
