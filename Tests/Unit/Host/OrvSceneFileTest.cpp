#include "Host/Editor/OrvSceneFile.h"
#include "Host/Editor/OrvMemoryEditor.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <tuple>

using namespace OrvWebBridge;

namespace
{
    const char* const RoomScene = R"({
    "version": 1,
    "map": "Studio",
    "assets": [
        {"path": "/Game/ORVESSA/Forma/Meshes/SM_Chair", "bounds": {"min": [-25, -25, 0], "max": [25, 25, 90]},
         "tag": {"id": "FORMA-CH-01"}},
        {"path": "/Game/ORVESSA/Forma/Materials/MI_Oak", "class": "/Script/Engine.MaterialInstanceConstant",
         "metadata": {"Orv_FinishID": "FORMA-FIN-07", "Note": "\"oak\""}},
        {"path": "/Game/ORVESSA/Linea/SM_Chair.SM_Chair", "bounds": {"min": [0, 0, 0], "max": [1, 1, 1]},
         "tag": {"id": "LINEA-CH-02", "valid": false}}
    ],
    "actors": [
        {"label": "Chair", "location": [1.5, -2, 3], "rotation": [0, 90, 0],
         "components": ["/Game/ORVESSA/Forma/Meshes/SM_Chair"]},
        {"name": "StaticMeshActor_0", "components": [null, "/game/orvessa/linea/sm_chair.SM_Chair"]},
        {"name": "Settings", "class": "WorldSettings", "root_component": false}
    ],
    "viewport": {"projection": "orthographic", "fov": 70, "size": [640, 360],
                 "orthographic": {"location": [0, 0, 1000], "rotation": [-90, 0, 0], "width": 1500}}
})";

    std::string LoadError(const std::string& Text)
    {
        FOrvMemoryEditor Editor;
        const FOrvSceneFileResult Result = FOrvSceneFile::LoadText(Text, "room.json", Editor);
        EXPECT_FALSE(Result.bOk);
        return Result.Error;
    }
} // namespace

TEST(FOrvSceneFileTest, LoadsAssetsActorsAndCameraAsWritten)
{
    FOrvMemoryEditor Editor;
    const FOrvSceneFileResult Result = FOrvSceneFile::LoadText(RoomScene, "room.json", Editor);
    ASSERT_TRUE(Result.bOk) << Result.Error;

    EXPECT_EQ(Editor.World().GetMapName(), "Studio");
    const std::vector<FOrvMemoryMeshDesc> Meshes = Editor.GetMeshes();
    ASSERT_EQ(Meshes.size(), 2u);
    EXPECT_TRUE(Meshes[0].Tag->bIsValid) << "a tag is valid unless it says otherwise";
    EXPECT_FALSE(Meshes[1].Tag->bIsValid);
    ASSERT_EQ(Editor.GetNonMeshAssets().size(), 1u);
    const FOrvAssetData Oak = Editor.GetNonMeshAssets()[0];
    EXPECT_EQ(Editor.Assets().LoadMaterialInstanceMetaData(Oak, "orv_finishid"), "FORMA-FIN-07");
    EXPECT_EQ(Editor.Assets().LoadMaterialInstanceMetaData(Oak, "Orv_Other"), "");

    const std::vector<const FOrvMemoryActor*> Actors = Editor.GetLevelActors();
    ASSERT_EQ(Actors.size(), 3u);
    EXPECT_EQ(Actors[0]->Name, "StaticMeshActor_1") << "an unnamed actor is numbered after the names given";
    EXPECT_EQ(Actors[0]->Label, "Chair");
    EXPECT_EQ(Actors[0]->Transform, (FOrvTransform{{1.5, -2, 3}, {0, 90, 0}}));
    EXPECT_EQ(Actors[1]->Label, "StaticMeshActor_0");
    ASSERT_EQ(Actors[1]->StaticMeshComponents.size(), 2u);
    EXPECT_FALSE(Actors[1]->StaticMeshComponents[0]);
    EXPECT_EQ(Editor.Meshes().GetMeshPathName(Actors[1]->StaticMeshComponents[1]),
              "/Game/ORVESSA/Linea/SM_Chair.SM_Chair");
    EXPECT_FALSE(Actors[2]->bHasRootComponent);

    ASSERT_TRUE(Editor.GetViewport().has_value());
    EXPECT_EQ(Editor.GetViewport()->OrthoWidth, 1500);
    EXPECT_EQ(Editor.Viewport().GetLevelViewportView()->Location, (FOrvVector{0, 0, 1000}));
    EXPECT_EQ(Editor.Viewport().GetViewportSize().X, 640);
}

