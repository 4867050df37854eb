#include "Startup.h"

int main(int argc, char **argv)
{
    return runVantu(argc, argv).exitStatus;
}
