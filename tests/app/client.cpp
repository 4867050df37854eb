// The whole program, with the daemon that a test names and an instance name of the tests'.

#include "Startup.h"

#include <QString>

int main(int argc, char **argv)
{
    return runVantu(argc, argv,
                    {qEnvironmentVariable("VANTU_TEST_SOCKET"),
                     QStringLiteral("com.vantuvpn.Vantu.test.%1")})
        .exitStatus;
}
