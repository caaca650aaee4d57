#include "Core/Mcp/OrvMcpHandler.h"

#include "Core/Common/OrvConstants.h"
#include "Core/Common/OrvStrings.h"
#include "Core/Json/OrvJson.h"

#include <utility>

namespace OrvWebBridge
{
    namespace
    {
        // Never negotiated: whatever the client asks for, this is the version we speak.
        constexpr std::string_view OrvMcpProtocolVersion = "2025-06-18";

        constexpr std::int32_t OrvMcpParseErrorCode = -32700;
        constexpr std::int32_t OrvMcpMethodNotFoundCode = -32601;
        constexpr std::int32_t OrvMcpInvalidParamsCode = -32602;
        constexpr std::int32_t OrvMcpInternalErrorCode = -32603;

        // Room for the envelope around a result or a content block, so the common answers fit the first
        // allocation.
        constexpr std::size_t OrvMcpEnvelopeReserve = 192;

        // The id of a request that has none, and the arguments of a call that sent none: both answer as
        // values that outlive any request, so tools that complete later can still point at them.
        const rapidjson::Value& OrvMcpNullId()
        {
            static const rapidjson::Value NullId;
            return NullId;
        }

        const rapidjson::Value& OrvMcpEmptyArguments()
        {
            static const rapidjson::Value EmptyObject(rapidjson::kObjectType);
            return EmptyObject;
        }

        void OrvMcpRespond(const FOrvMcpHandler::FOrvResponseCallback& OnResponse, std::string Text)
        {
            if (OnResponse)
            {
                OnResponse(std::move(Text));
            }
        }

        using FOrvMcpToolBody = void (FOrvMcpHandler::*)(const rapidjson::Value&, FOrvMcpToolCompletion);

        // The tool list never changes while the server runs (listChanged is false), so its text after the
        // id is written once; each answer then only writes the id in front of it.
        std::string OrvMcpToolsListEnvelope(const rapidjson::Value& Id)
        {
            static const std::string Tail = []
            {
                const std::string Full =
                    FOrvMcpHandler::MakeResultEnvelope(OrvMcpNullId(), &FOrvMcpHandler::BuildToolsList);
                return Full.substr(Full.find(",\r\n\t\"result\":"));
            }();
            std::string Out;
            Out.reserve(64 + Tail.size());
            FOrvJsonWriter Writer(Out);
            Writer.BeginObject();
            Writer.String("jsonrpc", "2.0");
            Writer.CondensedValue("id", Id);
            Out.append(Tail);
            return Out;
        }
    } // namespace

    FOrvMcpHandler::FOrvMcpHandler(const FOrvMcpPorts& InPorts)
        : Ports(InPorts), Capture(std::make_shared<FOrvViewportCapture>())
    {
    }

    void FOrvMcpHandler::HandleRequest(std::string_view Body, FOrvResponseCallback OnResponse)
    {
        auto Request = std::make_shared<rapidjson::Document>();
        if (!FOrvJson::ParseObject(Body, *Request))
        {
            OrvMcpRespond(OnResponse, MakeErrorEnvelope(OrvMcpNullId(), OrvMcpParseErrorCode,
                                                        "Parse error: invalid JSON"));
            return;
        }
        DispatchRequest(Request, std::move(OnResponse));
    }

