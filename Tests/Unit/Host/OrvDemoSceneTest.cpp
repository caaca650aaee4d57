#include "Host/Editor/OrvDemoScene.h"
#include "Core/Json/OrvJson.h"
#include "Core/Tools/OrvMcpToolHelpers.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvSceneFile.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

using namespace OrvWebBridge;

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

        FOrvMemoryEditor Editor;
        rapidjson::Document Catalog;
        std::map<std::string, const rapidjson::Value*> Records;
    };
} // namespace

TEST_F(FOrvDemoSceneTest, RoomHoldsRepeatedCatalogueProductsOfEveryMountingKind)
{
    std::map<std::string, int> Placed; // per product id; no demo actor has two tagged meshes
    std::set<std::string> Hints;
    std::set<std::string> PlacedPaths;
    for (const FOrvActorRef Actor : Editor.World().GetActors())
    {
        for (const FOrvMeshRef Mesh : Editor.World().GetStaticMeshComponents(Actor))
        {
            PlacedPaths.insert(Editor.Meshes().GetMeshPathName(Mesh));
            if (const std::optional<FOrvProductTag> Tag = Editor.Meshes().GetProductTag(Mesh);
                Tag && Tag->bIsValid)
            {
                ++Placed[Tag->ProductID];
                Hints.insert(FOrvMcpToolHelpers::GetMountingHint(Editor.Meshes().GetBoundingBox(Mesh)));
            }
        }
    }
    EXPECT_GE(Placed.size(), 10u);
    EXPECT_LE(Placed.size(), 20u);
    EXPECT_EQ(Placed.at("FNV-CH-1102"), 4) << "four identical dining chairs";
    for (const auto& [ProductId, Count] : Placed)
    {
        EXPECT_TRUE(Records.contains(ProductId)) << ProductId << " has no catalogue record";
    }
    EXPECT_EQ(Hints, (std::set<std::string>{"ceiling", "floor-back", "floor-center", "wall"}));

    // The project also holds unplaced meshes, a material and two meshes of one name.
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
