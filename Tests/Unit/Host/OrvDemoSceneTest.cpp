// The demo room shows every feature at once: each placed product has a catalogue record, the products sit
// in every mounting kind, and the catalogue holds a root category and a name the schedule must escape.
#include "Host/Editor/OrvDemoScene.h"
#include "Core/Json/OrvJson.h"
#include "Core/Tools/OrvMcpToolHelpers.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvSceneFile.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace OrvWebBridge;

TEST(FOrvDemoSceneTest, EveryPlacedProductHasARecordAndTheRoomShowsEveryMountingKindAndAnOddCatalogue)
{
    FOrvMemoryEditor Editor;
    const FOrvSceneFileResult Result =
        FOrvSceneFile::LoadText(std::string(FOrvDemoScene::SceneJson()), "demo", Editor);
    ASSERT_TRUE(Result.bOk) << Result.Error;
    rapidjson::Document Catalog;
    ASSERT_TRUE(FOrvJson::ParseObject(FOrvDemoScene::CatalogJson(), Catalog));
    std::set<std::string> Records;
    bool bRootCategory = false;
    bool bEscapedName = false;
    for (const rapidjson::Value& Record : Catalog["products"].GetArray())
    {
        Records.insert(FOrvJson::GetStringField(Record, "id"));
        bRootCategory |= FOrvJson::GetStringField(Record, "category_t2").empty();
        bEscapedName |= FOrvJson::GetStringField(Record, "name").find_first_of(",\"") != std::string::npos;
    }
    EXPECT_TRUE(bRootCategory);
    EXPECT_TRUE(bEscapedName);

    std::set<std::string> Hints;
    for (const FOrvActorRef Actor : Editor.World().GetActors())
    {
        for (const FOrvMeshRef Mesh : Editor.World().GetStaticMeshComponents(Actor))
        {
            if (const std::optional<FOrvProductTag> Tag = Editor.Meshes().GetProductTag(Mesh);
                Tag && Tag->bIsValid)
            {
                EXPECT_TRUE(Records.contains(Tag->ProductID)) << Tag->ProductID << " has no catalogue record";
                Hints.insert(FOrvMcpToolHelpers::GetMountingHint(Editor.Meshes().GetBoundingBox(Mesh)));
            }
        }
    }
    EXPECT_EQ(Hints, (std::set<std::string>{"ceiling", "floor-back", "floor-center", "wall"}));
}
