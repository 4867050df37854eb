#include "PortalColorScheme.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QLoggingCategory>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcStyle, "vantu.ui")

const QString kService = u"org.freedesktop.portal.Desktop"_s;
const QString kPath = u"/org/freedesktop/portal/desktop"_s;
const QString kInterface = u"org.freedesktop.portal.Settings"_s;
const QString kGroup = u"org.freedesktop.appearance"_s;
const QString kKey = u"color-scheme"_s;

ColorScheme schemeOf(QVariant value)
{
    // The answer to "Read" wraps its value twice.
    while (value.canConvert<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    switch (value.toUInt()) {
    case 1:
        return ColorScheme::Dark;
    case 2:
        return ColorScheme::Light;
    default:
        return ColorScheme::Unknown;
    }
}

} // namespace

PortalColorScheme::PortalColorScheme(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
{
    // The connection below is made by name, and Qt doesn't know this one by itself.
    qRegisterMetaType<QDBusVariant>("QDBusVariant");
    // clang-format off
    const bool listening
        = m_bus.connect(kService, kPath, kInterface, u"SettingChanged"_s, this,
                        SLOT(onSettingChanged(QString,QString,QDBusVariant)));
    // clang-format on
    if (!listening && m_bus.isConnected()) {
        qCInfo(lcStyle, "Changes of the desktop's colour scheme will go unnoticed");
    }
    // One that comes late, or anew after a change, tells nothing by itself.
    auto *comings =
        new QDBusServiceWatcher(kService, m_bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(comings, &QDBusServiceWatcher::serviceRegistered, this, &PortalColorScheme::ask);
}

void PortalColorScheme::ask()
{
    QDBusMessage question = QDBusMessage::createMethodCall(kService, kPath, kInterface, u"Read"_s);
    question.setArguments({kGroup, kKey});
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &PortalColorScheme::onReadFinished);
}

void PortalColorScheme::onReadFinished(QDBusPendingCallWatcher *watcher)
{
    watcher->deleteLater();
    const QDBusPendingReply<QDBusVariant> reply = *watcher;
    if (!reply.isError()) {
        Q_EMIT answered(schemeOf(reply.value().variant()));
    }
}

void PortalColorScheme::onSettingChanged(const QString &group, const QString &key,
                                         const QDBusVariant &value)
{
    if (group == kGroup && key == kKey) {
        Q_EMIT answered(schemeOf(value.variant()));
    }
}
