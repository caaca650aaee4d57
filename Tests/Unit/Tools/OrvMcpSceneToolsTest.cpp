#include "Core/Json/OrvJson.h"
#include "Tests/Support/OrvMcpTestRequests.h"
#include "Tests/Support/OrvToolTestRig.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <sstream>
#include <string>
#include <tuple>

using namespace OrvWebBridge;

namespace
{
    // Everything a tool can change, one line per actor in iterator order.
    std::string LevelSnapshot(const FOrvMemoryEditor& Editor)
    {
        std::ostringstream Out;
        for (const FOrvMemoryActor* Actor : Editor.GetLevelActors())
        {
            const FOrvTransform& T = Actor->Transform;
            Out << Actor->Name << '|' << Actor->Label << '|' << T.Location.X << ',' << T.Location.Y << ','
                << T.Location.Z << '|' << T.Rotation.Pitch << ',' << T.Rotation.Yaw << ',' << T.Rotation.Roll
                << '|' << Actor->StaticMeshComponents.size() << '\n';
        }
        return Out.str();
    }

    std::string Arguments(const std::string& Id, const std::string& Rest = "")
    {
        return R"({"id":")" + Id + '"' + Rest + '}';
    }

    class FOrvMcpSceneToolsTest : public testing::Test
    {
    protected:
        FOrvMcpSceneToolsTest() { Chair = Rig.AddCatalogMesh("Brand/Meshes", "SM_Chair", "P-CHAIR"); }

        void SetCamera(const FOrvTransform& View, bool bPerspective = true)
        {
            FOrvMemoryViewportDesc Viewport;
            Viewport.bPerspective = bPerspective;
            (bPerspective ? Viewport.PerspectiveView : Viewport.OrthographicView) = View;
            Viewport.FieldOfView = 75;
            Rig.Editor.SetViewport(Viewport);
        }

        std::string PlaceChair(const FOrvTransform& Transform = {}, const std::string& Label = {})
        {
            return Rig.Editor.FindActor(Rig.AddMeshActor(Chair, Transform, Label))->Name;
        }

        FOrvToolTestRig Rig;
        FOrvMeshRef Chair;
    };
} // namespace

TEST_F(FOrvMcpSceneToolsTest, ListSceneShowsOnlyActorsWhoseFirstMeshCarriesAValidTag)
{
    const FOrvMeshRef Plain = Rig.AddCatalogMesh("Brand/Meshes", "SM_Plain", "");
    const FOrvMeshRef Old =
        Rig.Editor.AddStaticMesh({"/Game/ORVESSA/Old/SM_Old", {}, FOrvProductTag{"P-OLD", false}});
    const std::string ChairId = PlaceChair({{100, 200, 0.5}, {0, 90, 0}}, "Dining chair");
    Rig.AddMeshActor(Plain);
    Rig.AddMeshActor(Old);
    Rig.Editor.AddActor({});
    Rig.Editor.AddActor({"", "", "StaticMeshActor", {}, {FOrvMeshRef{}, Chair}, true});
    Rig.Editor.AddActor({"BP_Table_C_1", "", "BP_Table_C", {}, {Chair, Plain}, true});

    const FOrvToolReply Reply = Rig.Call("ue_list_scene");
    EXPECT_FALSE(Reply.bAnsweredBeforePump);
    EXPECT_EQ(
        OrvCondensedJson(Reply.Text),
        R"({"actors":[{"id":")" + ChairId +
            R"(","name":"Dining chair","product_id":"P-CHAIR","location":[100,200,0.5],"rotation":[0,90,0]},)"
            R"({"id":"BP_Table_C_1","name":"BP_Table_C_1","product_id":"P-CHAIR","location":[0,0,0],"rotation":[0,0,0]}]})");

    // The tag's validity only matters to the listing: a spawn reports the identifier all the same.
    const rapidjson::Document Spawned = Rig.Call("ue_spawn_product", R"({"asset_path":"SM_Old"})").Json();
    EXPECT_EQ(FOrvJson::GetStringField(Spawned, "product_id"), "P-OLD");

    Rig.Editor.SetEditorWorldAvailable(false);
    EXPECT_EQ(Rig.Call("ue_list_scene").Text, "{\r\n\t\"actors\": []\r\n}");
}

