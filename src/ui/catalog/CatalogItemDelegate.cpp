#include "CatalogItemDelegate.h"

#include "CatalogFilterModel.h"
#include "CatalogTexts.h"
#include "CatalogTreeModel.h"
#include "FlagPixmap.h"
#include "QtCompat.h"
#include "SignalBars.h"
#include "ThemePalette.h"
#include "TintedIcon.h"
#include "TrayMenuText.h"

#include <QPainter>
#include <QPixmapCache>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

constexpr int kNodeHeight = 40;
constexpr int kHeadingHeight = 36;
constexpr int kPadding = 8; // at both ends of a row, and between its parts
constexpr int kStarWidth = 36;
constexpr int kStarSize = 16;
constexpr int kDotSize = 8;
constexpr int kDotGap = 5;
constexpr int kShortestTags = 28; // what is narrower shows nothing but an ellipsis
constexpr qreal kRadius = 7;
constexpr qreal kNoteRatio = 0.92;
constexpr qreal kPendingOpacity = 0.4;
constexpr qreal kDisabledOpacity = 0.4;

QFont noteFont(QFont font)
{
    if (font.pixelSize() > 0) {
        font.setPixelSize(qRound(font.pixelSize() * kNoteRatio));
    } else {
        font.setPointSizeF(font.pointSizeF() * kNoteRatio);
    }
    qtcompat::setTabularFigures(font);
    return font;
}

QFont headingFont(QFont font)
{
    font.setWeight(QFont::DemiBold);
    return font;
}

/// The place for figures at the end of a row, wide enough for the longest of them, so
/// that all rows have it in one column.
int figuresWidth(const QFont &font)
{
    return QFontMetrics(font).horizontalAdvance(catalogtexts::latency(9999)) + 2;
}

QPixmap starPixmap(bool filled, const QColor &color, qreal ratio)
{
    const QString key = u"vantu-favorite:%1:%2:%3"_s.arg(QString::number(filled), color.name(),
                                                         QString::number(kStarSize * ratio));
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        const QString path = filled ? u":/icons/star-filled.svg"_s : u":/icons/star.svg"_s;
        pixmap = tintedIcon(path, color, kStarSize, ratio);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

bool isNode(const QModelIndex &index)
{
    return index.data(CatalogTreeModel::KindRole).toString() == "node"_L1;
}

} // namespace

/// One row being painted. Positions count from its leading edge and are turned round at
/// the last moment.
struct CatalogItemDelegate::Canvas
{
    QPainter &painter;
    const QStyleOptionViewItem &option;
    const QRect row;

    bool isEnabled() const { return option.state.testFlag(QStyle::State_Enabled); }

    QRect place(int left, int width) const { return place(left, width, row.height()); }

    QRect place(int left, int width, int height) const
    {
        const QRect leftToRight(row.left() + left, row.top() + (row.height() - height) / 2, width,
                                height);
        return QStyle::visualRect(option.direction, row, leftToRight);
    }

    // Text reads in its own direction, whatever that of the program, and keeps to its side.
    void text(int left, int width, const QString &text, const QFont &font, const QColor &color,
              Qt::Alignment alignment = Qt::AlignLeading) const
    {
        const QString line = QFontMetrics(font).elidedText(text, Qt::ElideRight, width);
        painter.setFont(font);
        painter.setPen(color);
        painter.setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        const auto flags = QStyle::visualAlignment(option.direction, alignment);
        painter.drawText(place(left, width),
                         int(flags | Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextSingleLine),
                         line);
    }
};

CatalogItemDelegate::CatalogItemDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
    setThemePalette(ThemePalette::forScheme(ColorScheme::Light));
}

void CatalogItemDelegate::setThemePalette(const ThemePalette &palette)
{
    m_colors = {
        .text = QColor(palette.textPrimary),
        .muted = QColor(palette.textMuted),
        .disabled = QColor(palette.disabledText),
        .accent = QColor(palette.accent),
        .word = QColor(palette.sidebarSelectedText),
        .hover = QColor(palette.sidebarHover),
        .active = QColor(palette.sidebarActive),
        .flagBorder = QColor(palette.badgeBorder),
        .noFlag = QColor(palette.badgeBg),
    };
}