TEST(FOrvSceneFileTest, ANullViewportMeansNoViewportAndAMissingOneTheDefaultCamera)
{
    FOrvMemoryEditor Without;
    ASSERT_TRUE(FOrvSceneFile::LoadText(R"({"viewport": null})", "a.json", Without).bOk);
    EXPECT_FALSE(Without.Viewport().HasActiveViewport());

    FOrvMemoryEditor WithDefault;
    ASSERT_TRUE(FOrvSceneFile::LoadText(R"({"editor_world": false})", "b.json", WithDefault).bOk);
    EXPECT_TRUE(WithDefault.Viewport().HasActiveViewport());
    EXPECT_FALSE(WithDefault.World().HasEditorWorld());
}

TEST(FOrvSceneFileTest, SyntaxErrorsNameTheFileLineAndColumn)
{
    EXPECT_EQ(LoadError("{\n  \"map\": \"A\",\n  \"actors\": [}\n"),
              "room.json: line 3, column 14: Invalid value.");
    EXPECT_EQ(LoadError("[1, 2]"), "room.json: line 1, column 1: the top-level value is not an object");
    EXPECT_EQ(LoadError(""), "room.json: line 1, column 1: The document is empty.");
}

TEST(FOrvSceneFileTest, ContentErrorsNameTheFileAndThePlace)
{
    const std::string Assets =
        R"({"assets": [{"path": "/Game/A/SM_X", "bounds": {"min": [0,0,0], "max": [1,1,1]}},
                      {"path": "/Game/A/MI_Y", "class": "/Script/Engine.Material"}], )";
    const std::pair<std::string, const char*> Cases[] = {
        {R"({"actors": [{}, {}, {"location": [1, 2]}]})",
         "actors[2].location: expected an array of 3 numbers"},
        {R"({"actors": [{"rotation": [0, "90", 0]}]})", "actors[0].rotation: expected an array of 3 numbers"},
        {R"({"actors": [{"locaton": [0, 0, 0]}]})", "actors[0]: unknown key \"locaton\""},
        {R"({"actors": {}})", "actors: expected an array"},
        {R"({"map": 3})", "map: expected a string"},
        {R"({"assets": [{"path": "/Game/A/SM_X", "bounds": {"min": [0, 0, 0]}}]})",
         "assets[0].bounds: both \"min\" and \"max\" are required"},
        {R"({"assets": [{"path": "/Game/A/SM_X", "bounds": {"min": [0,0,0], "max": [1,1,1]},
                         "tag": {"id": "P", "valid": "yes"}}]})",
         "assets[0].tag.valid: expected true or false"},
        {R"({"viewport": {"size": [1280.5, 720]}})",
         "viewport.size: expected [width, height] in whole pixels from 0 to 16384"},
        {R"({"viewport": {"projection": "fisheye"}})",
         "viewport.projection: expected \"perspective\" or \"orthographic\""},
        {Assets + R"("actors": [{"components": ["/Game/A/SM_Z"]}]})",
         "actors[0].components[0]: no static mesh \"/Game/A/SM_Z\" among the assets"},
        {Assets + R"("actors": [{"components": ["/Game/A/MI_Y"]}]})",
         "actors[0].components[0]: \"/Game/A/MI_Y\" is a /Script/Engine.Material, not a static mesh"},
        {Assets + R"("actors": [{"components": ["/Game/A/SM_X.SM_Other"]}]})",
         "actors[0].components[0]: no static mesh \"/Game/A/SM_X.SM_Other\" among the assets"},
        {R"({"assets": [{"path": "/Game/A/MI_Y", "class": "M"}, {"path": "/game/a/mi_y", "class": "M"}]})",
         "assets[1].path: \"/game/a/mi_y\" is already listed as assets[0]"},
        {R"({"assets": [{"path": "SM_X", "class": "M"}]})",
         "assets[0].path: \"SM_X\" is not a package name (\"/Game/Folder/Name\") or object path "
         "(\"/Game/Folder/Name.Name\")"},
        {R"({"actors": [{"name": "Chair"}, {"name": "CHAIR"}]})",
         "actors[1].name: \"CHAIR\" is already the name of actors[0]"},
        {R"({"actors": [{"name": "A", "name": "B"}]})", "actors[0]: key \"name\" appears twice"},
        {R"({"version": 2})", "version: only version 1 is known"},
        {R"({"assets": [{"path": "/Game/A/MI_Y", "class": "M", "metadata": {"Orv_FinishID": 7}}]})",
         "assets[0].metadata.Orv_FinishID: expected a string"},
        {R"({"assets": [{"path": "/Game/A/MI_Y", "class": "M", "metadata": {"Id": "a", "ID": "b"}}]})",
         "assets[0].metadata.ID: repeats \"Id\" (names ignore case)"},
        {R"({"assets": [{"path": "/Game/A/SM_X", "bounds": {"min": [0,0,0], "max": [1,1,1]}, "metadata": {}}]})",
         "assets[0]: static meshes take no \"metadata\" (their product tag is \"tag\")"},
    };
    for (const auto& [Text, Expected] : Cases)
    {
        EXPECT_EQ(LoadError(Text), std::string("room.json: ") + Expected);
    }
}

