// What a start and a quiet minute of the client cost, beside a bare tray icon, and how
// soon it ends. Both programs are started in turns within one run, so that they meet the
// same machine.

#include "ProcessCost.h"
#include "TrayHost.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDefaultRounds = 15;
constexpr int kDefaultIdleSeconds = 60;
constexpr int kSettleMs = 3000;
constexpr int kDeadlineMs = 10000;
constexpr int kQuitRounds = 5;

void pause(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

struct Run
{
    double registeredMs = 0;
    double residentKiB = 0;
};

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0 : values.at(values.size() / 2);
}

std::unique_ptr<QProcess> start(const QString &program)
{
    auto process = std::make_unique<QProcess>();
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(program, QStringList());
    return process;
}

/// Waits for an icon, and returns how long; negative when none came.
double msUntilRegistered(TrayHost &host, const QElapsedTimer &elapsed)
{
    while (host.items().isEmpty()) {
        if (elapsed.elapsed() > kDeadlineMs) {
            return -1;
        }
        pause(1);
    }
    return static_cast<double>(elapsed.nsecsElapsed()) / 1e6;
}

/// Starts `program` and waits for its icon; empty when none came.
std::unique_ptr<QProcess> startUntilRegistered(TrayHost &host, const QString &program, double &ms)
{
    QElapsedTimer elapsed;
    elapsed.start();
    auto process = start(program);
    ms = msUntilRegistered(host, elapsed);
    return ms < 0 ? std::unique_ptr<QProcess>() : std::move(process);
}

void end(TrayHost &host, QProcess &process)
{
    process.kill();
    process.waitForFinished();
    while (!host.items().isEmpty()) {
        pause(5);
    }
}

bool measure(TrayHost &host, const QString &program, QList<Run> &runs)
{
    Run run;
    const auto process = startUntilRegistered(host, program, run.registeredMs);
    if (!process) {
        std::fprintf(stderr, "%s showed no icon\n", qUtf8Printable(program));
        return false;
    }
    pause(kSettleMs);
    run.residentKiB = static_cast<double>(processCost(process->processId()).residentKiB);
    runs << run;
    end(host, *process);
    return true;
}

void printIdle(TrayHost &host, const char *name, const QString &program, int seconds)
{
    double ms = 0;
    const auto process = startUntilRegistered(host, program, ms);
    if (!process) {
        return;
    }
    pause(kSettleMs);
    const ProcessCost before = processCost(process->processId());
    pause(seconds * 1000);
    const ProcessCost after = processCost(process->processId());
    std::printf("%-12s idle %d s: %lld ms of CPU, %lld wake-ups\n", name, seconds,
                static_cast<long long>(after.cpuMs - before.cpuMs),
                static_cast<long long>(after.wakeUps - before.wakeUps));
    std::fflush(stdout);
    end(host, *process);
}

/// A panel that comes after the client, and one that comes back from the dead.
void printPanel(TrayHost &host, const QString &client)
{
    QList<double> took;
    host.stop();
    const auto process = start(client);
    for (int coming = 0; coming < 2; ++coming) {
        pause(kSettleMs);
        QElapsedTimer elapsed;
        elapsed.start();
        if (!host.start()) {
            return;
        }
        took << msUntilRegistered(host, elapsed);
        host.stop();
    }
    host.start();
    end(host, *process);
    std::printf("client       registered %.0f ms after a late panel, %.0f ms after one that died\n",
                took.at(0), took.at(1));
}

