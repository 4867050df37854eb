#include "QuickEntrySignalBars.h"

#include "SignalBars.h"

#include <QPainter>

namespace {

constexpr int kMaxLevel = 100;

} // namespace

QuickEntrySignalBars::QuickEntrySignalBars(QWidget *parent)
    : QWidget(parent)
{
    setFixedSize(signalbars::kSize);
}

void QuickEntrySignalBars::setLevel(int level)
{
    const int next = qBound(-1, level, kMaxLevel);
    if (next != m_level) {
        m_level = next;
        update();
    }
}

void QuickEntrySignalBars::setColors(const QColor &active, const QColor &inactive)
{
    m_active = active;
    m_inactive = inactive;
    update();
}

void QuickEntrySignalBars::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    signalbars::paint(painter, rect(), m_level, m_active, m_inactive, layoutDirection());
}
