#include "Tests/Support/OrvServedHost.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

using namespace OrvWebBridge;

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

// The fixed answers of the GET routes are the server's unit tests' business; here the real HTTP server
// must refuse what no route takes without dropping the connection.
TEST_F(FOrvServeHttpEndToEndTest, UnknownPathsGet404AndTheConnectionServesOn)
{
    EXPECT_EQ(Host.Client().Get("/.well-known/oauth-authorization-server").Status, 404);
    EXPECT_EQ(Host.Client().Get("/mcp").Status, 404);
    EXPECT_EQ(Host.Client().Get("/health").Status, 200) << "the connection survives the 404s";
}

// The answers themselves are the handler's unit tests' business; here they must reach both paths, broken
// bodies included (a parse error, still with status 200).
TEST_F(FOrvServeHttpEndToEndTest, McpAndSsePostsGiveTheSameJsonRpcAnswers)
{
    const std::pair<const char*, const char*> Cases[] = {
        {R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":{}})", "ORVESSA"},
        {R"({"jsonrpc":"2.0","id":"x","method":"tools/list"})", "ue_placement_guide"},
        {R"({"method":"nope"})", "-32601"},
        {"", "Parse error: invalid JSON"},
        {"\xFF\xFE", "Parse error: invalid JSON"}};
    for (const auto& [Body, Fragment] : Cases)
    {
        const FOrvTestHttpReply OnMcp = Host.Client().Post("/mcp", Body);
        EXPECT_EQ(OnMcp.Status, 200) << Body;
        EXPECT_NE(OnMcp.Body.find(Fragment), std::string::npos) << OnMcp.Body;
        EXPECT_EQ(OnMcp.Body, Host.Client().Post("/sse", Body).Body) << Body;
        EXPECT_EQ(OnMcp.Header("Content-Type"), "application/json") << Body;
        EXPECT_EQ(OnMcp.Header("Access-Control-Allow-Origin"), "*") << Body;
    }
}
