#include "SimControlSocket.h"
#include "SimDaemon.h"
#include "SimScenario.h"
#include "SimServer.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QTextStream>

#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct Arguments
{
    SimOptions options;
    QString controlPath;
    int idleSeconds = 0; // 0 = stay
};

void say(FILE *stream, const QString &text)
{
    QTextStream(stream) << text;
}

QString scenarioList()
{
    QString list;
    for (const SimScenario &scenario : SimScenario::all()) {
        list += u"%1  %2\n"_s.arg(scenario.name, -16).arg(scenario.summary);
    }
    return list;
}

/// A number that is at least the lowest one allowed, or nothing.
std::optional<int> number(const QCommandLineParser &parser, const QString &name, int lowest)
{
    bool isNumber = false;
    const int value = parser.value(name).toInt(&isNumber);
    if (!isNumber || value < lowest) {
        say(stderr, u"vantu-simd: --%1 must be a number from %2\n"_s.arg(name).arg(lowest));
        return std::nullopt;
    }
    return value;
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        u"A simulated Vantu daemon: answers the control API from a model, moves no traffic.\n\n"
        "Commands of the control socket, one a line:\n%1"_s.arg(SimDaemon::commandHelp()));
    parser.addHelpOption();
    parser.addOptions({
        {u"socket"_s, u"Serve the control API at PATH."_s, u"PATH"_s},
        {u"scenario"_s, u"Start in scenario NAME."_s, u"NAME"_s, u"normal"_s},
        {u"nodes"_s, u"Have N nodes instead of the scenario's number."_s, u"N"_s},
        {u"latency"_s, u"Delay every answer by MS milliseconds."_s, u"MS"_s, u"0"_s},
        {u"seed"_s, u"Generate the catalogue from S."_s, u"S"_s, u"1"_s},
        {u"control"_s, u"Take commands at PATH."_s, u"PATH"_s},
        {u"exit-when-idle"_s, u"End after S seconds without a request."_s, u"S"_s, u"0"_s},
        {u"list"_s, u"List the scenarios."_s},
    });
}

std::optional<Arguments> read(const QCommandLineParser &parser)
{
    Arguments arguments;
    SimOptions &options = arguments.options;
    options.scenario = parser.value(u"scenario"_s);
    if (!SimScenario::find(options.scenario)) {
        say(stderr, u"vantu-simd: no such scenario: %1\n"_s.arg(options.scenario));
        return std::nullopt;
    }
    if (parser.value(u"socket"_s).isEmpty()) {
        say(stderr, u"vantu-simd: --socket PATH is needed (see --help)\n"_s);
        return std::nullopt;
    }
    options.socketPath = QFileInfo(parser.value(u"socket"_s)).absoluteFilePath();
    options.directory = options.socketPath + u".d"_s;
    arguments.controlPath = parser.value(u"control"_s);
    const auto latency = number(parser, u"latency"_s, 0);
    const auto seed = number(parser, u"seed"_s, 0);
    const auto idle = number(parser, u"exit-when-idle"_s, 0);
    const auto nodes = parser.isSet(u"nodes"_s) ? number(parser, u"nodes"_s, 0) : std::optional(-1);
    if (!latency || !seed || !idle || !nodes) {
        return std::nullopt;
    }
    options.latencyMs = *latency;
    options.seed = quint32(*seed);
    options.nodes = *nodes;
    arguments.idleSeconds = *idle;
    return arguments;
}

/// Waits for a signal that ends the program, or for the idle limit.
void waitForTheEnd(const sigset_t &signalSet, const SimDaemon &daemon, int idleSeconds)
{
    const timespec second{1, 0};
    while (true) {
        const int caught = idleSeconds > 0 ? sigtimedwait(&signalSet, nullptr, &second)
                                           : sigwaitinfo(&signalSet, nullptr);
        const bool idle = idleSeconds > 0 && daemon.idleFor() >= std::chrono::seconds(idleSeconds);
        if (caught > 0 || idle || (errno != EAGAIN && errno != EINTR)) {
            return;
        }
    }
}

int run(const Arguments &arguments)
{
    // Blocked before any thread starts, so that only waitForTheEnd() sees them.
    sigset_t signalSet;
    sigemptyset(&signalSet);
    sigaddset(&signalSet, SIGINT);
    sigaddset(&signalSet, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signalSet, nullptr);

    SimOptions options = arguments.options;
    options.onQuit = [] { ::kill(::getpid(), SIGTERM); };
    SimDaemon daemon(options);
    SimServer server(daemon);
    SimControlSocket control(daemon);
    if (const QString problem = server.listen(options.socketPath); !problem.isEmpty()) {
        say(stderr, u"vantu-simd: %1 %2\n"_s.arg(options.socketPath, problem));
        return 1;
    }
    if (!arguments.controlPath.isEmpty()) {
        if (const QString problem = control.listen(arguments.controlPath); !problem.isEmpty()) {
            say(stderr, u"vantu-simd: %1 %2\n"_s.arg(arguments.controlPath, problem));
            return 1;
        }
    }
    say(stdout, u"vantu-simd: scenario %1 at %2\n"_s.arg(options.scenario, options.socketPath));
    waitForTheEnd(signalSet, daemon, arguments.idleSeconds);
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(application);
    if (parser.isSet(u"list"_s)) {
        say(stdout, scenarioList());
        return 0;
    }
    const std::optional<Arguments> arguments = read(parser);
    return arguments ? run(*arguments) : 2;
}
