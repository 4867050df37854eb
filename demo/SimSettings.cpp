#include "SimSettings.h"

#include <QJsonArray>
#include <QUrl>

#include <algorithm>
#include <array>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

struct SpokenLanguage
{
    QStringView code;
    QStringView name;
};

constexpr SpokenLanguage kLanguages[] = {
    {u"en-US", u"English (US)"},
    {u"en-GB", u"English (UK)"},
    {u"ar", u"العربية"},
    {u"bg", u"Български"},
    {u"ca", u"Català"},
    {u"cs", u"Čeština"},
    {u"da", u"Dansk"},
    {u"de", u"Deutsch"},
    {u"el", u"Ελληνικά"},
    {u"es", u"Español"},
    {u"es-419", u"Español (Latinoamérica)"},
    {u"et", u"Eesti"},
    {u"fa", u"فارسی"},
    {u"fi", u"Suomi"},
    {u"fr", u"Français"},
    {u"fr-CA", u"Français (Canada)"},
    {u"he", u"עברית"},
    {u"hi", u"हिन्दी"},
    {u"hr", u"Hrvatski"},
    {u"hu", u"Magyar"},
    {u"id", u"Indonesia"},
    {u"it", u"Italiano"},
    {u"ja", u"日本語"},
    {u"ko", u"한국어"},
    {u"lt", u"Lietuvių"},
    {u"nb", u"Norsk bokmål"},
    {u"nl", u"Nederlands"},
    {u"pl", u"Polski"},
    {u"pt-BR", u"Português (Brasil)"},
    {u"pt-PT", u"Português (Portugal)"},
    {u"ro", u"Română"},
    {u"ru", u"Русский"},
    {u"sv", u"Svenska"},
    {u"th", u"ไทย"},
    {u"tr", u"Türkçe"},
    {u"uk", u"Українська"},
    {u"vi", u"Tiếng Việt"},
    {u"zh-Hans", u"简体中文"},
    {u"zh-Hant", u"繁體中文"},
};

QString supportedCode(const QString &wanted)
{
    const auto *found = std::find_if(
        std::begin(kLanguages), std::end(kLanguages), [&wanted](const SpokenLanguage &each) {
            return each.code.compare(wanted.trimmed(), Qt::CaseInsensitive) == 0;
        });
    return found == std::end(kLanguages) ? QString() : found->code.toString();
}

} // namespace

SimSettings::SimSettings(const SimScenario &scenario)
    : m_autoConnect(u"off"_s)
    , m_source(scenario.language == "en-US"_L1 ? u"system"_s : u"explicit"_s)
    , m_language(scenario.language)
{}

SimRefusal SimSettings::setApiUrl(const QString &url)
{
    const QUrl parsed(url.trimmed(), QUrl::StrictMode);
    const QString scheme = parsed.scheme();
    if (!parsed.isValid() || (scheme != "https"_L1 && scheme != "http"_L1) ||
        parsed.host().isEmpty() || !parsed.userInfo().isEmpty() || parsed.hasQuery() ||
        parsed.hasFragment()) {
        return SimReply::error(400, u"the API URL must look like https://host/path"_s);
    }
    if (parsed.host().endsWith(".invalid"_L1)) {
        return SimReply::error(502, u"the API at %1 does not answer"_s.arg(parsed.host()));
    }
    m_apiUrl = parsed.toString();
    return {};
}

SimRefusal SimSettings::setAutoConnect(const QString &value)
{
    if (value != "on"_L1 && value != "off"_L1) {
        return SimReply::error(400, u"unknown auto-connect value \"%1\""_s.arg(value));
    }
    m_autoConnect = value;
    return {};
}

SimRefusal SimSettings::setLanguage(const QString &source, const QString &language,
                                    const QString &ifSource)
{
    const QString code = supportedCode(language);
    if (source != "system"_L1 && source != "explicit"_L1) {
        return SimReply::error(400, u"unknown language source \"%1\""_s.arg(source));
    }
    if (code.isEmpty()) {
        return SimReply::error(400, u"language \"%1\" is not supported"_s.arg(language));
    }
    if (ifSource.isEmpty() || ifSource == m_source) {
        m_source = source;
        m_language = code;
    }
    return {};
}

QJsonObject SimSettings::apiUrlJson() const
{
    return {{u"api_url"_s, m_apiUrl}, {u"validated"_s, true}};
}

QJsonObject SimSettings::autoConnectJson(const QString &nodeId) const
{
    return {{u"auto_connect"_s, m_autoConnect},
            {u"reconnect_source"_s, nodeId.isEmpty() ? u"smart"_s : u"node"_s},
            {u"reconnect_target"_s, nodeId}};
}

QJsonObject SimSettings::languageJson() const
{
    QJsonArray supported;
    for (const SpokenLanguage &each : kLanguages) {
        supported.append(
            QJsonObject{{u"code"_s, each.code.toString()}, {u"name"_s, each.name.toString()}});
    }
    return {{u"source"_s, m_source},
            {u"language"_s, m_language},
            {u"effective_language"_s, m_language},
            {u"supported_languages"_s, supported}};
}

void SimSettings::addToStatus(QJsonObject &status) const
{
    status.insert(u"api_url"_s, m_apiUrl);
    status.insert(u"auto_connect"_s, m_autoConnect);
    status.insert(u"auto_connect_state"_s, m_autoConnect == "on"_L1 ? u"armed"_s : u"disabled"_s);
    status.insert(u"language"_s, m_language);
    status.insert(u"language_source"_s, m_source);
    status.insert(u"effective_language"_s, m_language);
}
