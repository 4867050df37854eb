#include "TextStyle.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QLabel>
#include <QStyle>
#include <QWidget>

namespace {

struct FontRule
{
    qreal ratio;
    QFont::Weight weight;
};

FontRule ruleOf(TextStyle style)
{
    switch (style) {
    case TextStyle::PageTitle:
        return {1.7, QFont::DemiBold};
    case TextStyle::StatusTitle:
        return {1.5, QFont::DemiBold};
    case TextStyle::DialogTitle:
        return {1.2, QFont::DemiBold};
    case TextStyle::CardTitle:
        return {1.0, QFont::DemiBold};
    case TextStyle::Value:
        return {1.1, QFont::Normal};
    case TextStyle::Body:
        return {1.0, QFont::Normal};
    case TextStyle::Note:
        return {0.92, QFont::Normal};
    case TextStyle::Code:
        break;
    }
    return {1.0, QFont::Normal};
}

} // namespace

void setTextStyle(QWidget &widget, TextStyle style)
{
    const FontRule rule = ruleOf(style);
    QFont font = QApplication::font();
    if (font.pixelSize() > 0) {
        font.setPixelSize(qRound(font.pixelSize() * rule.ratio));
    } else {
        font.setPointSizeF(font.pointSizeF() * rule.ratio);
    }
    font.setWeight(rule.weight);
    if (style == TextStyle::Code) {
        font.setFamilies(QFontDatabase::systemFont(QFontDatabase::FixedFont).families());
    }
    widget.setFont(font);
}

void keepToLeadingEdge(QLabel &label)
{
    const Qt::Alignment side =
        QStyle::visualAlignment(QGuiApplication::layoutDirection(), label.alignment());
    label.setAlignment(side | Qt::AlignAbsolute);
}
