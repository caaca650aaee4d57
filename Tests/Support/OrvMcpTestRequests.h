#pragma once

#include "Core/Mcp/OrvMcpHandler.h"
#include "Tests/Support/OrvManualGameThread.h"

#include "Core/Json/OrvRapidJson.h"

#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /** @brief Sends one request body and runs the game thread until idle; the one response text (empty, and
     * the test failed, unless exactly one came). */
    std::string OrvSendMcpRequest(FOrvMcpHandler& Handler, FOrvManualGameThread& GameThread,
                                  std::string_view Body);

    /** @brief JSON text condensed, members in their order; text that is not JSON as "<not JSON: ...>". */
    std::string OrvCondensedJson(std::string_view JsonText);

    /** @brief A tools/call request body; with ArgumentsJson empty it has no arguments member. */
    std::string OrvToolCallRequest(std::string_view Name, std::string_view ArgumentsJson);

    /** @brief The one content block a tools/call answered with, as a client reads it. */
    struct FOrvToolReply
    {
        bool bAnsweredBeforePump = false; ///< a response arrived before the game thread ran
        std::string Type;                 ///< "text" or "image"; empty when the answer was no tool result
        std::string Text;                 ///< the text, or the image's Base64 data
        std::string MimeType;             ///< images only
        std::string Envelope;             ///< the whole response text

        rapidjson::Document Json() const; ///< the text parsed as JSON

        /** The block of one tools/call response envelope; Type stays empty when it holds no single block. */
        static FOrvToolReply Parse(std::string Envelope);
    };
} // namespace OrvWebBridge
