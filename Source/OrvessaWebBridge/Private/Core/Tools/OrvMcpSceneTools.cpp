// The tools that read and change the level: ue_list_scene, ue_get_camera, ue_spawn_product,
// ue_move_actor and ue_delete_actor. Arguments are checked at once; editor work runs in a game-thread
// task that owns the completion and copies of the arguments, so nothing here outlives the handler.
#include "Core/Common/OrvConstants.h"
#include "Core/Common/OrvStrings.h"
#include "Core/Mcp/OrvMcpHandler.h"
#include "Core/Tools/OrvMcpToolHelpers.h"

#include <optional>
#include <string>
#include <utility>

namespace OrvWebBridge
{
    namespace
    {
        constexpr const char* OrvSceneMissingAssetPath =
            R"({"error":"missing_argument","message":"asset_path is required (from ue_list_available_assets)."})";
        constexpr const char* OrvSceneInvalidAssetPath =
            R"({"error":"invalid_asset_path","message":"Only assets under /Game/ORVESSA can be spawned. Pass a path from ue_list_available_assets or a bare ORVESSA asset_name."})";
        constexpr const char* OrvSceneNoEditorWorld =
            R"({"error":"no_editor_world","message":"No active editor world."})";
        constexpr const char* OrvSceneAssetNotFound =
            R"({"error":"asset_not_found","message":"Could not load StaticMesh at %s. Call ue_list_available_assets for valid paths."})";
        constexpr const char* OrvSceneSpawnFailed =
            R"({"error":"spawn_failed","message":"SpawnActor returned null."})";
        constexpr const char* OrvSceneMissingId =
            R"({"error":"missing_argument","message":"id is required (from ue_list_scene)."})";
        constexpr const char* OrvSceneActorNotFound =
            R"({"error":"actor_not_found","message":"No actor with id %s. Call ue_list_scene for valid ids."})";

        // How far in front of the editor camera a product lands when no location is given, in centimetres.
        constexpr double OrvSceneSpawnDistance = 300.0;

        // A listed actor takes about 250 bytes of pretty text; reserving once avoids regrowing a large
        // result.
        constexpr std::size_t OrvSceneBytesPerActor = 256;

        std::optional<FOrvVector> OrvSceneLocation(const FOrvVectorArgument& Argument)
        {
            return Argument.bIsSet ? std::optional<FOrvVector>(FOrvVector{Argument.A, Argument.B, Argument.C})
                                   : std::nullopt;
        }

        std::optional<FOrvRotator> OrvSceneRotation(const FOrvVectorArgument& Argument)
        {
            return Argument.bIsSet
                       ? std::optional<FOrvRotator>(FOrvRotator{Argument.A, Argument.B, Argument.C})
                       : std::nullopt;
        }

        FOrvVector OrvSceneSpawnLocation(const FOrvVectorArgument& Given, const IOrvViewport& Viewport)
        {
            if (Given.bIsSet)
            {
                return {Given.A, Given.B, Given.C};
            }
            if (const std::optional<FOrvViewInfo> View = Viewport.GetLevelViewportView())
            {
                const FOrvVector Direction = FOrvMcpToolHelpers::RotatorToDirection(View->Rotation);
                return {View->Location.X + Direction.X * OrvSceneSpawnDistance,
                        View->Location.Y + Direction.Y * OrvSceneSpawnDistance,
                        View->Location.Z + Direction.Z * OrvSceneSpawnDistance};
            }
            return {};
        }
    } // namespace

    void FOrvMcpHandler::ToolUeListScene(const rapidjson::Value&, FOrvMcpToolCompletion OnComplete)
    {
        Ports.GameThread.Post(
            [Ports = Ports, OnComplete = std::move(OnComplete)]()
            {
                const IOrvEditorWorld& World = Ports.World;
                const std::vector<FOrvActorRef> Actors =
                    World.HasEditorWorld() ? World.GetActors() : std::vector<FOrvActorRef>();
                std::string Text = FOrvMcpToolHelpers::WriteJsonObject(
                    [&](FOrvJsonWriter& Writer)
                    {
                        Writer.BeginArray("actors");
                        for (const FOrvActorRef Actor : Actors)
                        {
                            const std::vector<FOrvMeshRef> Meshes = World.GetStaticMeshComponents(Actor);
                            if (Meshes.empty() || !Meshes.front())
                            {
                                continue;
                            }
                            const std::optional<FOrvProductTag> Tag =
                                Ports.Meshes.GetProductTag(Meshes.front());
                            if (!Tag || !Tag->bIsValid)
                            {
                                continue;
                            }
                            const FOrvTransform Transform = World.GetActorTransform(Actor);
                            Writer.BeginObject();
                            Writer.String("id", World.GetActorName(Actor));
                            Writer.String("name", World.GetActorLabel(Actor));
                            Writer.String("product_id", Tag->ProductID);
                            Writer.Vector3("location", Transform.Location.X, Transform.Location.Y,
                                           Transform.Location.Z);
                            Writer.Vector3("rotation", Transform.Rotation.Pitch, Transform.Rotation.Yaw,
                                           Transform.Rotation.Roll);
                            Writer.EndObject();
                        }
                        Writer.EndArray();
                    },
                    64 + Actors.size() * OrvSceneBytesPerActor);
                OnComplete(MakeContentText(std::move(Text)));
            });
    }

