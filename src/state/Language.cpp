#include "Language.h"

#include <QFile>
#include <QHash>
#include <QLocale>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kDefaultCode{"en-US"};

constexpr QLatin1StringView kRegionalCodes{
    "ar-ae ar-eg ar-sa de-at de-ch en-au en-ca en-gb en-in en-nz en-us es-419 es-ar es-cl es-co "
    "es-mx es-pe fr-be fr-ca fr-ch nl-be pt-br pt-pt zh-hans zh-hant zh-hk zh-mo"};

constexpr QLatin1StringView kBaseCodes{
    "ar az be bg ca cs cy da de el en es et eu fa fi fil fr gl he hi hr hu hy id it ja ka kk km "
    "ko ky lo lt lv mk ml mn ms my nb ne nl pa pl pt ro ru sk sl sq sr sv sw th tr uk vi"};

struct Alias
{
    QLatin1StringView from;
    QLatin1StringView to;
};

/// Chinese is written in two scripts; a region or a bare "zh" names one of them.
constexpr std::array kAliases{
    Alias{QLatin1StringView{"zh"}, QLatin1StringView{"zh-Hans"}},
    Alias{QLatin1StringView{"zh-cn"}, QLatin1StringView{"zh-Hans"}},
    Alias{QLatin1StringView{"zh-sg"}, QLatin1StringView{"zh-Hans"}},
    Alias{QLatin1StringView{"zh-hans-cn"}, QLatin1StringView{"zh-Hans"}},
    Alias{QLatin1StringView{"zh-tw"}, QLatin1StringView{"zh-Hant"}},
    Alias{QLatin1StringView{"zh-hant-tw"}, QLatin1StringView{"zh-Hant"}},
};

/// "zh-hant" gives "zh-Hant", "pt-br" gives "pt-BR". Takes lower case.
QString canonicalCase(const QString &lowerCode)
{
    QStringList parts = lowerCode.split(u'-');
    for (qsizetype i = 1; i < parts.size(); ++i) {
        QString &part = parts[i];
        if (part.size() == 2) {
            part = part.toUpper();
        } else if (part.size() == 4) {
            part[0] = part.at(0).toUpper();
        }
    }
    return parts.join(u'-');
}

QStringList listedCodes()
{
    return QString(kRegionalCodes).split(u' ') + QString(kBaseCodes).split(u' ');
}

/// From every known spelling in lower case to the code that it stands for.
QHash<QString, QString> makeKnownCodes()
{
    QHash<QString, QString> codes;
    const QStringList listed = listedCodes();
    for (const QString &code : listed) {
        codes.insert(code, canonicalCase(code));
    }
    for (const Alias &alias : kAliases) {
        codes.insert(alias.from, alias.to);
    }
    return codes;
}

/// Lower-case parts joined by single hyphens.
QString matchingKey(const QString &code)
{
    QString key = code.trimmed().toLower();
    key.replace(u'_', u'-');
    return key.split(u'-', Qt::SkipEmptyParts).join(u'-');
}

/// "pt-Latn-PT" gives "pt-PT": newer releases of Qt tell a language first with the
/// script that its region implies anyway, and no listed code has both.
QString withoutImpliedScript(const QString &tag)
{
    const QStringList parts = tag.split(u'-');
    if (parts.size() != 3) {
        return tag;
    }
    QString shorter = parts.constFirst() + u'-' + parts.constLast();
    return QLocale(shorter).script() == QLocale(tag).script() ? shorter : tag;
}

} // namespace

namespace language {

QString defaultCode()
{
    return kDefaultCode;
}

QString resolve(const QString &code)
{
    static const QHash<QString, QString> knownCodes = makeKnownCodes();

    QString key = matchingKey(code);
    while (!key.isEmpty()) {
        const auto known = knownCodes.constFind(key);
        if (known != knownCodes.cend()) {
            return *known;
        }
        key.truncate(std::max(key.lastIndexOf(u'-'), qsizetype{0}));
    }
    return {};
}

QString normalise(const QString &code)
{
    QString resolved = resolve(code);
    return resolved.isEmpty() ? defaultCode() : resolved;
}

QString systemCode()
{
    const QLocale system = QLocale::system();
    const QStringList candidates = system.uiLanguages() + QStringList{system.name()};
    for (const QString &candidate : candidates) {
        QString resolved = resolve(withoutImpliedScript(candidate));
        if (!resolved.isEmpty()) {
            return resolved;
        }
    }
    return defaultCode();
}

Qt::LayoutDirection layoutDirection(const QString &code)
{
    // Asked of the given code, not of the normalised one: a right-to-left
    // language without a translation of its own must still be told apart.
    const QString base = matchingKey(code).section(u'-', 0, 0);
    if (base == "ar"_L1 || base == "fa"_L1 || base == "he"_L1 || base == "ur"_L1) {
        return Qt::RightToLeft;
    }
    return QLocale(normalise(code)).textDirection();
}

bool isSourceLanguage(const QString &code)
{
    const QString key = matchingKey(code);
    return key == "en"_L1 || key.startsWith("en-"_L1);
}

bool hasTranslation(const QString &code)
{
    const QString resolved = resolve(code);
    return isSourceLanguage(resolved) ||
           (!resolved.isEmpty() && QFile::exists(translationResource(resolved)));
}

QString translationResource(const QString &code)
{
    QString name = code;
    name.replace(u'-', u'_');
    return u":/i18n/vantu_%1.qm"_s.arg(name);
}

QStringList supportedCodes()
{
    QStringList codes = listedCodes();
    for (QString &code : codes) {
        code = canonicalCase(code);
    }
    codes.sort();
    return codes;
}

} // namespace language
