#include "Host/Runtime/OrvBeastHttpServerModule.h"

#include "Host/Runtime/OrvHostEventLoop.h"
#include "Tests/Support/OrvTestHttpClient.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

namespace
{
    std::unique_ptr<FOrvHttpResponse> MakeText(std::string Body, std::string ContentType = "text/plain")
    {
        auto Response = std::make_unique<FOrvHttpResponse>();
        Response->ContentType = std::move(ContentType);
        Response->Body = std::move(Body);
        return Response;
    }

    /** A module listening on an OS-chosen port with one router, started. */
    struct FOrvServerRig
    {
        explicit FOrvServerRig(FOrvHttpServerLimits Limits = {}) : Module(Loop, Limits)
        {
            Router = Module.GetHttpRouter(0, false);
            Module.StartAllListeners();
        }

        std::uint16_t Port() const { return static_cast<std::uint16_t>(Module.GetBoundPort(0)); }

        FOrvHostEventLoop Loop;
        FOrvBeastHttpServerModule Module;
        std::shared_ptr<IOrvHttpRouter> Router;
    };
} // namespace

TEST(FOrvBeastHttpServerModuleTest, AnswersWithTheContentTypeAndHeadersExactlyAsGivenOverKeepAlive)
{
    FOrvServerRig Rig;
    ASSERT_NE(Rig.Router, nullptr);
    ASSERT_NE(Rig.Port(), 0);
    Rig.Router->BindRoute(
        "/sse", EOrvHttpVerb::Get,
        [](const FOrvHttpRequest&, const FOrvHttpResultCallback& Done)
        {
            auto Response = MakeText("event: endpoint\ndata: /sse\n\n", "text/event-stream");
            Response->Headers = {{"Cache-Control", "no-cache"}, {"Access-Control-Allow-Origin", "*"}};
            Done(std::move(Response));
            return true;
        });

    FOrvTestHttpClient Client(Rig.Loop.Context(), Rig.Port());
    for (int Round = 0; Round < 2; ++Round)
    {
        const FOrvTestHttpReply Reply = Client.Get("/sse");
        ASSERT_TRUE(Reply.bReceived) << Reply.Error;
        EXPECT_EQ(Reply.Status, 200);
        EXPECT_EQ(Reply.Body, "event: endpoint\ndata: /sse\n\n");
        EXPECT_EQ(Reply.Header("Content-Type"), "text/event-stream");
        EXPECT_EQ(Reply.Header("Cache-Control"), "no-cache");
        EXPECT_EQ(Reply.Header("Access-Control-Allow-Origin"), "*");
        EXPECT_TRUE(Client.IsConnected()) << "the connection is kept alive between requests";
    }
}

TEST(FOrvBeastHttpServerModuleTest, PathsMatchLikeTheEngineRouterAndOtherRequestsGet404)
{
    FOrvServerRig Rig;
    std::string SeenPath;
    Rig.Router->BindRoute("/health", EOrvHttpVerb::Get,
                          [&](const FOrvHttpRequest& Request, const FOrvHttpResultCallback& Done)
                          {
                              SeenPath = Request.Path;
                              Done(MakeText("ok"));
                              return true;
                          });
    Rig.Router->BindRoute("/declines", EOrvHttpVerb::Get,
                          [](const FOrvHttpRequest&, const FOrvHttpResultCallback&) { return false; });
    EXPECT_FALSE(
        Rig.Router->BindRoute("/Health/", EOrvHttpVerb::Get, [](auto&, auto&) { return true; }).IsValid())
        << "the same path and verb cannot be bound twice";

    FOrvTestHttpClient Client(Rig.Loop.Context(), Rig.Port());
    // The path reaches the handler as sent, without query string or trailing slash.
    const std::pair<const char*, const char*> Cases[] = {
        {"/health", "/health"}, {"/HEALTH/", "/HEALTH"}, {"/health?probe=1", "/health"}};
    for (const auto& [Target, Path] : Cases)
    {
        const FOrvTestHttpReply Reply = Client.Get(Target);
        EXPECT_EQ(Reply.Status, 200) << Target;
        EXPECT_EQ(SeenPath, Path) << Target;
    }
    // MCP clients probe discovery paths first; they must get a quick 404, not a hang or a closed socket.
    EXPECT_EQ(Client.Get("/.well-known/oauth-authorization-server").Status, 404);
    EXPECT_EQ(Client.Post("/health", "{}").Status, 404);
    EXPECT_EQ(Client.Send("DELETE", "/health", "", {}).Status, 404);
    EXPECT_EQ(Client.Send("OPTIONS", "/mcp", "", {}).Status, 404);
    EXPECT_EQ(Client.Get("/declines").Status, 404);
    EXPECT_TRUE(Client.IsConnected());
    EXPECT_EQ(Client.Get("/health").Status, 200);
}

