#include "Host/Editor/OrvDemoScene.h"
#include "Core/Json/OrvJson.h"
#include "Core/Tools/OrvMcpToolHelpers.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvSceneFile.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace
{
    class FOrvDemoSceneTest : public testing::Test
    {
    protected:
        void SetUp() override
        {
            const FOrvSceneFileResult Result =
                FOrvSceneFile::LoadText(std::string(FOrvDemoScene::SceneJson()), "demo", Editor);
            ASSERT_TRUE(Result.bOk) << Result.Error;
            ASSERT_TRUE(FOrvJson::ParseObject(FOrvDemoScene::CatalogJson(), Catalog));
            for (const rapidjson::Value& Record : Catalog["products"].GetArray())
            {
                Records.emplace(FOrvJson::GetStringField(Record, "id"), &Record);
            }
        }

        /** Placed actors per product id, counted as the outliner counts them (first valid tag). */
        std::map<std::string, int> PlacedProducts()
        {
            std::map<std::string, int> Result;
            for (const FOrvActorRef Actor : Editor.World().GetActors())
            {
                for (const FOrvMeshRef Mesh : Editor.World().GetStaticMeshComponents(Actor))
                {
                    const std::optional<FOrvProductTag> Tag = Editor.Meshes().GetProductTag(Mesh);
                    if (Tag && Tag->bIsValid)
                    {
                        ++Result[Tag->ProductID];
                        break;
                    }
                }
            }
            return Result;
        }

        FOrvMemoryEditor Editor;
        rapidjson::Document Catalog;
        std::map<std::string, const rapidjson::Value*> Records;
    };
} // namespace

TEST_F(FOrvDemoSceneTest, RoomHoldsRepeatedCatalogueProductsEachWithACatalogueRecord)
{
    const std::map<std::string, int> Placed = PlacedProducts();
    EXPECT_GE(Placed.size(), 10u);
    EXPECT_LE(Placed.size(), 20u);
    EXPECT_EQ(Placed.at("FNV-CH-1102"), 4) << "four identical dining chairs";
    for (const auto& [ProductId, Count] : Placed)
    {
        EXPECT_TRUE(Records.contains(ProductId)) << ProductId << " has no catalogue record";
    }
    EXPECT_EQ(Editor.World().GetMapName(), "DemoRoom");
}

TEST_F(FOrvDemoSceneTest, PlacedProductsCoverEveryMountingKind)
{
    std::set<std::string> Hints;
    for (const FOrvActorRef Actor : Editor.World().GetActors())
    {
        for (const FOrvMeshRef Mesh : Editor.World().GetStaticMeshComponents(Actor))
        {
            if (Editor.Meshes().GetProductTag(Mesh))
            {
                Hints.insert(FOrvMcpToolHelpers::GetMountingHint(Editor.Meshes().GetBoundingBox(Mesh)));
            }
        }
    }
    EXPECT_EQ(Hints, (std::set<std::string>{"ceiling", "floor-back", "floor-center", "wall"}));
}

TEST_F(FOrvDemoSceneTest, ProjectHoldsUnplacedMeshesAMaterialAndTwoMeshesOfOneName)
{
    std::set<std::string> PlacedPaths;
    for (const FOrvActorRef Actor : Editor.World().GetActors())
    {
        for (const FOrvMeshRef Mesh : Editor.World().GetStaticMeshComponents(Actor))
        {
            PlacedPaths.insert(Editor.Meshes().GetMeshPathName(Mesh));
        }
    }
    int Unplaced = 0;
    int NamedChair = 0;
    int NonMeshes = 0;
    for (const FOrvAssetData& Asset : Editor.Assets().GetAssetsByPath("/Game/ORVESSA", true))
    {
        const FOrvMeshRef Mesh = Editor.Assets().LoadStaticMeshAsset(Asset);
        Unplaced += Mesh && !PlacedPaths.contains(Editor.Meshes().GetMeshPathName(Mesh));
        NamedChair += Asset.AssetName == "SM_Chair";
        NonMeshes += !Mesh;
    }
    EXPECT_GE(Unplaced, 2);
    EXPECT_LE(Unplaced, 3);
    EXPECT_EQ(NamedChair, 2);
    EXPECT_GE(NonMeshes, 1);
}

TEST_F(FOrvDemoSceneTest, CatalogueHasARootCategoryAndANameTheScheduleMustEscape)
{
    bool bRootCategory = false;
    bool bEscapedName = false;
    for (const auto& [Id, Record] : Records)
    {
        bRootCategory |= FOrvJson::GetStringField(*Record, "category_t2").empty();
        bEscapedName |= FOrvJson::GetStringField(*Record, "name").find_first_of(",\"") != std::string::npos;
        EXPECT_EQ(FOrvJson::GetStringField(*Record, "website").rfind("https://", 0), 0u) << Id;
    }
    EXPECT_TRUE(bRootCategory);
    EXPECT_TRUE(bEscapedName);
}

TEST_F(FOrvDemoSceneTest, CameraLooksIntoTheRoomAt1280By720)
{
    ASSERT_TRUE(Editor.Viewport().HasActiveViewport());
    EXPECT_EQ(Editor.Viewport().GetViewportSize().X, 1280);
    EXPECT_EQ(Editor.Viewport().GetViewportSize().Y, 720);
    EXPECT_TRUE(Editor.GetViewport()->bPerspective);
}
