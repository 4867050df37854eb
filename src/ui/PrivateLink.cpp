#include "PrivateLink.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

using namespace Qt::StringLiterals;

PrivateLink::PrivateLink(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
{}

void PrivateLink::open(const QUrl &url, std::function<void()> refused)
{
    QDBusMessage request = QDBusMessage::createMethodCall(
        u"org.freedesktop.portal.Desktop"_s, u"/org/freedesktop/portal/desktop"_s,
        u"org.freedesktop.portal.OpenURI"_s, u"OpenURI"_s);
    // No parent window, and no options.
    request.setArguments({QString(), url.toString(QUrl::FullyEncoded), QVariantMap()});
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(request), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [watcher, refused = std::move(refused)] {
                watcher->deleteLater();
                if (watcher->isError()) {
                    refused();
                }
            });
}
