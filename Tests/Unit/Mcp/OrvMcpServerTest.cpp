#include "Core/Mcp/OrvMcpServer.h"
#include "Core/Mcp/OrvMcpHandler.h"
#include "Host/Runtime/OrvHostHttpRouter.h"
#include "Tests/Support/OrvMcpTestRequests.h"
#include "Tests/Support/OrvNullEditorPorts.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    using FHeaders = std::vector<std::pair<std::string, std::string>>;

    const FHeaders AnyOrigin = {{"Access-Control-Allow-Origin", "*"}};

    auto Fields(const FOrvHttpResponse& Response)
    {
        return std::tie(Response.Code, Response.Body, Response.ContentType, Response.Headers);
    }

    /** @brief The HTTP server module without sockets: the host's route table per port, listeners counted. */
    class FOrvFakeHttpServerModule : public IOrvHttpServerModule
    {
    public:
        std::shared_ptr<IOrvHttpRouter> GetHttpRouter(std::uint32_t Port, bool) override
        {
            ++RouterRequests;
            std::shared_ptr<FOrvHostHttpRouter>& Router = Routers[Port];
            return bRefuseRouters ? nullptr
                   : Router       ? Router
                                  : Router = std::make_shared<FOrvHostHttpRouter>();
        }
        void StartAllListeners() override { ++StartCount; }
        void StopAllListeners() override { ++StopCount; }

        bool bRefuseRouters = false; ///< answer null, as a host whose port cannot be bound does
        int RouterRequests = 0;
        int StartCount = 0;
        int StopCount = 0;
        std::map<std::uint32_t, std::shared_ptr<FOrvHostHttpRouter>> Routers;
    };

    /** What one request got back so far; a deferred answer lands after Send returned. */
    struct FOrvExchange
    {
        bool bHandled = false;
        std::shared_ptr<std::vector<FOrvHttpResponse>> Responses =
            std::make_shared<std::vector<FOrvHttpResponse>>();
    };

    class FOrvMcpServerTest : public ::testing::Test
    {
    protected:
        FOrvMcpServer MakeServer()
        {
            return FOrvMcpServer(Http, Log,
                                 [this]() -> FOrvMcpHandler&
                                 {
                                     if (!SharedHandler)
                                     {
                                         SharedHandler = std::make_unique<FOrvMcpHandler>(Editor.Ports());
                                         ++HandlersMade;
                                     }
                                     return *SharedHandler;
                                 });
        }

        FOrvHostHttpRouter& Router()
        {
            std::shared_ptr<FOrvHostHttpRouter>& Found = Http.Routers[30011];
            EXPECT_NE(Found, nullptr);
            return Found ? *Found : *(Found = std::make_shared<FOrvHostHttpRouter>());
        }

        /** Delivers a request to the route bound to its path and verb, as the HTTP server would. */
        FOrvExchange Send(EOrvHttpVerb Verb, std::string_view Path, std::string Body = {})
        {
            FOrvExchange Exchange;
            if (const FOrvHttpRequestHandler Handler = Router().FindRoute(Path, Verb).Handler)
            {
                // The handler's copy of the completion is all that keeps a deferred answer deliverable.
                Exchange.bHandled =
                    Handler({Verb, std::string(Path), std::move(Body), {}, {}},
                            [Responses = Exchange.Responses](auto Response)
                            { Responses->push_back(Response ? std::move(*Response) : FOrvHttpResponse{}); });
            }
            return Exchange;
        }

        /** Posts Body and returns the single response (after the game thread ran), or an empty one. */
        FOrvHttpResponse Post(std::string_view Path, std::string Body)
        {
            const FOrvExchange Exchange = Send(EOrvHttpVerb::Post, Path, std::move(Body));
            EXPECT_TRUE(Exchange.bHandled) << Path;
            Editor.GameThread.RunPending();
            EXPECT_EQ(Exchange.Responses->size(), 1u) << Path;
            return Exchange.Responses->empty() ? FOrvHttpResponse{} : Exchange.Responses->front();
        }

        FOrvFakeHttpServerModule Http;
        FOrvRecordingLog Log;
        FOrvNullEditorPorts Editor;
        std::unique_ptr<FOrvMcpHandler> SharedHandler;
        int HandlersMade = 0;
        FOrvMcpServer Server = MakeServer();
    };
} // namespace

