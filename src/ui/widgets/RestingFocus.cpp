#include "RestingFocus.h"

void RestingFocus::rest(QWidget &place)
{
    QWidget *focused = place.window()->focusWidget();
    if (focused && focused != &place && place.isAncestorOf(focused)) {
        m_control = focused;
        m_place = &place;
        place.setFocus(Qt::OtherFocusReason);
    }
}

void RestingFocus::giveBack()
{
    if (!m_control || !m_place || m_place->window()->focusWidget() != m_place) {
        m_control.clear(); // The user went elsewhere.
    } else if (m_control->isEnabled() && m_control->isVisibleTo(m_place)) {
        m_control->setFocus(Qt::OtherFocusReason);
        m_control.clear();
    }
}

void RestingFocus::handTo(QWidget &control)
{
    m_control = &control;
    m_place = control.parentWidget();
    m_place->setFocus(Qt::OtherFocusReason);
    giveBack();
}

void RestingFocus::setEnabled(QWidget &control, bool enabled)
{
    if (!enabled && control.window()->focusWidget() == &control) {
        rest(*control.parentWidget());
    }
    control.setEnabled(enabled);
    giveBack();
}
