#include "PickerDelegate.h"

#include <QAbstractItemModel>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int kRowHeight = 40;
constexpr int kMargin = 12;

} // namespace

void PickerDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // The line that the keyboard is on must be seen, also where lines are ticked
    // rather than marked.
    if (option->state & QStyle::State_HasFocus) {
        option->state |= QStyle::State_Selected;
    }
}

void PickerDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const QString detail = index.data(kDetailRole).toString();
    if (detail.isEmpty()) {
        return;
    }
    const QFontMetrics metrics(option.font);
    const int nameWidth = metrics.horizontalAdvance(index.data().toString());
    QRect place = option.rect.adjusted(kMargin, 0, -kMargin, 0);
    const int room = std::max(place.width() - nameWidth - 2 * kMargin, 0);
    painter->save();
    painter->setFont(option.font);
    painter->setPen(m_detailColor);
    const auto alignment = QStyle::visualAlignment(option.direction, Qt::AlignTrailing);
    painter->drawText(place, static_cast<int>(alignment | Qt::AlignAbsolute | Qt::AlignVCenter),
                      metrics.elidedText(detail, Qt::ElideRight, room));
    painter->restore();
}

QSize PickerDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return QStyledItemDelegate::sizeHint(option, index).expandedTo({0, kRowHeight});
}

bool PickerDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                 const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::MouseButtonRelease || !(index.flags() & Qt::ItemIsUserCheckable)) {
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    }
    if (static_cast<QMouseEvent *>(event)->button() != Qt::LeftButton) {
        return false;
    }
    const bool ticked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model->setData(index, ticked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}