    void FOrvMcpHandler::ToolUeGetCamera(const rapidjson::Value&, FOrvMcpToolCompletion OnComplete)
    {
        Ports.GameThread.Post(
            [Ports = Ports, OnComplete = std::move(OnComplete)]()
            {
                FOrvViewInfo View;
                if (Ports.Viewport.HasActiveViewport())
                {
                    if (const std::optional<FOrvViewInfo> ClientView = Ports.Viewport.GetLevelViewportView())
                    {
                        View = *ClientView;
                    }
                }
                OnComplete(MakeContentText(FOrvMcpToolHelpers::WriteJsonObject(
                    [&View](FOrvJsonWriter& Writer)
                    {
                        Writer.BeginObject("location");
                        Writer.Number("x", View.Location.X);
                        Writer.Number("y", View.Location.Y);
                        Writer.Number("z", View.Location.Z);
                        Writer.EndObject();
                        Writer.BeginObject("rotation");
                        Writer.Number("pitch", View.Rotation.Pitch);
                        Writer.Number("yaw", View.Rotation.Yaw);
                        Writer.Number("roll", View.Rotation.Roll);
                        Writer.EndObject();
                        Writer.Number("fov", View.FieldOfView);
                    })));
            });
    }

    void FOrvMcpHandler::ToolUeSpawnProduct(const rapidjson::Value& Arguments,
                                            FOrvMcpToolCompletion OnComplete)
    {
        std::string AssetPath;
        if (!FOrvMcpToolHelpers::TryGetRequiredString(Arguments, "asset_path", AssetPath))
        {
            OnComplete(MakeContentText(OrvSceneMissingAssetPath));
            return;
        }
        // A bare asset name (no "/") is looked up under the root later; a path must already point there.
        if (AssetPath.find('/') != std::string::npos &&
            !FOrvStrings::StartsWithIgnoreCase(AssetPath, FOrvConstants::AssetRoot))
        {
            OnComplete(MakeContentText(OrvSceneInvalidAssetPath));
            return;
        }
        const FOrvVectorArgument Location = FOrvMcpToolHelpers::GetVectorArgument(Arguments, "location");
        const FOrvVectorArgument Rotation = FOrvMcpToolHelpers::GetVectorArgument(Arguments, "rotation");

        Ports.GameThread.Post(
            [Ports = Ports, OnComplete = std::move(OnComplete), AssetPath = std::move(AssetPath), Location,
             Rotation]()
            {
                if (!Ports.World.HasEditorWorld())
                {
                    OnComplete(MakeContentText(OrvSceneNoEditorWorld));
                    return;
                }
                const FOrvMeshRef Mesh = FOrvMcpToolHelpers::ResolveStaticMesh(Ports.Assets, AssetPath);
                if (!Mesh)
                {
                    OnComplete(
                        MakeContentText(FOrvStrings::Printf(OrvSceneAssetNotFound, AssetPath.c_str())));
                    return;
                }
                const FOrvVector SpawnLocation = OrvSceneSpawnLocation(Location, Ports.Viewport);
                const FOrvRotator SpawnRotation =
                    Rotation.bIsSet ? FOrvRotator{Rotation.A, Rotation.B, Rotation.C} : FOrvRotator{};

                std::string Text;
                {
                    FOrvScopedTransaction Transaction(Ports.Transactions, "Orv MCP: Spawn Product");
                    const FOrvActorRef Actor =
                        Ports.Editing.SpawnStaticMeshActor(SpawnLocation, SpawnRotation);
                    if (!Actor)
                    {
                        Text = OrvSceneSpawnFailed;
                    }
                    else
                    {
                        Ports.Editing.ModifyActor(Actor);
                        Ports.Editing.SetStaticMesh(Actor, Mesh);
                        Ports.Editing.SetActorLabel(Actor, Ports.Meshes.GetMeshName(Mesh));
                        // The tag's validity is not asked here: a spawn reports whatever identifier it
                        // carries.
                        const std::optional<FOrvProductTag> Tag = Ports.Meshes.GetProductTag(Mesh);
                        const FOrvBox Bounds = Ports.Meshes.GetBoundingBox(Mesh);
                        Text = FOrvMcpToolHelpers::WriteJsonObject(
                            [&](FOrvJsonWriter& Writer)
                            {
                                Writer.String("id", Ports.World.GetActorName(Actor));
                                Writer.String("name", Ports.World.GetActorLabel(Actor));
                                Writer.String("product_id", Tag ? std::string_view(Tag->ProductID) : "");
                                Writer.String("asset_path", AssetPath);
                                Writer.BeginObject("bounds");
                                FOrvMcpToolHelpers::BuildBoundsObject(Writer, Bounds);
                                Writer.EndObject();
                                Writer.Vector3("location", SpawnLocation.X, SpawnLocation.Y, SpawnLocation.Z);
                                Writer.Vector3("rotation", SpawnRotation.Pitch, SpawnRotation.Yaw,
                                               SpawnRotation.Roll);
                            },
                            1024);
                    }
                }
                OnComplete(MakeContentText(std::move(Text)));
            });
    }

