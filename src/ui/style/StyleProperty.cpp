#include "StyleProperty.h"

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
    widget.update();
    return true;
}
