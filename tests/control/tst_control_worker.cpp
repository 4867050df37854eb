#include "ControlWorkerPool.h"
#include "RequestLink.h"
#include "ScriptedDaemon.h"

#include <QHash>
#include <QLoggingCategory>
#include <QPointer>
#include <QTemporaryFile>
#include <QTest>

#include <unistd.h>

#include <optional>

using namespace Qt::StringLiterals;
using Reply = ScriptedDaemon::Reply;
using Request = ControlRequest;

namespace {

const QString kCanceled = u"control request canceled"_s;
constexpr int kRequestCount = int(Request::SetKillSwitchAllowLAN) + 1;

/// Collects all answers of the workers on the test's thread, in order of arrival.
class Answers final : public QObject
{
public:
    struct Answer
    {
        quint64 id;
        QString error;
        bool operator==(const Answer &) const = default;
    };

    explicit Answers(const ControlWorkers &workers)
    {
        using W = ControlWorker;
        for (W *worker : workers) {
            listen(worker, &W::statusFinished, &W::versionFinished, &W::apiURLFinished,
                   &W::autoConnectFinished, &W::languageFinished, &W::updateFinished,
                   &W::updateDownloadFinished, &W::userFinished, &W::purchaseURLFinished,
                   &W::nodesFinished, &W::nodeGroupsFinished, &W::configPathsFinished,
                   &W::killSwitchFinished, &W::connectFinished, &W::disconnectFinished,
                   &W::loginFinished, &W::logoutFinished, &W::modeFinished, &W::proxyListenFinished,
                   &W::splitDNSFinished, &W::splitRulesFinished, &W::splitRuleImportFinished,
                   &W::repairFinished);
        }
    }

    QList<Answer> all;

private:
    template<class... Records>
    void listen(ControlWorker *worker,
                void (ControlWorker::*...signal)(quint64, const Records &, const QString &))
    {
        (connect(worker, signal, this,
                 [this](quint64 id, const Records &, const QString &error) {
                     all.append({id, error});
                 }),
         ...);
    }
};

/// A daemon, the workers that talk to it, and a link that starts at id 0.
struct Setup
{
    ScriptedDaemon daemon;
    ControlWorkerPool pool{daemon.socketName()};
    RequestLink link{pool.workers(), RequestLink::kShellFirstId};
    Answers answers{pool.workers()};

    Setup() { daemon.setDefault({}, Reply::json(R"({"state":"idle"})")); }
    ControlWorker &worker(WorkerLane lane) const { return link.worker(lane); }
};

/// Sends a request with whatever arguments its slot takes.
quint64 sendAny(RequestLink &link, Request request)
{
    using Send = quint64 (*)(RequestLink &, Request);
    static const QString text = u"x"_s;
    static const QHash<QByteArray, Send> senders{
        {"(quint64,int)", [](RequestLink &l, Request r) { return l.send(r); }},
        {"(quint64,bool,int)", [](RequestLink &l, Request r) { return l.send(r, true); }},
        {"(quint64,QString,int)", [](RequestLink &l, Request r) { return l.send(r, text); }},
        {"(quint64,QString,bool,int)",
         [](RequestLink &l, Request r) { return l.send(r, text, true); }},
        {"(quint64,QString,qint64,int)",
         [](RequestLink &l, Request r) { return l.send(r, text, qint64{7}); }},
        {"(quint64,QString,QString,int)",
         [](RequestLink &l, Request r) { return l.send(r, text, text); }},
        {"(quint64,QString,QString,bool,int)",
         [](RequestLink &l, Request r) { return l.send(r, text, text, true); }},
        {"(quint64,QString,QString,QString,int)",
         [](RequestLink &l, Request r) { return l.send(r, text, text, text); }},
        {"(quint64,QStringList,int)",
         [](RequestLink &l, Request r) { return l.send(r, QStringList(text)); }},
        {"(quint64,ModeInfo,int)", [](RequestLink &l, Request r) { return l.send(r, ModeInfo()); }},
    };
    const QByteArray name = requestRoute(request).method;
    for (auto sender = senders.begin(); sender != senders.end(); ++sender) {
        const QByteArray signature = name + sender.key();
        if (ControlWorker::staticMetaObject.indexOfSlot(signature.constData()) >= 0) {
            return sender.value()(link, request);
        }
    }
    qFatal("no slot, or none that this test can call: %s", name.constData());
}

} // namespace

/// The workers on their threads, reached by name through a link.
class ControlWorkerTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("QT_FORCE_STDERR_LOGGING", "1"); }

    void answersEveryRequest();
    void keepsTheOrderOfALane();
    void runsLanesSideBySide();
    void cancelsRunningConnects();
    void cancelsQueuedConnectOnly();
    void ignoresLateCancel();
    void cancelsCurrentRequest();
    void shutsDownWithEndlessRequests();
    void dropsStaleAnswers();
    void usesOwnTimeout();
    void keepsSecretsOutOfLogs();
};

