#include "Core/Mcp/OrvMcpServer.h"

#include "Core/Common/OrvLogging.h"
#include "Core/Common/OrvUtf8.h"
#include "Core/Mcp/OrvMcpHandler.h"

#include <string>
#include <string_view>
#include <utility>

namespace OrvWebBridge
{
    namespace
    {
        constexpr std::string_view OrvMcpServerHealthBody = R"({"status":"ok","service":"orvessa-ue-mcp"})";

        // One endpoint event, then the reply is complete: the client learns to POST to /sse and no
        // stream is held open.
        constexpr std::string_view OrvMcpServerEndpointEvent = "event: endpoint\ndata: /sse\n\n";

        std::unique_ptr<FOrvHttpResponse> OrvMcpServerMakeResponse(std::string Body,
                                                                   std::string_view ContentType)
        {
            auto Response = std::make_unique<FOrvHttpResponse>();
            Response->ContentType = ContentType;
            Response->Body = std::move(Body);
            return Response;
        }

        FOrvHttpRequestHandler
        OrvMcpServerMakeJsonRpcRoute(const FOrvMcpServer::FOrvHandlerAccessor& GetHandler)
        {
            return [GetHandler](const FOrvHttpRequest& Request, const FOrvHttpResultCallback& OnComplete)
            {
                auto OnResponse = [OnComplete](std::string ResponseText)
                {
                    std::unique_ptr<FOrvHttpResponse> Response =
                        OrvMcpServerMakeResponse(std::move(ResponseText), "application/json");
                    Response->Headers.emplace_back("Access-Control-Allow-Origin", "*");
                    OnComplete(std::move(Response));
                };
                // Nearly every body is valid UTF-8 already; only a broken one pays for a decoded copy.
                if (FOrvUtf8::IsValid(Request.Body))
                {
                    GetHandler().HandleRequest(Request.Body, std::move(OnResponse));
                }
                else
                {
                    GetHandler().HandleRequest(FOrvUtf8::MakeValid(Request.Body), std::move(OnResponse));
                }
                return true;
            };
        }
    } // namespace

    FOrvMcpServer::FOrvMcpServer(IOrvHttpServerModule& InHttpServer, IOrvLog& InLog,
                                 FOrvHandlerAccessor InGetHandler)
        : HttpServer(InHttpServer), Log(InLog), GetHandler(std::move(InGetHandler))
    {
    }

    FOrvMcpServer::~FOrvMcpServer()
    {
        Stop();
    }

    bool FOrvMcpServer::Start(std::uint32_t InPort)
    {
        if (bRunning)
        {
            return true;
        }
        Router = HttpServer.GetHttpRouter(InPort, false);
        if (!Router)
        {
            OrvLogf(Log, EOrvLogCategory::LogOrvMcp, EOrvLogVerbosity::Warning,
                    "Orv MCP: failed to acquire HTTP router on port %u", InPort);
            return false;
        }
        RegisterRoutes();
        HttpServer.StartAllListeners();
        Port = InPort;
        bRunning = true;
        OrvLogf(Log, EOrvLogCategory::LogOrvMcp, EOrvLogVerbosity::Log,
                "Orv MCP: server listening on http://127.0.0.1:%u", InPort);
        return true;
    }

    void FOrvMcpServer::Stop()
    {
        if (!bRunning)
        {
            return;
        }
        if (Router)
        {
            for (const FOrvHttpRouteHandle& Handle : RouteHandles)
            {
                Router->UnbindRoute(Handle);
            }
        }
        RouteHandles.clear();
        RouteHandles.shrink_to_fit();
        // Stops every listener of the process, not only this port's: the HTTP server offers nothing finer.
        HttpServer.StopAllListeners();
        Router.reset();
        Port = 0;
        bRunning = false;
        OrvLogf(Log, EOrvLogCategory::LogOrvMcp, EOrvLogVerbosity::Log, "Orv MCP: server stopped");
    }

    void FOrvMcpServer::RegisterRoutes()
    {
        RouteHandles.push_back(Router->BindRoute(
            "/health", EOrvHttpVerb::Get,
            [](const FOrvHttpRequest&, const FOrvHttpResultCallback& OnComplete)
            {
                OnComplete(OrvMcpServerMakeResponse(std::string(OrvMcpServerHealthBody), "application/json"));
                return true;
            }));

        RouteHandles.push_back(Router->BindRoute(
            "/sse", EOrvHttpVerb::Get,
            [](const FOrvHttpRequest&, const FOrvHttpResultCallback& OnComplete)
            {
                std::unique_ptr<FOrvHttpResponse> Response =
                    OrvMcpServerMakeResponse(std::string(OrvMcpServerEndpointEvent), "text/event-stream");
                Response->Headers.emplace_back("Cache-Control", "no-cache");
                Response->Headers.emplace_back("Access-Control-Allow-Origin", "*");
                OnComplete(std::move(Response));
                return true;
            }));

        RouteHandles.push_back(
            Router->BindRoute("/sse", EOrvHttpVerb::Post, OrvMcpServerMakeJsonRpcRoute(GetHandler)));
        RouteHandles.push_back(
            Router->BindRoute("/mcp", EOrvHttpVerb::Post, OrvMcpServerMakeJsonRpcRoute(GetHandler)));
    }
} // namespace OrvWebBridge
