#include "Tests/Support/OrvBeastServerRig.h"
#include "Tests/Support/OrvTestHttpClient.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

using namespace OrvWebBridge;

// The exact /health and /sse answers are the MCP server's unit tests'; -32700 on broken bodies and the
// busy-port message are proved over the real binary by the end-to-end tests. These cover what the server
// does with HTTP itself.

TEST(FOrvBeastHttpServerModuleTest, PathsMatchLikeTheEngineRouterAndTheFallbackTakesOnlyWhatNoRouteTakes)
{
    FOrvBeastServerRig Rig;
    ASSERT_NE(Rig.Router, nullptr);
    std::string SeenPath;
    std::string SeenQuery;
    std::string SeenOrigin;
    Rig.Router->BindRoute("/health", EOrvHttpVerb::Get,
                          [&](const FOrvHttpRequest& Request, const FOrvHttpResultCallback& Done)
                          {
                              SeenPath = Request.Path;
                              SeenQuery = Request.Query;
                              SeenOrigin = Request.FindHeader("origin");
                              Done(MakeTextResponse("ok"));
                              return true;
                          });
    Rig.Router->BindRoute("/declines", EOrvHttpVerb::Get,
                          [](const FOrvHttpRequest&, const FOrvHttpResultCallback&) { return false; });
    const FOrvHttpRouteHandle Mcp = Rig.BindEcho("/mcp", EOrvHttpVerb::Post);
    EXPECT_FALSE(
        Rig.Router->BindRoute("/Health/", EOrvHttpVerb::Get, [](auto&, auto&) { return true; }).IsValid())
        << "the same path and verb cannot be bound twice";
    const auto AcceptStream = [](const FOrvHttpRequest&, const std::shared_ptr<IOrvHttpEventStream>&)
    { return std::unique_ptr<FOrvHttpResponse>(); };
    const FOrvHttpRouteHandle Events = Rig.Router->BindEventStream("/events", AcceptStream);
    ASSERT_TRUE(Events.IsValid());
    EXPECT_FALSE(Rig.Router->BindEventStream("/Health/", AcceptStream).IsValid()) << "GET /health is bound";
    EXPECT_FALSE(
        Rig.Router->BindRoute("/events", EOrvHttpVerb::Get, [](auto&, auto&) { return true; }).IsValid());

    FOrvTestHttpClient Client(Rig.Loop.Context(), Rig.Port());
    // The path reaches the handler as sent, without query string or trailing slash.
    const std::pair<const char*, const char*> Cases[] = {
        {"/health", "/health"}, {"/HEALTH/", "/HEALTH"}, {"/health?probe=1", "/health"}};
    for (const auto& [Target, Path] : Cases)
    {
        EXPECT_EQ(Client.Get(Target).Status, 200) << Target;
        EXPECT_EQ(SeenPath, Path) << Target;
    }
    EXPECT_EQ(SeenQuery, "probe=1");
    EXPECT_EQ(
        Client.SendRaw("GET /health?a=%20b HTTP/1.1\r\nHost: x\r\nOrigin: http://127.0.0.1:9\r\n\r\n").Status,
        200);
    EXPECT_EQ(SeenQuery, "a=%20b") << "the query string arrives as sent";
    EXPECT_EQ(SeenOrigin, "http://127.0.0.1:9") << "headers are found ignoring the case of their names";
    for (const char* Verb : {"POST", "DELETE"})
    {
        EXPECT_EQ(Client.Send(Verb, "/health", "").Status, 404) << Verb;
    }
    EXPECT_EQ(Client.Send("OPTIONS", "/mcp", "").Status, 404);
    EXPECT_EQ(Client.Get("/declines").Status, 404);
    EXPECT_EQ(Client.Get("/index.html").Status, 404) << "no fallback yet";

    // The fallback answers the GETs and POSTs no route takes (or that it declines), nothing else.
    Rig.Router->SetFallbackHandler(
        [](const FOrvHttpRequest& Request, const FOrvHttpResultCallback& Done)
        {
            if (Request.Path == "/declined")
            {
                return false;
            }
            const char* Verb = Request.Verb == EOrvHttpVerb::Get ? "GET " : "POST ";
            Done(MakeTextResponse(Verb + Request.Path + " " + Request.Body));
            return true;
        });
    EXPECT_EQ(Client.Get("/index.html?v=2").Body, "GET /index.html ");
    EXPECT_EQ(Client.Get("/mcp").Body, "GET /mcp ") << "a path bound for POST only";
    EXPECT_EQ(Client.Post("/MCP/", "{}").Body, "{}");
    EXPECT_EQ(Client.Get("/health").Body, "ok");
    Rig.Router->UnbindRoute(Mcp);
    Rig.Router->UnbindRoute(Mcp);
    EXPECT_EQ(Client.Post("/mcp", "a=1").Body, "POST /mcp a=1") << "an unbound route stops answering";
    EXPECT_EQ(Client.Get("/declined").Status, 404);
    EXPECT_EQ(Client.Send("DELETE", "/index.html", "").Status, 404);
    EXPECT_EQ(FOrvTestHttpClient(Rig.Loop.Context(), Rig.Port()).OpenStream("/events").Header("Content-Type"),
              "text/event-stream");
    Rig.Router->UnbindRoute(Events);
    EXPECT_EQ(Client.Get("/events").Body, "GET /events ");
    EXPECT_TRUE(Client.IsConnected()) << "the connection is kept alive through all of it";
}

