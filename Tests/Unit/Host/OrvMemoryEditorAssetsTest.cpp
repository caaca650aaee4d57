#include "Host/Editor/OrvMemoryEditor.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    class FOrvMemoryEditorAssetsTest : public testing::Test
    {
    protected:
        void SetUp() override
        {
            Chair = Editor.AddStaticMesh({"/Game/ORVESSA/Forma/Meshes/SM_Chair", {}, {}});
            Editor.AddAsset({"/Game/ORVESSA/Forma/Materials/MI_Oak", "/Game/ORVESSA/Forma/Materials",
                             "MI_Oak", "/Script/Engine.MaterialInstanceConstant"});
            OtherChair = Editor.AddStaticMesh({"/Game/ORVESSA/Linea/SM_Chair", {}, {}});
            Editor.AddStaticMesh({"/Game/ORVESSAExtra/SM_Lamp", {}, {}}); // not under /Game/ORVESSA
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

    const FOrvAssetData Mesh = Editor.Assets().GetAssetsByPath("/Game/ORVESSA/Forma", true).at(0);
    EXPECT_EQ(Mesh.ClassPath + " " + Mesh.PackagePath + " " + Mesh.AssetName,
              "/Script/Engine.StaticMesh /Game/ORVESSA/Forma/Meshes SM_Chair");
}

TEST_F(FOrvMemoryEditorAssetsTest,
       LoadStaticMeshTakesObjectPathsLikeStaticLoadObjectAndAPackageIsRegisteredOnce)
{
    IOrvAssetRegistry& Assets = Editor.Assets();
    EXPECT_EQ(Assets.LoadStaticMesh("/Game/ORVESSA/Forma/Meshes/SM_Chair.SM_Chair"), Chair);
    EXPECT_EQ(Assets.LoadStaticMesh("/game/orvessa/forma/meshes/sm_chair.SM_CHAIR"), Chair);
    EXPECT_EQ(Assets.LoadStaticMesh("/Game/ORVESSA/Linea/SM_Chair"), OtherChair)
        << "package path: its main asset";
    EXPECT_FALSE(Assets.LoadStaticMesh("/Game/ORVESSA/Forma/Meshes/SM_Chair.SM_Table"));
    for (const char* Path : {"SM_Chair", "", "/Game/ORVESSA/Forma/Materials/MI_Oak.MI_Oak"})
    {
        EXPECT_FALSE(Assets.LoadStaticMesh(Path)) << Path;
    }

    const std::vector<FOrvAssetData> Listed = Assets.GetAssetsByPath("/Game/ORVESSA/Forma", true);
    EXPECT_EQ(Assets.LoadStaticMeshAsset(Listed[0]), Chair);
    EXPECT_FALSE(Assets.LoadStaticMeshAsset(Listed[1]));
    EXPECT_FALSE(Editor.AddStaticMesh({"/game/orvessa/forma/meshes/sm_chair", {}, {}}));
    EXPECT_FALSE(Editor.AddStaticMesh({"", {}, {}}));
    EXPECT_EQ(Editor.GetRegisteredAssets().size(), 4u);
}
