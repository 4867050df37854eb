#include "AppState.h"
#include "CatalogController.h"
#include "ControlProtocol.h"
#include "ControlWorkerPool.h"
#include "GuiPreferences.h"
#include "NoticeSink.h"
#include "RequestLink.h"
#include "ServiceCompatibility.h"
#include "UpdateController.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

const auto kVersion = u"10.4.0+1"_s;

/// When the shell asks again. Answers are given by hand, no daemon and no clock is there.
class TestSchedules final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nextUpdateCheck_data();
    void nextUpdateCheck();
    void updateCheckKeepsBooks();
    void watchIsBounded_data();
    void watchIsBounded();

private:
    const QTemporaryDir m_directory;
    ControlWorkerPool m_pool{u"/nowhere/control.sock"_s};
    RequestLink m_link{m_pool.workers(), 0};
    AppState m_state;
    NoticeSink m_notices;
};

void TestSchedules::nextUpdateCheck_data()
{
    QCoreApplication::setApplicationVersion(kVersion);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_directory.path());
    QTest::addColumn<qint64>("attempt");
    QTest::addColumn<qint64>("success");
    QTest::addColumn<qint64>("due");
    const auto row = [](const char *name, qint64 attempt, qint64 success, qint64 due) {
        QTest::newRow(name) << attempt << success << due;
    };
    constexpr qint64 kNow = 1000000;
    row("never", 0, 0, 0);
    row("tried just now", kNow, 0, 3600);
    row("tried after a success", kNow - 600, kNow - 90000, 3000);
    row("tried an hour ago", kNow - 3600, 0, 0);
    row("succeeded almost a day ago", 0, kNow - 86399, 1);
    row("succeeded long ago", 0, 1, 0);
    row("tried in the future", kNow + 1, kNow, 0);
    row("succeeded in the future", 0, kNow + 500, 0);
    row("senseless stamps", -5, -5, 0);
}

void TestSchedules::nextUpdateCheck()
{
    QFETCH(qint64, attempt);
    QFETCH(qint64, success);
    QFETCH(qint64, due);
    GuiPreferences preferences;
    preferences.setUpdateBookkeeping(kVersion,
                                     {.lastAttemptAt = attempt, .lastSuccessfulCheckAt = success});
    UpdateController updates({m_link, m_state, m_notices, preferences, [] { return 1000000; }, {}});
    QCOMPARE(updates.secondsUntilDue(), due);
    updates.checkIfDue();
    QCOMPARE(m_link.isPending(ControlRequest::CheckUpdate), due == 0);
    m_link.forget(ControlRequest::CheckUpdate);
}

void TestSchedules::updateCheckKeepsBooks()
{
    GuiPreferences preferences;
    qint64 now = 5000;
    preferences.setUpdateBookkeeping(kVersion, {.lastNotifiedAt = 7});
    UpdateController updates({m_link, m_state, m_notices, preferences, [&now] { return now; }, {}});
    const auto book = [] { return GuiPreferences().updateBookkeeping(kVersion); };
    updates.checkIfDue();
    QCOMPARE(book(), (UpdateBookkeeping{.lastAttemptAt = 5000, .lastNotifiedAt = 7}));
    QVERIFY(m_link.take(*m_link.pendingId(ControlRequest::CheckUpdate)));
    preferences.setUpdateBookkeeping(kVersion, {}); // As if it could not be saved.
    updates.handleUpdate({}, u"no server"_s);
    QCOMPARE(updates.secondsUntilDue(), 3600);
    UpdateInfo info;
    info.updateAvailable = true;
    info.isForceUpgrade = true;
    now = 9000;
    updates.handleUpdate(info, {});
    QCOMPARE(book(),
             (UpdateBookkeeping{
                 .lastSuccessfulCheckAt = 9000, .lastNotifiedAt = 7, .forceUpgrade = true}));
    QCOMPARE(updates.secondsUntilDue(), 86400);
    updates.handleUpdate({}, {});
    QVERIFY(!book().forceUpgrade);
}

void TestSchedules::watchIsBounded_data()
{
    QTest::addColumn<QString>("error");
    QTest::newRow("a refresh without end") << QString();
    QTest::newRow("a status that can't be had") << u"gone"_s;
}

void TestSchedules::watchIsBounded()
{
    QFETCH(QString, error);
    ServiceCompatibility compatibility(m_link, m_state, m_notices);
    CatalogController catalogue(m_link, m_state, m_notices, compatibility);
    RuntimeInfo refreshing;
    refreshing.catalogRefresh = wire::kCatalogRefreshing;
    m_link.forget(ControlRequest::FetchNodes);
    catalogue.startWatch();
    int polls = 0;
    while (const auto id = m_link.pendingId(ControlRequest::FetchStatus)) {
        QVERIFY(++polls <= 60 && !m_link.isPending(ControlRequest::FetchNodes));
        catalogue.pollWatch(); // Not while one is under way.
        QCOMPARE(m_link.pendingId(ControlRequest::FetchStatus), id);
        QVERIFY(m_link.take(*id));
        catalogue.handleStatus(refreshing, error);
        if (!m_link.isPending(ControlRequest::FetchNodes)) {
            catalogue.pollWatch();
        }
    }
    QCOMPARE(polls, 60);
    QVERIFY(m_link.isPending(ControlRequest::FetchNodes));
    QVERIFY(m_link.isPending(ControlRequest::FetchNodeGroups));
}

QTEST_MAIN(TestSchedules)
#include "tst_schedules.moc"
