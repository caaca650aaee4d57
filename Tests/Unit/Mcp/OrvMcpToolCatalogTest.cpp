#include "Core/Json/OrvJsonWriter.h"
#include "Core/Mcp/OrvMcpHandler.h"
#include "Tests/Support/OrvMcpTestRequests.h"
#include "Tests/Support/OrvNullEditorPorts.h"

#include "Core/Json/OrvRapidJson.h"
#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    // The published catalogue as AI clients read it (schemas condensed): a changed byte is a changed product.
    struct FExpectedTool
    {
        const char *Name, *Description, *Schema;
    };

    const FExpectedTool ExpectedTools[] = {
        {"ue_list_scene",
         "List all ORVESSA actors currently placed in the active Unreal Engine level. Each entry has: id "
         "(the StaticMeshActor_N handle to pass to ue_move_actor / ue_delete_actor — works on ANY listed "
         "actor, not just ones spawned this session), name, product_id, location, rotation. Use this "
         "whenever the user wants to know what's in the level, needs an inventory, or before suggesting / "
         "performing any spawn or move operation. Triggers: 'what's in the level', 'list the actors', "
         "'what's placed in the scene', 'show me the inventory', 'cosa c'e nella scena', 'quali prodotti "
         "sono nel livello', 'elenca gli attori'. COMPLEMENTARY to ue_capture_view: this identifies WHICH "
         "ORVESSA products are present; ue_capture_view shows what the level LOOKS like. Use both for "
         "full understanding.",
         R"({"type":"object","properties":{}})"},
        {"ue_get_camera",
         "Return the active editor viewport camera transform: location (x,y,z in cm), rotation "
         "(pitch,yaw,roll in degrees), FOV. Use this to ground spatial reasoning in what the user is "
         "currently looking at, before suggesting camera moves or reframing. Triggers: 'where is the "
         "camera', 'what's the viewpoint', 'what's the camera angle', 'da dove guarda la camera', 'qual e "
         "il punto di vista'.",
         R"({"type":"object","properties":{}})"},
        {"ue_list_available_assets",
         "Return the list of ORVESSA StaticMesh assets imported under /Game/ORVESSA in the current UE "
         "project. Call this FIRST before any spawn workflow to know what's available locally. Triggers: "
         "'what assets do I have', 'what can I spawn', 'list available products', 'what's imported', "
         "'quali asset ho', 'cosa posso inserire', 'quali prodotti sono disponibili'.",
         R"({"type":"object","properties":{}})"},
        {"ue_capture_view",
         "Capture a JPEG screenshot of the active Unreal Editor viewport and return it as an image the AI "
         "can see. Use this as the FIRST step whenever the user wants to interact with, analyze, or "
         "discuss their Unreal scene — even if they don't mention 'screenshot' or 'capture'. You CAN see "
         "the viewport through this tool; do not tell the user you are unable to see Unreal or ask them "
         "to describe it — call this tool instead. Triggers: 'show me the scene', 'what's in my level', "
         "'what do you see', 'describe the scene', 'look at my project', 'mostrami la scena', 'cosa "
         "vedi', 'guarda il livello', 'analizza la scena'. Also use to: (a) visually verify the result of "
         "placement / spawn operations, (b) critique scene composition, lighting, balance, (c) describe "
         "the scene to the user, (d) compare with a reference image.\n\nCaptures the viewport exactly as "
         "shown (current camera, Lumen/Path Tracing state) at its current resolution (typically "
         "1080-2160px wide). COMPLEMENTARY to ue_list_scene: this shows what the level LOOKS like; "
         "ue_list_scene identifies WHICH ORVESSA products are present. Use a lower 'quality' value (e.g. "
         "60) to reduce token cost when full fidelity is not needed. Returns an error if no editor "
         "viewport is currently open.",
         R"({"type":"object","properties":{)"
         R"("quality":{"type":"integer","description":"JPEG quality 1-100. Default 80. Lower = smaller payload, lower fidelity."}})"
         R"(})"},
        {"ue_spawn_product",
         "Place an already-imported ORVESSA product into the active Unreal level. Call "
         "ue_list_available_assets FIRST to get a valid asset_path. Spawns only assets under "
         "/Game/ORVESSA (already owned & downloaded by the user). Returns the new instance 'id' for "
         "subsequent ue_move_actor / ue_delete_actor, plus the local 'bounds' of the spawned mesh. For "
         "multi-object layouts or any 'facing / around / next-to' placement, call ue_placement_guide and "
         "ue_get_asset_bounds FIRST to compute correct positions and orientation. Triggers: 'put X in the "
         "scene', 'add the X', 'place a X', 'spawn X', 'metti X nella scena', 'aggiungi X', 'inserisci X'.",
         R"({"type":"object","properties":{)"
         R"("asset_path":{"type":"string","description":"Full UE asset path under /Game/ORVESSA, taken verbatim from ue_list_available_assets (e.g. /Game/ORVESSA/Brand/Products/Collection/Meshes/SM_X.SM_X)."},)"
         R"("location":{"type":"array","items":{"type":"number"},"description":"Optional [x,y,z] in cm. Omit to place ~3 m in front of the editor camera (recommended so the user sees the result)."},)"
         R"("rotation":{"type":"array","items":{"type":"number"},"description":"Optional [pitch,yaw,roll] in degrees. Defaults to [0,0,0]."}})"
         R"(,"required":["asset_path"]})"},
        {"ue_move_actor",
         "Move and/or rotate an existing actor by its id (absolute set — provided fields are applied, "
         "others unchanged). Get the id from ue_list_scene or ue_spawn_product first. Triggers: 'move X', "
         "'rotate X', 'reposition X', 'sposta X', 'ruota X', 'riposiziona X'.",
         R"({"type":"object","properties":{)"
         R"("id":{"type":"string","description":"Instance id from ue_list_scene or ue_spawn_product."},)"
         R"("location":{"type":"array","items":{"type":"number"},"description":"Optional new absolute [x,y,z] in cm."},)"
         R"("rotation":{"type":"array","items":{"type":"number"},"description":"Optional new absolute [pitch,yaw,roll] in degrees."}})"
         R"(,"required":["id"]})"},
        {"ue_delete_actor",
         "Remove an actor from the level by its id. Use to clean up or correct a placement. Get the id "
         "from ue_list_scene or ue_spawn_product first. Triggers: 'remove X', 'delete X', 'take X out', "
         "'togli X', 'elimina X', 'rimuovi X'.",
         R"({"type":"object","properties":{)"
         R"("id":{"type":"string","description":"Instance id from ue_list_scene or ue_spawn_product."}})"
         R"(,"required":["id"]})"},
        {"ue_get_asset_bounds",
         "Return the LOCAL-space bounding box of an ORVESSA StaticMesh: size [W,D,H] in cm, "
         "bbox_min/bbox_max relative to the pivot (at the origin), a mounting_hint, and the forward axis. "
         "This is the SPATIAL reference for placement — use it instead of catalog cm dimensions (catalog "
         "cm omit depth). The pivot's position within the box tells you how the asset is meant to sit "
         "(floor / wall / ceiling). Call this for each product BEFORE composing a layout. See "
         "ue_placement_guide.",
         R"({"type":"object","properties":{)"
         R"("asset_path":{"type":"string","description":"ORVESSA asset path (from ue_list_available_assets) or a bare asset_name."}})"
         R"(,"required":["asset_path"]})"},
        {"ue_placement_guide",
         "Return the ORVESSA spatial placement rules for Unreal: coordinate convention (+Y forward), "
         "look-at orientation formula, pivot/bounding-box interpretation, spacing, and distribution. Call "
         "this FIRST whenever asked to place, arrange, or compose products in 3D space, or when relative "
         "positioning is implied ('around', 'facing', 'next to', 'in front of').",
         R"({"type":"object","properties":{}})"},
    };

    class FOrvMcpToolCatalogTest : public ::testing::Test
    {
    protected:
        void SetUp() override
        {
            const std::vector<std::string> Responses =
                OrvSendMcpRequest(Handler, Editor.GameThread, R"({"id":1,"method":"tools/list"})");
            ASSERT_EQ(Responses.size(), 1u);
            Text = Responses.front();
            ASSERT_FALSE(Response.Parse(Text.c_str()).HasParseError()) << Text;
            ASSERT_TRUE(Response["result"].IsObject() && Response["result"]["tools"].IsArray()) << Text;
        }

        const rapidjson::Value& Tools() const { return Response["result"]["tools"]; }

        FOrvNullEditorPorts Editor;
        FOrvMcpHandler Handler{Editor.Ports()};
        std::string Text;
        rapidjson::Document Response;
    };
} // namespace