TEST(FOrvBeastHttpServerModuleTest, UnboundRoutesStopAnswering)
{
    FOrvServerRig Rig;
    const FOrvHttpRouteHandle Handle =
        Rig.Router->BindRoute("/mcp", EOrvHttpVerb::Post,
                              [](const FOrvHttpRequest&, const FOrvHttpResultCallback& Done)
                              {
                                  Done(MakeText("bound"));
                                  return true;
                              });
    FOrvTestHttpClient Client(Rig.Loop.Context(), Rig.Port());
    EXPECT_EQ(Client.Post("/mcp", "{}").Body, "bound");
    Rig.Router->UnbindRoute(Handle);
    Rig.Router->UnbindRoute(Handle);
    EXPECT_EQ(Client.Post("/mcp", "{}").Status, 404);
}

TEST(FOrvBeastHttpServerModuleTest, PostBodiesArriveAsExactBytes)
{
    FOrvServerRig Rig;
    std::string Seen;
    Rig.Router->BindRoute("/mcp", EOrvHttpVerb::Post,
                          [&](const FOrvHttpRequest& Request, const FOrvHttpResultCallback& Done)
                          {
                              Seen = Request.Body;
                              Done(MakeText("ok"));
                              return true;
                          });
    FOrvTestHttpClient Client(Rig.Loop.Context(), Rig.Port());
    const std::string Bytes("{\"a\":\"\xC3\xA9\"}\0\xFF\r\n", 14);
    EXPECT_EQ(Client.Post("/mcp", Bytes).Status, 200);
    EXPECT_EQ(Seen, Bytes);
    EXPECT_EQ(Client.Post("/mcp", "").Status, 200);
    EXPECT_EQ(Seen, "");
}

TEST(FOrvBeastHttpServerModuleTest, HandlerMayCompleteLaterAndLateOrMissingCompletionsAreSafe)
{
    FOrvServerRig Rig;
    std::optional<FOrvHttpResultCallback> Kept;
    Rig.Router->BindRoute("/later", EOrvHttpVerb::Post,
                          [&](const FOrvHttpRequest& Request, const FOrvHttpResultCallback& Done)
                          {
                              if (Request.Body == "keep")
                              {
                                  Kept = Done;
                                  return true;
                              }
                              // Completes on a later turn of the loop, as a tool's editor work does; a second
                              // call is ignored.
                              Rig.Loop.GameThread().Post(
                                  [Done, Body = Request.Body]
                                  {
                                      Done(MakeText("late " + Body));
                                      Done(MakeText("twice"));
                                  });
                              return true;
                          });
    Rig.Router->BindRoute("/forgets", EOrvHttpVerb::Post,
                          [](const FOrvHttpRequest&, const FOrvHttpResultCallback&) { return true; });

    FOrvTestHttpClient Client(Rig.Loop.Context(), Rig.Port());
    EXPECT_EQ(Client.Post("/later", "one").Body, "late one");
    EXPECT_EQ(Client.Post("/later", "two").Body, "late two");
    // A handler that claims the request but drops its completion must not leave the client hanging.
    EXPECT_EQ(Client.Post("/forgets", "{}").Status, 500);

    // The client goes away while the handler still holds the completion: answering later does nothing.
    {
        FOrvTestHttpClient Leaver(Rig.Loop.Context(), Rig.Port());
        EXPECT_FALSE(Leaver.Send("POST", "/later", "keep", {}, 0.2).bReceived);
    }
    ASSERT_TRUE(Kept.has_value());
    Rig.Loop.RunUntil([] { return false; }, 0.05);
    (*Kept)(MakeText("nobody listens"));
    Kept.reset();
    EXPECT_TRUE(Rig.Loop.RunUntil([&] { return Rig.Module.GetOpenConnectionCount() == 1; }, 5.0));
    EXPECT_EQ(Client.Post("/later", "three").Body, "late three");
}

