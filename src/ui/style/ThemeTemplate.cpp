#include "ThemeTemplate.h"

#include "ThemePalette.h"

#include <QFile>
#include <QLatin1StringView>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct DirectionEntry
{
    const char *name;
    const char *leftToRight;
    const char *rightToLeft;
};

/// Rules that have a side. They come before the colours in the order of replacement,
/// since some of them contain one.
constexpr std::array<DirectionEntry, 16> kDirectionEntries{{
    {"segmentDividerBorder", "border-left: 1px solid @surfaceBorder@",
     "border-right: 1px solid @surfaceBorder@"},
    {"segmentStartNoDivider", "border-left: 0", "border-right: 0"},
    {"segmentStartTopRadius", "border-top-left-radius: 6px", "border-top-right-radius: 6px"},
    {"segmentStartBottomRadius", "border-bottom-left-radius: 6px",
     "border-bottom-right-radius: 6px"},
    {"segmentEndTopRadius", "border-top-right-radius: 6px", "border-top-left-radius: 6px"},
    {"segmentEndBottomRadius", "border-bottom-right-radius: 6px", "border-bottom-left-radius: 6px"},
    {"attachedStartBottomRadius", "border-bottom-left-radius: 0px",
     "border-bottom-right-radius: 0px"},
    {"attachedEndBottomRadius", "border-bottom-right-radius: 0px",
     "border-bottom-left-radius: 0px"},
    {"chevronPadding", "padding-right: 28px", "padding-left: 28px"},
    {"searchClearPadding", "padding-right: 32px", "padding-left: 32px"},
    {"tabInnerDividerClear", "border-left: 0px", "border-right: 0px"},
    {"tabStartOuterBorder", "border-left: 1px solid @surfaceBorder@",
     "border-right: 1px solid @surfaceBorder@"},
    {"tabStartTopRadius", "border-top-left-radius: 6px", "border-top-right-radius: 6px"},
    {"tabStartBottomRadius", "border-bottom-left-radius: 0px", "border-bottom-right-radius: 0px"},
    {"tabEndTopRadius", "border-top-right-radius: 6px", "border-top-left-radius: 6px"},
    {"tabEndBottomRadius", "border-bottom-right-radius: 0px", "border-bottom-left-radius: 0px"},
}};

struct MetricEntry
{
    const char *name;
    int pixels;
};

constexpr std::array<MetricEntry, 3> kSidebarMetrics{{
    {"sidebarMinWidth", 92},
    {"sidebarButtonMinHeight", 72},
    {"sidebarLabelFontPx", 12},
}};

void replacePlaceholder(QString &text, const char *name, const QString &value)
{
    text.replace(u'@' + QLatin1StringView(name) + u'@', value);
}

QString readTemplate()
{
    QFile file(u":/styles/main.qss"_s);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qFatal("Could not load the Vantu GUI style template");
    }
    return QString::fromUtf8(file.readAll());
}

} // namespace

QString themetemplate::fill(QString text, const ThemePalette &palette,
                            Qt::LayoutDirection direction)
{
    for (const DirectionEntry &entry : kDirectionEntries) {
        replacePlaceholder(text, entry.name,
                           QString::fromLatin1(direction == Qt::RightToLeft ? entry.rightToLeft
                                                                            : entry.leftToRight));
    }
    for (const ThemePalette::Entry &entry : ThemePalette::kTemplateEntries) {
        replacePlaceholder(text, entry.name, palette.*entry.color);
    }
    for (const MetricEntry &entry : kSidebarMetrics) {
        replacePlaceholder(text, entry.name, QString::number(entry.pixels));
    }
    return text;
}

QString themetemplate::render(const ThemePalette &palette, Qt::LayoutDirection direction)
{
    static const QString text = readTemplate();
    return fill(text, palette, direction);
}