TEST_F(FOrvMcpServerTest, StartBindsTheFourRoutesOnceAndStopUnbindsThemOnce)
{
    ASSERT_TRUE(Server.Start(30011));
    EXPECT_TRUE(Server.Start(40000)) << "a running server stays on its port";
    EXPECT_EQ(Server.GetPort(), 30011u);
    EXPECT_EQ(Http.RouterRequests, 1);
    EXPECT_EQ(Router().GetRouteCount(), 4u);
    for (const auto& [Path, Verb] :
         {std::pair{"/health", EOrvHttpVerb::Get}, std::pair{"/sse", EOrvHttpVerb::Get},
          std::pair{"/sse", EOrvHttpVerb::Post}, std::pair{"/mcp", EOrvHttpVerb::Post}})
    {
        EXPECT_TRUE(Router().FindRoute(Path, Verb).Handler) << Path;
    }
    EXPECT_EQ(Http.StartCount, 1);
    ASSERT_EQ(Log.Lines.size(), 1u);
    EXPECT_EQ(Log.Lines[0].Category, EOrvLogCategory::LogOrvMcp);
    EXPECT_EQ(Log.Lines[0].Message, "Orv MCP: server listening on http://127.0.0.1:30011");

    Server.Stop();
    Server.Stop();
    EXPECT_FALSE(Server.IsRunning());
    EXPECT_EQ(Server.GetPort(), 0u);
    EXPECT_EQ(Router().GetRouteCount(), 0u);
    EXPECT_EQ(Http.StopCount, 1);
    EXPECT_TRUE(Log.Contains(EOrvLogVerbosity::Log, "Orv MCP: server stopped"));
    EXPECT_EQ(Log.Lines.size(), 2u);

    {
        FOrvMcpServer Scoped = MakeServer();
        ASSERT_TRUE(Scoped.Start(30011));
    }
    EXPECT_EQ(Router().GetRouteCount(), 0u) << "destroying a running server stops it";
    EXPECT_EQ(Http.StopCount, 2);
}

TEST_F(FOrvMcpServerTest, UnavailablePortFailsStartWithAWarningAndCanBeRetried)
{
    Http.bRefuseRouters = true;
    EXPECT_FALSE(Server.Start(30011));
    EXPECT_FALSE(Server.IsRunning());
    EXPECT_EQ(Http.StartCount, 0);
    EXPECT_TRUE(
        Log.Contains(EOrvLogVerbosity::Warning, "Orv MCP: failed to acquire HTTP router on port 30011"));
    Server.Stop();
    EXPECT_EQ(Http.StopCount, 0) << "a server that bound nothing must not stop other listeners";

    Http.bRefuseRouters = false;
    EXPECT_TRUE(Server.Start(30011));
    EXPECT_EQ(Router().GetRouteCount(), 4u);
}

TEST_F(FOrvMcpServerTest, GetRoutesAnswerTheirFixedTextAtOnce)
{
    ASSERT_TRUE(Server.Start(30011));
    const FOrvExchange Health = Send(EOrvHttpVerb::Get, "/health");
    const FOrvExchange Sse = Send(EOrvHttpVerb::Get, "/sse");
    ASSERT_TRUE(Health.bHandled && Sse.bHandled);
    ASSERT_EQ(Health.Responses->size(), 1u);
    ASSERT_EQ(Sse.Responses->size(), 1u);

    EXPECT_EQ(
        Fields(Health.Responses->front()),
        std::tuple(200, R"({"status":"ok","service":"orvessa-ue-mcp"})", "application/json", FHeaders{}));
    // One endpoint event and the reply is complete: no stream is held open.
    EXPECT_EQ(Fields(Sse.Responses->front()),
              std::tuple(200, "event: endpoint\ndata: /sse\n\n", "text/event-stream",
                         FHeaders{{"Cache-Control", "no-cache"}, {"Access-Control-Allow-Origin", "*"}}));
    EXPECT_EQ(HandlersMade, 0) << "the handler is made by the first JSON-RPC request, not by a probe";
}

TEST_F(FOrvMcpServerTest, PostsToMcpAndToSseGetTheSameAnswerFromOneSharedHandlerAndBrokenUtf8IsDecoded)
{
    ASSERT_TRUE(Server.Start(30011));
    const std::string Body = R"({"jsonrpc":"2.0","id":"a1","method":"ping"})";
    const FOrvHttpResponse FromMcp = Post("/mcp", Body);
    const FOrvHttpResponse FromSse = Post("/sse", Body);
    EXPECT_EQ(
        Fields(FromMcp),
        std::tuple(200,
                   "{\r\n\t\"jsonrpc\": \"2.0\",\r\n\t\"id\": \"a1\",\r\n\t\"result\":\r\n\t{\r\n\t}\r\n}",
                   "application/json", AnyOrigin));
    EXPECT_EQ(Fields(FromSse), Fields(FromMcp));
    EXPECT_EQ(HandlersMade, 1);

    // Broken UTF-8 is decoded with replacement characters, not rejected and not passed on raw.
    const FOrvHttpResponse Broken = Post("/mcp", "{\"id\":\"a\xFF\",\"method\":\"ping\"}");
    EXPECT_EQ(OrvCondensedJson(Broken.Body), "{\"jsonrpc\":\"2.0\",\"id\":\"a\xEF\xBF\xBD\",\"result\":{}}");
}

TEST_F(FOrvMcpServerTest, ToolAnswersThatArriveAfterTheRouteReturnedAreStillSent)
{
    ASSERT_TRUE(Server.Start(30011));
    const FOrvExchange Exchange =
        Send(EOrvHttpVerb::Post, "/mcp",
             R"({"id":"later","method":"tools/call","params":{"name":"ue_list_scene"}})");
    EXPECT_TRUE(Exchange.bHandled);
    EXPECT_GT(Editor.GameThread.PendingCount(), 0u) << "the scene listing runs on a later game-thread turn";
    EXPECT_TRUE(Exchange.Responses->empty());

    Editor.GameThread.RunPending();
    ASSERT_EQ(Exchange.Responses->size(), 1u);
    EXPECT_NE(Exchange.Responses->front().Body.find("\"id\": \"later\""), std::string::npos);
}
