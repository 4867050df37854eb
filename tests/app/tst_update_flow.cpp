#include "AppState.h"
#include "ControlWorkerPool.h"
#include "GuiPreferences.h"
#include "NoticeSink.h"
#include "RequestLink.h"
#include "UpdateController.h"
#include "UpdateFlow.h"

#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using Record = GUIUpdateDownloadInfo;
using Request = ControlRequest;

namespace {

const auto kVersion = u"10.4.0+1"_s;
// In the order of their enums.
const auto kStates =
    u"unknown idle checking loading verifying canceling ready failed canceled"_s.split(u' ');
const auto kNotes = u" not-started unsure uncancelled unread completed "
                    "downloaded not-opened update-unknown finishing-check"_s.split(u' ');
const auto kFailures = u"timeout unreadable error"_s.split(u' ');
const auto kPolls = u" soon slow"_s.split(u' ');
const auto kRequests = u"POST GET DELETE"_s.split(u' ');
constexpr int kFirstRequest = int(Request::StartGUIUpdateDownload);

UpdateInfo release(double number, bool forced = false)
{
    UpdateInfo info;
    info.updateAvailable = true;
    info.versionCode = u"11"_s;
    info.versionNum = number;
    info.isForceUpgrade = forced;
    return info;
}

Record record(Record::State state, const QString &path = {})
{
    Record result;
    result.state = state;
    result.versionNum = 11;
    result.localPath = path;
    return result;
}

/// "cancel", or an answer: "GET:loading", "POST:timeout", "GET:ready@12" of another release.
updateflow::Event happened(const QString &word)
{
    using namespace updateflow;
    const auto names = u"start early blind checked blank cancel poll opened unopened"_s.split(u' ');
    const auto events = QList<Event>()
                        << StartAsked{11, false} << StartAsked{11, true} << StartAsked{0, false}
                        << CheckEnded{11} << CheckEnded{0} << CancelAsked() << PollDue()
                        << InstallerTried{true} << InstallerTried{false};
    if (names.contains(word)) {
        return events[names.indexOf(word)];
    }
    const QString what = word.section(u':', 1).section(u'@', 0, 0);
    Answered answer;
    answer.request = Request(kFirstRequest + kRequests.indexOf(word.section(u':', 0, 0)));
    answer.record = record(Record::State(kStates.indexOf(what)));
    answer.record.versionNum = word.contains(u'@') ? word.section(u'@', 1).toLongLong() : 11;
    answer.failure = Failure(1 + kFailures.indexOf(what));
    answer.offered = 11;
    return answer;
}

/// Only what the shell must do, in its order: "=loading soon", "POST".
QString text(const updateflow::Effects &effects)
{
    QString words = effects.send ? kRequests[int(*effects.send) - kFirstRequest] : QString();
    if (effects.show) {
        words += u" ="_s + kStates[int(effects.show->state)];
        words += effects.show->errorCode == "release_mismatch"_L1 ? u"!"_s : QString();
    }
    words += u' ' + kPolls[int(effects.poll)] + (effects.raise ? u" raise "_s : u" "_s);
    words += kNotes[int(effects.note)];
    words += effects.open ? u" open"_s : effects.exit ? u" exit"_s : QString();
    return words.simplified();
}

} // namespace

/// From the offer to the opened installer. Answers are given by hand, no daemon is there.
class TestUpdateFlow final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void rules_data();
    void rules();
    void outcomeOfCheck_data();
    void outcomeOfCheck();
    void installer();
    void pollsAndRemarks();

private:
    struct Bench;
    const QTemporaryDir m_directory;
};

/// A controller with all around it.
struct TestUpdateFlow::Bench
{
    explicit Bench(const UpdateBookkeeping &book = {})
        : kept(preferences.setUpdateBookkeeping(kVersion, book))
    {}

    /// The answer to what was asked last.
    void reply(Request request, const Record &info, const QString &error = {})
    {
        QVERIFY(link.pendingId(request).has_value() && link.take(*link.pendingId(request)));
        updates.handleDownload(request, info, error);
    }

