#include "SegmentedControl.h"

#include "StyleProperty.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int kSegmentHeight = 36;

} // namespace

SegmentedControl::SegmentedControl(const QString &accessibleName, QWidget *parent)
    : ChoiceGroup(accessibleName, parent)
{
    setObjectName(u"VantuSegmented"_s);
    // In a window that is too small, others give way.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
}

QPushButton *SegmentedControl::addSegment(const QString &value, const QString &text,
                                          const QString &objectName)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(objectName);
    button->setCheckable(true);
    button->setAutoDefault(true); // Return presses it, like Space.
    button->setMinimumHeight(kSegmentHeight);
    button->installEventFilter(this);
    connect(button, &QPushButton::clicked, this, [this, value] {
        showValue();
        if (value != m_value) {
            Q_EMIT chosen(value);
        }
    });
    layout()->addWidget(button);
    m_segments.append({value, button});
    markEnds();
    showValue();
    return button;
}

QPushButton *SegmentedControl::segment(const QString &value) const
{
    for (const Segment &segment : m_segments) {
        if (segment.value == value) {
            return segment.button;
        }
    }
    return nullptr;
}

void SegmentedControl::setValue(const QString &value)
{
    m_value = value;
    showValue();
}

void SegmentedControl::setAttachedEditor(bool attached)
{
    setStyleProperty(*this, "vantuAttachedEditor", attached);
}

void SegmentedControl::showValue()
{
    for (const Segment &segment : std::as_const(m_segments)) {
        segment.button->setChecked(segment.value == m_value);
    }
}

void SegmentedControl::markEnds()
{
    const qsizetype last = m_segments.size() - 1;
    for (qsizetype index = 0; index <= last; ++index) {
        const QString position = last == 0       ? u"single"_s
                                 : index == 0    ? u"start"_s
                                 : index == last ? u"end"_s
                                                 : QString();
        setStyleProperty(*m_segments.at(index).button, "vantuSegment",
                         position.isEmpty() ? QVariant() : position);
    }
}

bool SegmentedControl::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress) {
        return ChoiceGroup::eventFilter(watched, event);
    }
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Left && key != Qt::Key_Right) {
        return ChoiceGroup::eventFilter(watched, event);
    }
    const qsizetype step =
        (key == Qt::Key_Right) == (layoutDirection() == Qt::LeftToRight) ? 1 : -1;
    qsizetype index = 0;
    while (index < m_segments.size() && m_segments.at(index).button != watched) {
        ++index;
    }
    for (index += step; index >= 0 && index < m_segments.size(); index += step) {
        if (m_segments.at(index).button->isEnabled()) {
            m_segments.at(index).button->setFocus(Qt::TabFocusReason);
            break;
        }
    }
    return true;
}
