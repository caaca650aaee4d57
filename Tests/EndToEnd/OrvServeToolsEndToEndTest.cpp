#include "Tests/Support/OrvServedHost.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    constexpr const char* ChairPath = "/Game/ORVESSA/FormaNova/Arco/Meshes/SM_Chair.SM_Chair";

    class FOrvServeToolsEndToEndTest : public ::testing::Test
    {
    protected:
        void SetUp() override
        {
            std::string Error;
            ASSERT_TRUE(Host.Start(ORV_HOST_EXECUTABLE, {}, Error)) << Error;
        }

        /** Each product ue_list_scene reports, by id, with its location. */
        std::map<std::string, std::vector<double>> Scene()
        {
            const FOrvToolCallReply Reply = Host.CallTool("ue_list_scene");
            std::map<std::string, std::vector<double>> Actors;
            if (!Reply.Json)
            {
                ADD_FAILURE() << "ue_list_scene: " << Reply.Http.Body;
                return Actors;
            }
            for (const rapidjson::Value& Actor : (*Reply.Json)["actors"].GetArray())
            {
                const auto& At = Actor["location"];
                Actors[Actor["id"].GetString()] = {At[0].GetDouble(), At[1].GetDouble(), At[2].GetDouble()};
            }
            return Actors;
        }

        FOrvServedHost Host;
    };
} // namespace

// What each tool answers in detail is proved by the tools' unit tests; here they run in the real host.
TEST_F(FOrvServeToolsEndToEndTest, ReadingToolsDescribeTheDemoRoom)
{
    const std::pair<const char*, const char*> Cases[] = {{"ue_list_scene", "product_id"},
                                                         {"ue_get_camera", "fov"},
                                                         {"ue_list_available_assets", ChairPath},
                                                         {"ue_placement_guide", ""}};
    for (const auto& [Tool, Fragment] : Cases)
    {
        const FOrvToolCallReply Reply = Host.CallTool(Tool);
        EXPECT_EQ(Reply.Type, "text") << Tool << ": " << Reply.Http.Body;
        EXPECT_EQ(Reply.ErrorCode(), "") << Tool;
        EXPECT_NE(Reply.Text.find(Fragment), std::string::npos) << Tool << ": " << Reply.Text;
    }
    EXPECT_GT(Scene().size(), 10u);
    const FOrvToolCallReply Bounds = Host.CallTool("ue_get_asset_bounds", R"({"asset_path":"SM_Chair"})");
    ASSERT_TRUE(Bounds.Json) << Bounds.Http.Body;
    EXPECT_EQ((*Bounds.Json)["size"].Size(), 3u);
    EXPECT_EQ(Host.CallTool("ue_nope").Text.rfind("Unknown tool: ue_nope.", 0), 0u);
}

TEST_F(FOrvServeToolsEndToEndTest, CaptureReturnsAJpegOfTheViewport)
{
    const FOrvToolCallReply Capture = Host.CallTool("ue_capture_view", R"({"quality":60})");
    ASSERT_EQ(Capture.Type, "image") << Capture.Http.Body.substr(0, 400);
    EXPECT_EQ(Capture.MimeType, "image/jpeg");
    // Base64 of the JPEG start-of-image marker FF D8 FF.
    EXPECT_EQ(Capture.Text.rfind("/9j/", 0), 0u);
    EXPECT_GT(Capture.Text.size(), 1000u);
}

TEST_F(FOrvServeToolsEndToEndTest, EachChangingToolIsOneStepThatTheConsoleUndoes)
{
    const auto Before = Scene();
    ASSERT_FALSE(Before.empty());

    const FOrvToolCallReply Spawned = Host.CallTool(
        "ue_spawn_product", std::string(R"({"asset_path":")") + ChairPath + R"(","location":[10,20,0]})");
    ASSERT_TRUE(Spawned.Json) << Spawned.Http.Body;
    ASSERT_EQ(Spawned.ErrorCode(), "") << Spawned.Text;
    const std::string NewId = (*Spawned.Json)["id"].GetString();
    EXPECT_EQ(Scene().size(), Before.size() + 1);

    EXPECT_EQ(Host.Console("undo"), "Undone: Orv MCP: Spawn Product");
    EXPECT_EQ(Scene(), Before);
    EXPECT_EQ(Host.Console("redo"), "Redone: Orv MCP: Spawn Product");
    EXPECT_EQ(Scene()[NewId], (std::vector<double>{10, 20, 0}));

    const FOrvToolCallReply Moved = Host.CallTool(
        "ue_move_actor", R"({"id":")" + NewId + R"(","location":[300,-50,0],"rotation":[0,90,0]})");
    ASSERT_EQ(Moved.ErrorCode(), "") << Moved.Text;
    EXPECT_EQ(Scene()[NewId], (std::vector<double>{300, -50, 0}));
    EXPECT_EQ(Host.Console("undo"), "Undone: Orv MCP: Move Actor");
    EXPECT_EQ(Scene()[NewId], (std::vector<double>{10, 20, 0}));

    const std::string Victim = Before.begin()->first;
    const FOrvToolCallReply Deleted = Host.CallTool("ue_delete_actor", R"({"id":")" + Victim + R"("})");
    ASSERT_TRUE(Deleted.Json) << Deleted.Http.Body;
    EXPECT_TRUE((*Deleted.Json)["deleted"].GetBool());
    EXPECT_EQ(Scene().count(Victim), 0u);
    EXPECT_EQ(Host.Console("undo"), "Undone: Orv MCP: Delete Actor");
    EXPECT_EQ(Scene().count(Victim), 1u);

    EXPECT_EQ(Host.CallTool("ue_delete_actor", R"({"id":"NoSuchActor_9"})").ErrorCode(), "actor_not_found");
    EXPECT_EQ(Host.CallTool("ue_spawn_product", R"({"asset_path":"/Game/Other/SM_X"})").ErrorCode(),
              "invalid_asset_path");
}