    void FOrvMcpHandler::DispatchRequest(const std::shared_ptr<rapidjson::Document>& Request,
                                         FOrvEnvelopeCallback OnComplete)
    {
        const rapidjson::Value* Method = FOrvJson::FindField(*Request, "method");
        const std::string_view MethodName =
            Method && Method->IsString() ? FOrvJson::View(*Method) : std::string_view();
        const rapidjson::Value* FoundId = FOrvJson::FindField(*Request, "id");
        const rapidjson::Value& Id = FoundId ? *FoundId : OrvMcpNullId();

        if (FOrvStrings::EqualsIgnoreCase(MethodName, "initialize"))
        {
            OrvMcpRespond(OnComplete, MakeResultEnvelope(Id, &FOrvMcpHandler::BuildInitializeResult));
        }
        else if (FOrvStrings::EqualsIgnoreCase(MethodName, "notifications/initialized") ||
                 FOrvStrings::EqualsIgnoreCase(MethodName, "ping"))
        {
            // Notifications are answered like requests (id null, empty result): clients rely on a reply.
            OrvMcpRespond(OnComplete, MakeResultEnvelope(Id, [](FOrvJsonWriter&) {}));
        }
        else if (FOrvStrings::EqualsIgnoreCase(MethodName, "tools/list"))
        {
            OrvMcpRespond(OnComplete, OrvMcpToolsListEnvelope(Id));
        }
        else if (FOrvStrings::EqualsIgnoreCase(MethodName, "tools/call"))
        {
            const rapidjson::Value* Params = FOrvJson::TryGetObjectField(*Request, "params");
            if (!Params)
            {
                OrvMcpRespond(OnComplete, MakeErrorEnvelope(Id, OrvMcpInvalidParamsCode,
                                                            "Missing params for tools/call"));
                return;
            }
            const rapidjson::Value* Name = FOrvJson::FindField(*Params, "name");
            if (!Name || !Name->IsString())
            {
                OrvMcpRespond(OnComplete,
                              MakeErrorEnvelope(Id, OrvMcpInvalidParamsCode, "Missing tool name"));
                return;
            }
            const rapidjson::Value* Arguments = FOrvJson::TryGetObjectField(*Params, "arguments");

            // The tool may complete after this returns: the completion keeps the request, and with it the
            // id, alive until then.
            const rapidjson::Value* IdInRequest = &Id;
            ExecuteTool(FOrvJson::View(*Name), Arguments ? *Arguments : OrvMcpEmptyArguments(),
                        [Request, IdInRequest, OnComplete = std::move(OnComplete)](FOrvMcpToolResult Result)
                        {
                            if (Result)
                            {
                                OrvMcpRespond(OnComplete, MakeToolResultEnvelope(*IdInRequest, *Result));
                            }
                            else
                            {
                                OrvMcpRespond(OnComplete,
                                              MakeErrorEnvelope(*IdInRequest, OrvMcpInternalErrorCode,
                                                                "Tool returned no result"));
                            }
                        });
        }
        else
        {
            std::string Message = "Method not found: ";
            Message.append(MethodName);
            OrvMcpRespond(OnComplete, MakeErrorEnvelope(Id, OrvMcpMethodNotFoundCode, Message));
        }
    }

    void FOrvMcpHandler::ExecuteTool(std::string_view Name, const rapidjson::Value& Arguments,
                                     FOrvMcpToolCompletion OnComplete)
    {
        struct FOrvMcpToolEntry
        {
            std::string_view Name;
            FOrvMcpToolBody Body;
        };
        static constexpr FOrvMcpToolEntry Tools[] = {
            {"ue_list_scene", &FOrvMcpHandler::ToolUeListScene},
            {"ue_get_camera", &FOrvMcpHandler::ToolUeGetCamera},
            {"ue_list_available_assets", &FOrvMcpHandler::ToolUeListAvailableAssets},
            {"ue_capture_view", &FOrvMcpHandler::ToolUeCaptureView},
            {"ue_spawn_product", &FOrvMcpHandler::ToolUeSpawnProduct},
            {"ue_move_actor", &FOrvMcpHandler::ToolUeMoveActor},
            {"ue_delete_actor", &FOrvMcpHandler::ToolUeDeleteActor},
            {"ue_get_asset_bounds", &FOrvMcpHandler::ToolUeGetAssetBounds},
            {"ue_placement_guide", &FOrvMcpHandler::ToolUePlacementGuide},
        };
        for (const FOrvMcpToolEntry& Tool : Tools)
        {
            if (FOrvStrings::EqualsIgnoreCase(Name, Tool.Name))
            {
                (this->*Tool.Body)(Arguments, std::move(OnComplete));
                return;
            }
        }

        // Not a protocol error: the catalogue tools live in the separate hub server, and the client's
        // model should read why.
        std::string Text = "Unknown tool: ";
        Text.append(Name);
        Text.append(
            ". (Catalog tools are served by the ORVESSA Hub \xE2\x80\x94 make sure 'orvessa' npm package is "
            "configured in your MCP client.)");
        OnComplete(MakeContentText(std::move(Text)));
    }

