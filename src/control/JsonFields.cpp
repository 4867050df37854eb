#include "JsonFields.h"

#include <cmath>
#include <limits>
#include <optional>

namespace {

/// The integral part of a number; nothing for other types and beyond 64 bits.
std::optional<qint64> integer(const QJsonValue &value)
{
    if (!value.isDouble()) {
        return std::nullopt;
    }
    // Doubles are exact below 2^53 and have no fraction from there on.
    constexpr double kExact = 9007199254740992.0;
    const double real = value.toDouble();
    if (std::abs(real) < kExact) {
        return static_cast<qint64>(real);
    }
    // No value here is really 0, so 0 means that it does not fit.
    const qint64 result = value.toInteger(0);
    return result == 0 ? std::nullopt : std::optional(result);
}

} // namespace

namespace json {

QString text(const QJsonObject &object, QLatin1StringView key)
{
    return object.value(key).toString();
}

bool flag(const QJsonObject &object, QLatin1StringView key)
{
    return object.value(key).toBool();
}

double real(const QJsonObject &object, QLatin1StringView key)
{
    return object.value(key).toDouble();
}

int number(const QJsonObject &object, QLatin1StringView key, int defaultValue)
{
    const std::optional<qint64> value = integer(object.value(key));
    const bool fits = value && *value >= std::numeric_limits<int>::min() &&
                      *value <= std::numeric_limits<int>::max();
    return fits ? static_cast<int>(*value) : defaultValue;
}

qint64 number64(const QJsonObject &object, QLatin1StringView key)
{
    return integer(object.value(key)).value_or(0);
}

QString textOrNumber(const QJsonObject &object, QLatin1StringView key)
{
    const QJsonValue value = object.value(key);
    const std::optional<qint64> id = integer(value);
    return id ? QString::number(*id) : value.toString();
}

QStringList texts(const QJsonObject &object, QLatin1StringView key)
{
    return texts(object.value(key));
}

QStringList texts(const QJsonValue &array)
{
    QStringList result;
    const QJsonArray values = array.toArray();
    for (const auto &value : values) {
        if (value.isString()) {
            result.append(value.toString());
        }
    }
    return result;
}

QJsonObject object(const QJsonObject &parent, QLatin1StringView key)
{
    return parent.value(key).toObject();
}

} // namespace json