/// Ends the client by SIGTERM while every request that it has sent waits for an answer.
/// The daemon stays that slow, so this comes last.
void printQuit(TrayHost &host, const QString &client, const QString &daemonControl)
{
    QLocalSocket daemon;
    daemon.connectToServer(daemonControl);
    const auto tell = [&](const char *command) {
        daemon.write(command);
        return daemon.waitForReadyRead() && !daemon.readAll().isEmpty();
    };
    QList<double> took;
    for (int round = 0; round < kQuitRounds; ++round) {
        double ms = 0;
        const bool quick = tell("set latency 0\n");
        const auto process = startUntilRegistered(host, client, ms);
        pause(kSettleMs);
        if (!quick || !process || !tell("set latency 60000\n") || !host.click(u"Connect"_s)) {
            std::fprintf(stderr, "could not set up the hung connect\n");
            return;
        }
        pause(200);
        QElapsedTimer elapsed;
        elapsed.start();
        process->terminate();
        while (process->state() != QProcess::NotRunning && elapsed.elapsed() < kDeadlineMs) {
            pause(1);
        }
        took << static_cast<double>(elapsed.nsecsElapsed()) / 1e6;
        end(host, *process);
    }
    std::printf("client       ends %.0f ms after SIGTERM with a hung connect, at most %.0f ms\n",
                median(took), *std::max_element(took.cbegin(), took.cend()));
}

double medianOf(const QList<Run> &runs, double Run::*member)
{
    QList<double> values;
    for (const Run &run : runs) {
        values << run.*member;
    }
    return median(values);
}

/// A demonstration directory with a running daemon, and a client that starts hidden.
bool prepareDemo(const QString &directory, QProcess &daemon)
{
    QDir().mkpath(directory + u"/config/VantuVPN"_s);
    QFile preferences(directory + u"/config/VantuVPN/Vantu.ini"_s);
    if (!preferences.open(QIODevice::WriteOnly)) {
        return false;
    }
    preferences.write("[window]\nshowOnLaunch=false\n");
    preferences.close();
    daemon.setStandardOutputFile(QProcess::nullDevice());
    daemon.start(QString::fromUtf8(VANTU_SIMD), {u"--socket"_s, directory + u"/control.sock"_s,
                                                 u"--control"_s, directory + u"/simd.sock"_s});
    if (!daemon.waitForStarted()) {
        return false;
    }
    qputenv("VANTU_DEMO_DIRECTORY", QFile::encodeName(directory));
    qputenv("VANTU_DEMO_DAEMON_PID", QByteArray::number(daemon.processId()));
    pause(500);
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int rounds = arguments.value(1, QString::number(kDefaultRounds)).toInt();
    const int idleSeconds = arguments.value(2, QString::number(kDefaultIdleSeconds)).toInt();
    const QString bare = QString::fromUtf8(BARE_TRAY);
    const QString client = QString::fromUtf8(VANTU_DEMO);

    const QTemporaryDir directory;
    QProcess daemon;
    TrayHost host;
    if (!directory.isValid() || !host.start() || !prepareDemo(directory.path(), daemon)) {
        std::fprintf(stderr, "could not set up the bench\n");
        return 1;
    }
    QList<Run> bareRuns;
    QList<Run> clientRuns;
    for (int round = 0; round < rounds; ++round) {
        if (!measure(host, bare, bareRuns) || !measure(host, client, clientRuns)) {
            return 1;
        }
    }
    const double bareMs = medianOf(bareRuns, &Run::registeredMs);
    const double clientMs = medianOf(clientRuns, &Run::registeredMs);
    const double bareKiB = medianOf(bareRuns, &Run::residentKiB);
    const double clientKiB = medianOf(clientRuns, &Run::residentKiB);
    std::printf("%d rounds, medians\n", rounds);
    std::printf("bare icon    registered %.1f ms, resident %.1f MiB\n", bareMs, bareKiB / 1024);
    std::printf("client       registered %.1f ms (%.2fx), resident %.1f MiB (%.2fx)\n", clientMs,
                clientMs / bareMs, clientKiB / 1024, clientKiB / bareKiB);
    if (idleSeconds > 0) {
        printIdle(host, "bare icon", bare, idleSeconds);
        printIdle(host, "client", client, idleSeconds);
    }
    printPanel(host, client);
    printQuit(host, client, directory.path() + u"/simd.sock"_s);
    daemon.terminate();
    daemon.waitForFinished();
    return 0;
}
