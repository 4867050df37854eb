#include "DialogParts.h"

#include "ElidedLabel.h"
#include "StyleProperty.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace dialogparts {

ElidedLabel *makeText(const QString &objectName, const QString &text, TextStyle style,
                      int maximumLines, QWidget *parent)
{
    auto *label = new ElidedLabel(text, parent);
    label->setObjectName(objectName);
    label->setMaximumLines(maximumLines);
    setTextStyle(*label, style);
    if (style == TextStyle::Note) {
        setStyleProperty(*label, "vantuRole", u"muted"_s);
    }
    // Only a label that wraps is asked for the height that it needs.
    label->setWordWrap(true);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return label;
}

QPushButton *makeButton(const QString &objectName, const QString &text, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setObjectName(objectName);
    button->setAccessibleName(text);
    return button;
}

} // namespace dialogparts
