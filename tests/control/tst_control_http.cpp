#include "ControlProtocol.h"
#include "ControlTransport.h"
#include "HttpResponseParser.h"
#include "ScriptedDaemon.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <ctime>
#include <thread>

using namespace Qt::StringLiterals;
using Reply = ScriptedDaemon::Reply;
using Result = HttpResponseParser::Result;

Q_DECLARE_METATYPE(Result)
Q_DECLARE_METATYPE(Reply)

namespace {

constexpr qsizetype kMiB = 1048576;

} // namespace

/// The parser byte by byte, and the transport against a daemon that misbehaves.
class ControlHttpTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parses_data();
    void parses();
    void keepsHeaders();
    void refusesEndlessResponses();

    void exchanges_data();
    void exchanges();
    void reportsAbsentAndRefusingDaemons();
    void restsBeforeFullQueue();
    void cancels();
    void writesLargeRequests();
    void explainsConnectErrors();
    void explainsFailedResponses_data();
    void explainsFailedResponses();
};

void ControlHttpTest::parses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Result>("open"); // What the bytes give while the stream goes on.
    QTest::addColumn<Result>("atEnd");
    QTest::addColumn<QByteArray>("body");

    constexpr Result kIncomplete = Result::Incomplete;
    constexpr Result kComplete = Result::Complete;
    constexpr Result kFailed = Result::Failed;
    const auto row = [](const char *name, const QByteArray &bytes, Result open, Result atEnd,
                        const QByteArray &body = {}) {
        QTest::newRow(name) << bytes << open << atEnd << body;
    };
    const QByteArray ok("HTTP/1.1 200 OK\r\n");
    const QByteArray chunked = ok + "Transfer-Encoding: chunked\r\n\r\n";

    row("nothing", "", kIncomplete, kIncomplete);
    row("no blank line", ok + "A: b\r\n", kIncomplete, kIncomplete);
    row("no status", "HTTP/1.1\r\n\r\n", kIncomplete, kIncomplete);
    row("word as status", "HTTP/1.1 fine\r\n\r\nbody", kIncomplete, kIncomplete);
    row("garbage", "\x01\x02 nonsense\r\n\r\nmore\r\n\r\n", kIncomplete, kIncomplete);
    row("no reason, no header", "HTTP/1.1 200\r\n\r\nrest", kIncomplete, kComplete, "rest");
    row("length", ok + "Content-Length: 4\r\n\r\nbody", kComplete, kComplete, "body");
    row("capitals", ok + "CONTENT-LENGTH:4\r\n\r\nbodyextra", kComplete, kComplete, "body");
    row("too short", ok + "Content-Length: 5\r\n\r\nbody", kIncomplete, kIncomplete);
    row("huge length", ok + "Content-Length: 9223372036854775807\r\n\r\nx", kIncomplete,
        kIncomplete);
    row("negative length", ok + "Content-Length: -4\r\n\r\nbody", kIncomplete, kComplete, "body");
    row("word as length", ok + "Content-Length: four\r\n\r\nbody", kIncomplete, kComplete, "body");
    row("last length wins", ok + "Content-Length: 9\r\nContent-Length: 2\r\n\r\nbody", kComplete,
        kComplete, "bo");
    row("until the end", ok + "\r\nall\r\n\r\nof it", kIncomplete, kComplete, "all\r\n\r\nof it");
    row("chunks", chunked + "3\r\nabc\r\nA\r\n0123456789\r\n0\r\n\r\n", kComplete, kComplete,
        "abc0123456789");
    row("chunk extension", chunked + " 1a;x=y\r\nabcdefghijklmnopqrstuvwxyz\r\n0;z\r\n\r\n",
        kComplete, kComplete, "abcdefghijklmnopqrstuvwxyz");
    row("chunked among codings", ok + "transfer-encoding: gzip, Chunked\r\n\r\n0\r\n\r\n",
        kComplete, kComplete);
    row("chunked beats length",
        ok + "Content-Length: 1\r\nTransfer-Encoding: chunked\r\n\r\n2\r\nab\r\n0\r\n\r\n",
        kComplete, kComplete, "ab");
    row("trailers", chunked + "1\r\na\r\n0\r\nX: 1\r\nY: 2\r\n\r\nmore", kComplete, kComplete, "a");
    row("no end of trailers", chunked + "1\r\na\r\n0\r\nX: 1\r\n", kIncomplete, kIncomplete);
    row("half a chunk", chunked + "5\r\nabc", kIncomplete, kIncomplete);
    row("chunk without line end", chunked + "3\r\nabcde\r\n", kFailed, kFailed);
    row("signed chunk size", chunked + "-1\r\nabc\r\n", kFailed, kFailed);
    row("prefixed chunk size", chunked + "0x3\r\nabc\r\n", kFailed, kFailed);
    row("empty chunk size", chunked + "\r\nabc\r\n", kFailed, kFailed);
    row("largest chunk size", chunked + "7fffffff\r\nabc", kIncomplete, kIncomplete);
    row("too large chunk size", chunked + "80000000\r\nabc", kFailed, kFailed);
    row("overflowing chunk size", chunked + "10000000000000001\r\nabc", kFailed, kFailed);
}

