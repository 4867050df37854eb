#include "AccessibleReading.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kIndent = 2;

} // namespace

void AccessibleReading::read(const AccessibleObject &window)
{
    m_seen.clear();
    m_stops.clear();
    readBelow(window, {}, 0);
}

void AccessibleReading::readBelow(const AccessibleObject &object, const Line &above, int depth)
{
    const Line line{object.role(), object.name(), object.states(), object.description()};
    if (!line.states.contains("showing"_L1)) {
        return;
    }
    QString text = u"%1%2 \"%3\" [%4]"_s.arg(QString(depth * kIndent, u' '), line.role, line.name,
                                             line.states.join(u", "_s));
    if (!line.description.isEmpty()) {
        text += u" (%1)"_s.arg(line.description);
    }
    if (line.states.contains("focusable"_L1)) {
        ++m_actionable;
        if (const QString wrong = complaint(line); !wrong.isEmpty()) {
            ++m_complaints;
            text += u"  <-- %1"_s.arg(wrong);
        }
        if (isStop(line, above)) {
            m_stops += object;
        }
    }
    std::printf("%s\n", qUtf8Printable(text));
    for (const AccessibleObject &child : object.children()) {
        readBelow(child, line, depth + 1);
    }
}

bool AccessibleReading::isStop(const Line &line, const Line &above)
{
    // The arrow keys go on from a page to the others, and from row to row; what is only to
    // be read can be marked with the mouse, and has a button beside it that copies it.
    const bool isOtherPage = above.name == "Pages"_L1 && !line.states.contains("checked"_L1);
    const bool isRow =
        line.role == "tree item"_L1 || line.role == "page tab"_L1 || line.role == "list item"_L1;
    return line.states.contains("enabled"_L1) && !isOtherPage && !isRow && line.role != "label"_L1;
}

QString AccessibleReading::complaint(const Line &line)
{
    if (line.role.isEmpty() || line.role == "unknown"_L1 || line.role == "invalid"_L1) {
        return u"no role"_s;
    }
    if (line.states.isEmpty()) {
        return u"no state"_s;
    }
    if (line.name.trimmed().isEmpty()) {
        return u"no name"_s;
    }
    const QString self = line.role + u'\n' + line.name + u'\n' + line.description;
    // The same place may stand in several groups of a list.
    if (m_seen.contains(self) && line.role != "tree item"_L1) {
        return u"a second one with the same name"_s;
    }
    m_seen += self;
    return {};
}