    void FOrvMcpHandler::ToolUeMoveActor(const rapidjson::Value& Arguments, FOrvMcpToolCompletion OnComplete)
    {
        std::string Id;
        if (!FOrvMcpToolHelpers::TryGetRequiredString(Arguments, "id", Id))
        {
            OnComplete(MakeContentText(OrvSceneMissingId));
            return;
        }
        const FOrvVectorArgument Location = FOrvMcpToolHelpers::GetVectorArgument(Arguments, "location");
        const FOrvVectorArgument Rotation = FOrvMcpToolHelpers::GetVectorArgument(Arguments, "rotation");

        Ports.GameThread.Post(
            [Ports = Ports, OnComplete = std::move(OnComplete), Id = std::move(Id), Location, Rotation]()
            {
                const FOrvActorRef Actor = FOrvMcpToolHelpers::FindActorById(Ports.World, Id);
                if (!Actor)
                {
                    OnComplete(MakeContentText(FOrvStrings::Printf(OrvSceneActorNotFound, Id.c_str())));
                    return;
                }
                {
                    // Even a call that changes nothing records its (empty) undo step.
                    FOrvScopedTransaction Transaction(Ports.Transactions, "Orv MCP: Move Actor");
                    Ports.Editing.ModifyActor(Actor);
                    Ports.Editing.SetActorTransform(Actor, OrvSceneLocation(Location),
                                                    OrvSceneRotation(Rotation));
                }
                const FOrvTransform Transform =
                    Ports.Editing.GetRootComponentTransform(Actor).value_or(FOrvTransform{});
                OnComplete(MakeContentText(FOrvMcpToolHelpers::WriteJsonObject(
                    [&](FOrvJsonWriter& Writer)
                    {
                        Writer.String("id", Id);
                        Writer.Vector3("location", Transform.Location.X, Transform.Location.Y,
                                       Transform.Location.Z);
                        Writer.Vector3("rotation", Transform.Rotation.Pitch, Transform.Rotation.Yaw,
                                       Transform.Rotation.Roll);
                    })));
            });
    }

    void FOrvMcpHandler::ToolUeDeleteActor(const rapidjson::Value& Arguments,
                                           FOrvMcpToolCompletion OnComplete)
    {
        std::string Id;
        if (!FOrvMcpToolHelpers::TryGetRequiredString(Arguments, "id", Id))
        {
            OnComplete(MakeContentText(OrvSceneMissingId));
            return;
        }

        Ports.GameThread.Post(
            [Ports = Ports, OnComplete = std::move(OnComplete), Id = std::move(Id)]()
            {
                const FOrvActorRef Actor = FOrvMcpToolHelpers::FindActorById(Ports.World, Id);
                if (!Actor)
                {
                    OnComplete(MakeContentText(FOrvStrings::Printf(OrvSceneActorNotFound, Id.c_str())));
                    return;
                }
                bool bDeleted = false;
                {
                    FOrvScopedTransaction Transaction(Ports.Transactions, "Orv MCP: Delete Actor");
                    bDeleted = Ports.Editing.EditorDestroyActor(Actor);
                }
                OnComplete(MakeContentText(FOrvMcpToolHelpers::WriteJsonObject(
                    [&](FOrvJsonWriter& Writer)
                    {
                        Writer.String("id", Id);
                        Writer.Bool("deleted", bDeleted);
                    })));
            });
    }
} // namespace OrvWebBridge
