#include "ControlTransport.h"

#include "ControlProtocol.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QThread>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Off unless asked for: the polls alone would fill a log.
Q_LOGGING_CATEGORY(lcControl, "vantu.control", QtInfoMsg)

constexpr QLatin1StringView kCanceled{"control request canceled"};
constexpr QLatin1StringView kInvalidResponse{"invalid control response"};

/// How long a daemon whose queue is full is left alone (ms).
constexpr int kBusyDaemonRest = 50;

/// What people are given to read at most, in UTF-16 units; a body may be a whole book.
constexpr qsizetype kMaxErrorText = 1000;

/// The socket's own words, when it has any: a fresh socket's "Unknown error" and
/// the end of one waiting slice say nothing about the request.
QString socketErrorText(const QLocalSocket &socket)
{
    const QLocalSocket::LocalSocketError error = socket.error();
    const bool isMeaningful =
        error != QLocalSocket::UnknownSocketError && error != QLocalSocket::SocketTimeoutError;
    return isMeaningful ? socket.errorString().trimmed() : QString();
}

QString shortened(QString text)
{
    if (text.size() > kMaxErrorText) {
        text.truncate(kMaxErrorText - (text.at(kMaxErrorText - 1).isLowSurrogate() ? 2 : 1));
        text += u'\u2026';
    }
    return text;
}

QByteArray frameRequest(const QByteArray &method, const QString &path, const QByteArray &body)
{
    QByteArray request = method + ' ' + path.toUtf8() + " HTTP/1.1\r\n";
    request += "Host: vantu\r\n";
    request += "X-Vantu-Control-Version: " + QByteArray(control::kControlVersion.data()) + "\r\n";
    request += "Connection: close\r\n";
    if (!body.isEmpty()) {
        request += "Content-Type: application/json\r\n";
        request += "Content-Length: " + QByteArray::number(body.size()) + "\r\n";
    }
    return request + "\r\n" + body;
}

/// One exchange on one socket: its deadline, its cancellation and its phases. The
/// phases are called in order; one that fails fills the error text.
class Exchange final
{
public:
    Exchange(int timeoutMs, QString &errorText, const std::atomic_bool *canceled)
        : m_hasCallerTimeout(timeoutMs >= 1)
        , m_timeoutMs(m_hasCallerTimeout ? timeoutMs : control::kDefaultTimeout.count())
        , m_errorText(errorText)
        , m_canceled(canceled)
    {
        m_clock.start();
    }

    bool connectTo(const QString &socketName);
    bool write(const QByteArray &request);
    std::optional<HttpResponse> read();

    qint64 elapsedMs() const { return m_clock.elapsed(); }

private:
    using Result = HttpResponseParser::Result;

    bool isCanceled() const { return m_canceled != nullptr && *m_canceled; }
    bool isOverdue() const { return m_clock.elapsed() >= m_timeoutMs; }
    bool isReadOverdue() const { return m_hasCallerTimeout && isOverdue(); }
    bool isConnected() const { return m_socket.state() == QLocalSocket::ConnectedState; }
    int sliceMs() const;
    int readSliceMs() const;
    bool failWrite();
    QString readErrorText() const;

    const bool m_hasCallerTimeout;
    const qint64 m_timeoutMs;
    QString &m_errorText;
    const std::atomic_bool *m_canceled;
    QElapsedTimer m_clock;
    QLocalSocket m_socket;
};

/// The next wait, within what is left of the deadline. Never negative, since a
/// negative wait would last for ever.
int Exchange::sliceMs() const
{
    const qint64 left = m_timeoutMs - m_clock.elapsed();
    return static_cast<int>(std::clamp<qint64>(left, 0, control::kWaitSlice.count()));
}

int Exchange::readSliceMs() const
{
    return m_hasCallerTimeout ? sliceMs() : static_cast<int>(control::kWaitSlice.count());
}

bool Exchange::connectTo(const QString &socketName)
{
    m_socket.connectToServer(socketName, QIODevice::ReadWrite);
    while (!isCanceled() && !isOverdue()) {
        if (isConnected()) {
            return true;
        }
        if (m_socket.state() != QLocalSocket::ConnectingState) {
            break;
        }
        // Only a full queue leads here, for which the socket's own wait never sleeps.
        QThread::msleep(static_cast<unsigned long>(std::min(kBusyDaemonRest, sliceMs())));
        m_socket.waitForConnected(0);
    }
    m_errorText = isCanceled()
                      ? QString(kCanceled)
                      : control::connectErrorText(m_socket.error(), socketErrorText(m_socket));
    return false;
}

