#include "ElidedLabel.h"

#include "PlainText.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QList>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr QChar kLineBreak{QChar::LineSeparator}; // What QTextLayout breaks lines at.

/// A line as it is painted.
struct Line
{
    QString text;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

/// A text as it is painted.
struct Shown
{
    QList<Line> lines;
    bool cut = false;
};

/// How what begins at `start` is read: like all that stands between the same two line breaks.
Qt::LayoutDirection directionAt(const QString &text, qsizetype start, const QLabel &label)
{
    const QString paragraph =
        text.left(start).section(kLineBreak, -1) + text.mid(start).section(kLineBreak, 0, 0);
    return plaintext::readingDirection(paragraph, label.layoutDirection());
}

/// `line` cut off at the right end in a left-to-right layout, else at the left end: the end
/// of all text but that which runs against the layout. The last of several lines is cut off
/// where reading stops, lest the middle of the text be lost.
QString elided(const Line &line, const QLabel &label, int width, bool lastOfSeveral)
{
    const bool cutStart = line.direction != label.layoutDirection() && !lastOfSeveral;
    return label.fontMetrics().elidedText(line.text, cutStart ? Qt::ElideLeft : Qt::ElideRight,
                                          width);
}

Shown breakUp(const QLabel &label, int width, int maximumLines)
{
    const bool several = maximumLines > 1;
    QString text = label.text().trimmed();
    text.replace(u'\r', u' ').replace(u'\n', several ? kLineBreak : QChar{u' '});
    Shown shown;
    qsizetype start = 0;
    if (several) {
        QTextLayout layout(text, label.font());
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        while (shown.lines.size() < maximumLines - 1) {
            QTextLine line = layout.createLine();
            if (!line.isValid()) {
                break;
            }
            line.setLineWidth(width);
            shown.lines +=
                Line{text.mid(start, line.textLength()).trimmed(), directionAt(text, start, label)};
            start += line.textLength();
        }
        layout.endLayout();
    }
    // What is left stands on one line, whatever it is.
    Line rest{text.mid(start).replace(kLineBreak, u' ').trimmed(), directionAt(text, start, label)};
    if (!rest.text.isEmpty() || shown.lines.isEmpty()) {
        const QString whole = rest.text;
        rest.text = elided(rest, label, width, several);
        shown.cut = rest.text != whole;
        shown.lines += rest;
    }
    return shown;
}

} // namespace

ElidedLabel::ElidedLabel(QWidget *parent)
    : ElidedLabel(QString(), parent)
{}

ElidedLabel::ElidedLabel(const QString &text, QWidget *parent)
    : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
}

void ElidedLabel::setMaximumLines(int lines)
{
    m_maximumLines = std::max(lines, 1);
    updateGeometry();
    update();
}

QSize ElidedLabel::sizeHint() const
{
    return {QLabel::sizeHint().width(), minimumSizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, fontMetrics().lineSpacing() * m_maximumLines};
}

int ElidedLabel::heightForWidth(int width) const
{
    const auto lines = breakUp(*this, width, m_maximumLines).lines.size();
    return fontMetrics().lineSpacing() * static_cast<int>(lines);
}

bool ElidedLabel::isElided() const
{
    return breakUp(*this, contentsRect().width(), m_maximumLines).cut;
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && isElided()) {
        const auto *help = static_cast<QHelpEvent *>(event);
        QToolTip::showText(help->globalPos(), plaintext::toolTip(text()), this);
        return true;
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawFrame(&painter);
    const QRect area = contentsRect();
    const QList<Line> lines = breakUp(*this, area.width(), m_maximumLines).lines;
    const int lineHeight = fontMetrics().lineSpacing();
    const QSize block(area.width(), lineHeight * static_cast<int>(lines.size()));
    QRect place =
        QStyle::alignedRect(layoutDirection(), alignment() & Qt::AlignVertical_Mask, block, area);
    place.setHeight(lineHeight);

    const auto side = QStyle::visualAlignment(layoutDirection(), alignment());
    const int flags =
        static_cast<int>((side & Qt::AlignHorizontal_Mask) | Qt::AlignAbsolute | Qt::AlignTop) |
        Qt::TextSingleLine;
    for (const Line &line : lines) {
        const int reading =
            line.direction == Qt::RightToLeft ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
        style()->drawItemText(&painter, place, flags | reading, palette(), isEnabled(), line.text,
                              foregroundRole());
        place.translate(0, lineHeight);
    }
}
