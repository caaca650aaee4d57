#include "Host/OrvHostCommands.h"

#include <cstdio>

int RunOutlinerCommand(const FOrvOutlinerOptions&)
{
    std::fprintf(stderr, "orv-host outliner: not available in this build yet\n");
    return 2;
}