TEST_F(FOrvMcpSceneToolsTest, CameraFollowsTheViewModeAndFallsBackToDefaultsWithoutAViewport)
{
    SetCamera({{10, -20, 170}, {-15, 45, 0}});
    EXPECT_EQ(OrvCondensedJson(Rig.Call("UE_GET_CAMERA").Text),
              R"({"location":{"x":10,"y":-20,"z":170},"rotation":{"pitch":-15,"yaw":45,"roll":0},"fov":75})");
    SetCamera({{0, 0, 900}, {-90, 0, 0}}, false);
    EXPECT_EQ(OrvCondensedJson(Rig.Call("ue_get_camera").Text),
              R"({"location":{"x":0,"y":0,"z":900},"rotation":{"pitch":-90,"yaw":0,"roll":0},"fov":75})");
    Rig.Editor.SetViewport(std::nullopt);
    EXPECT_EQ(OrvCondensedJson(Rig.Call("ue_get_camera").Text),
              R"({"location":{"x":0,"y":0,"z":0},"rotation":{"pitch":0,"yaw":0,"roll":0},"fov":90})");
}

TEST_F(FOrvMcpSceneToolsTest, SpawnPlacesTheMeshAndDescribesItInOrder)
{
    const FOrvToolReply Reply =
        Rig.Call("ue_spawn_product", R"({"asset_path":"chair","location":[1,2,3,4],"rotation":[0,180,0]})");
    ASSERT_EQ(Rig.Editor.GetLevelActors().size(), 1u);
    const FOrvMemoryActor& Spawned = *Rig.Editor.GetLevelActors().front();
    EXPECT_EQ(Spawned.Label, "SM_Chair");
    EXPECT_EQ(Spawned.StaticMeshComponents, std::vector<FOrvMeshRef>{Chair});
    EXPECT_EQ(Spawned.Transform, (FOrvTransform{{1, 2, 3}, {0, 180, 0}}));
    EXPECT_EQ(
        OrvCondensedJson(Reply.Text),
        R"({"id":")" + Spawned.Name +
            R"(","name":"SM_Chair","product_id":"P-CHAIR","asset_path":"chair",)"
            R"("bounds":{"size":[100,50,90],"bbox_min":[-50,-25,0],"bbox_max":[50,25,90],"mounting_hint":"floor-center","forward":"+Y"},)"
            R"("location":[1,2,3],"rotation":[0,180,0]})");
}

TEST_F(FOrvMcpSceneToolsTest, SpawnWithoutAUsableLocationLandsThreeMetresInFrontOfTheCamera)
{
    const auto SpawnedAt = [this](const char* ArgumentsJson)
    { return OrvReadTriple(Rig.Call("ue_spawn_product", ArgumentsJson).Json(), "location"); };
    SetCamera({{0, 0, 100}, {0, 90, 0}});
    const FOrvTriple AheadOfYaw90 = SpawnedAt(R"({"asset_path":"SM_Chair","location":[100,200]})");
    EXPECT_NEAR(AheadOfYaw90.A, 0, 1e-9);
    EXPECT_NEAR(AheadOfYaw90.B, 300, 1e-9);
    EXPECT_NEAR(AheadOfYaw90.C, 100, 1e-9);
    SetCamera({{0, 0, 900}, {-90, 0, 0}}, false);
    EXPECT_NEAR(SpawnedAt(R"({"asset_path":"SM_Chair"})").C, 600, 1e-9);
    Rig.Editor.SetViewport(std::nullopt);
    EXPECT_EQ(SpawnedAt(R"({"asset_path":"SM_Chair"})"), (FOrvTriple{0, 0, 0}));
}

TEST_F(FOrvMcpSceneToolsTest, SpawnErrorsNameTheProblemAndBadPathsAreRejectedBeforeAnyWork)
{
    const std::string Missing =
        R"({"error":"missing_argument","message":"asset_path is required (from ue_list_available_assets)."})";
    const std::string Outside =
        R"({"error":"invalid_asset_path","message":"Only assets under /Game/ORVESSA can be spawned. Pass a path from ue_list_available_assets or a bare ORVESSA asset_name."})";
    const std::pair<const char*, std::string> AtOnce[] = {
        {R"({})", Missing},
        {R"({"asset_path":""})", Missing},
        {R"({"asset_path":42})", Missing},
        {R"({"asset_path":"/Game/Other/SM_Chair"})", Outside}};
    for (const auto& [Json, Expected] : AtOnce)
    {
        std::vector<std::string> Responses;
        Rig.CallLater("ue_spawn_product", Json, Responses);
        EXPECT_EQ(Rig.GameThread.PendingCount(), 0u) << Json;
        ASSERT_EQ(Responses.size(), 1u) << Json;
        EXPECT_EQ(FOrvToolReply::Parse(Responses.front()).Text, Expected) << Json;
    }
    // The prefix is compared ignoring case, so this path gets as far as the load.
    EXPECT_EQ(
        Rig.Call("ue_spawn_product", R"({"asset_path":"/game/orvessa/B/SM_Sofa.SM_Sofa"})").Text,
        R"({"error":"asset_not_found","message":"Could not load StaticMesh at /game/orvessa/B/SM_Sofa.SM_Sofa. Call ue_list_available_assets for valid paths."})");
    Rig.Editor.SetEditorWorldAvailable(false);
    EXPECT_EQ(Rig.Call("ue_spawn_product", R"({"asset_path":"SM_Chair"})").Text,
              R"({"error":"no_editor_world","message":"No active editor world."})");
    EXPECT_TRUE(Rig.Editor.GetLevelActors().empty());
}

