#include "Core/Mcp/OrvMcpHandler.h"

#include <string_view>

namespace OrvWebBridge
{
    namespace
    {
        // The catalogue is what the AI client reads to decide when and how to call each tool: the texts
        // are product behaviour, kept word for word, typography included.

        using FOrvToolCatalogSchemaWriter = void (*)(FOrvJsonWriter& Writer);

        /** A tool object: name, description, then its argument schema. */
        void OrvToolCatalogWriteTool(FOrvJsonWriter& Writer, std::string_view Name,
                                     std::string_view Description, FOrvToolCatalogSchemaWriter WriteSchema)
        {
            Writer.BeginObject();
            Writer.String("name", Name);
            Writer.String("description", Description);
            Writer.BeginObject("inputSchema");
            WriteSchema(Writer);
            Writer.EndObject();
            Writer.EndObject();
        }

        /** The schema of a tool without arguments: {"type":"object","properties":{}}. */
        void OrvToolCatalogWriteNoArguments(FOrvJsonWriter& Writer)
        {
            Writer.String("type", "object");
            Writer.BeginObject("properties");
            Writer.EndObject();
        }

        /** A string or integer argument. */
        void OrvToolCatalogWriteScalarArgument(FOrvJsonWriter& Writer, std::string_view Key,
                                               std::string_view Type, std::string_view Description)
        {
            Writer.BeginObject(Key);
            Writer.String("type", Type);
            Writer.String("description", Description);
            Writer.EndObject();
        }

        /** A vector argument: three numbers are meant, but no item count is declared. */
        void OrvToolCatalogWriteVectorArgument(FOrvJsonWriter& Writer, std::string_view Key,
                                               std::string_view Description)
        {
            Writer.BeginObject(Key);
            Writer.String("type", "array");
            Writer.BeginObject("items");
            Writer.String("type", "number");
            Writer.EndObject();
            Writer.String("description", Description);
            Writer.EndObject();
        }

        void OrvToolCatalogWriteRequired(FOrvJsonWriter& Writer, std::string_view Argument)
        {
            Writer.BeginArray("required");
            Writer.String(Argument);
            Writer.EndArray();
        }

        constexpr std::string_view OrvToolCatalogInstanceIdText =
            "Instance id from ue_list_scene or ue_spawn_product.";

        void OrvToolCatalogWriteCaptureViewSchema(FOrvJsonWriter& Writer)
        {
            Writer.String("type", "object");
            Writer.BeginObject("properties");
            OrvToolCatalogWriteScalarArgument(
                Writer, "quality", "integer",
                "JPEG quality 1-100. Default 80. Lower = smaller payload, lower fidelity.");
            Writer.EndObject();
        }

        void OrvToolCatalogWriteSpawnProductSchema(FOrvJsonWriter& Writer)
        {
            Writer.String("type", "object");
            Writer.BeginObject("properties");
            OrvToolCatalogWriteScalarArgument(
                Writer, "asset_path", "string",
                "Full UE asset path under /Game/ORVESSA, taken verbatim from ue_list_available_assets (e.g. "
                "/Game/ORVESSA/Brand/Products/Collection/Meshes/SM_X.SM_X).");
            OrvToolCatalogWriteVectorArgument(
                Writer, "location",
                "Optional [x,y,z] in cm. Omit to place ~3 m in front of the editor camera (recommended so "
                "the user sees the result).");
            OrvToolCatalogWriteVectorArgument(Writer, "rotation",
                                              "Optional [pitch,yaw,roll] in degrees. Defaults to [0,0,0].");
            Writer.EndObject();
            OrvToolCatalogWriteRequired(Writer, "asset_path");
        }

