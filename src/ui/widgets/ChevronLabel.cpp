#include "ChevronLabel.h"

#include <QEvent>

ChevronLabel::ChevronLabel(QWidget *parent)
    : QLabel(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    render();
}

void ChevronLabel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange) {
        render();
    }
    QLabel::changeEvent(event);
}

void ChevronLabel::render()
{
    // Not mirrored by the text engine: outside running text both stand as they are.
    setText(isRightToLeft() ? QChar(0x2039) : QChar(0x203A));
}
