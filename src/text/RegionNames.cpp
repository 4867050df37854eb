#include "RegionNames.h"

#include "PlainText.h"

#include <QLocale>

#include <algorithm>
#include <array>

namespace {

/// What Qt lists beside the countries: unions, leftovers and parts of countries that no
/// database of addresses tells apart.
constexpr std::array kNoCountries{QLocale::AscensionIsland, QLocale::CanaryIslands,
                                  QLocale::CeutaAndMelilla, QLocale::ClippertonIsland,
                                  QLocale::DiegoGarcia,     QLocale::EuropeanUnion,
                                  QLocale::OutlyingOceania, QLocale::TristanDaCunha};

bool isRegionCode(const QString &code)
{
    return code.size() == 2 && std::all_of(code.cbegin(), code.cend(),
                                           [](QChar character) { return character.isLetter(); });
}

} // namespace

RegionNames::RegionNames(const NodeGroupsInfo &groups)
{
    for (const NodeGroupTab &tab : groups.tabs) {
        collect(tab.groups);
    }
}

void RegionNames::collect(const QList<NodeGroup> &groups)
{
    for (const NodeGroup &group : groups) {
        const QString code = group.code.trimmed().toUpper();
        if (isRegionCode(code) && !m_byCode.contains(code)) {
            m_byCode.insert(code, plaintext::singleLine(group.name));
        }
        collect(group.subgroups);
    }
}

QString RegionNames::name(const QString &code) const
{
    if (QString name = m_byCode.value(code.trimmed().toUpper()); !name.isEmpty()) {
        return name;
    }
    const auto territory = QLocale::codeToTerritory(code.trimmed());
    return territory == QLocale::AnyTerritory ? plaintext::singleLine(code)
                                              : QLocale::territoryToString(territory);
}

QStringList RegionNames::worldCodes()
{
    QStringList codes;
    for (int index = 1; index <= static_cast<int>(QLocale::LastTerritory); ++index) {
        const auto territory = static_cast<QLocale::Territory>(index);
        const QString code = QLocale::territoryToCode(territory);
        const bool excluded =
            std::find(kNoCountries.cbegin(), kNoCountries.cend(), territory) != kNoCountries.cend();
        if (isRegionCode(code) && !excluded) {
            codes.append(code);
        }
    }
    return codes;
}