    // The id is echoed as received; one that is an array or an object (which JSON-RPC does not allow) is
    // written condensed, so that an answer never grows faster than its request.
    std::string FOrvMcpHandler::MakeResultEnvelope(const rapidjson::Value& Id,
                                                   const FOrvResultWriter& WriteResult)
    {
        std::string Out;
        Out.reserve(OrvMcpEnvelopeReserve);
        FOrvJsonWriter Writer(Out);
        Writer.BeginObject();
        Writer.String("jsonrpc", "2.0");
        Writer.CondensedValue("id", Id);
        Writer.BeginObject("result");
        WriteResult(Writer);
        Writer.EndObject();
        Writer.EndObject();
        return Out;
    }

    std::string FOrvMcpHandler::MakeErrorEnvelope(const rapidjson::Value& Id, std::int32_t Code,
                                                  std::string_view Message)
    {
        std::string Out;
        Out.reserve(OrvMcpEnvelopeReserve + Message.size());
        FOrvJsonWriter Writer(Out);
        Writer.BeginObject();
        Writer.String("jsonrpc", "2.0");
        Writer.CondensedValue("id", Id);
        Writer.BeginObject("error");
        Writer.Integer("code", Code);
        Writer.String("message", Message);
        Writer.EndObject();
        Writer.EndObject();
        return Out;
    }

    std::string FOrvMcpHandler::MakeToolResultEnvelope(const rapidjson::Value& Id,
                                                       const FOrvMcpContent& Content)
    {
        // A capture is megabytes of Base64: size the text once so the image is copied exactly one time.
        // Text results are tools' pretty JSON, whose quotes and line ends grow when escaped.
        std::string Out;
        Out.reserve(OrvMcpEnvelopeReserve + Content.Text.size() + Content.MimeType.size() +
                    (Content.Kind == FOrvMcpContent::EKind::Text ? Content.Text.size() / 4 : 0));
        FOrvJsonWriter Writer(Out);
        Writer.BeginObject();
        Writer.String("jsonrpc", "2.0");
        Writer.CondensedValue("id", Id);
        Writer.BeginObject("result");
        Writer.BeginArray("content");
        Writer.BeginObject();
        if (Content.Kind == FOrvMcpContent::EKind::Image)
        {
            Writer.String("type", "image");
            Writer.UnescapedString("data", Content.Text);
            Writer.String("mimeType", Content.MimeType);
        }
        else
        {
            Writer.String("type", "text");
            Writer.String("text", Content.Text);
        }
        Writer.EndObject();
        Writer.EndArray();
        Writer.EndObject();
        Writer.EndObject();
        return Out;
    }

    FOrvMcpContent FOrvMcpHandler::MakeContentText(std::string Text)
    {
        FOrvMcpContent Content;
        Content.Kind = FOrvMcpContent::EKind::Text;
        Content.Text = std::move(Text);
        return Content;
    }

    FOrvMcpContent FOrvMcpHandler::MakeContentImage(std::string Base64Data, std::string MimeType)
    {
        FOrvMcpContent Content;
        Content.Kind = FOrvMcpContent::EKind::Image;
        Content.Text = std::move(Base64Data);
        Content.MimeType = std::move(MimeType);
        return Content;
    }

    void FOrvMcpHandler::BuildInitializeResult(FOrvJsonWriter& Writer)
    {
        const std::string SiteBaseUrl = FOrvConstants::CatalogSiteBaseUrl;
        Writer.String("protocolVersion", OrvMcpProtocolVersion);
        Writer.BeginObject("capabilities");
        Writer.BeginObject("tools");
        Writer.Bool("listChanged", false);
        Writer.EndObject();
        Writer.EndObject();
        Writer.BeginObject("serverInfo");
        Writer.String("name", "ORVESSA");
        Writer.String("version", "1.1.0");
        Writer.String("iconUrl", SiteBaseUrl + "/img/logo-square.svg");
        Writer.String("homepage", SiteBaseUrl + "/integrations/mcp");
        Writer.String("vendor", "ORVESSA Srl");
        Writer.EndObject();
    }
} // namespace OrvWebBridge