QRect CatalogItemDelegate::favoriteRect(const QRect &row, Qt::LayoutDirection direction)
{
    const QRect end(row.right() + 1 - kStarWidth, row.top(), kStarWidth, row.height());
    return QStyle::visualRect(direction, row, end);
}

bool CatalogItemDelegate::isOnFavorite(const QModelIndex &index, const QRect &row,
                                       const QPoint &position, Qt::LayoutDirection direction)
{
    return isNode(index) && favoriteRect(row, direction).contains(position);
}

QSize CatalogItemDelegate::sizeHint(const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    // The base class would measure icon and text as well, for every row of the tree.
    const int least = isNode(index) ? kNodeHeight : kHeadingHeight;
    const int text = option.fontMetrics.height();
    return {kStarWidth + 2 * kPadding + figuresWidth(option.font),
            qMax(least, text + 2 * kPadding)};
}

void CatalogItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const Canvas canvas{*painter, option, option.rect};
    paintGround(canvas, index.data(CatalogTreeModel::SelectedRole).toBool());
    const QString kind = index.data(CatalogTreeModel::KindRole).toString();
    if (kind == "node"_L1) {
        paintNode(canvas, index);
    } else {
        paintHeading(canvas, index, kind == "tab"_L1);
    }
    painter->restore();
}

// The next connect's node has the active colour, the row chosen in the view a border as
// well, and a stronger one where the keyboard is.
void CatalogItemDelegate::paintGround(const Canvas &canvas, bool isTarget) const
{
    const QStyle::State state = canvas.option.state;
    const bool isChosen = state.testFlag(QStyle::State_Selected);
    const bool hasFocus = state.testFlag(QStyle::State_HasFocus);
    const bool isHovered = canvas.isEnabled() && state.testFlag(QStyle::State_MouseOver);
    QPainter &painter = canvas.painter;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::NoBrush);
    if (isChosen || isTarget) {
        painter.setBrush(m_colors.active);
    } else if (isHovered) {
        painter.setBrush(m_colors.hover);
    }
    qreal inset = 0;
    if (isChosen || hasFocus) {
        const qreal width = hasFocus ? 2 : 1;
        painter.setPen(QPen(canvas.isEnabled() ? m_colors.accent : m_colors.disabled, width));
        inset = width / 2;
    }
    const QRectF ground = QRectF(canvas.row).adjusted(0, 1, 0, -1);
    painter.drawRoundedRect(ground.adjusted(inset, inset, -inset, -inset), kRadius, kRadius);
}

void CatalogItemDelegate::paintNode(const Canvas &canvas, const QModelIndex &index) const
{
    const QFont &font = canvas.option.font;
    const QFont small = noteFont(font);
    const bool isConnected = index.data(CatalogTreeModel::ConnectedRole).toBool();
    paintFlag(canvas, index.data(CatalogFilterModel::FlagCodeRole).toString());

    int left = 2 * kPadding + flagExtent(FlagSize::Row).width();
    const int end = canvas.row.width() - kStarWidth - figuresWidth(small) - kPadding;
    const QString word = isConnected ? TrayMenuText::connected() : QString();
    const int wordWidth = QFontMetrics(small).horizontalAdvance(word);
    const int markWidth = isConnected ? kPadding + kDotSize + kDotGap + wordWidth : 0;

    // The mark is never pushed out by a long name.
    const QString name = index.data(Qt::DisplayRole).toString();
    const int nameRoom = qMax(0, end - left - markWidth);
    const int nameWidth = qMin(QFontMetrics(font).horizontalAdvance(name) + 1, nameRoom);
    canvas.text(left, nameWidth, name, font,
                canvas.isEnabled() ? m_colors.text : m_colors.disabled);
    left += nameWidth + kPadding;
    if (isConnected) {
        paintDot(canvas, left);
        left += kDotSize + kDotGap;
        canvas.text(left, wordWidth, word, small,
                    canvas.isEnabled() ? m_colors.word : m_colors.disabled);
        left += wordWidth + kPadding;
    }
    if (end - left >= kShortestTags) {
        canvas.text(left, end - left, index.data(CatalogTreeModel::DetailTextRole).toString(),
                    small, canvas.isEnabled() ? m_colors.muted : m_colors.disabled);
    }
    paintNodeEnd(canvas, index);
}