void ControlWorkerTest::answersEveryRequest()
{
    Setup s;
    QList<quint64> ids;
    for (int i = 0; i < kRequestCount; ++i) {
        ids.append(sendAny(s.link, Request(i)));
    }
    QTRY_COMPARE(s.answers.all.size(), ids.size());
    for (const Answers::Answer &answer : s.answers.all) {
        const qsizetype request = ids.indexOf(answer.id);
        QCOMPARE(s.link.take(answer.id), std::optional(Request(int(request))));
        const bool isPurchase = Request(int(request)) == Request::FetchPurchaseURL;
        QCOMPARE(answer.error, isPurchase ? u"invalid purchase URL"_s : QString());
    }
    QCOMPARE(s.daemon.requests().size(), kRequestCount + 2); // Repairing takes three.
}

void ControlWorkerTest::keepsTheOrderOfALane()
{
    Setup s;
    s.daemon.enqueue("GET /v1/nodes", Reply::nothing().pause(50).send("HTTP/1.1 500 E\r\n\r\nE"));
    const quint64 first = s.link.send(Request::FetchNodes, false);
    const quint64 second = s.link.send(Request::FetchNodes, true);
    const quint64 third = s.link.send(Request::FetchUser);
    QTRY_COMPARE(s.answers.all.size(), 3);
    QCOMPARE(s.answers.all, (QList<Answers::Answer>{{first, u"E"_s}, {second, {}}, {third, {}}}));
    QCOMPARE(s.daemon.routes(),
             (QByteArrayList{"GET /v1/nodes", "POST /v1/nodes/refresh", "GET /v1/user"}));
}

void ControlWorkerTest::runsLanesSideBySide()
{
    Setup s;
    s.daemon.setDefault("POST /v1/connect", Reply::nothing().hold());
    const quint64 connect = s.link.send(Request::ConnectRuntime);
    QVERIFY(s.daemon.waitForRequests(1));
    const quint64 read = s.link.send(Request::FetchStatus);
    const quint64 change = s.link.send(Request::SetKillSwitchEnabled, true);
    QTRY_COMPARE(s.answers.all.size(), 2);
    QVERIFY(s.answers.all.contains({read, {}}) && s.answers.all.contains({change, {}}));
    s.worker(WorkerLane::Session).cancelRequest(connect);
    QTRY_COMPARE(s.answers.all.size(), 3);
}

void ControlWorkerTest::cancelsRunningConnects()
{
    for (const Request request :
         {Request::ConnectRuntime, Request::ConnectNode, Request::ConnectSmart}) {
        Setup s;
        // The first id of a link is 0, which must not count as canceled from the start.
        s.daemon.enqueue("POST /v1/connect", Reply::nothing().hold());
        const quint64 id = sendAny(s.link, request);
        QVERIFY(s.daemon.waitForRequests(1));
        s.worker(WorkerLane::Session).cancelRequest(id);
        const quint64 next = s.link.send(Request::DisconnectRuntime);
        QTRY_COMPARE(s.answers.all, (QList<Answers::Answer>{{id, kCanceled}, {next, {}}}));
    }
}

void ControlWorkerTest::cancelsQueuedConnectOnly()
{
    Setup s;
    s.daemon.enqueue("POST /v1/disconnect",
                     Reply::nothing().hold().send("HTTP/1.1 500 E\r\n\r\nE"));
    const quint64 running = s.link.send(Request::DisconnectRuntime);
    const quint64 queued = s.link.send(Request::ConnectRuntime);
    const quint64 other = s.link.send(Request::Logout);
    QVERIFY(s.daemon.waitForRequests(1));
    for (const quint64 id : {running, other, queued}) {
        s.worker(WorkerLane::Session).cancelRequest(id);
    }
    s.daemon.release();
    QTRY_COMPARE(s.answers.all,
                 (QList<Answers::Answer>{{running, u"E"_s}, {queued, kCanceled}, {other, {}}}));
    QCOMPARE(s.daemon.routes(), (QByteArrayList{"POST /v1/disconnect", "POST /v1/session/logout"}));
}

void ControlWorkerTest::ignoresLateCancel()
{
    Setup s;
    const quint64 connect = s.link.send(Request::ConnectRuntime);
    QTRY_COMPARE(s.answers.all.size(), 1);
    s.daemon.enqueue("POST /v1/mode", Reply::nothing().hold().send("HTTP/1.1 500 E\r\n\r\nE"));
    const quint64 mode = s.link.send(Request::SetMode, ModeInfo());
    QVERIFY(s.daemon.waitForRequests(2));
    s.worker(WorkerLane::Session).cancelRequest(connect);
    s.daemon.release();
    QTRY_COMPARE(s.answers.all, (QList<Answers::Answer>{{connect, {}}, {mode, u"E"_s}}));
}

