#include "Tests/Support/OrvServedHost.h"

#include <gtest/gtest.h>

#include <string>

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

        /** The ids of the products ue_list_scene reports, in order. */
        std::vector<std::string> SceneIds()
        {
            const FOrvToolCallReply Reply = Host.CallTool("ue_list_scene");
            std::vector<std::string> Ids;
            if (!Reply.Json)
            {
                ADD_FAILURE() << "ue_list_scene: " << Reply.Http.Body;
                return Ids;
            }
            for (const rapidjson::Value& Actor : (*Reply.Json)["actors"].GetArray())
            {
                Ids.emplace_back(Actor["id"].GetString());
            }
            return Ids;
        }

        std::vector<double> LocationOf(const std::string& Id)
        {
            const FOrvToolCallReply Reply = Host.CallTool("ue_list_scene");
            for (const rapidjson::Value& Actor : (*Reply.Json)["actors"].GetArray())
            {
                if (Id == Actor["id"].GetString())
                {
                    const auto& At = Actor["location"];
                    return {At[0].GetDouble(), At[1].GetDouble(), At[2].GetDouble()};
                }
            }
            return {};
        }

        FOrvServedHost Host;
    };
} // namespace

TEST_F(FOrvServeToolsEndToEndTest, ReadingToolsDescribeTheDemoRoom)
{
    const FOrvToolCallReply Scene = Host.CallTool("ue_list_scene");
    ASSERT_TRUE(Scene.Json) << Scene.Http.Body;
    ASSERT_GT((*Scene.Json)["actors"].Size(), 10u);
    const rapidjson::Value& First = (*Scene.Json)["actors"][0];
    EXPECT_TRUE(First["id"].IsString() && First["product_id"].IsString() && First["location"].IsArray());

    const FOrvToolCallReply Camera = Host.CallTool("ue_get_camera");
    ASSERT_TRUE(Camera.Json) << Camera.Http.Body;
    EXPECT_TRUE((*Camera.Json)["location"]["x"].IsNumber());
    EXPECT_TRUE((*Camera.Json)["fov"].IsNumber());

    const FOrvToolCallReply Assets = Host.CallTool("ue_list_available_assets");
    ASSERT_TRUE(Assets.Json) << Assets.Http.Body;
    EXPECT_NE(Assets.Text.find(ChairPath), std::string::npos);

    const FOrvToolCallReply Bounds = Host.CallTool("ue_get_asset_bounds", R"({"asset_path":"SM_Chair"})");
    ASSERT_TRUE(Bounds.Json) << Bounds.Http.Body;
    EXPECT_EQ((*Bounds.Json)["size"].Size(), 3u);
    EXPECT_TRUE((*Bounds.Json)["mounting_hint"].IsString());

    const FOrvToolCallReply Guide = Host.CallTool("ue_placement_guide");
    EXPECT_EQ(Guide.Type, "text");
    EXPECT_FALSE(Guide.Text.empty());

    const FOrvToolCallReply Unknown = Host.CallTool("ue_nope");
    EXPECT_EQ(Unknown.Text.rfind("Unknown tool: ue_nope.", 0), 0u) << Unknown.Text;
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
    const std::vector<std::string> Before = SceneIds();
    ASSERT_FALSE(Before.empty());

    const FOrvToolCallReply Spawned = Host.CallTool(
        "ue_spawn_product", std::string(R"({"asset_path":")") + ChairPath + R"(","location":[10,20,0]})");
    ASSERT_TRUE(Spawned.Json) << Spawned.Http.Body;
    ASSERT_EQ(Spawned.ErrorCode(), "") << Spawned.Text;
    const std::string NewId = (*Spawned.Json)["id"].GetString();
    EXPECT_EQ(SceneIds().size(), Before.size() + 1);

    EXPECT_EQ(Host.Console("undo"), "Undone: Orv MCP: Spawn Product");
    EXPECT_EQ(SceneIds(), Before);
    EXPECT_EQ(Host.Console("redo"), "Redone: Orv MCP: Spawn Product");
    EXPECT_EQ(LocationOf(NewId), (std::vector<double>{10, 20, 0}));

    const FOrvToolCallReply Moved = Host.CallTool(
        "ue_move_actor", R"({"id":")" + NewId + R"(","location":[300,-50,0],"rotation":[0,90,0]})");
    ASSERT_EQ(Moved.ErrorCode(), "") << Moved.Text;
    EXPECT_EQ(LocationOf(NewId), (std::vector<double>{300, -50, 0}));
    EXPECT_EQ(Host.Console("undo"), "Undone: Orv MCP: Move Actor");
    EXPECT_EQ(LocationOf(NewId), (std::vector<double>{10, 20, 0}));

    const std::string Victim = Before.front();
    const FOrvToolCallReply Deleted = Host.CallTool("ue_delete_actor", R"({"id":")" + Victim + R"("})");
    ASSERT_TRUE(Deleted.Json) << Deleted.Http.Body;
    EXPECT_TRUE((*Deleted.Json)["deleted"].GetBool());
    EXPECT_TRUE(LocationOf(Victim).empty());
    EXPECT_EQ(Host.Console("undo"), "Undone: Orv MCP: Delete Actor");
    EXPECT_FALSE(LocationOf(Victim).empty());

    EXPECT_EQ(Host.CallTool("ue_delete_actor", R"({"id":"NoSuchActor_9"})").ErrorCode(), "actor_not_found");
    EXPECT_EQ(Host.CallTool("ue_spawn_product", R"({"asset_path":"/Game/Other/SM_X"})").ErrorCode(),
              "invalid_asset_path");
}
