#pragma once

#include <functional>
#include <optional>
#include <string>

namespace OrvWebBridge
{
    /** @brief The one content block of a tool result: text (structured results as JSON text) or an image. */
    struct FOrvMcpContent
    {
        enum class EKind
        {
            Text,
            Image,
        };

        EKind Kind = EKind::Text;
        std::string Text;     ///< the text, or the standard Base64 of the image bytes
        std::string MimeType; ///< images only, e.g. "image/jpeg"
    };

    /** @brief What a tool completes with; nothing stands for "no result object" (JSON-RPC error -32603). */
    using FOrvMcpToolResult = std::optional<FOrvMcpContent>;

    /** @brief A tool's completion: called exactly once, possibly after the tool body returned. */
    using FOrvMcpToolCompletion = std::function<void(FOrvMcpToolResult Result)>;
} // namespace OrvWebBridge
