#pragma once

#include "Core/Json/OrvJsonWriter.h"
#include "Core/Mcp/OrvMcpContent.h"
#include "Core/Mcp/OrvMcpPorts.h"
#include "Core/Tools/OrvViewportCapture.h"

#include "Core/Json/OrvRapidJson.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /**
     * @brief Turns one JSON-RPC request text into one response text (the MCP server side).
     *
     * Answers initialize, ping, notifications/initialized and tools/list at once and routes tools/call to
     * the nine editor tools, which queue their editor work on the game thread and complete later. Keeps no
     * protocol state between requests. Transport-free: the HTTP endpoint and the tests call HandleRequest.
     */
    class FOrvMcpHandler
    {
    public:
        /** Receives the serialised response envelope (pretty JSON text). */
        using FOrvResponseCallback = std::function<void(std::string ResponseText)>;

        /** Writes the members of a "result" object. */
        using FOrvResultWriter = std::function<void(FOrvJsonWriter& Writer)>;

        explicit FOrvMcpHandler(const FOrvMcpPorts& InPorts);

        /** The only entry point: calls OnResponse at most once (only if set), possibly after returning. */
        void HandleRequest(std::string_view Body, FOrvResponseCallback OnResponse);

        /** Writes the members of the initialize result (protocolVersion, capabilities, serverInfo). */
        static void BuildInitializeResult(FOrvJsonWriter& Writer);

        /** Writes the members of the tools/list result: the nine tools with descriptions and schemas. */
        static void BuildToolsList(FOrvJsonWriter& Writer);

        /** {"jsonrpc":"2.0","id":Id,"result":{...}} as pretty text; WriteResult writes the result's members.
         */
        static std::string MakeResultEnvelope(const rapidjson::Value& Id,
                                              const FOrvResultWriter& WriteResult);

        /** {"jsonrpc":"2.0","id":Id,"error":{"code":Code,"message":Message}} as pretty text. */
        static std::string MakeErrorEnvelope(const rapidjson::Value& Id, std::int32_t Code,
                                             std::string_view Message);

        /** The result envelope of a tool call: {"content":[block]}. */
        static std::string MakeToolResultEnvelope(const rapidjson::Value& Id, const FOrvMcpContent& Content);

        /** A text content block. */
        static FOrvMcpContent MakeContentText(std::string Text);

        /** An image content block from standard Base64 text. */
        static FOrvMcpContent MakeContentImage(std::string Base64Data, std::string MimeType);

    private:
        using FOrvEnvelopeCallback = std::function<void(std::string EnvelopeText)>;

        void DispatchRequest(const std::shared_ptr<rapidjson::Document>& Request,
                             FOrvEnvelopeCallback OnComplete);
        void ExecuteTool(std::string_view Name, const rapidjson::Value& Arguments,
                         FOrvMcpToolCompletion OnComplete);

        // Scene tools.
        void ToolUeListScene(const rapidjson::Value& Arguments, FOrvMcpToolCompletion OnComplete);
        void ToolUeGetCamera(const rapidjson::Value& Arguments, FOrvMcpToolCompletion OnComplete);
        void ToolUeSpawnProduct(const rapidjson::Value& Arguments, FOrvMcpToolCompletion OnComplete);
        void ToolUeMoveActor(const rapidjson::Value& Arguments, FOrvMcpToolCompletion OnComplete);
        void ToolUeDeleteActor(const rapidjson::Value& Arguments, FOrvMcpToolCompletion OnComplete);

        // Asset and view tools.
        void ToolUeListAvailableAssets(const rapidjson::Value& Arguments, FOrvMcpToolCompletion OnComplete);
        void ToolUeCaptureView(const rapidjson::Value& Arguments, FOrvMcpToolCompletion OnComplete);
        void ToolUeGetAssetBounds(const rapidjson::Value& Arguments, FOrvMcpToolCompletion OnComplete);
        void ToolUePlacementGuide(const rapidjson::Value& Arguments, FOrvMcpToolCompletion OnComplete);

        FOrvMcpPorts Ports;
        std::shared_ptr<FOrvViewportCapture> Capture;
    };
} // namespace OrvWebBridge