        void OrvToolCatalogWriteMoveActorSchema(FOrvJsonWriter& Writer)
        {
            Writer.String("type", "object");
            Writer.BeginObject("properties");
            OrvToolCatalogWriteScalarArgument(Writer, "id", "string", OrvToolCatalogInstanceIdText);
            OrvToolCatalogWriteVectorArgument(Writer, "location", "Optional new absolute [x,y,z] in cm.");
            OrvToolCatalogWriteVectorArgument(Writer, "rotation",
                                              "Optional new absolute [pitch,yaw,roll] in degrees.");
            Writer.EndObject();
            OrvToolCatalogWriteRequired(Writer, "id");
        }

        void OrvToolCatalogWriteDeleteActorSchema(FOrvJsonWriter& Writer)
        {
            Writer.String("type", "object");
            Writer.BeginObject("properties");
            OrvToolCatalogWriteScalarArgument(Writer, "id", "string", OrvToolCatalogInstanceIdText);
            Writer.EndObject();
            OrvToolCatalogWriteRequired(Writer, "id");
        }

        void OrvToolCatalogWriteAssetBoundsSchema(FOrvJsonWriter& Writer)
        {
            Writer.String("type", "object");
            Writer.BeginObject("properties");
            OrvToolCatalogWriteScalarArgument(
                Writer, "asset_path", "string",
                "ORVESSA asset path (from ue_list_available_assets) or a bare asset_name.");
            Writer.EndObject();
            OrvToolCatalogWriteRequired(Writer, "asset_path");
        }

        struct FOrvToolCatalogEntry
        {
            std::string_view Name;
            std::string_view Description;
            FOrvToolCatalogSchemaWriter WriteSchema;
        };

