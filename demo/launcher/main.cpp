// The client against the simulated daemon: the very same program, on a private
// socket, with preferences and an instance name of its own.

#include "DemoDaemon.h"
#include "Startup.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kUsage =
    "Usage: vantu-demo [--scenario NAME] [--nodes N] [--latency MS] [--seed S]\n"
    "Runs the client against the simulated daemon. `vantu-simd --list` names\n"
    "the scenarios.\n";

bool isDaemonOption(const char *argument)
{
    for (const char *option : {"--scenario", "--nodes", "--latency", "--seed"}) {
        if (std::strcmp(argument, option) == 0) {
            return true;
        }
    }
    return false;
}

/// The arguments that the daemon understands, each with its value.
QStringList daemonArguments(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i + 1 < argc; ++i) {
        if (isDaemonOption(argv[i])) {
            arguments << QString::fromLocal8Bit(argv[i]) << QString::fromLocal8Bit(argv[i + 1]);
            ++i;
        }
    }
    return arguments;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--help") == 0) {
        std::fputs(kUsage, stdout);
        return 0;
    }
    const QString self = QFileInfo(u"/proc/self/exe"_s).symLinkTarget();
    const QString program = QFileInfo(self).path() + u"/vantu-simd"_s;
    DemoDaemon daemon;
    QString error;
    if (!daemon.start(program, daemonArguments(argc, argv), &error)) {
        std::fprintf(stderr, "vantu-demo: %s\n", qUtf8Printable(error));
        return 1;
    }
    std::printf("Simulated daemon: %s (commands: %s)\n", qUtf8Printable(daemon.socketPath()),
                qUtf8Printable(daemon.controlPath()));
    std::fflush(stdout);
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(daemon.configDirectory()));

    const StartupResult result =
        runVantu(argc, argv, {daemon.socketPath(), u"com.vantuvpn.Vantu.demo.%1"_s});
    if (!result.restarted) {
        daemon.stop();
    }
    return result.exitStatus;
}
