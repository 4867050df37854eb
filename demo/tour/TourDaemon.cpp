#include "TourDaemon.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QLocalSocket>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

constexpr int kStartMs = 10000;
constexpr int kEndMs = 3000;
constexpr int kAnswerMs = 5000;
constexpr unsigned long kLookMs = 20;

/// Sends and reads until `isWhole` takes what came, or the other side has finished.
template<typename IsWhole>
QByteArray ask(const QString &path, const QByteArray &question, IsWhole isWhole)
{
    QLocalSocket socket;
    socket.connectToServer(path);
    if (!socket.waitForConnected(kAnswerMs)) {
        return {};
    }
    socket.write(question);
    QByteArray answer;
    do {
        answer += socket.readAll();
    } while (!isWhole(answer) && socket.waitForReadyRead(kAnswerMs));
    return answer + socket.readAll();
}

} // namespace

TourDaemon::TourDaemon() = default;

TourDaemon::~TourDaemon()
{
    m_process.terminate();
    m_process.waitForFinished(kEndMs);
}

bool TourDaemon::start(const QString &program, const QStringList &arguments)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(program, QStringList{u"--socket"_s, file(u"control.sock"_s), u"--control"_s,
                                         file(u"simd.sock"_s)} +
                                 arguments);
    QElapsedTimer elapsed;
    elapsed.start();
    while (command(u"status"_s).isEmpty()) {
        if (elapsed.elapsed() > kStartMs || m_process.waitForFinished(0)) {
            return false;
        }
        QThread::msleep(kLookMs);
    }
    return true;
}

QProcessEnvironment TourDaemon::clientEnvironment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"VANTU_DEMO_DIRECTORY"_s, m_directory.path());
    environment.insert(u"VANTU_DEMO_DAEMON_PID"_s, QString::number(m_process.processId()));
    // The name by which a second launch finds the first lives there: other demonstrations
    // of this machine are none of this tour's business.
    environment.insert(u"TMPDIR"_s, m_directory.path());
    return environment;
}

QString TourDaemon::command(const QString &line) const
{
    const QByteArray answer =
        ask(file(u"simd.sock"_s), line.toUtf8() + '\n',
            [](const QByteArray &received) { return received.endsWith('\n'); });
    return QString::fromUtf8(answer).trimmed();
}

QJsonObject TourDaemon::get(const QString &path) const
{
    const QByteArray request = "GET " + path.toUtf8() +
                               " HTTP/1.1\r\nHost: vantu\r\nX-Vantu-Control-Version: 1\r\n"
                               "Connection: close\r\n\r\n";
    const QByteArray answer =
        ask(file(u"control.sock"_s), request, [](const QByteArray &) { return false; });
    const qsizetype body = answer.indexOf("\r\n\r\n");
    return answer.startsWith("HTTP/1.1 200") ? QJsonDocument::fromJson(answer.mid(body)).object()
                                             : QJsonObject();
}

QJsonValue TourDaemon::status(const QString &path) const
{
    QJsonValue value = QJsonDocument::fromJson(command(u"status"_s).toUtf8()).object();
    for (const QString &name : path.split(u'.')) {
        value = value.toObject().value(name);
    }
    return value;
}
