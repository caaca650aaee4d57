#pragma once

#include "Core/Mcp/OrvMcpHandler.h"
#include "Tests/Support/OrvManualGameThread.h"

#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief Sends one request body, then runs the game thread until idle; returns every response text. */
    std::vector<std::string> OrvSendMcpRequest(FOrvMcpHandler& Handler, FOrvManualGameThread& GameThread,
                                               std::string_view Body);

    /** @brief JSON text condensed, members in their order; text that is not JSON as "<not JSON: ...>". */
    std::string OrvCondensedJson(std::string_view JsonText);
} // namespace OrvWebBridge
