#include "Tests/Support/OrvServedHost.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace
{
    class FOrvServeHttpEndToEndTest : public ::testing::Test
    {
    protected:
        void SetUp() override
        {
            std::string Error;
            ASSERT_TRUE(Host.Start(ORV_HOST_EXECUTABLE, {"--no-console"}, Error)) << Error;
        }

        FOrvServedHost Host;
    };
} // namespace

TEST_F(FOrvServeHttpEndToEndTest, HealthAndSseAnswerExactlyAndUnknownPathsGet404)
{
    const FOrvTestHttpReply Health = Host.Client().Get("/health");
    EXPECT_EQ(Health.Status, 200);
    EXPECT_EQ(Health.Body, R"({"status":"ok","service":"orvessa-ue-mcp"})");
    EXPECT_EQ(Health.Header("Content-Type"), "application/json");
    EXPECT_FALSE(Health.HasHeader("Access-Control-Allow-Origin"));

    const FOrvTestHttpReply Sse = Host.Client().Get("/sse");
    EXPECT_EQ(Sse.Status, 200);
    EXPECT_EQ(Sse.Body, "event: endpoint\ndata: /sse\n\n");
    EXPECT_EQ(Sse.Header("Content-Type"), "text/event-stream");
    EXPECT_EQ(Sse.Header("Cache-Control"), "no-cache");
    EXPECT_EQ(Sse.Header("Access-Control-Allow-Origin"), "*");

    EXPECT_EQ(Host.Client().Get("/.well-known/oauth-authorization-server").Status, 404);
    EXPECT_EQ(Host.Client().Get("/mcp").Status, 404);
    EXPECT_EQ(Host.Client().Get("/health").Status, 200) << "the connection survives the 404s";
}

TEST_F(FOrvServeHttpEndToEndTest, McpAndSsePostsGiveTheSameJsonRpcAnswers)
{
    for (const char* Body : {R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":{}})",
                             R"({"jsonrpc":"2.0","id":"x","method":"tools/list"})", R"({"method":"nope"})"})
    {
        const FOrvTestHttpReply OnMcp = Host.Client().Post("/mcp", Body);
        const FOrvTestHttpReply OnSse = Host.Client().Post("/sse", Body);
        EXPECT_EQ(OnMcp.Status, 200) << Body;
        EXPECT_EQ(OnMcp.Body, OnSse.Body) << Body;
        EXPECT_EQ(OnMcp.Header("Content-Type"), "application/json") << Body;
        EXPECT_EQ(OnMcp.Header("Access-Control-Allow-Origin"), "*") << Body;
    }
}

TEST_F(FOrvServeHttpEndToEndTest, BrokenBodiesGetParseErrorsWithStatus200)
{
    for (const char* Body : {"", "{", "[1,2]", "\xFF\xFE"})
    {
        FOrvTestHttpReply Reply;
        const auto Envelope = Host.Rpc("/mcp", Body, &Reply);
        EXPECT_EQ(Reply.Status, 200) << Body;
        ASSERT_TRUE(Envelope && Envelope->IsObject()) << Reply.Body;
        EXPECT_TRUE((*Envelope)["id"].IsNull());
        EXPECT_EQ((*Envelope)["error"]["code"].GetInt(), -32700);
        EXPECT_STREQ((*Envelope)["error"]["message"].GetString(), "Parse error: invalid JSON");
    }
}

TEST_F(FOrvServeHttpEndToEndTest, InitializeAndToolsListDescribeTheServer)
{
    const auto Initialize = Host.Rpc(
        "/mcp",
        R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":{"protocolVersion":"2024-11-05"}})");
    ASSERT_TRUE(Initialize && Initialize->IsObject());
    const rapidjson::Value& Result = (*Initialize)["result"];
    EXPECT_STREQ(Result["protocolVersion"].GetString(), "2025-06-18");
    EXPECT_FALSE(Result["capabilities"]["tools"]["listChanged"].GetBool());
    EXPECT_STREQ(Result["serverInfo"]["name"].GetString(), "ORVESSA");

    const auto Listed = Host.Rpc("/mcp", R"({"jsonrpc":"2.0","id":2,"method":"tools/list"})");
    ASSERT_TRUE(Listed && Listed->IsObject());
    const rapidjson::Value& Tools = (*Listed)["result"]["tools"];
    ASSERT_TRUE(Tools.IsArray());
    std::set<std::string> Names;
    for (const rapidjson::Value& Tool : Tools.GetArray())
    {
        Names.insert(Tool["name"].GetString());
        EXPECT_STREQ(Tool["inputSchema"]["type"].GetString(), "object");
    }
    EXPECT_EQ(Names, (std::set<std::string>{"ue_list_scene", "ue_get_camera", "ue_list_available_assets",
                                            "ue_capture_view", "ue_spawn_product", "ue_move_actor",
                                            "ue_delete_actor", "ue_get_asset_bounds", "ue_placement_guide"}));
}
