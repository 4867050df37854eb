#include "SplitRulesText.h"

#include "TextStyle.h"
#include "ThemedScrollBar.h"

#include <QGuiApplication>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar kLineBreak = QChar::ParagraphSeparator;

QString examples()
{
    return u"suffix:example.com\nkeyword:video\nip-cidr:192.0.2.0/24"_s;
}

} // namespace

SplitRulesText::SplitRulesText(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setTextStyle(*this, TextStyle::Code);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabChangesFocus(true);
    setVerticalScrollBar(new ThemedScrollBar(Qt::Vertical));
    setHorizontalScrollBar(new ThemedScrollBar(Qt::Horizontal));
    if (QGuiApplication::isLeftToRight()) {
        setPlaceholderText(examples());
    }

    setLayoutDirection(Qt::LeftToRight);
    QTextOption option = document()->defaultTextOption();
    option.setTextDirection(Qt::LeftToRight);
    document()->setDefaultTextOption(option);
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int position, int, int added) { noteChange(position, added); });
}

void SplitRulesText::load(const QStringList &rules)
{
    setReference(rules);
    setPlainText(m_reference);
}

void SplitRulesText::setReference(const QStringList &rules)
{
    m_reference = rules.join(u'\n');
    m_reference.replace("\r\n"_L1, "\n"_L1);
    m_reference.replace(u'\r', kLineBreak).replace(u'\n', kLineBreak);
    while (m_reference.endsWith(kLineBreak)) {
        m_reference.chop(1);
    }
    m_sameAtStart = 0;
    m_sameAtEnd = 0;
}

void SplitRulesText::noteChange(int position, int added)
{
    m_sameAtStart = std::min(m_sameAtStart, position);
    m_sameAtEnd = std::clamp(length() - position - added, 0, m_sameAtEnd);
}

int SplitRulesText::length() const
{
    // The document counts a separator behind its last line too.
    return document()->characterCount() - 1;
}

bool SplitRulesText::differs() const
{
    const int whole = length();
    const bool endsInBreak = whole > 0 && document()->characterAt(whole - 1) == kLineBreak;
    const int size = endsInBreak ? whole - 1 : whole;
    if (size != m_reference.size()) {
        return true;
    }
    const int end = endsInBreak ? size : size - m_sameAtEnd;
    for (QTextBlock block = document()->findBlock(m_sameAtStart);
         block.isValid() && block.position() < end; block = block.next()) {
        const QString line = block.text();
        const qsizetype lineEnd = block.position() + line.size();
        if (QStringView(m_reference).mid(block.position(), line.size()) != line ||
            (lineEnd < size && m_reference.at(lineEnd) != kLineBreak)) {
            m_sameAtStart = std::max(m_sameAtStart, block.position());
            return true;
        }
    }
    m_sameAtStart = size;
    m_sameAtEnd = endsInBreak ? 0 : size;
    return false;
}

void SplitRulesText::removeAll()
{
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    all.removeSelectedText();
}

bool SplitRulesText::isEmpty() const
{
    return document()->isEmpty();
}

void SplitRulesText::paintEvent(QPaintEvent *event)
{
    QPlainTextEdit::paintEvent(event);
    if (!isEmpty() || !placeholderText().isEmpty()) {
        return;
    }
    // Qt aligns placeholders by the direction of the program, whatever the widget's is.
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const int margin = static_cast<int>(document()->documentMargin());
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignLeft | Qt::AlignTop | Qt::AlignAbsolute | Qt::TextForceLeftToRight,
                     examples());
}
