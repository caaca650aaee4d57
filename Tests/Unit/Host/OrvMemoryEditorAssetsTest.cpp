#include "Host/Editor/OrvMemoryEditor.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
    class FOrvMemoryEditorAssetsTest : public testing::Test
    {
    protected:
        void SetUp() override
        {
            Chair = Editor.AddStaticMesh({"/Game/ORVESSA/Forma/Meshes/SM_Chair",
                                          {{-25, -25, 0}, {25, 25, 90}},
                                          FOrvProductTag{"FORMA-CH-01", false}});
            Editor.AddAsset({"/Game/ORVESSA/Forma/Materials/MI_Oak", "/Game/ORVESSA/Forma/Materials",
                             "MI_Oak", "/Script/Engine.MaterialInstanceConstant"});
            OtherChair = Editor.AddStaticMesh({"/Game/ORVESSA/Linea/SM_Chair", {}, {}});
            Outside = Editor.AddStaticMesh({"/Game/ORVESSAExtra/SM_Lamp", {}, {}});
        }

        std::vector<std::string> Packages(std::string_view Path, bool bRecursive)
        {
            std::vector<std::string> Result;
            for (const FOrvAssetData& Asset : Editor.Assets().GetAssetsByPath(Path, bRecursive))
            {
                Result.push_back(Asset.PackageName);
            }
            return Result;
        }

        FOrvMemoryEditor Editor;
        FOrvMeshRef Chair;
        FOrvMeshRef OtherChair;
        FOrvMeshRef Outside;
    };
} // namespace

TEST_F(FOrvMemoryEditorAssetsTest, RegistryListsWholeFoldersInRegistrationOrder)
{
    EXPECT_EQ(
        Packages("/Game/ORVESSA", true),
        (std::vector<std::string>{"/Game/ORVESSA/Forma/Meshes/SM_Chair",
                                  "/Game/ORVESSA/Forma/Materials/MI_Oak", "/Game/ORVESSA/Linea/SM_Chair"}));
    EXPECT_TRUE(Packages("/Game/ORVESSA", false).empty());
    EXPECT_EQ(Packages("/game/orvessa/linea", false),
              std::vector<std::string>{"/Game/ORVESSA/Linea/SM_Chair"});
    EXPECT_TRUE(Packages("/Game/ORVESSA/", true).empty()) << "the engine does not match a trailing slash";

    const std::vector<FOrvAssetData> Assets = Editor.Assets().GetAssetsByPath("/Game/ORVESSA/Forma", true);
    ASSERT_EQ(Assets.size(), 2u);
    EXPECT_EQ(Assets[0].ClassPath, "/Script/Engine.StaticMesh");
    EXPECT_EQ(Assets[0].AssetName, "SM_Chair");
    EXPECT_EQ(Assets[0].PackagePath, "/Game/ORVESSA/Forma/Meshes");
    EXPECT_EQ(Assets[1].ClassPath, "/Script/Engine.MaterialInstanceConstant");
}

TEST_F(FOrvMemoryEditorAssetsTest, LoadStaticMeshTakesObjectPathsLikeStaticLoadObject)
{
    IOrvAssetRegistry& Assets = Editor.Assets();
    EXPECT_EQ(Assets.LoadStaticMesh("/Game/ORVESSA/Forma/Meshes/SM_Chair.SM_Chair"), Chair);
    EXPECT_EQ(Assets.LoadStaticMesh("/game/orvessa/forma/meshes/sm_chair.SM_CHAIR"), Chair);
    EXPECT_EQ(Assets.LoadStaticMesh("/Game/ORVESSA/Linea/SM_Chair"), OtherChair)
        << "package path: its main asset";
    EXPECT_FALSE(Assets.LoadStaticMesh("/Game/ORVESSA/Forma/Meshes/SM_Chair.SM_Table"));
    EXPECT_FALSE(Assets.LoadStaticMesh("SM_Chair"));
    EXPECT_FALSE(Assets.LoadStaticMesh("Chair"));
    EXPECT_FALSE(Assets.LoadStaticMesh("/Game/ORVESSA/Forma/Materials/MI_Oak.MI_Oak")) << "not a mesh";
    EXPECT_FALSE(Assets.LoadStaticMesh(""));

    const std::vector<FOrvAssetData> Listed = Assets.GetAssetsByPath("/Game/ORVESSA/Forma", true);
    EXPECT_EQ(Assets.LoadStaticMeshAsset(Listed[0]), Chair);
    EXPECT_FALSE(Assets.LoadStaticMeshAsset(Listed[1]));
}

TEST_F(FOrvMemoryEditorAssetsTest, MeshesAnswerNamesBoundsAndTagsEvenInvalidOnes)
{
    IOrvStaticMeshes& Meshes = Editor.Meshes();
    EXPECT_TRUE(Meshes.IsMeshAlive(Chair));
    EXPECT_FALSE(Meshes.IsMeshAlive(FOrvMeshRef{999}));
    EXPECT_EQ(Meshes.GetMeshName(Chair), "SM_Chair");
    EXPECT_EQ(Meshes.GetMeshPathName(OtherChair), "/Game/ORVESSA/Linea/SM_Chair.SM_Chair");
    EXPECT_EQ(Meshes.GetBoundingBox(Chair), (FOrvBox{{-25, -25, 0}, {25, 25, 90}}));
    ASSERT_TRUE(Meshes.GetProductTag(Chair).has_value());
    EXPECT_EQ(Meshes.GetProductTag(Chair)->ProductID, "FORMA-CH-01");
    EXPECT_FALSE(Meshes.GetProductTag(Chair)->bIsValid);
    EXPECT_FALSE(Meshes.GetProductTag(OtherChair).has_value());
}

TEST_F(FOrvMemoryEditorAssetsTest, APackageCanOnlyBeRegisteredOnce)
{
    EXPECT_FALSE(Editor.AddStaticMesh({"/game/orvessa/forma/meshes/sm_chair", {}, {}}));
    EXPECT_FALSE(Editor.AddStaticMesh({"", {}, {}}));
    EXPECT_EQ(Editor.GetMeshes().size(), 3u);
    EXPECT_EQ(Editor.GetNonMeshAssets().size(), 1u);
    EXPECT_EQ(Editor.GetRegisteredAssets().size(), 4u);
}