        constexpr FOrvToolCatalogEntry OrvToolCatalogEntries[] = {
            {"ue_list_scene",
             "List all ORVESSA actors currently placed in the active Unreal Engine level. Each entry has: "
             "id (the StaticMeshActor_N handle to pass to ue_move_actor / ue_delete_actor \xE2\x80\x94 "
             "works on ANY listed actor, not just ones spawned this session), name, product_id, location, "
             "rotation. Use this whenever the user wants to know what's in the level, needs an inventory, "
             "or before suggesting / performing any spawn or move operation. Triggers: 'what's in the "
             "level', 'list the actors', 'what's placed in the scene', 'show me the inventory', 'cosa c'e "
             "nella scena', 'quali prodotti sono nel livello', 'elenca gli attori'. COMPLEMENTARY to "
             "ue_capture_view: this identifies WHICH ORVESSA products are present; ue_capture_view shows "
             "what the level LOOKS like. Use both for full understanding.",
             &OrvToolCatalogWriteNoArguments},
            {"ue_get_camera",
             "Return the active editor viewport camera transform: location (x,y,z in cm), rotation "
             "(pitch,yaw,roll in degrees), FOV. Use this to ground spatial reasoning in what the user is "
             "currently looking at, before suggesting camera moves or reframing. Triggers: 'where is the "
             "camera', 'what's the viewpoint', 'what's the camera angle', 'da dove guarda la camera', 'qual "
             "e il punto di vista'.",
             &OrvToolCatalogWriteNoArguments},
            {"ue_list_available_assets",
             "Return the list of ORVESSA StaticMesh assets imported under /Game/ORVESSA in the current UE "
             "project. Call this FIRST before any spawn workflow to know what's available locally. "
             "Triggers: 'what assets do I have', 'what can I spawn', 'list available products', 'what's "
             "imported', 'quali asset ho', 'cosa posso inserire', 'quali prodotti sono disponibili'.",
             &OrvToolCatalogWriteNoArguments},
            {"ue_capture_view",
             "Capture a JPEG screenshot of the active Unreal Editor viewport and return it as an image the "
             "AI can see. Use this as the FIRST step whenever the user wants to interact with, analyze, or "
             "discuss their Unreal scene \xE2\x80\x94 even if they don't mention 'screenshot' or 'capture'. "
             "You CAN see the viewport through this tool; do not tell the user you are unable to see Unreal "
             "or ask them to describe it \xE2\x80\x94 call this tool instead. Triggers: 'show me the "
             "scene', 'what's in my level', 'what do you see', 'describe the scene', 'look at my project', "
             "'mostrami la scena', 'cosa vedi', 'guarda il livello', 'analizza la scena'. Also use to: (a) "
             "visually verify the result of placement / spawn operations, (b) critique scene composition, "
             "lighting, balance, (c) describe the scene to the user, (d) compare with a reference image.\n\n"
             "Captures the viewport exactly as shown (current camera, Lumen/Path Tracing state) at its "
             "current resolution (typically 1080-2160px wide). COMPLEMENTARY to ue_list_scene: this shows "
             "what the level LOOKS like; ue_list_scene identifies WHICH ORVESSA products are present. Use a "
             "lower 'quality' value (e.g. 60) to reduce token cost when full fidelity is not needed. "
             "Returns an error if no editor viewport is currently open.",
             &OrvToolCatalogWriteCaptureViewSchema},
            {"ue_spawn_product",
             "Place an already-imported ORVESSA product into the active Unreal level. Call "
             "ue_list_available_assets FIRST to get a valid asset_path. Spawns only assets under "
             "/Game/ORVESSA (already owned & downloaded by the user). Returns the new instance 'id' for "
             "subsequent ue_move_actor / ue_delete_actor, plus the local 'bounds' of the spawned mesh. For "
             "multi-object layouts or any 'facing / around / next-to' placement, call ue_placement_guide "
             "and ue_get_asset_bounds FIRST to compute correct positions and orientation. Triggers: 'put X "
             "in the scene', 'add the X', 'place a X', 'spawn X', 'metti X nella scena', 'aggiungi X', "
             "'inserisci X'.",
             &OrvToolCatalogWriteSpawnProductSchema},
            {"ue_move_actor",
             "Move and/or rotate an existing actor by its id (absolute set \xE2\x80\x94 provided fields are "
             "applied, others unchanged). Get the id from ue_list_scene or ue_spawn_product first. "
             "Triggers: 'move X', 'rotate X', 'reposition X', 'sposta X', 'ruota X', 'riposiziona X'.",
             &OrvToolCatalogWriteMoveActorSchema},
            {"ue_delete_actor",
             "Remove an actor from the level by its id. Use to clean up or correct a placement. Get the id "
             "from ue_list_scene or ue_spawn_product first. Triggers: 'remove X', 'delete X', 'take X out', "
             "'togli X', 'elimina X', 'rimuovi X'.",
             &OrvToolCatalogWriteDeleteActorSchema},
            {"ue_get_asset_bounds",
             "Return the LOCAL-space bounding box of an ORVESSA StaticMesh: size [W,D,H] in cm, "
             "bbox_min/bbox_max relative to the pivot (at the origin), a mounting_hint, and the forward "
             "axis. This is the SPATIAL reference for placement \xE2\x80\x94 use it instead of catalog cm "
             "dimensions (catalog cm omit depth). The pivot's position within the box tells you how the "
             "asset is meant to sit (floor / wall / ceiling). Call this for each product BEFORE composing a "
             "layout. See ue_placement_guide.",
             &OrvToolCatalogWriteAssetBoundsSchema},
            {"ue_placement_guide",
             "Return the ORVESSA spatial placement rules for Unreal: coordinate convention (+Y forward), "
             "look-at orientation formula, pivot/bounding-box interpretation, spacing, and distribution. "
             "Call this FIRST whenever asked to place, arrange, or compose products in 3D space, or when "
             "relative positioning is implied ('around', 'facing', 'next to', 'in front of').",
             &OrvToolCatalogWriteNoArguments},
        };
    } // namespace

    void FOrvMcpHandler::BuildToolsList(FOrvJsonWriter& Writer)
    {
        Writer.BeginArray("tools");
        for (const FOrvToolCatalogEntry& Tool : OrvToolCatalogEntries)
        {
            OrvToolCatalogWriteTool(Writer, Tool.Name, Tool.Description, Tool.WriteSchema);
        }
        Writer.EndArray();
    }
} // namespace OrvWebBridge
