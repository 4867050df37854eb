#pragma once

#include <QTest>

#include <initializer_list>

/// Tables of test data that are all text.
namespace texttable {

inline void columns(std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        QTest::addColumn<QString>(name);
    }
}

/// A row whose name is the text of its first column.
template<typename... Texts>
void row(const char *first, Texts... rest)
{
    ((QTest::newRow(first) << QString::fromLatin1(first)) << ... << QString::fromLatin1(rest));
}

} // namespace texttable