TEST_F(FOrvMcpSceneToolsTest, EachChangingToolIsOneNamedUndoStepThatRestoresTheLevel)
{
    const std::string Id = PlaceChair({{5, 5, 0}, {0, 10, 0}}, "Kept");
    const std::string Before = LevelSnapshot(Rig.Editor);
    const std::tuple<const char*, std::string, const char*> Calls[] = {
        {"ue_spawn_product", R"({"asset_path":"SM_Chair","location":[0,0,0]})", "Orv MCP: Spawn Product"},
        {"ue_move_actor", Arguments(Id, R"(,"location":[9,9,9],"rotation":[0,45,0])"), "Orv MCP: Move Actor"},
        {"ue_delete_actor", Arguments(Id), "Orv MCP: Delete Actor"},
    };
    for (const auto& [Tool, Json, Description] : Calls)
    {
        Rig.Call(Tool, Json);
        EXPECT_NE(LevelSnapshot(Rig.Editor), Before) << Tool;
        ASSERT_FALSE(Rig.Editor.GetUndoHistory().empty());
        EXPECT_EQ(Rig.Editor.GetUndoHistory().back().Description, Description);
        ASSERT_TRUE(Rig.Editor.Undo());
        EXPECT_EQ(LevelSnapshot(Rig.Editor), Before) << Tool;
    }
}

TEST_F(FOrvMcpSceneToolsTest, MoveFindsTheIdIgnoringCaseAndChangesOnlyWhatIsGiven)
{
    const std::string Id = PlaceChair({{10, 20, 30}, {0, 0, 0}}, "Armchair");
    std::string Shouted = Id;
    std::transform(Id.begin(), Id.end(), Shouted.begin(), [](unsigned char C) { return std::toupper(C); });

    EXPECT_EQ(
        OrvCondensedJson(Rig.Call("ue_move_actor", Arguments(Shouted, R"(,"rotation":[0,-90,0])")).Text),
        R"({"id":")" + Shouted + R"(","location":[10,20,30],"rotation":[0,-90,0]})");
    Rig.Call("ue_move_actor", Arguments(Id, R"(,"location":[1,2,3],"rotation":"flat")"));
    EXPECT_EQ(Rig.Editor.GetLevelActors().front()->Transform, (FOrvTransform{{1, 2, 3}, {0, -90, 0}}));

    // Neither given: nothing moves, yet the call answers and still records its (empty) undo step.
    const std::size_t Steps = Rig.Editor.GetUndoHistory().size();
    EXPECT_EQ(OrvReadTriple(Rig.Call("ue_move_actor", Arguments(Id)).Json(), "location"),
              (FOrvTriple{1, 2, 3}));
    EXPECT_EQ(Rig.Editor.GetUndoHistory().size(), Steps + 1);
}

TEST_F(FOrvMcpSceneToolsTest, DeleteEchoesTheIdAsSpelledAndTheLabelIsNoId)
{
    const std::string Id = PlaceChair({}, "Armchair");
    const std::string MissingId =
        R"({"error":"missing_argument","message":"id is required (from ue_list_scene)."})";
    for (const char* Tool : {"ue_move_actor", "ue_delete_actor"})
    {
        EXPECT_EQ(
            Rig.Call(Tool, Arguments("Armchair")).Text,
            R"({"error":"actor_not_found","message":"No actor with id Armchair. Call ue_list_scene for valid ids."})");
        EXPECT_EQ(Rig.Call(Tool, Arguments("")).Text, MissingId);
        EXPECT_EQ(Rig.Call(Tool, R"({"id":3})").Text, MissingId);
        EXPECT_EQ(Rig.Call(Tool, "").Text, MissingId);
    }
    ASSERT_EQ(Rig.Editor.GetLevelActors().size(), 1u);

    std::string Lowered = Id;
    std::transform(Id.begin(), Id.end(), Lowered.begin(), [](unsigned char C) { return std::tolower(C); });
    EXPECT_EQ(OrvCondensedJson(Rig.Call("ue_delete_actor", Arguments(Lowered)).Text),
              R"({"id":")" + Lowered + R"(","deleted":true})");
    EXPECT_TRUE(Rig.Editor.GetLevelActors().empty());
}
