#pragma once

#include <QScrollArea>

class QVBoxLayout;

/// Scrolls what a page shows. Pages reach to the window's edges at their sides and below;
/// the area keeps the page's column off them and its bar in the room between, so that the
/// column is equally wide whether or not there is anything to scroll.
class PageScrollArea final : public QScrollArea
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PageScrollArea)

public:
    /// Pixels that a page keeps free at either side.
    static constexpr int kSideMargin = 32;
    /// Pixels that a page keeps free below what it shows.
    static constexpr int kBottomMargin = 28;
    /// Pixels beyond which a page's column grows no wider.
    static constexpr int kColumnWidth = 880;

    explicit PageScrollArea(QWidget *parent = nullptr);

    /// Shows `content`, which has no layout yet, and takes it over. What the page shows
    /// goes into the column that is returned, which belongs to `content`.
    QVBoxLayout *setContent(QWidget &content);
};
