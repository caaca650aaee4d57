#include "Host/OrvHostCommands.h"

#include <cstdio>

int RunCardsCommand(const FOrvCardsOptions&)
{
    std::fprintf(stderr, "orv-host cards: not available in this build yet\n");
    return 2;
}