TEST(FOrvBeastHttpServerModuleTest, DeferredAnswersKeepExactBytesAndPipelineOrder)
{
    FOrvBeastServerRig Rig;
    Rig.BindEcho("/mcp", EOrvHttpVerb::Post);
    FOrvTestHttpClient Client(Rig.Loop.Context(), Rig.Port());
    const std::string Bytes("{\"a\":\"\xC3\xA9\"}\0\xFF\r\n", 14);
    EXPECT_EQ(Client.Post("/mcp", Bytes).Body, Bytes);
    const FOrvTestHttpReply Empty = Client.Post("/mcp", "");
    EXPECT_EQ(Empty.Status, 200);
    EXPECT_EQ(Empty.Body, "");

    EXPECT_EQ(Client
                  .SendRaw("POST /mcp HTTP/1.1\r\nHost: x\r\nContent-Length: 1\r\n\r\nA"
                           "POST /mcp HTTP/1.1\r\nHost: x\r\nContent-Length: 1\r\n\r\nB")
                  .Body,
              "A");
    EXPECT_EQ(Client.ReadReply().Body, "B");
}

TEST(FOrvBeastHttpServerModuleTest, LateDoubleOrMissingCompletionsAndClientsThatLeftAreSafe)
{
    FOrvBeastServerRig Rig;
    std::optional<FOrvHttpResultCallback> Kept;
    Rig.Router->BindRoute("/later", EOrvHttpVerb::Post,
                          [&](const FOrvHttpRequest& Request, const FOrvHttpResultCallback& Done)
                          {
                              if (Request.Body == "keep")
                              {
                                  Kept = Done;
                                  return true;
                              }
                              Rig.Loop.GameThread().Post(
                                  [Done, Body = Request.Body]
                                  {
                                      Done(MakeTextResponse("late " + Body));
                                      Done(MakeTextResponse("twice"));
                                  });
                              return true;
                          });
    Rig.Router->BindRoute("/forgets", EOrvHttpVerb::Post,
                          [](const FOrvHttpRequest&, const FOrvHttpResultCallback&) { return true; });
    Rig.Router->BindRoute("/forges", EOrvHttpVerb::Post,
                          [](const FOrvHttpRequest& Request, const FOrvHttpResultCallback& Done)
                          {
                              auto Response = MakeTextResponse("");
                              Response->Headers = {{"Location", Request.Body}};
                              Done(std::move(Response));
                              return true;
                          });

    FOrvTestHttpClient Client(Rig.Loop.Context(), Rig.Port());
    EXPECT_EQ(Client.Post("/later", "one").Body, "late one");
    EXPECT_EQ(Client.Post("/later", "two").Body, "late two") << "a second completion is ignored";
    // A handler that claims the request but drops its completion must not leave the client hanging.
    EXPECT_EQ(Client.Post("/forgets", "{}").Status, 500);
    // Nor may a value it took from the request forge headers (or pass Beast's 64 KiB field limit).
    for (const std::string& Value : {std::string("/x\r\nSet-Cookie: a=1"), std::string(70000, 'v')})
    {
        const FOrvTestHttpReply Forged = Client.Post("/forges", Value);
        EXPECT_EQ(Forged.Status, 500);
        EXPECT_EQ(Forged.Header("Set-Cookie"), "");
    }

    // The client goes away while the handler still holds the completion: answering later does nothing.
    {
        FOrvTestHttpClient Leaver(Rig.Loop.Context(), Rig.Port());
        EXPECT_FALSE(Leaver.Send("POST", "/later", "keep", 0.2).bReceived);
    }
    ASSERT_TRUE(Kept.has_value());
    Rig.Loop.RunUntil([] { return false; }, 0.05);
    (*Kept)(MakeTextResponse("nobody listens"));
    Kept.reset();
    EXPECT_TRUE(Rig.WaitForConnections(1));
    EXPECT_EQ(Client.Post("/later", "three").Body, "late three");
}