TEST(FOrvBeastHttpServerModuleTest, PipelinedRequestsAreAnsweredInOrder)
{
    FOrvServerRig Rig;
    Rig.Router->BindRoute("/echo", EOrvHttpVerb::Post,
                          [&](const FOrvHttpRequest& Request, const FOrvHttpResultCallback& Done)
                          {
                              Rig.Loop.GameThread().Post([Done, Body = Request.Body]
                                                         { Done(MakeText(Body)); });
                              return true;
                          });
    FOrvTestHttpClient Client(Rig.Loop.Context(), Rig.Port());
    const FOrvTestHttpReply First =
        Client.SendRaw("POST /echo HTTP/1.1\r\nHost: x\r\nContent-Length: 1\r\n\r\nA"
                       "POST /echo HTTP/1.1\r\nHost: x\r\nContent-Length: 1\r\n\r\nB");
    const FOrvTestHttpReply Second = Client.ReadReply();
    EXPECT_EQ(First.Body, "A");
    EXPECT_EQ(Second.Body, "B");
}

TEST(FOrvBeastHttpServerModuleTest, OversizedMalformedAndExpectContinueRequestsGetClearAnswers)
{
    FOrvHttpServerLimits Limits;
    Limits.MaxBodyBytes = 1024;
    FOrvServerRig Rig(Limits);
    Rig.Router->BindRoute("/mcp", EOrvHttpVerb::Post,
                          [](const FOrvHttpRequest& Request, const FOrvHttpResultCallback& Done)
                          {
                              Done(MakeText(std::to_string(Request.Body.size())));
                              return true;
                          });

    FOrvTestHttpClient Client(Rig.Loop.Context(), Rig.Port());
    EXPECT_EQ(Client.Post("/mcp", std::string(1024, 'x')).Body, "1024");
    const FOrvTestHttpReply TooLarge = Client.Post("/mcp", std::string(4096, 'x'));
    EXPECT_EQ(TooLarge.Status, 413);
    EXPECT_EQ(TooLarge.Body, "Request body too large: the limit is 1024 bytes.\n");
    EXPECT_FALSE(Client.IsConnected());

    EXPECT_EQ(Client.SendRaw("NOT HTTP AT ALL\r\n\r\n").Status, 400);

    // curl waits for "100 Continue" before it sends a larger body.
    const FOrvTestHttpReply Continued =
        Client.SendRaw("POST /mcp HTTP/1.1\r\nHost: x\r\nExpect: 100-continue\r\n"
                       "Content-Length: 2\r\n\r\n");
    EXPECT_EQ(Continued.Status, 100);
    EXPECT_EQ(Client.SendRaw("{}").Body, "2");
}