TEST_F(FOrvMcpToolCatalogTest, ListsTheNineToolsInOrderWithTheirExactDescriptionsAndSchemas)
{
    EXPECT_EQ(Response["result"].MemberCount(), 1u) << "no paging cursor or other member";
    ASSERT_EQ(Tools().Size(), std::size(ExpectedTools));
    for (rapidjson::SizeType Index = 0; Index < Tools().Size(); ++Index)
    {
        const rapidjson::Value& Tool = Tools()[Index];
        const FExpectedTool& Expected = ExpectedTools[Index];
        // Condensed, the tool shows its member order; its description is compared unescaped as well.
        std::string Written;
        FOrvJsonWriter(Written, EOrvJsonStyle::Condensed).Value(Tool);
        std::string Description;
        OrvAppendJsonEscaped(Description, Expected.Description);
        EXPECT_EQ(Written, R"({"name":")" + std::string(Expected.Name) + R"(","description":")" +
                               Description + R"(","inputSchema":)" + Expected.Schema + "}");
        EXPECT_EQ(std::string(Tool["description"].GetString(), Tool["description"].GetStringLength()),
                  Expected.Description);
    }
}

TEST_F(FOrvMcpToolCatalogTest, PrettyTextKeepsDashesRawAndEscapesTheCaptureViewParagraphBreak)
{
    EXPECT_NE(Text.find("ue_delete_actor \xE2\x80\x94 works on ANY"), std::string::npos);
    EXPECT_EQ(Text.find("\\u2014"), std::string::npos);
    EXPECT_NE(Text.find("compare with a reference image.\\n\\nCaptures the viewport"), std::string::npos);

    const std::string DeleteActorTool =
        "\t\t\t{\r\n\t\t\t\t\"name\": \"ue_delete_actor\",\r\n\t\t\t\t\"description\": \"" +
        std::string(ExpectedTools[6].Description) +
        "\",\r\n\t\t\t\t\"inputSchema\":\r\n\t\t\t\t{\r\n\t\t\t\t\t\"type\": \"object\",\r\n"
        "\t\t\t\t\t\"properties\":\r\n\t\t\t\t\t{\r\n\t\t\t\t\t\t\"id\":\r\n\t\t\t\t\t\t{\r\n"
        "\t\t\t\t\t\t\t\"type\": \"string\",\r\n"
        "\t\t\t\t\t\t\t\"description\": \"Instance id from ue_list_scene or ue_spawn_product.\"\r\n"
        "\t\t\t\t\t\t}\r\n\t\t\t\t\t},\r\n\t\t\t\t\t\"required\": [\r\n\t\t\t\t\t\t\"id\"\r\n\t\t\t\t\t]\r\n"
        "\t\t\t\t}\r\n\t\t\t}";
    EXPECT_NE(Text.find(DeleteActorTool), std::string::npos) << Text;
}