    ControlWorkerPool pool{u"/nowhere/control.sock"_s};
    RequestLink link{pool.workers(), 0};
    AppState state;
    NoticeSink notices;
    GuiPreferences preferences;
    const bool kept;
    static constexpr qint64 now = 1000000;
    bool opens = true;
    QStringList opened;
    UpdateController updates{{link, state, notices, preferences, [this] { return now; },
                              [this](const QString &path) {
                                  opened += path;
                                  return opens;
                              }}};
    QSignalSpy offers{&updates, &UpdateController::offered};
    QSignalSpy shown{&updates, &UpdateController::downloadChanged};
    QSignalSpy remarks{&updates, &UpdateController::noteChanged};
    QSignalSpy exits{&updates, &UpdateController::exitRequested};
    QSignalSpy told{&notices, &NoticeSink::noticeRequested};
};

void TestUpdateFlow::initTestCase()
{
    QCoreApplication::setApplicationVersion(kVersion);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_directory.path());
}

void TestUpdateFlow::rules_data()
{
    QTest::addColumn<QString>("effects");
    const auto row = [](const char *events, const QString &effects) {
        QTest::newRow(events) << effects;
    };
    row("start POST:checking poll GET:loading GET:verifying GET:ready opened",
        u"POST =idle/=checking soon/GET/=loading soon/=verifying soon/=ready open/exit"_s);
    row("start POST:ready cancel unopened start",
        u"POST =idle/=ready open//=idle not-opened/POST =idle"_s);
    row("start POST:ready@0", u"POST =idle/=idle not-opened"_s);
    row("blind early start checked", u"update-unknown/finishing-check//POST =idle"_s);
    row("early blank checked", u"finishing-check/update-unknown/"_s);
    row("early GET:loading@12 cancel checked", u"finishing-check//=idle/"_s);
    row("start POST:error", u"POST =idle/=idle not-started"_s);
    row("start POST:idle@0", u"POST =idle/=idle not-started"_s);
    row("start POST:timeout poll GET:error GET:loading",
        u"POST =idle/slow unsure/GET/slow unsure/=loading soon"_s);
    row("start POST:timeout GET:canceled GET:idle GET:idle GET:idle GET:idle start",
        u"POST =idle/slow unsure/slow unsure/slow unsure/slow unsure/slow unsure/=idle not-started/POST =idle"_s);
    row("start POST:loading GET:error GET:canceling GET:canceled poll GET:failed",
        u"POST =idle/=loading soon/slow unread/=canceling slow/=canceled/GET/"_s);
    row("start start POST:loading start GET:failed GET:failed start POST:failed",
        u"POST =idle//=loading soon//=failed raise//POST =idle/=failed raise"_s);
    row("start POST:loading GET:idle@0", u"POST =idle/=loading soon/=failed raise"_s);
    // Cancelled; the daemon may be deaf to it, or quicker.
    row("start POST:loading cancel cancel DELETE:canceling poll GET:canceled cancel",
        u"POST =idle/=loading soon/DELETE =canceling//=canceling slow/GET/=canceled/"_s);
    row("start cancel DELETE:error GET:loading DELETE:loading GET:loading DELETE:idle",
        u"POST =idle/DELETE =canceling/slow uncancelled/DELETE =canceling/=canceling slow/"
        "DELETE =canceling/=canceled"_s);
    row("start POST:timeout cancel DELETE:ready opened",
        u"POST =idle/slow unsure/DELETE =canceling/=idle completed/"_s);
    // Of another release.
    row("start POST:loading@12 DELETE:error GET:loading@12 DELETE:loading@12 GET:error "
        "GET:canceled@12 start",
        u"POST =idle/DELETE =canceling!/slow uncancelled/DELETE =canceling!/=canceling! slow/"
        "slow unread/=failed! raise/POST =idle"_s);
    row("start POST:canceling@12 cancel GET:idle@0",
        u"POST =idle/=canceling! slow//=failed! raise"_s);
    row("start POST:ready@12", u"POST =idle/=failed! raise"_s);
    row("start POST:loading cancel DELETE:ready@12",
        u"POST =idle/=loading soon/DELETE =canceling/=failed! raise"_s);
    // Started by an earlier run.
    row("poll GET:loading start GET:ready start POST:ready",
        u"GET/=loading soon//=idle downloaded/POST =idle/=ready open"_s);
    row("poll GET:ready GET:failed GET:ready@12 GET:idle@0 GET:error", u"GET/////"_s);
    row("poll GET:loading@12", u"GET/DELETE =canceling!"_s);
    row("poll GET:unreadable start POST:unreadable",
        u"GET/=unknown/POST =idle/=idle not-started"_s);
}

