#include "SettingsRowLayout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int kGap = 16;
constexpr int kLineGap = 8;
/// Narrower than this a text is hard to read, and the control goes below it.
constexpr int kLeastTextWidth = 200;

int heightAt(const QLayoutItem &item, int width)
{
    return item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
}

} // namespace

SettingsRowLayout::SettingsRowLayout(QWidget *parent)
    : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
}

SettingsRowLayout::~SettingsRowLayout()
{
    qDeleteAll(m_items);
}

void SettingsRowLayout::addLayout(QLayout *layout)
{
    addChildLayout(layout);
    addItem(layout);
}

void SettingsRowLayout::addItem(QLayoutItem *item)
{
    Q_ASSERT(m_items.size() < 2);
    m_items.append(item);
}

int SettingsRowLayout::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem *SettingsRowLayout::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem *SettingsRowLayout::takeAt(int index)
{
    return index >= 0 && index < count() ? m_items.takeAt(index) : nullptr;
}

bool SettingsRowLayout::hasHeightForWidth() const
{
    return true;
}

int SettingsRowLayout::heightForWidth(int width) const
{
    return arrange({0, 0, width, 0}, Pass::Measure);
}

QSize SettingsRowLayout::sizeHint() const
{
    int width = 0;
    for (const QLayoutItem *item : m_items) {
        width += item->sizeHint().width() + (width > 0 ? kGap : 0);
    }
    return {width, heightForWidth(width)};
}

QSize SettingsRowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *item : m_items) {
        size = size.expandedTo(item->minimumSize());
    }
    return size;
}

void SettingsRowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    arrange(rect, Pass::Place);
}

/// Returns the height that is taken up.
int SettingsRowLayout::arrange(const QRect &rect, Pass pass) const
{
    if (m_items.isEmpty()) {
        return 0;
    }
    QLayoutItem &text = *m_items.first();
    QLayoutItem *control = m_items.value(1);
    const QSize controlSize =
        control ? control->sizeHint().boundedTo({rect.width(), QLAYOUTSIZE_MAX}) : QSize(0, 0);
    const int besides = control ? controlSize.width() + kGap : 0;
    const bool abreast = !control || rect.width() - besides >= kLeastTextWidth;
    const int textWidth = abreast ? rect.width() - besides : rect.width();
    const int textHeight = heightAt(text, textWidth);
    const int height = abreast ? std::max(textHeight, controlSize.height())
                               : textHeight + kLineGap + controlSize.height();
    if (pass == Pass::Measure) {
        return height;
    }

    const Qt::LayoutDirection direction =
        parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    const int textTop = rect.top() + (abreast ? (height - textHeight) / 2 : 0);
    text.setGeometry(
        QStyle::visualRect(direction, rect, {rect.left(), textTop, textWidth, textHeight}));
    if (control) {
        const QPoint place = abreast ? QPoint(rect.left() + textWidth + kGap,
                                              rect.top() + (height - controlSize.height()) / 2)
                                     : QPoint(rect.left(), rect.top() + textHeight + kLineGap);
        control->setGeometry(QStyle::visualRect(direction, rect, {place, controlSize}));
    }
    return height;
}
