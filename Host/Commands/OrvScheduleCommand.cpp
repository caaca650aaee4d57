#include "Host/OrvHostCommands.h"

#include <cstdio>

int RunScheduleCommand(const FOrvScheduleOptions&)
{
    std::fprintf(stderr, "orv-host schedule: not available in this build yet\n");
    return 2;
}
