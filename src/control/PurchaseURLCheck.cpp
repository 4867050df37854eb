#include "PurchaseURLCheck.h"

#include "VendorHost.h"

#include <QStringList>
#include <QUrl>
#include <QUrlQuery>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

bool isPurchaseURL(const QString &text)
{
    // Scheme, host and path are compared as they stand, since QUrl would forgive
    // letter case, escapes and an empty port.
    const QString page = "https://"_L1 + control::kVendorHost + "/purchase"_L1;
    if (!text.startsWith(page + u'?')) {
        return false;
    }
    const QUrl url(text, QUrl::StrictMode);
    if (!url.isValid() || url.hasFragment() || !url.userInfo().isEmpty() || url.port() != -1) {
        return false;
    }
    const QUrlQuery query(url);
    constexpr std::array kRequired{"lang"_L1, "webAccessToken"_L1, "account"_L1};
    return std::all_of(kRequired.begin(), kRequired.end(), [&query](QLatin1StringView name) {
        const QStringList values = query.allQueryItemValues(name, QUrl::FullyDecoded);
        return values.size() == 1 && !values.first().trimmed().isEmpty();
    });
}
