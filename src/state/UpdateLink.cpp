#include "UpdateLink.h"

#include "UpdateRecords.h"

using namespace Qt::StringLiterals;

namespace {

QString architectureLink(const UpdateInfo &update, const QString &architecture)
{
    if (architecture == "x86_64"_L1) {
        return update.amd64DownloadLink;
    }
    return architecture == "arm64"_L1 ? update.arm64DownloadLink : QString();
}

} // namespace

QUrl updatelink::downloadLink(const UpdateInfo &update, const QString &architecture)
{
    for (const QString &link :
         {update.recommended, update.artifactURL, architectureLink(update, architecture),
          update.universalDownloadLink}) {
        QUrl url(link.trimmed(), QUrl::StrictMode);
        if (url.isValid() && url.scheme() == "https"_L1 && !url.host().isEmpty()) {
            return url;
        }
    }
    return {};
}