void ControlWorkerTest::cancelsCurrentRequest()
{
    Setup s;
    s.daemon.enqueue("GET /v1/user", Reply::nothing().hold());
    const quint64 canceled = s.link.sendWithTimeout(Request::FetchUser, 0);
    QVERIFY(s.daemon.waitForRequests(1));
    s.worker(WorkerLane::Reads).cancelCurrentRequest();
    QTRY_COMPARE(s.answers.all, (QList<Answers::Answer>{{canceled, kCanceled}}));
    const quint64 next = s.link.send(Request::FetchUser);
    QTRY_COMPARE(s.answers.all, (QList<Answers::Answer>{{canceled, kCanceled}, {next, {}}}));
}

void ControlWorkerTest::shutsDownWithEndlessRequests()
{
    Setup s;
    s.daemon.setDefault({}, Reply::nothing().hold());
    s.link.send(Request::ConnectRuntime);
    s.link.send(Request::DisconnectRuntime);
    s.link.sendWithTimeout(Request::FetchStatus, 0);
    QVERIFY(s.daemon.waitForRequests(2));
    QPointer<ControlWorker> session = &s.worker(WorkerLane::Session);
    s.pool.shutDown();
    QVERIFY(session.isNull()); // Its thread has ended within the wait.
    s.pool.shutDown();
    QCOMPARE(s.daemon.requests().size(), 2); // The queued one was dropped.
    QTRY_COMPARE(s.answers.all.size(), 2);
    QCOMPARE(s.answers.all.at(0).error, kCanceled);
    QCOMPARE(s.answers.all.at(1).error, kCanceled);
}

void ControlWorkerTest::dropsStaleAnswers()
{
    Setup s;
    const quint64 first = s.link.send(Request::FetchStatus);
    QCOMPARE(s.link.pendingId(Request::FetchStatus), std::optional(first));
    const quint64 second = s.link.send(Request::FetchStatus);
    const quint64 version = s.link.send(Request::FetchVersion);
    QCOMPARE(s.link.take(first), std::nullopt);
    QVERIFY(s.link.isPending(Request::FetchStatus));
    QCOMPARE(s.link.take(second), std::optional(Request::FetchStatus));
    QCOMPARE(s.link.take(second), std::nullopt);
    s.link.forget(Request::FetchVersion);
    QCOMPARE(s.link.take(version), std::nullopt);

    RequestLink tray(s.pool.workers(), RequestLink::kTrayFirstId);
    QCOMPARE(s.link.take(tray.send(Request::FetchStatus)), std::nullopt);
    QTRY_COMPARE(s.answers.all.size(), 4); // They do arrive; only nobody awaits them.
}

void ControlWorkerTest::usesOwnTimeout()
{
    Setup s;
    s.daemon.setDefault({}, Reply::nothing().hold());
    const quint64 id = s.link.sendWithTimeout(Request::SetNodeFavorite, 100, u"n"_s, true);
    QTRY_COMPARE(s.answers.all, (QList<Answers::Answer>{{id, u"control request timed out"_s}}));
}

void ControlWorkerTest::keepsSecretsOutOfLogs()
{
    Setup s;
    const QByteArray echo = R"({"error":"bad password S3cret-pass of S3cret-user"})";
    s.daemon.enqueue("POST /v1/session/login", Reply::json(echo, 401));
    s.daemon.setDefault(
        "GET /v1/account/purchase-url",
        Reply::json(
            R"({"url":"https://www.vantuvpn.com/purchase?lang=S3cret-lang&webAccessToken=S3cret-token)"
            R"(&account=S3cret-account"})"));

    QLoggingCategory::setFilterRules(u"*=true"_s);
    const QtMessageHandler testHandler = qInstallMessageHandler(nullptr);
    QTemporaryFile file;
    QVERIFY(file.open());
    const int savedStderr = ::dup(STDERR_FILENO);
    ::dup2(file.handle(), STDERR_FILENO);
    s.link.send(Request::Login, u"S3cret-user"_s, u"S3cret-pass"_s, true);
    s.link.send(Request::FetchPurchaseURL, u"S3cret-lang"_s);
    const bool isAnswered = QTest::qWaitFor([&] { return s.answers.all.size() == 2; });
    s.pool.shutDown();
    ::dup2(savedStderr, STDERR_FILENO);
    ::close(savedStderr);
    file.seek(0);
    const QByteArray log = file.readAll();
    qInstallMessageHandler(testHandler);
    QLoggingCategory::setFilterRules({});

    QVERIFY(isAnswered);
    QVERIFY2(log.contains("POST /v1/session/login 401"), log.constData());
    QVERIFY2(log.contains("GET /v1/account/purchase-url 200"), log.constData());
    QVERIFY2(!log.contains("S3cret"), log.constData());
}

QTEST_GUILESS_MAIN(ControlWorkerTest)
#include "tst_control_worker.moc"