void TestUpdateFlow::rules()
{
    QFETCH(QString, effects);
    updateflow::State state;
    QStringList done;
    for (const QString &word : QString::fromLatin1(QTest::currentDataTag()).split(u' ')) {
        const updateflow::Step next = updateflow::step(state, happened(word));
        state = next.state;
        done += text(next.effects);
    }
    QCOMPARE(done.join(u'/'), effects);
}

void TestUpdateFlow::outcomeOfCheck_data()
{
    QTest::addColumn<UpdateInfo>("info");
    QTest::addColumn<QString>("error");
    QTest::addColumn<qint64>("toldSecondsAgo");
    QTest::addColumn<bool>("asked");
    QTest::addColumn<QString>("outcome");
    const auto row = [](const char *name, const UpdateInfo &info, qint64 ago, bool asked,
                        const QString &outcome, const QString &error = {}) {
        QTest::newRow(name) << info << error << ago << asked << outcome;
    };
    row("another one", release(12), 1, false, u"offered"_s);
    row("the same within a day", release(11), 86399, false, {});
    row("the same after a day", release(11), 86400, false, u"offered"_s);
    row("the same, told in the future", release(11), -1, false, u"offered"_s);
    row("the same, asked for", release(11), 1, true, u"offered"_s);
    row("the same, required", release(11, true), 1, false, u"offered"_s);
    row("nameless", release(0), 90000, false, {});
    row("nameless, asked for", release(0), 1, true, u"offered"_s);
    row("nameless and required, asked for", release(0, true), 1, true,
        u"Update information is unavailable. Check for updates again."_s);
    row("none", {}, 1, false, {});
    row("none, asked for", {}, 1, true, u"Vantu is up to date"_s);
    row("failed, asked for", {}, 1, true, u"no server"_s, u"no server"_s);
    row("failed blankly, asked for", {}, 1, true, u"Could not check for updates"_s, u" "_s);
}

void TestUpdateFlow::outcomeOfCheck()
{
    QFETCH(UpdateInfo, info);
    QFETCH(QString, error);
    QFETCH(qint64, toldSecondsAgo);
    QFETCH(bool, asked);
    QFETCH(QString, outcome);
    const qint64 before = Bench::now - toldSecondsAgo;
    Bench bench({.lastNotifiedAt = before, .lastNotifiedVersionNum = 11});
    QSignalSpy busy(&bench.updates, &UpdateController::checkingChanged);
    QSignalSpy withdrawals(&bench.updates, &UpdateController::withdrawn);
    QSignalSpy failures(&bench.notices, &NoticeSink::failed);
    bench.state.setUpdate(release(11));
    bench.updates.checkIfDue();
    const auto id = bench.link.pendingId(Request::CheckUpdate);
    if (asked) { // The check that runs does for the user too.
        bench.updates.checkNow();
        bench.updates.checkNow();
    }
    QCOMPARE(bench.link.pendingId(Request::CheckUpdate), id);
    QVERIFY(bench.link.take(*id));
    bench.updates.handleUpdate(info, error);
    const bool offered = !bench.offers.isEmpty();
    QCOMPARE(offered ? u"offered"_s : (bench.told + failures).value(0).value(0).toString(),
             outcome);
    const UpdateBookkeeping book = bench.preferences.updateBookkeeping(kVersion);
    QCOMPARE(book.lastNotifiedAt, offered ? bench.now : before);
    QCOMPARE(book.lastNotifiedVersionNum, offered ? qRound64(info.versionNum) : 11);
    QCOMPARE(busy, (QList<QVariantList>{{true}, {false}}));
    QCOMPARE(withdrawals.count(), error.isEmpty() && !info.updateAvailable ? 1 : 0);
}

