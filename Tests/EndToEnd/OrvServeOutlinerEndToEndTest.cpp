#include "Core/Json/OrvJson.h"
#include "Tests/Support/OrvServedHost.h"

#include <gtest/gtest.h>

#include <string>

using namespace OrvWebBridge;

namespace
{
    /** Asks for the tree until it shows Text; the rescan after a tool change waits for a debounce. */
    bool TreeEventuallyShows(FOrvServedHost& Host, const std::string& Text, std::string& LastTree)
    {
        for (int Attempt = 0; Attempt < 50; ++Attempt)
        {
            LastTree = Host.Console("tree");
            if (LastTree.find(Text) != std::string::npos)
            {
                return true;
            }
            Host.Process().WaitForExit(0.1);
        }
        return false;
    }
} // namespace

TEST(FOrvServeOutlinerEndToEndTest, TheTreeFollowsWhatAiToolsSpawnAndDeleteAndTheConsoleUndoes)
{
    FOrvServedHost Host;
    std::string Error;
    ASSERT_TRUE(Host.Start(ORV_HOST_EXECUTABLE, {}, Error)) << Error;
    std::string Tree;
    ASSERT_TRUE(TreeEventuallyShows(Host, "    Forma Nova - Sedia Arco x4", Tree)) << Tree;

    const FOrvToolReply Spawned = Host.CallTool(
        "ue_spawn_product", R"({"asset_path":"/Game/ORVESSA/FormaNova/Arco/Meshes/SM_Chair.SM_Chair"})");
    const std::string Id = FOrvJson::GetStringField(Spawned.Json(), "id");
    ASSERT_FALSE(Id.empty()) << Spawned.Envelope;
    EXPECT_TRUE(TreeEventuallyShows(Host, "  Chairs x5", Tree)) << Tree;
    EXPECT_EQ(Host.Console("select Chairs").rfind("Selected 5 actors: ", 0), 0u);

    const FOrvToolReply Deleted = Host.CallTool("ue_delete_actor", R"({"id":")" + Id + R"("})");
    ASSERT_EQ(OrvCondensedJson(Deleted.Text), R"({"id":")" + Id + R"(","deleted":true})");
    EXPECT_TRUE(TreeEventuallyShows(Host, "  Chairs x4", Tree)) << Tree;

    // Each tool's change is one step of the editor's undo buffer, which the console shares.
    EXPECT_EQ(Host.Console("undo"), "Undone: Orv MCP: Delete Actor");
    EXPECT_TRUE(TreeEventuallyShows(Host, "  Chairs x5", Tree)) << Tree;
}
