#pragma once

#include "QuickEntryCatalog.h"

#include <QColor>
#include <QIcon>
#include <QPushButton>

class ElidedLabel;
class FlagLabel;
class QToolButton;
class QuickEntrySignalBars;

/// What rows are painted with, made once for all of them.
struct QuickEntryLook
{
    QIcon star;
    QIcon filledStar;
    QColor litBars;
    QColor otherBars;
};

/// One place of the quick entry: the row as a whole is a button that connects, with a
/// star of its own inside. Made once and filled with one place after another.
class QuickEntryRow final : public QPushButton
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QuickEntryRow)

public:
    explicit QuickEntryRow(QWidget *parent = nullptr);

    const QuickEntryItem &item() const { return m_item; }
    void setItem(const QuickEntryItem &item);
    void setLook(const QuickEntryLook &look);

    QToolButton *star() const { return m_star; }
    /// Asks for the opposite of the present favourite state. The star follows when the
    /// daemon has done it.
    void toggleFavorite();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void favoriteRequested(const QString &nodeID, bool favorite);

private:
    void renderItem();

    QuickEntryItem m_item;
    QuickEntryLook m_look;
    FlagLabel *m_flag = nullptr;
    ElidedLabel *m_text = nullptr;
    ElidedLabel *m_ping = nullptr;
    QuickEntrySignalBars *m_bars = nullptr;
    QToolButton *m_star = nullptr;
};