void TestUpdateFlow::installer()
{
    Bench bench;
    bench.state.setUpdate(release(11));
    const QString path = m_directory.filePath(u"vantu.deb"_s);
    QVERIFY(QFile(path).open(QIODevice::WriteOnly) && QFile::link(path, path + u".link"_s));
    const auto reachReady = [&bench](const QString &localPath) {
        bench.updates.startDownload();
        bench.reply(Request::StartGUIUpdateDownload, record(Record::State::Ready, localPath));
        return bench.told.takeFirst().value(0).toString();
    };
    const auto failure = u"The update was downloaded, but the installer could not be opened."_s;
    for (const QString &bad : {QString(), path + u".gone"_s, m_directory.path(), path + u".link"_s,
                               QDir::current().relativeFilePath(path)}) {
        QCOMPARE(reachReady(bad), failure);
        QVERIFY(bench.opened.isEmpty());
    }
    bench.opens = false;
    QCOMPARE(reachReady(path), failure);
    QVERIFY(bench.exits.isEmpty());
    bench.opens = true;
    bench.updates.setDialogVisible(true);
    bench.updates.startDownload();
    bench.reply(Request::StartGUIUpdateDownload, record(Record::State::Ready, path));
    QCOMPARE(bench.exits.count(), 1);
    QCOMPARE(bench.opened, QStringList({path, path}));
}

void TestUpdateFlow::pollsAndRemarks()
{
    Bench bench;
    // The daemon is asked once for a download of an earlier run.
    bench.updates.handleUpdate(release(11), {});
    QVERIFY(bench.link.take(*bench.link.pendingId(Request::FetchGUIUpdateDownload)));
    bench.updates.handleUpdate(release(11), {});
    QVERIFY(!bench.link.isPending(Request::FetchGUIUpdateDownload));

    QSignalSpy waits(&bench.updates, &UpdateController::waitingChanged);
    bench.updates.pollDownload();
    const auto early = bench.link.pendingId(Request::FetchGUIUpdateDownload);
    bench.updates.startDownload();
    QVERIFY(!bench.link.take(*early)); // It would tell of the time before.
    bench.updates.pollDownload();
    QVERIFY(!bench.link.isPending(Request::FetchGUIUpdateDownload));
    bench.reply(Request::StartGUIUpdateDownload, {}, u"control request timed out"_s);
    QCOMPARE(bench.told.count(), 1);
    bench.updates.setDialogVisible(true);
    for (int unread = 1; unread <= 2; ++unread) {
        bench.updates.pollDownload();
        bench.reply(Request::FetchGUIUpdateDownload, {}, u"gone"_s);
        QCOMPARE(bench.remarks.count(), unread);
    }
    bench.updates.pollDownload();
    bench.reply(Request::FetchGUIUpdateDownload, record(Record::State::Downloading));
    QCOMPARE(waits, (QList<QVariantList>{{true}, {false}}));
    QTRY_VERIFY(bench.link.isPending(Request::FetchGUIUpdateDownload)); // By itself.
    bench.updates.setDialogVisible(false);
    for (int unread = 1; unread <= 2; ++unread) {
        bench.reply(Request::FetchGUIUpdateDownload, {}, u"gone"_s);
        QCOMPARE(bench.told.count(), 2); // Not at every poll.
        bench.updates.pollDownload();
    }
    // A gate falls with its reason, even though the release is no news.
    QSignalSpy withdrawals(&bench.updates, &UpdateController::withdrawn);
    bench.updates.handleUpdate(release(11, true), {});
    bench.updates.handleUpdate(release(11), {});
    QCOMPARE(withdrawals.count(), 1);
    // A new dialog learns of the download.
    bench.offers.clear();
    bench.shown.clear();
    bench.updates.checkNow();
    bench.updates.handleUpdate(release(11), {});
    QCOMPARE(bench.offers.count(), 1);
    QCOMPARE(bench.shown.value(0).value(0).value<Record>(), record(Record::State::Downloading));
    // Its failure is shown even where no dialog was.
    bench.reply(Request::FetchGUIUpdateDownload, record(Record::State::Failed));
    QCOMPARE(bench.offers.count(), 2);
    QCOMPARE(bench.shown.last().value(0).value<Record>(), record(Record::State::Failed));
}

QTEST_MAIN(TestUpdateFlow)
#include "tst_update_flow.moc"
