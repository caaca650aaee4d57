#pragma once

#include "Core/Mcp/OrvMcpHandler.h"
#include "Tests/Support/OrvManualGameThread.h"

#include <string>
#include <string_view>
#include <vector>

/**
 * @brief Sends one request body to the handler, then runs the game thread until it is idle, so tools
 * that complete later have answered. Returns every response text received (one is the contract).
 */
std::vector<std::string> OrvSendMcpRequest(FOrvMcpHandler& Handler, FOrvManualGameThread& GameThread,
                                           std::string_view Body);

/**
 * @brief The JSON text rewritten without whitespace, members kept in their order: compares content and
 * key order while ignoring layout. Text that is not JSON comes back as "<not JSON: ...>".
 */
std::string OrvCondensedJson(std::string_view JsonText);