TEST(FOrvSceneFileTest, SavedTextLoadsBackIntoTheSameProjectLevelAndCamera)
{
    FOrvMemoryEditor Original;
    ASSERT_TRUE(FOrvSceneFile::LoadText(RoomScene, "room.json", Original).bOk);
    {
        // Edits through the ports must survive too: a spawn, an odd label, a fractional move.
        FOrvScopedTransaction Transaction(Original.Transactions(), "Spawn");
        const FOrvActorRef Spawned = Original.Editing().SpawnStaticMeshActor({0.1, 1e-7, -3}, {0, 33.25, 0});
        Original.Editing().SetActorLabel(Spawned, "Quote \" and \\ and \xC3\xA8");
    }
    const std::string Saved = FOrvSceneFile::SaveText(Original);

    FOrvMemoryEditor Loaded;
    const FOrvSceneFileResult Result = FOrvSceneFile::LoadText(Saved, "saved.json", Loaded);
    ASSERT_TRUE(Result.bOk) << Result.Error << "\n" << Saved;
    EXPECT_EQ(FOrvSceneFile::SaveText(Loaded), Saved);

    // Equal saves could hide a field the save drops: check the edited actor itself.
    const FOrvMemoryActor& Before = *Original.GetLevelActors().back();
    const FOrvMemoryActor& After = *Loaded.GetLevelActors().back();
    EXPECT_EQ(std::tie(Before.Name, Before.Label, Before.Transform, Before.StaticMeshComponents),
              std::tie(After.Name, After.Label, After.Transform, After.StaticMeshComponents));
    EXPECT_EQ(Loaded.GetViewport()->OrthographicView, Original.GetViewport()->OrthographicView);
}

TEST(FOrvSceneFileTest, SaveReplacesTheFileWholeAndReportsAnUnwritablePlace)
{
    const std::filesystem::path Directory = std::filesystem::temp_directory_path() / "orv-scene-file-test";
    std::filesystem::create_directories(Directory);
    const std::string Path = (Directory / "room.json").string();
    std::ofstream(Path) << "old contents";

    FOrvMemoryEditor Editor;
    ASSERT_TRUE(FOrvSceneFile::LoadText(RoomScene, "room.json", Editor).bOk);
    ASSERT_TRUE(FOrvSceneFile::Save(Editor, Path).bOk);
    FOrvMemoryEditor Loaded;
    EXPECT_TRUE(FOrvSceneFile::Load(Path, Loaded).bOk);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Directory), {}), 1)
        << "no temporary file is left";

    const FOrvSceneFileResult Failed =
        FOrvSceneFile::Save(Editor, (Directory / "missing" / "room.json").string());
    EXPECT_FALSE(Failed.bOk);
    EXPECT_NE(Failed.Error.find("missing/room.json: cannot write: "), std::string::npos) << Failed.Error;
    const FOrvSceneFileResult Unreadable = FOrvSceneFile::Load((Directory / "none.json").string(), Loaded);
    EXPECT_NE(Unreadable.Error.find("none.json: cannot open: "), std::string::npos) << Unreadable.Error;
    std::filesystem::remove_all(Directory);
}
