#include "Host/OrvHostCommands.h"

#include <cstdio>

int RunServeCommand(const FOrvServeOptions&)
{
    std::fprintf(stderr, "orv-host serve: not available in this build yet\n");
    return 2;
}
