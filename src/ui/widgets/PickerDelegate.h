#pragma once

#include <QColor>
#include <QStyledItemDelegate>

/// Paints the lines of a PickerList and turns a check box over wherever its line is clicked.
class PickerDelegate final : public QStyledItemDelegate
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PickerDelegate)

public:
    /// The quiet text at the end of a line.
    static constexpr int kDetailRole = Qt::UserRole + 1;

    using QStyledItemDelegate::QStyledItemDelegate;

    void setDetailColor(const QColor &color) { m_detailColor = color; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    QColor m_detailColor;
};
