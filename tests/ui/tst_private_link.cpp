#include "PrivateLink.h"

#include <QDBusContext>
#include <QDBusObjectPath>
#include <QTest>

using namespace Qt::StringLiterals;

/// Plays the desktop's portal, as far as it opens links.
class LinkPortal final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.OpenURI")

public:
    LinkPortal()
        : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"portal"_s))
    {
        m_bus.registerObject(u"/org/freedesktop/portal/desktop"_s, this,
                             QDBusConnection::ExportAllSlots);
        m_bus.registerService(u"org.freedesktop.portal.Desktop"_s);
    }
    ~LinkPortal() override { m_bus.unregisterService(u"org.freedesktop.portal.Desktop"_s); }

    QStringList opened;
    bool refuses = false;

public Q_SLOTS:
    QDBusObjectPath OpenURI(const QString &parent, const QString &url, const QVariantMap &options)
    {
        opened << url;
        if (refuses || !parent.isEmpty() || !options.isEmpty()) {
            sendErrorReply(QDBusError::AccessDenied);
        }
        return QDBusObjectPath(u"/org/freedesktop/portal/desktop/request/1"_s);
    }

private:
    QDBusConnection m_bus;
};

class TestPrivateLink final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void portalOpensOrRefuses();
};

void TestPrivateLink::portalOpensOrRefuses()
{
    const QUrl url(u"https://example.org/purchase?account=a%26b&webAccessToken=s%20e"_s);
    int refused = 0;
    const auto refuse = [&refused] { ++refused; };
    PrivateLink link(QDBusConnection::sessionBus());
    link.open(url, refuse); // Nobody there.
    QTRY_COMPARE(refused, 1);
    LinkPortal portal;
    link.open(url, refuse);
    QTRY_COMPARE(portal.opened, QStringList(url.toString(QUrl::FullyEncoded)));
    portal.refuses = true;
    link.open(url, refuse);
    QTRY_COMPARE(refused, 2);
    QCOMPARE(portal.opened.size(), 2);
    // The program may leave before the portal answers.
    PrivateLink(QDBusConnection::sessionBus()).open(url, refuse);
    QTRY_COMPARE(portal.opened.size(), 3);
    bool answered = false; // So is what was asked before it.
    link.open(url, [&answered] { answered = true; });
    QTRY_VERIFY(answered);
    QCOMPARE(refused, 2);
}

QTEST_MAIN(TestPrivateLink)
#include "tst_private_link.moc"
