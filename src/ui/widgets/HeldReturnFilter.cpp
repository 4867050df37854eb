#include "HeldReturnFilter.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace {

bool takesLines(const QWidget *field)
{
    // Qt takes the attribute from a field that can't be written in.
    return field && field->testAttribute(Qt::WA_InputMethodEnabled) &&
           field->inputMethodHints().testFlag(Qt::ImhMultiLine);
}

} // namespace

HeldReturnFilter::HeldReturnFilter(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool HeldReturnFilter::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!isPress && event->type() != QEvent::KeyRelease) {
        return QObject::eventFilter(watched, event);
    }
    const auto &key = static_cast<const QKeyEvent &>(*event);
    if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter) {
        return false;
    }
    if (!isPress) {
        m_released = key.timestamp();
        return false;
    }
    // X11 repeats by a release and a press at once, which Qt doesn't always recognise.
    const bool isRepeat = key.isAutoRepeat() || (m_released > 0 && key.timestamp() == m_released);
    return isRepeat && !takesLines(QApplication::focusWidget());
}
