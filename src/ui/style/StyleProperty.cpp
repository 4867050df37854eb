#include "StyleProperty.h"

#include <QCoreApplication>
#include <QEvent>
#include <QStyle>
#include <QWidget>

bool setStyleProperty(QWidget &widget, const char *name, const QVariant &value)
{
    if (widget.property(name) == value) {
        return false;
    }
    widget.setProperty(name, value);
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
    // Labels and others ask their style for margins and frames only when told of a new one.
    QEvent styleChange(QEvent::StyleChange);
    QCoreApplication::sendEvent(&widget, &styleChange);
    widget.updateGeometry();
    widget.update();
    return true;
}
