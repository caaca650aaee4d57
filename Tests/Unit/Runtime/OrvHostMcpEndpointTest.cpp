#include "Host/Runtime/OrvHostMcpEndpoint.h"

#include "Core/Common/OrvStrings.h"
#include "Host/Runtime/OrvHostEventLoop.h"
#include "Tests/Support/OrvNullEditorPorts.h"
#include "Tests/Support/OrvTestHttpClient.h"

#include <gtest/gtest.h>

#include <rapidjson/document.h>

TEST(FOrvHostMcpEndpointTest, ServesTheCoreEndpointOnTheChosenPortUntilStopped)
{
    FOrvHostEventLoop Loop;
    FOrvNullEditorPorts Editor;
    FOrvHostMcpEndpoint Endpoint(Loop, Editor.Ports(), Editor.Log);
    std::string Error;
    ASSERT_TRUE(Endpoint.Start(0, Error)) << Error;
    const std::uint32_t Port = Endpoint.GetBoundPort();
    ASSERT_NE(Port, 0u);
    EXPECT_EQ(Endpoint.GetMcpUrl(), FOrvStrings::Printf("http://127.0.0.1:%u/mcp", Port));

    FOrvTestHttpClient Client(Loop.Context(), static_cast<std::uint16_t>(Port));
    const FOrvTestHttpReply Health = Client.Get("/health");
    EXPECT_EQ(Health.Body, R"({"status":"ok","service":"orvessa-ue-mcp"})");
    EXPECT_EQ(Health.Header("Content-Type"), "application/json");

    const FOrvTestHttpReply Ping = Client.Post("/mcp", R"({"jsonrpc":"2.0","id":"a1","method":"ping"})");
    EXPECT_EQ(Ping.Status, 200);
    EXPECT_EQ(Ping.Header("Access-Control-Allow-Origin"), "*");
    rapidjson::Document Envelope;
    Envelope.Parse(Ping.Body.c_str());
    ASSERT_TRUE(Envelope.IsObject()) << Ping.Body;
    EXPECT_STREQ(Envelope["id"].GetString(), "a1");
    EXPECT_TRUE(Envelope["result"].IsObject());

    Endpoint.Stop();
    EXPECT_EQ(Endpoint.GetBoundPort(), 0u);
    EXPECT_TRUE(Client.WaitForServerClose(5.0));
    EXPECT_TRUE(Editor.Log.Contains(EOrvLogVerbosity::Log, "Orv MCP: server stopped"));
}

TEST(FOrvHostMcpEndpointTest, BusyPortFailsWithTheCoreWarningAndAHintForTheUser)
{
    FOrvHostEventLoop Loop;
    FOrvNullEditorPorts Editor;
    FOrvHostMcpEndpoint First(Loop, Editor.Ports(), Editor.Log);
    FOrvHostMcpEndpoint Second(Loop, Editor.Ports(), Editor.Log);
    std::string Error;
    ASSERT_TRUE(First.Start(0, Error)) << Error;
    const std::uint32_t Port = First.GetBoundPort();

    EXPECT_FALSE(Second.Start(Port, Error));
    EXPECT_EQ(Error, FOrvStrings::Printf("port %u is already in use; pick another with --port", Port));
    EXPECT_TRUE(
        Editor.Log.Contains(EOrvLogVerbosity::Warning,
                            FOrvStrings::Printf("Orv MCP: failed to acquire HTTP router on port %u", Port)));
    EXPECT_EQ(Second.GetBoundPort(), 0u);
    EXPECT_NE(First.GetBoundPort(), 0u) << "the failed start leaves the running endpoint alone";
}