void ControlHttpTest::parses()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const Result, open);
    QFETCH(const Result, atEnd);
    QFETCH(const QByteArray, body);

    HttpResponse whole;
    QCOMPARE(HttpResponseParser::parse(bytes, false, &whole), open);
    QCOMPARE(HttpResponseParser::parse(bytes, true, &whole), atEnd);
    if (atEnd == Result::Complete) {
        QCOMPARE(whole.status, 200);
        QCOMPARE(whole.body, body);
    }
    // However the bytes arrive, the outcome is the same.
    HttpResponse prefix;
    for (qsizetype split = 0; split <= bytes.size(); ++split) {
        HttpResponseParser parser;
        QCOMPARE(parser.append(bytes.first(split)),
                 HttpResponseParser::parse(bytes.first(split), false, &prefix));
        QCOMPARE(parser.append(bytes.sliced(split)), open);
        QCOMPARE(parser.finish(), atEnd);
        QVERIFY(atEnd != Result::Complete || parser.response() == whole);
    }
    HttpResponseParser dripping;
    for (const char byte : bytes) {
        dripping.append(QByteArrayView(&byte, 1));
    }
    QCOMPARE(dripping.finish(), atEnd);
    QVERIFY(atEnd != Result::Complete || dripping.response() == whole);
}

void ControlHttpTest::keepsHeaders()
{
    HttpResponse response;
    QCOMPARE(HttpResponseParser::parse("HTTP/1.1 409 Conflict\r\nX-One :  first \r\nno colon\r\n"
                                       " X-Two: a:b\r\nX-one: last\r\nContent-Length: 0\r\n\r\n",
                                       false, &response),
             Result::Complete);
    const QHash<QByteArray, QByteArray> expected{
        {"x-one", "last"}, {"x-two", "a:b"}, {"content-length", "0"}};
    QCOMPARE(response.status, 409);
    QCOMPARE(response.headers, expected);
}

void ControlHttpTest::refusesEndlessResponses()
{
    const QByteArray piece(kMiB, 'x');
    HttpResponseParser parser;
    QCOMPARE(parser.append("HTTP/1.1 200 OK\r\n\r\n"), Result::Incomplete);
    qsizetype received = 0;
    while (parser.append(piece) == Result::Incomplete &&
           received < 2 * control::kMaxResponseBytes) {
        received += piece.size();
    }
    QCOMPARE(parser.finish(), Result::Failed);
    QVERIFY(received < control::kMaxResponseBytes);
}

void ControlHttpTest::exchanges_data()
{
    QTest::addColumn<Reply>("reply");
    QTest::addColumn<int>("timeoutMs");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("error");

    const QString none;
    const QString invalid = u"invalid control response"_s;
    const QString closed = u"QLocalSocket: Remote closed"_s;
    const QByteArray ok("HTTP/1.1 200 OK\r\n");
    const QByteArray half = ok + "Content-Length: 9\r\n\r\nhalf";
    const QByteArray badChunk = ok + "Transfer-Encoding: chunked\r\n\r\nxyz\r\n";
    const auto row = [](const char *name, const Reply &reply, int timeoutMs, const QByteArray &body,
                        const QString &error) {
        QTest::newRow(name) << reply << timeoutMs << body << error;
    };
    row("at once", Reply::json("{}"), 5000, "{}", none);
    row("other status", Reply::json("no", 500), 5000, "no", none);
    row("in pieces", Reply::raw(half).pause(20).send("-").pause(20).send("done"), 5000, "half-done",
        none);
    row("until the close", Reply::raw(ok + "\r\nall").pause(20).send(" of it"), 5000, "all of it",
        none);
    // Longer than one slice: a wait that ends is not the end of the request.
    row("late, no deadline", Reply::nothing().pause(600).send(half + "-done"), 0, "half-done",
        none);
    row("early close", Reply::nothing(), 5000, {}, closed);
    row("half an answer", Reply::raw(half), 5000, {}, closed);
    row("garbage", Reply::raw("\x01garbage\r\n\r\n"), 5000, {}, closed);
    row("bad chunk, no deadline", Reply::raw(badChunk).hold(), 0, {}, invalid);
    row("oversize", Reply::raw(ok + "\r\n").drip(QByteArray(kMiB, 'x'), 0), 0, {}, invalid);
    row("hung", Reply::raw(half).hold(), 300, {}, u"control request timed out"_s);
    row("garbage, hung", Reply::raw("garbage\r\n\r\n").hold(), 300, {},
        u"control request timed out"_s);
    row("dripping", Reply::raw(ok + "Content-Length: 99999\r\n\r\n").drip("x", 10), 300, {},
        u"control request timed out"_s);
}

void ControlHttpTest::exchanges()
{
    QFETCH(const Reply, reply);
    QFETCH(const int, timeoutMs);
    ScriptedDaemon daemon;
    daemon.enqueue("GET /v1/test", reply);
    QString error;
    const auto response =
        control::performRequest(daemon.socketName(), "GET", u"/v1/test"_s, {}, timeoutMs, error);
    QTEST(error, "error");
    QCOMPARE(response.has_value(), error.isEmpty());
    QTEST(response.value_or(HttpResponse()).body, "body");
}