// How quick the node is, in figures or else in bars, and the star.
void CatalogItemDelegate::paintNodeEnd(const Canvas &canvas, const QModelIndex &index) const
{
    const QFont small = noteFont(canvas.option.font);
    const int width = figuresWidth(small);
    const int left = canvas.row.width() - kStarWidth - width;
    const QColor &color = canvas.isEnabled() ? m_colors.muted : m_colors.disabled;
    const QVariant latency = index.data(CatalogTreeModel::LatencyRole);
    const QVariant level = index.data(CatalogTreeModel::FirstMetricRole);
    if (latency.isValid()) {
        canvas.text(left, width, catalogtexts::latency(latency.toInt()), small, color,
                    Qt::AlignTrailing);
    } else if (level.isValid()) {
        const QSize size = signalbars::kSize;
        signalbars::paint(canvas.painter,
                          canvas.place(left + width - size.width(), size.width(), size.height()),
                          level.toInt(), canvas.isEnabled() ? m_colors.accent : m_colors.disabled,
                          color, canvas.option.direction);
    }
    paintStar(canvas, index.data(CatalogTreeModel::FavoriteRole).toBool(),
              index.data(CatalogTreeModel::FavoritePendingRole).toBool());
}

void CatalogItemDelegate::paintHeading(const Canvas &canvas, const QModelIndex &index,
                                       bool isTab) const
{
    const QFont font = headingFont(canvas.option.font);
    const QFont small = noteFont(canvas.option.font);
    const QColor &muted = canvas.isEnabled() ? m_colors.muted : m_colors.disabled;
    const QColor &text = canvas.isEnabled() ? m_colors.text : m_colors.disabled;
    const bool isMarked = index.data(CatalogTreeModel::ContainsConnectedRole).toBool();

    const int countWidth = figuresWidth(small);
    const int end = canvas.row.width() - kStarWidth - countWidth;
    const int markWidth = isMarked ? kPadding + kDotSize : 0;
    const QString name = index.data(Qt::DisplayRole).toString();
    const int nameRoom = qMax(0, end - 2 * kPadding - markWidth);
    const int nameWidth = qMin(QFontMetrics(font).horizontalAdvance(name) + 1, nameRoom);
    canvas.text(kPadding, nameWidth, name, font, isTab ? muted : text);
    if (isMarked) {
        paintDot(canvas, 2 * kPadding + nameWidth);
    }
    canvas.text(end, countWidth,
                QString::number(index.data(CatalogFilterModel::PlaceCountRole).toInt()), small,
                muted, Qt::AlignTrailing);
}

void CatalogItemDelegate::paintFlag(const Canvas &canvas, const QString &code) const
{
    const QSize size = flagExtent(FlagSize::Row);
    const QRect at = canvas.place(kPadding, size.width(), size.height());
    QPainter &painter = canvas.painter;
    const QPixmap flag = flagPixmap(code, FlagSize::Row, painter.device()->devicePixelRatioF());
    painter.setOpacity(canvas.isEnabled() ? 1 : kDisabledOpacity);
    if (flag.isNull()) {
        painter.fillRect(at, m_colors.noFlag);
    } else {
        painter.drawPixmap(at, flag);
    }
    // Many flags are white at an edge, as the ground may be.
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(m_colors.flagBorder, 1));
    painter.drawRect(QRectF(at).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.setOpacity(1);
}

void CatalogItemDelegate::paintStar(const Canvas &canvas, bool favorite, bool pending) const
{
    QColor color = favorite ? m_colors.accent : m_colors.muted;
    if (!canvas.isEnabled()) {
        color = m_colors.disabled;
    }
    const int left = canvas.row.width() - (kStarWidth + kStarSize) / 2;
    QPainter &painter = canvas.painter;
    painter.setOpacity(pending ? kPendingOpacity : 1);
    painter.drawPixmap(canvas.place(left, kStarSize, kStarSize),
                       starPixmap(favorite, color, painter.device()->devicePixelRatioF()));
    painter.setOpacity(1);
}

void CatalogItemDelegate::paintDot(const Canvas &canvas, int left) const
{
    canvas.painter.setPen(Qt::NoPen);
    canvas.painter.setBrush(canvas.isEnabled() ? m_colors.accent : m_colors.disabled);
    canvas.painter.drawEllipse(canvas.place(left, kDotSize, kDotSize));
}
