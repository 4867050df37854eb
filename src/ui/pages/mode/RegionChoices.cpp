#include "RegionChoices.h"

#include "ModeRequests.h"
#include "RegionNames.h"

#include <QCollator>
#include <QSet>

#include <algorithm>

QList<RegionChoice> regionChoices(const SplitProfile &profile, const RegionNames &names)
{
    QList<RegionChoice> choices;
    QSet<QString> seen;
    const auto add = [&](const QStringList &codes) {
        for (const QString &code : codes) {
            const QString key = code.trimmed().toUpper();
            if (!key.isEmpty() && !seen.contains(key)) {
                seen.insert(key);
                choices.append({code, names.name(code)});
            }
        }
    };
    add(moderequest::regionsInForce(profile));
    add(names.catalogueCodes());
    add(RegionNames::worldCodes());

    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(choices.begin(), choices.end(),
              [&collator](const RegionChoice &one, const RegionChoice &other) {
                  return collator.compare(one.name, other.name) < 0;
              });
    return choices;
}