TEST(FOrvBeastHttpServerModuleTest, OversizedBodiesGet413AndExpectContinueGets100)
{
    FOrvHttpServerLimits Limits;
    Limits.MaxBodyBytes = 1024;
    FOrvBeastServerRig Rig(Limits);
    Rig.BindEcho("/mcp", EOrvHttpVerb::Post);

    FOrvTestHttpClient Client(Rig.Loop.Context(), Rig.Port());
    EXPECT_EQ(Client.Post("/mcp", std::string(1024, 'x')).Body.size(), 1024u);
    const FOrvTestHttpReply TooLarge = Client.Post("/mcp", std::string(4096, 'x'));
    EXPECT_EQ(TooLarge.Status, 413);
    EXPECT_EQ(TooLarge.Body, "Request body too large: the limit is 1024 bytes.\n");
    EXPECT_FALSE(Client.IsConnected());

    // curl waits for "100 Continue" before it sends a larger body.
    EXPECT_EQ(
        Client.SendRaw("POST /mcp HTTP/1.1\r\nHost: x\r\nExpect: 100-continue\r\nContent-Length: 2\r\n\r\n")
            .Status,
        100);
    EXPECT_EQ(Client.SendRaw("{}").Body, "{}");
}

TEST(FOrvBeastHttpServerModuleTest, StopAllListenersClosesEverythingAndTheRouterServesAgainAfterARestart)
{
    FOrvBeastServerRig Rig;
    Rig.BindEcho("/mcp", EOrvHttpVerb::Post);
    const std::uint16_t OldPort = Rig.Port();
    FOrvTestHttpClient Client(Rig.Loop.Context(), OldPort);
    EXPECT_EQ(Client.Post("/mcp", "{}").Status, 200);

    Rig.Module.StopAllListeners();
    EXPECT_TRUE(Client.WaitForServerClose(5.0));
    EXPECT_EQ(Rig.Module.GetBoundPort(0), 0u);
    EXPECT_FALSE(FOrvTestHttpClient(Rig.Loop.Context(), OldPort).Connect(2.0));

    EXPECT_EQ(Rig.Module.GetHttpRouter(0, false), Rig.Router);
    Rig.Module.StartAllListeners();
    EXPECT_EQ(FOrvTestHttpClient(Rig.Loop.Context(), Rig.Port()).Post("/mcp", "{}").Status, 200);
}
