#include "LabelText.h"

#include "PlainText.h"
#include "TextStyle.h"

#include <QGuiApplication>
#include <QLabel>

void labeltext::wrap(QLabel &label)
{
    label.setTextFormat(Qt::PlainText);
    label.setWordWrap(true);
    keepToLeadingEdge(label);
    QSizePolicy policy = label.sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Ignored);
    label.setSizePolicy(policy);
}

QString labeltext::embedded(const QString &value)
{
    return QGuiApplication::layoutDirection() == Qt::RightToLeft ? plaintext::isolated(value)
                                                                 : value;
}