TEST(FOrvBeastHttpServerModuleTest, ConnectionsBeyondTheLimitAreRefusedWith503)
{
    FOrvHttpServerLimits Limits;
    Limits.MaxConnections = 2;
    FOrvServerRig Rig(Limits);
    Rig.Router->BindRoute("/health", EOrvHttpVerb::Get,
                          [](const FOrvHttpRequest&, const FOrvHttpResultCallback& Done)
                          {
                              Done(MakeText("ok"));
                              return true;
                          });
    FOrvTestHttpClient First(Rig.Loop.Context(), Rig.Port());
    FOrvTestHttpClient Second(Rig.Loop.Context(), Rig.Port());
    EXPECT_EQ(First.Get("/health").Status, 200);
    EXPECT_EQ(Second.Get("/health").Status, 200);

    FOrvTestHttpClient Third(Rig.Loop.Context(), Rig.Port());
    const FOrvTestHttpReply Refused = Third.Get("/health");
    EXPECT_EQ(Refused.Status, 503);
    EXPECT_FALSE(Third.IsConnected());

    First.Disconnect();
    EXPECT_TRUE(Rig.Loop.RunUntil([&] { return Rig.Module.GetOpenConnectionCount() == 1; }, 5.0));
    EXPECT_EQ(Third.Get("/health").Status, 200);
}

TEST(FOrvBeastHttpServerModuleTest, IdleConnectionsAreClosedAfterTheReadTimeout)
{
    FOrvHttpServerLimits Limits;
    Limits.ReadTimeoutSeconds = 0.1;
    FOrvServerRig Rig(Limits);
    FOrvTestHttpClient Idle(Rig.Loop.Context(), Rig.Port());
    ASSERT_TRUE(Idle.Connect());
    EXPECT_TRUE(Idle.WaitForServerClose(5.0));

    // Half a request line, then nothing: a slow client is dropped the same way.
    FOrvTestHttpClient Slow(Rig.Loop.Context(), Rig.Port());
    EXPECT_FALSE(Slow.SendRaw("GET /hea", 0.5).bReceived);
    EXPECT_TRUE(Rig.Loop.RunUntil([&] { return Rig.Module.GetOpenConnectionCount() == 0; }, 5.0));
}

TEST(FOrvBeastHttpServerModuleTest, BusyPortYieldsNoRouter)
{
    FOrvServerRig Holder;
    FOrvHostEventLoop Loop;
    FOrvBeastHttpServerModule Other(Loop);
    EXPECT_EQ(Other.GetHttpRouter(Holder.Port(), false), nullptr);
    EXPECT_TRUE(Other.WasPortInUse(Holder.Port()));
    EXPECT_FALSE(Other.GetBindError(Holder.Port()).empty());
    EXPECT_EQ(Other.GetBoundPort(Holder.Port()), 0u);
}

TEST(FOrvBeastHttpServerModuleTest, StopAllListenersClosesEverythingAndTheRouterRebindsLater)
{
    FOrvServerRig Rig;
    const std::shared_ptr<IOrvHttpRouter> Router = Rig.Router;
    Router->BindRoute("/health", EOrvHttpVerb::Get,
                      [](const FOrvHttpRequest&, const FOrvHttpResultCallback& Done)
                      {
                          Done(MakeText("ok"));
                          return true;
                      });
    const std::uint16_t OldPort = Rig.Port();
    FOrvTestHttpClient Client(Rig.Loop.Context(), OldPort);
    EXPECT_EQ(Client.Get("/health").Status, 200);

    Rig.Module.StopAllListeners();
    EXPECT_TRUE(Client.WaitForServerClose(5.0));
    EXPECT_EQ(Rig.Module.GetBoundPort(0), 0u);
    FOrvTestHttpClient Refused(Rig.Loop.Context(), OldPort);
    EXPECT_FALSE(Refused.Connect(2.0));

    EXPECT_EQ(Rig.Module.GetHttpRouter(0, false), Router);
    Rig.Module.StartAllListeners();
    FOrvTestHttpClient Again(Rig.Loop.Context(), static_cast<std::uint16_t>(Rig.Module.GetBoundPort(0)));
    EXPECT_EQ(Again.Get("/health").Status, 200);
}