bool Exchange::write(const QByteArray &request)
{
    if (m_socket.write(request) != request.size()) {
        return failWrite();
    }
    while (m_socket.bytesToWrite() > 0) {
        if (isCanceled() || isOverdue()) {
            return failWrite();
        }
        if (!m_socket.waitForBytesWritten(sliceMs()) && !isConnected()) {
            return failWrite();
        }
    }
    return true;
}

bool Exchange::failWrite()
{
    if (isCanceled()) {
        m_errorText = kCanceled;
    } else if (m_socket.error() == QLocalSocket::UnknownSocketError) {
        m_errorText = control::kTimedOut; // The socket has no complaint: only time ran out.
    } else {
        m_errorText = m_socket.errorString();
    }
    return false;
}

std::optional<HttpResponse> Exchange::read()
{
    HttpResponseParser parser;
    Result result = Result::Incomplete;
    while (result == Result::Incomplete && isConnected() && !isCanceled() && !isReadOverdue()) {
        if (m_socket.bytesAvailable() == 0) {
            m_socket.waitForReadyRead(readSliceMs());
        }
        result = parser.append(m_socket.readAll());
    }
    if (result == Result::Incomplete) {
        parser.append(m_socket.readAll());
        result = parser.finish();
    }
    if (result == Result::Complete && !isCanceled()) {
        return parser.response();
    }
    m_errorText = readErrorText();
    return std::nullopt;
}

QString Exchange::readErrorText() const
{
    if (isCanceled()) {
        return kCanceled;
    }
    if (isReadOverdue()) {
        return control::kTimedOut;
    }
    const QString socketText = socketErrorText(m_socket);
    return socketText.isEmpty() ? QString(kInvalidResponse) : socketText;
}

} // namespace

namespace control {

std::optional<HttpResponse> performRequest(const QString &socketName, const QByteArray &method,
                                           const QString &path, const QByteArray &body,
                                           int timeoutMs, QString &errorText,
                                           const std::atomic_bool *canceled)
{
    Exchange exchange(timeoutMs, errorText, canceled);
    std::optional<HttpResponse> response;
    if (exchange.connectTo(socketName) && exchange.write(frameRequest(method, path, body))) {
        response = exchange.read();
    }
    // Neither query nor body nor error text: they may hold tokens and passwords.
    qCDebug(lcControl).noquote() << method << path.section(u'?', 0, 0)
                                 << (response ? response->status : 0) << exchange.elapsedMs()
                                 << "ms";
    return response;
}

QString errorTextFromResponse(const HttpResponse &response)
{
    const QJsonObject object = QJsonDocument::fromJson(response.body).object();
    for (const QLatin1StringView key : {"error"_L1, "message"_L1, "last_error"_L1}) {
        const QString text = object.value(key).toString().trimmed();
        if (!text.isEmpty()) {
            return shortened(text);
        }
    }
    const QString text = QString::fromUtf8(response.body).trimmed();
    if (!text.isEmpty()) {
        return shortened(text);
    }
    return response.status >= 1 ? u"control request failed with HTTP %1"_s.arg(response.status)
                                : u"control request failed"_s;
}

QString connectErrorText(QLocalSocket::LocalSocketError error, const QString &socketErrorText)
{
    switch (error) {
    case QLocalSocket::ConnectionRefusedError:
    case QLocalSocket::ServerNotFoundError:
        return QCoreApplication::translate("ControlClient", "Vantu daemon is not running.");
    case QLocalSocket::SocketAccessError:
        return QCoreApplication::translate(
            "ControlClient", "Vantu daemon access denied. Add this user to the vantucli group, "
                             "then sign out and back in.");
    default:
        break;
    }
    const QString text = socketErrorText.trimmed();
    return text.isEmpty()
               ? QCoreApplication::translate("ControlClient", "Could not connect to Vantu daemon.")
               : text;
}

} // namespace control
