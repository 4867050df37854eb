#pragma once

#include <QColor>
#include <QStyledItemDelegate>

struct ThemePalette;

/// Paints the rows of a CatalogFilterModel: nodes with flag, name, tags, latency and
/// star; groups and tabs with the number of their places.
///
/// It paints in the colours of the theme that it was given last, and mirrored where the
/// view reads from right to left. A view that shows it should keep vertical scrolling by
/// item, which asks only for the heights of the rows in sight.
class CatalogItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CatalogItemDelegate)

public:
    explicit CatalogItemDelegate(QObject *parent = nullptr);

    /// The caller repaints the view.
    void setThemePalette(const ThemePalette &palette);

    /// Where a row's star can be pressed: the trailing end of the row over its full
    /// height, given the row's rectangle in the view.
    static QRect favoriteRect(const QRect &row, Qt::LayoutDirection direction);

    /// Whether `position` is on the star of this row; no row but a node's has one.
    static bool isOnFavorite(const QModelIndex &index, const QRect &row, const QPoint &position,
                             Qt::LayoutDirection direction);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    struct Colors
    {
        QColor text;
        QColor muted;
        QColor disabled;
        QColor accent;
        QColor word; ///< Says in letters what the accent says.
        QColor hover;
        QColor active;
        QColor flagBorder;
        QColor noFlag;
    };
    struct Canvas;

    void paintGround(const Canvas &canvas, bool isTarget) const;
    void paintNode(const Canvas &canvas, const QModelIndex &index) const;
    void paintNodeEnd(const Canvas &canvas, const QModelIndex &index) const;
    void paintHeading(const Canvas &canvas, const QModelIndex &index, bool isTab) const;
    void paintFlag(const Canvas &canvas, const QString &code) const;
    void paintStar(const Canvas &canvas, bool favorite, bool pending) const;
    void paintDot(const Canvas &canvas, int left) const;

    Colors m_colors;
};
