#include "SearchField.h"

#include "TintedIcon.h"

#include <QAction>
#include <QEvent>
#include <QIcon>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kIconSize = 16;
constexpr int kGlassInset = 12;
constexpr int kGap = 8;
/// What a line edit leaves free before its text, apart from what its style does.
constexpr int kOwnMargin = 2;

} // namespace

SearchField::SearchField(const QString &placeholder, QWidget *parent)
    : QLineEdit(parent)
{
    setPlaceholderText(placeholder);
    setAccessibleName(placeholder);
    setClearButtonEnabled(true);
    setIconColor(palette().color(QPalette::PlaceholderText));
    placeIcons();
}

void SearchField::placeIcons()
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect inside = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const bool mirrored = isRightToLeft();
    const int inset = mirrored ? width() - 1 - inside.right() : inside.left();
    const int room = std::max(0, kGlassInset + kIconSize + kGap - kOwnMargin - inset);
    const QMargins margins(mirrored ? 0 : room, 0, mirrored ? room : 0, 0);
    if (margins != textMargins()) {
        setTextMargins(margins);
    }
    // Qt puts the clear button nearer to its end than the glass is to the other.
    if (auto *clear = findChild<QToolButton *>()) {
        const int end = kGlassInset + (kIconSize - clear->width()) / 2;
        clear->move(mirrored ? end : width() - end - clear->width(), clear->y());
    }
    // By itself the text would stand at the side where its own script begins.
    setAlignment((mirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute |
                 Qt::AlignVCenter);
}

void SearchField::setIconColor(const QColor &color)
{
    m_iconColor = color;
    update();
    // Qt makes the clear button itself and lends it only under this name.
    if (auto *clear = findChild<QAction *>(u"_q_qlineeditclearaction"_s)) {
        clear->setIcon(tintedIcon(u":/icons/clear.svg"_s, color, kIconSize, devicePixelRatioF()));
        clear->setText(tr("Clear"));
    }
}

void SearchField::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::StyleChange) {
        placeIcons();
    }
}

void SearchField::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    placeIcons();
}

void SearchField::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    const QRect glass(kGlassInset, (height() - kIconSize) / 2, kIconSize, kIconSize);
    // Painted, since a button would be one more thing to press that does nothing.
    QPainter painter(this);
    painter.drawPixmap(
        QStyle::visualRect(layoutDirection(), rect(), glass),
        tintedIcon(u":/icons/search.svg"_s, m_iconColor, kIconSize, devicePixelRatioF()));
}
