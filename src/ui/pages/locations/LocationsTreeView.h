#pragma once

#include <QColor>
#include <QElapsedTimer>
#include <QHash>
#include <QPersistentModelIndex>
#include <QStringList>
#include <QTreeView>

#include <functional>

class CatalogFilterModel;
class CatalogTreeModel;
struct CatalogTreeItem;
class LocationsItemDelegate;
struct ThemePalette;

/// The list of the Locations page: one tab of the catalogue, or all of them during a
/// search.
///
/// Headings (tabs and groups) fold; Return, Enter or a double click on a node asks for a
/// connect; a press on a row's star or its keys is handed to the delegate. What it
/// shows can be noted by stable keys and brought back after the catalogue was replaced.
class LocationsTreeView final : public QTreeView
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LocationsTreeView)

public:
    /// What the user has made of the list, by the keys of its rows.
    struct Snapshot
    {
        QHash<QStringList, bool> expanded; ///< Of each heading.
        QStringList current;
        int currentRow = -1; ///< Below the heading that it is in.
        bool currentIsSelected = false;
        QStringList top; ///< The first row in sight.
        int scrollValue = 0;
    };

    /// Where a connect would go.
    struct Target
    {
        enum class Kind { None, Node, Smart };
        Kind kind = Kind::None;
        QString id; ///< Of the node; or the selector, empty for all places.
        QString label;
    };

    /// Both models must outlive the view; `filter` shows `catalog`.
    LocationsTreeView(CatalogTreeModel &catalog, CatalogFilterModel &filter,
                      QWidget *parent = nullptr);

    /// Shows what lies below a row of the catalogue; the whole of it for an invalid one.
    void showBelow(const QModelIndex &catalogRow);

    /// Makes a row, given as the filter's index, the selected and current one; none for
    /// an invalid index.
    void choose(const QModelIndex &index);

    /// The node that is chosen, else the best one of the chosen heading, else of what is
    /// shown. `anywhere`: headings don't count, as in a search.
    Target target(bool anywhere) const;
    /// A node's own; nowhere for other rows.
    static Target nodeTarget(const QModelIndex &index);

    // The calls that fold or unfold many rows don't emit expanded() and collapsed().

    /// Among the rows on the top level.
    bool isAnyHeadingExpanded() const;
    /// Unfolds the headings of the top level.
    void expandTop();
    /// Unfolds the headings of all tabs and levels.
    void expandHeadings();
    /// Folds everything.
    void foldAll();

    Snapshot snapshot() const;
    /// Headings that the snapshot doesn't know become `expandNew`. Call showBelow() first.
    void restore(const Snapshot &snapshot, bool expandNew);

    LocationsItemDelegate &rows() const { return *m_rows; }
    void applyThemePalette(const ThemePalette &palette);

    void keyboardSearch(const QString &search) override;

Q_SIGNALS:
    /// The user wants to connect to this node.
    void nodeActivated(const QModelIndex &index);

protected:
    void initViewItemOption(QStyleOptionViewItem *option) const override;
    void drawBranches(QPainter *painter, const QRect &rect,
                      const QModelIndex &index) const override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    using HeadingVisitor = std::function<void(const QModelIndex &shown, const QStringList &path)>;

    void visitHeadings(const CatalogTreeItem &above, const HeadingVisitor &visit) const;
    bool pressStar(const QMouseEvent &event);
    QModelIndex starAt(const QPoint &position) const;
    bool isTypingAhead() const;
    bool isFavoriteKey(const QKeyEvent &event) const;
    QModelIndex placeOf(const Snapshot &snapshot) const;

    CatalogTreeModel &m_catalog;
    CatalogFilterModel &m_filter;
    LocationsItemDelegate *m_rows = nullptr;
    QPersistentModelIndex m_pressedStar;
    QElapsedTimer m_lastTyped;
    QColor m_chevronColor;
};
