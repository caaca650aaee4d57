#include "Core/Json/OrvJson.h"
#include "Tests/Support/OrvMcpTestRequests.h"
#include "Tests/Support/OrvToolTestRig.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

using namespace OrvWebBridge;

TEST(FOrvListAvailableAssetsTest, ListsOnlyStaticMeshesUnderTheRootInRegistryOrder)
{
    FOrvToolTestRig Rig;
    EXPECT_EQ(Rig.Call("ue_list_available_assets", "").Text, "{\r\n\t\"assets\": [],\r\n\t\"count\": 0\r\n}");

    Rig.AddCatalogMesh("Brand/Tables/Meshes", "SM_Table", "P-T");
    Rig.Editor.AddAsset({"/Game/ORVESSA/Brand/Tables/MI_Oak", "/Game/ORVESSA/Brand/Tables", "MI_Oak",
                         "/Script/Engine.MaterialInstanceConstant"});
    Rig.Editor.AddAsset(
        {"/Game/ORVESSA/Brand/T_Oak", "/Game/ORVESSA/Brand", "T_Oak", "/Script/Engine.Texture2D"});
    Rig.Editor.AddStaticMesh({"/Game/Props/SM_Crate", {}, std::nullopt});
    Rig.AddCatalogMesh("Brand/Chairs", "SM_Chair", "");
    EXPECT_EQ(
        OrvCondensedJson(Rig.Call("ue_list_available_assets").Text),
        R"({"assets":["/Game/ORVESSA/Brand/Tables/Meshes/SM_Table.SM_Table","/Game/ORVESSA/Brand/Chairs/SM_Chair.SM_Chair"],"count":2})");
}

TEST(FOrvGetAssetBoundsTest, MeasuresAnyLoadablePathAndEchoesTheArgumentLast)
{
    FOrvToolTestRig Rig;
    Rig.AddCatalogMesh("Brand/Lights", "SM_Pendant", "P-L", {{-20, -20, -60.5}, {20, 20, 0}});
    Rig.Editor.AddStaticMesh({"/Game/Other/SM_Mirror", {{-30, -3, -40}, {30, 0, 40}}, std::nullopt});
    EXPECT_EQ(
        OrvCondensedJson(Rig.Call("ue_get_asset_bounds", R"({"asset_path":"pendant"})").Text),
        R"({"size":[40,40,60.5],"bbox_min":[-20,-20,-60.5],"bbox_max":[20,20,0],"mounting_hint":"ceiling","forward":"+Y","asset_path":"pendant"})");
    // No root check here: measuring changes nothing.
    const rapidjson::Document Mirror =
        Rig.Call("ue_get_asset_bounds", R"({"asset_path":"/Game/Other/SM_Mirror.SM_Mirror"})").Json();
    EXPECT_EQ(FOrvJson::GetStringField(Mirror, "mounting_hint"), "wall");
}

TEST(FOrvGetAssetBoundsTest, MissingAndUnknownAssetsAreReportedAsText)
{
    FOrvToolTestRig Rig;
    for (const char* Json : {R"({})", R"({"asset_path":""})", R"({"asset_path":["SM_X"]})"})
    {
        const FOrvToolReply Reply = Rig.Call("ue_get_asset_bounds", Json);
        EXPECT_TRUE(Reply.bAnsweredBeforePump) << Json;
        EXPECT_EQ(Reply.Text, R"({"error":"missing_argument","message":"asset_path is required."})") << Json;
    }
    // The argument goes into the message unescaped, quote and all.
    EXPECT_EQ(
        Rig.Call("ue_get_asset_bounds", R"({"asset_path":"SM_\"X"})").Text,
        R"({"error":"asset_not_found","message":"Could not resolve SM_"X. Call ue_list_available_assets for valid paths."})");
}

TEST(FOrvPlacementGuideTest, AnswersAtOnceWithTheSameExactGuideEveryTime)
{
    FOrvToolTestRig Rig;
    const FOrvToolReply First = Rig.Call("ue_placement_guide", R"({"ignored":true})");
    EXPECT_TRUE(First.bAnsweredBeforePump);
    EXPECT_EQ(Rig.Call("UE_PLACEMENT_GUIDE").Text, First.Text);

    const std::string& Guide = First.Text;
    EXPECT_TRUE(Guide.starts_with("# ORVESSA Spatial Placement Guide (Unreal Engine)\n\nApply when placing"));
    EXPECT_TRUE(Guide.ends_with("adjust if needed\n"));
    // Any changed byte shows in the size or the FNV-1a hash of the published text.
    std::uint64_t Hash = 0xcbf29ce484222325ull;
    for (const char Byte : Guide)
    {
        Hash = (Hash ^ static_cast<unsigned char>(Byte)) * 0x100000001b3ull;
    }
    EXPECT_EQ(Guide.size(), 3918u);
    EXPECT_EQ(Hash, 0x834aebd9f369681eull);
}
