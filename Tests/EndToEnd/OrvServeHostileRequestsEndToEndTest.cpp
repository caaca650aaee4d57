// The JSON attacks any local process or web page can throw at the endpoint, against the real host: none
// may crash, stall or balloon it, and afterwards it answers at once with the level as it was.
#include "Core/Common/OrvUtf8.h"
#include "Tests/Support/OrvServedHost.h"

#include <gtest/gtest.h>

#include <string>

using namespace OrvWebBridge;

namespace
{
    std::string Repeat(std::string_view Text, std::size_t Count)
    {
        std::string Out;
        for (std::size_t Index = 0; Index < Count; ++Index)
        {
            Out.append(Text);
        }
        return Out;
    }

    std::string ToolCall(std::string_view Name, std::string_view Arguments)
    {
        return R"({"jsonrpc":"2.0","id":7,"method":"tools/call","params":{"name":")" + std::string(Name) +
               R"(","arguments":)" + std::string(Arguments) + "}}";
    }
} // namespace

TEST(FOrvServeHostileRequestsEndToEndTest, JsonAttacksGetBoundedAnswersAndLeaveTheLevelAsItWas)
{
    FOrvServedHost Host;
    std::string Error;
    ASSERT_TRUE(Host.Start(ORV_HOST_EXECUTABLE, {"--no-console"}, Error)) << Error;
    const std::string LevelBefore = Host.CallTool("ue_list_scene").Text;
    ASSERT_NE(LevelBefore.find("StaticMeshActor"), std::string::npos) << LevelBefore;

    const std::string WideDeepId = Repeat("[", 250) + "[]" + Repeat(",[]", 20000) + Repeat("]", 250);
    const std::string Attacks[] = {
        Repeat("[", 100000),
        R"({"id":1,"method":"ping","params":)" + Repeat(R"({"a":)", 50000) + "}",
        R"({"jsonrpc":"2.0","id":)" + WideDeepId + R"(,"method":"tools/list"})",
        R"({"jsonrpc":"2.0","id":"\udc00\ud800","method":"ping"})",
        R"({"jsonrpc":"2.0","id":"\udc00","method":"x)" + Repeat("\xFF", 1000) + "\"}",
        R"({"jsonrpc":"2.0","id":1e999,"method":"ping"})",
        R"({"jsonrpc":"2.0","id":[-0,99999999999999999999,1e20],"method":"ping"})",
        R"({"jsonrpc":"2.0","id":1,"method":")" + std::string(4 << 20, 'm') + "\"}",
        ToolCall("ue_spawn_product", R"({"asset_path":")" + Repeat("\\udc00", 1000) + R"(","location":)" +
                                         Repeat("[", 300) + Repeat("]", 300) + "}"),
        ToolCall("ue_spawn_product",
                 R"({"asset_path":"\udc00/Game/ORVESSA/SM_\udfff","location":[1e308,-0,0]})"),
        ToolCall("ue_move_actor", R"({"ID":"StaticMeshActor_\udc00","location":"x"})"),
        ToolCall("ue_delete_actor", R"({"id":")" + Repeat("\xC3", 5000) + R"("})"),
        ToolCall("ue_capture_view", R"({"quality":1e308,"Quality":-1e308})"),
    };
    for (const std::string& Body : Attacks)
    {
        const FOrvTestHttpReply Reply = Host.Client().Post("/mcp", Body);
        EXPECT_EQ(Reply.Status, 200) << Body.substr(0, 80);
        // Plus a tool's own output: the demo room's capture is about 70 KiB of Base64.
        EXPECT_LE(Reply.Body.size(), 6 * Body.size() + 256 * 1024) << Body.substr(0, 80);
        EXPECT_TRUE(FOrvUtf8::IsValid(Reply.Body)) << Body.substr(0, 80);
        EXPECT_NE(Reply.Body.find("\"jsonrpc\": \"2.0\""), std::string::npos) << Reply.Body.substr(0, 200);
    }

    const FOrvTestHttpReply Health = Host.Client().Get("/health");
    EXPECT_EQ(Health.Status, 200);
    EXPECT_EQ(Health.Body, R"({"status":"ok","service":"orvessa-ue-mcp"})");
    const auto List = Host.Rpc("/mcp", R"({"jsonrpc":"2.0","id":2,"method":"tools/list"})");
    ASSERT_TRUE(List && List->IsObject());
    EXPECT_EQ((*List)["result"]["tools"].Size(), 9u);
    EXPECT_EQ(Host.CallTool("ue_list_scene").Text, LevelBefore);
}
