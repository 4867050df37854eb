#include "ElidedLabel.h"

#include "PlainText.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QStringList>
#include <QStyle>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>

namespace {

/// A text as it is painted.
struct Shown
{
    QStringList lines;
    bool cut = false;
};

Qt::LayoutDirection readingDirection(const QLabel &label)
{
    return plaintext::readingDirection(label.text(), label.layoutDirection());
}

/// `text` cut off at the right end in a left-to-right layout, else at the left end: the end
/// of all text but that which runs against the layout. The last of several lines is cut off
/// where reading stops, lest the middle of the text be lost.
QString elided(const QString &text, const QLabel &label, int width, bool lastOfSeveral)
{
    const bool against = readingDirection(label) != label.layoutDirection();
    const bool cutStart = against && !lastOfSeveral;
    return label.fontMetrics().elidedText(text, cutStart ? Qt::ElideLeft : Qt::ElideRight, width);
}

Shown breakUp(const QLabel &label, int width, int maximumLines)
{
    QString rest = label.text();
    rest.replace(u'\n', u' ').replace(u'\r', u' ');
    Shown shown;
    if (maximumLines > 1) {
        QTextLayout layout(rest, label.font());
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        int start = 0;
        while (shown.lines.size() < maximumLines - 1) {
            QTextLine line = layout.createLine();
            if (!line.isValid()) {
                break;
            }
            line.setLineWidth(width);
            shown.lines += rest.mid(line.textStart(), line.textLength()).trimmed();
            start = line.textStart() + line.textLength();
        }
        layout.endLayout();
        rest = rest.mid(start);
    }
    if (!rest.isEmpty() || shown.lines.isEmpty()) {
        shown.lines += elided(rest, label, width, maximumLines > 1);
        shown.cut = shown.lines.constLast() != rest;
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
    const QStringList lines = breakUp(*this, area.width(), m_maximumLines).lines;
    const int lineHeight = fontMetrics().lineSpacing();
    const QSize block(area.width(), lineHeight * static_cast<int>(lines.size()));
    QRect place =
        QStyle::alignedRect(layoutDirection(), alignment() & Qt::AlignVertical_Mask, block, area);
    place.setHeight(lineHeight);

    const auto side = QStyle::visualAlignment(layoutDirection(), alignment());
    const int flags =
        static_cast<int>((side & Qt::AlignHorizontal_Mask) | Qt::AlignAbsolute | Qt::AlignTop) |
        Qt::TextSingleLine |
        (readingDirection(*this) == Qt::RightToLeft ? Qt::TextForceRightToLeft
                                                    : Qt::TextForceLeftToRight);
    for (const QString &line : lines) {
        style()->drawItemText(&painter, place, flags, palette(), isEnabled(), line,
                              foregroundRole());
        place.translate(0, lineHeight);
    }
}