void ControlHttpTest::reportsAbsentAndRefusingDaemons()
{
    ScriptedDaemon daemon;
    daemon.stop();
    for (const QString &name : {daemon.socketName(), daemon.socketName() + u".absent"_s}) {
        QString error;
        QVERIFY(!control::performRequest(name, "GET", u"/v1/test"_s, {}, 5000, error));
        QCOMPARE(error, u"Vantu daemon is not running."_s);
    }
}

/// A daemon that hangs must not make its clients burn.
void ControlHttpTest::restsBeforeFullQueue()
{
    const QTemporaryDir directory;
    QLocalServer hung; // Accepts in an event loop, of which there is none here.
    hung.setListenBacklogSize(0);
    QVERIFY(hung.listen(directory.filePath(u"socket"_s)));
    QLocalSocket queued;
    queued.connectToServer(hung.fullServerName());
    QString error;
    const std::clock_t before = std::clock(); // Of the processor.
    QVERIFY(!control::performRequest(hung.fullServerName(), "GET", u"/"_s, {}, 500, error));
    QVERIFY(std::clock() - before < CLOCKS_PER_SEC / 5);
    QCOMPARE(error, u"Could not connect to Vantu daemon."_s); // It was full indeed.
}

void ControlHttpTest::cancels()
{
    const Reply silent = Reply::nothing().hold();
    const Reply endless = Reply::raw("HTTP/1.1 200 OK\r\n\r\n").drip("x", 1);
    for (const Reply &reply : {silent, endless}) {
        ScriptedDaemon daemon;
        daemon.setDefault({}, reply);
        const auto request = [&daemon](QString &error, const std::atomic_bool &canceled) {
            return control::performRequest(daemon.socketName(), "GET", u"/v1/test"_s, {}, 0, error,
                                           &canceled);
        };
        std::atomic_bool canceled = false;
        std::thread user([&] {
            daemon.waitForRequests(1);
            canceled = true;
        });
        QString error;
        const bool isAnswered = request(error, canceled).has_value();
        user.join();
        QVERIFY(!isAnswered);
        QCOMPARE(error, u"control request canceled"_s);
        // Set beforehand, it keeps even the request from being sent.
        QVERIFY(!request(error, canceled));
        QCOMPARE(daemon.requests().size(), 1);
    }
}

void ControlHttpTest::writesLargeRequests()
{
    const QByteArray body(3 * kMiB, 'b'); // More than the socket takes at once.
    ScriptedDaemon daemon;
    QString error;
    QVERIFY(control::performRequest(daemon.socketName(), "POST", u"/v1/ä"_s, body, 5000, error));
    QCOMPARE(daemon.requests(), QByteArrayList{"POST /v1/\xc3\xa4 HTTP/1.1\r\nHost: vantu\r\n"
                                               "X-Vantu-Control-Version: 1\r\nConnection: close\r\n"
                                               "Content-Type: application/json\r\n"
                                               "Content-Length: 3145728\r\n\r\n" +
                                               body});
}

void ControlHttpTest::explainsConnectErrors()
{
    using S = QLocalSocket;
    // Not provoked on a real socket: permissions do not bind a root that runs this.
    QCOMPARE(control::connectErrorText(S::SocketAccessError, u"x"_s),
             u"Vantu daemon access denied. Add this user to the vantucli group, then sign out and "
             "back in."_s);
    QCOMPARE(control::connectErrorText(S::SocketResourceError, u" text\n"_s), u"text"_s);
    QCOMPARE(control::connectErrorText(S::UnknownSocketError, u" "_s),
             u"Could not connect to Vantu daemon."_s);
}

void ControlHttpTest::explainsFailedResponses_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, int status, const char *body, const QString &expected) {
        QTest::newRow(name) << status << QByteArray(body) << expected;
    };
    row("message", 500, R"({"message":" it broke "})", u"it broke"_s);
    row("error first", 500, R"({"message":"m","error":"e","last_error":"l"})", u"e"_s);
    row("last error", 500, R"({"error":" ","message":7,"last_error":"l"})", u"l"_s);
    row("other object", 500, R"( {"code":7} )", uR"({"code":7})"_s);
    row("array", 500, R"(["error"])", uR"(["error"])"_s);
    row("plain text", 503, " down \xc3\xa4 \n", u"down ä"_s);
    row("empty", 502, "", u"control request failed with HTTP 502"_s);
    row("blank, no status", 0, " \n", u"control request failed"_s);
    QTest::newRow("book") << 500 << QByteArray(998, 'x') + "\xf0\x9f\x98\x80 and so on"
                          << QString(998, u'x') + u'\u2026';
}

void ControlHttpTest::explainsFailedResponses()
{
    QFETCH(const int, status);
    QFETCH(const QByteArray, body);
    QTEST(control::errorTextFromResponse({status, {}, body}), "expected");
}

QTEST_GUILESS_MAIN(ControlHttpTest)
#include "tst_control_http.moc"
