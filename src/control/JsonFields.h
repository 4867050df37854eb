#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <QStringList>

/// Reads single members of a JSON object leniently: whatever is absent or of the
/// wrong type gives the default.
namespace json {

QString text(const QJsonObject &object, QLatin1StringView key);
bool flag(const QJsonObject &object, QLatin1StringView key);
double real(const QJsonObject &object, QLatin1StringView key);

/// Fractions are cut off; a number outside the range gives the default.
int number(const QJsonObject &object, QLatin1StringView key, int defaultValue = 0);
qint64 number64(const QJsonObject &object, QLatin1StringView key);

/// A string as it is, or a number as the decimal text of its integral part.
QString textOrNumber(const QJsonObject &object, QLatin1StringView key);

/// The strings of an array, in order; other elements are left out.
QStringList texts(const QJsonObject &object, QLatin1StringView key);
QStringList texts(const QJsonValue &array);

QJsonObject object(const QJsonObject &parent, QLatin1StringView key);

/// What `read` makes of each object of an array, in order; other elements are left
/// out.
template<class Record>
QList<Record> list(const QJsonObject &parent, QLatin1StringView key,
                   Record (*read)(const QJsonObject &))
{
    QList<Record> records;
    const QJsonArray array = parent.value(key).toArray();
    records.reserve(array.size());
    for (const auto &value : array) {
        if (value.isObject()) {
            records.append(read(value.toObject()));
        }
    }
    return records;
}

} // namespace json
