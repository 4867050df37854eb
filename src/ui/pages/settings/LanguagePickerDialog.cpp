#include "LanguagePickerDialog.h"

#include "ControlProtocol.h"
#include "Language.h"

#include <QChar>
#include <QCoreApplication>
#include <QLocale>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

/// Stands for the first entry; no language has it for a code.
constexpr QLatin1StringView kSystemKey{"system"};

PickerTexts texts()
{
    return {.namePrefix = u"VantuLanguagePicker"_s,
            .title = QCoreApplication::translate("SettingsPage", "Language"),
            .subtitle = QCoreApplication::translate(
                "SettingsPage", "Choose the interface and server content language."),
            .search = QCoreApplication::translate("SettingsPage", "Search languages"),
            .cancel = QCoreApplication::translate("SettingsPage", "Cancel"),
            .apply = QCoreApplication::translate("SettingsPage", "Apply"),
            .unchanged = QCoreApplication::translate("SettingsPage", "Nothing has changed yet.")};
}

/// The code whose name is that of the language as such: "en" and "es" are taken for the
/// English and the Spanish of one country, and named so.
QString generalCode(const QString &code)
{
    const QString base = code.section(u'-', 0, 0);
    return base == "en"_L1   ? u"en-001"_s
           : base == "es"_L1 ? u"es-AR"_s
           : base == "zh"_L1 ? code // The script is part of the name.
                             : base;
}

/// "Deutsch", "Deutsch (Schweiz)".
QString nativeName(const QString &code)
{
    const QLocale locale(code);
    QString name = QLocale(generalCode(code)).nativeLanguageName();
    if (name.isEmpty()) {
        return code;
    }
    // Title case rather than upper case, which some scripts have for other purposes.
    const char32_t first = QChar::toTitleCase(char32_t{name.at(0).unicode()});
    name.replace(0, 1, QString::fromUcs4(&first, 1));
    const QString last = code.section(u'-', 1);
    const bool namesRegion = last.size() == 2 || last.size() == 3;
    return namesRegion ? u"%1 (%2)"_s.arg(name, locale.nativeTerritoryName()) : name;
}

/// What the user may choose from: what the daemon offers and this program knows of.
QList<SupportedLanguage> offeredLanguages(const LanguageConfigInfo &config)
{
    QList<SupportedLanguage> offered;
    QSet<QString> seen;
    for (const SupportedLanguage &language : config.supportedLanguages) {
        const QString code = language::resolve(language.code);
        if (!code.isEmpty() && !seen.contains(code)) {
            seen.insert(code);
            const QString name = language.name.trimmed();
            offered.append({language.code.trimmed(), name.isEmpty() ? nativeName(code) : name});
        }
    }
    if (offered.isEmpty()) {
        const QStringList codes = language::supportedCodes();
        for (const QString &code : codes) {
            offered.append({code, nativeName(code)});
        }
    }
    return offered;
}

QString englishName(const QString &code)
{
    return QLocale::languageToString(QLocale(language::resolve(code)).language());
}

} // namespace

LanguagePickerDialog::LanguagePickerDialog(const LanguageConfigInfo &config, Theme &theme,
                                           QWidget *parent)
    : PickerDialog(PickerList::Choice::One, texts(), theme, parent)
{
    QList<PickerEntry> entries{
        {.key = kSystemKey,
         .name = QCoreApplication::translate("SettingsPage", "Use system language"),
         .otherName = QCoreApplication::translate("SettingsPage", "System"),
         .detail = languageName(language::systemCode(), config)}};
    const bool followsSystem = config.source.trimmed() == wire::kLanguageSourceSystem;
    QString chosen = followsSystem ? QString(kSystemKey) : QString();
    const QString present = language::resolve(config.language);
    const QList<SupportedLanguage> languages = offeredLanguages(config);
    for (const SupportedLanguage &language : languages) {
        entries.append({.key = language.code,
                        .name = language.name,
                        .otherName = englishName(language.code) + u' ' + language.code,
                        .detail = {}});
        if (chosen.isEmpty() && language::resolve(language.code) == present) {
            chosen = language.code;
        }
    }
    begin(entries, {chosen});
}

QString LanguagePickerDialog::languageName(const QString &code, const LanguageConfigInfo &config)
{
    const QString wanted = language::resolve(code);
    const QList<SupportedLanguage> languages = offeredLanguages(config);
    for (const SupportedLanguage &language : languages) {
        if (language::resolve(language.code) == wanted) {
            return language.name;
        }
    }
    return wanted.isEmpty() ? code : nativeName(wanted);
}

void LanguagePickerDialog::report(const QStringList &chosen)
{
    const QString &key = chosen.constFirst();
    if (key == kSystemKey) {
        Q_EMIT applied(wire::kLanguageSourceSystem, language::systemCode());
    } else {
        Q_EMIT applied(wire::kLanguageSourceExplicit, key);
    }
}
