#pragma once

#include "Core/Common/OrvTypes.h"
#include "Core/Mcp/OrvMcpPorts.h"
#include "Core/Ports/IOrvActorEditing.h"
#include "Core/Ports/IOrvAssetRegistry.h"
#include "Core/Ports/IOrvContentBrowser.h"
#include "Core/Ports/IOrvEditorSelection.h"
#include "Core/Ports/IOrvEditorWorld.h"
#include "Core/Ports/IOrvTransactions.h"
#include "Core/Ports/IOrvViewport.h"
#include "Core/Ports/IOrvWidgetFocus.h"
#include "Host/Editor/OrvMemoryEditorUi.h"

#include <cstdint>
#include <functional>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace OrvWebBridge
{
    /** @brief A static mesh asset to add to the in-memory project. */
    struct FOrvMemoryMeshDesc
    {
        std::string PackageName; ///< "/Game/ORVESSA/Brand/Meshes/SM_Chair"; the asset name is its last part
        FOrvBox Bounds;          ///< local box, pivot at the origin, centimetres
        std::optional<FOrvProductTag> Tag;
    };

    /** @brief A package's metadata values (key, value) in the order they were set; keys are names, so
     * they are compared ignoring case. */
    using FOrvMemoryMetaData = std::vector<std::pair<std::string, std::string>>;

    /** @brief An actor to place in the in-memory level. */
    struct FOrvMemoryActorDesc
    {
        std::string Name;  ///< object name; empty: the next free "<Class>_<N>"
        std::string Label; ///< editor label; empty: the object name
        std::string ClassName = "StaticMeshActor";
        FOrvTransform Transform;
        std::vector<FOrvMeshRef> StaticMeshComponents; ///< one per component, in order; null = no mesh
        bool bHasRootComponent = true;
    };

    /** @brief The editor camera and viewport of the in-memory editor. */
    struct FOrvMemoryViewportDesc
    {
        bool bPerspective = true;
        FOrvTransform PerspectiveView;
        FOrvTransform OrthographicView;
        double FieldOfView = 90.0;
        FOrvIntPoint Size{1280, 720};
        double OrthoWidth = 2000.0; ///< world width across the orthographic view, centimetres
    };

    /** @brief One actor as the in-memory level holds it. */
    struct FOrvMemoryActor
    {
        FOrvActorRef Ref;
        std::string Name;
        std::string Label;
        std::string ClassName;
        FOrvTransform Transform;
        std::vector<FOrvMeshRef> StaticMeshComponents;
        bool bHasRootComponent = true;
        bool bTemporarilyHidden = false;
    };

    /** @brief One undo step as the history shows it. */
    struct FOrvMemoryHistoryEntry
    {
        std::string Description;
    };

    /**
     * @brief A real editor held in memory: a level of actors, static mesh assets with product tags, an
     * asset registry, a camera and viewport, the selection, and transactions with undo and redo.
     * It implements every editor port the core uses; the core reaches it only through them.
     *
     * Engine behaviour it keeps: actors iterate in insertion order; spawned actors are named
     * "StaticMeshActor_N" with N above every number used this session (never reused after deletes);
     * labels are free text. Actor-spawned and actor-destroyed handlers fire whenever an actor enters or
     * leaves the level: spawn, destroy, AddActor, and undo/redo that brings one back or takes it away.
     * Without an editor world (SetEditorWorldAvailable(false)) the world ports answer empty and refuse
     * changes; the viewport and the asset registry do not depend on the world. A new editor has an empty
     * level named "Untitled" and a default perspective viewport (FOrvMemoryViewportDesc{}). Without an editor
     * world the editor stands for one not yet started (GEditor null): GetSelectedActors answers nothing.
     * Material instances ("/Script/Engine.MaterialInstanceConstant" assets) load, and their package
     * metadata reads back; the keyboard focus is on the viewport or the Content Browser.
     */
    class FOrvMemoryEditor
    {
    public:
        FOrvMemoryEditor();
        ~FOrvMemoryEditor();
        FOrvMemoryEditor(const FOrvMemoryEditor&) = delete;
        FOrvMemoryEditor& operator=(const FOrvMemoryEditor&) = delete;

        // Building the project and level (scene files, demo scene, tests). Not undoable.
        FOrvMeshRef AddStaticMesh(const FOrvMemoryMeshDesc& Mesh);
        /** A non-mesh asset (material, texture) for the registry, with its package metadata. */
        void AddAsset(const FOrvAssetData& Asset, FOrvMemoryMetaData MetaData = {});
        FOrvActorRef AddActor(const FOrvMemoryActorDesc& Actor); ///< null when the name is taken this session
        void
        SetViewport(const std::optional<FOrvMemoryViewportDesc>& Viewport); ///< nothing: no viewport open
        void SetEditorWorldAvailable(bool bAvailable);                      ///< false: no editor world
        void SetMapName(const std::string& MapName);

        // Reading back (console, scene saving, tests).
        std::vector<const FOrvMemoryActor*> GetLevelActors() const; ///< in iterator order
        const FOrvMemoryActor* FindActor(FOrvActorRef Actor) const;
        const FOrvMemoryActor* FindActorByName(const std::string& Name) const; ///< exact name
        const FOrvMemoryMeshDesc*
        FindMesh(FOrvMeshRef Mesh) const;                  ///< null for a ref the editor did not hand out
        std::vector<FOrvMemoryMeshDesc> GetMeshes() const; ///< in registration order
        std::vector<FOrvAssetData> GetNonMeshAssets() const;
        std::vector<FOrvAssetData> GetRegisteredAssets() const; ///< meshes and others, in registry order
        FOrvMemoryMetaData GetMetaData(const std::string& PackageName) const; ///< empty for none
        std::optional<FOrvMemoryViewportDesc> GetViewport() const;
        std::vector<FOrvActorRef> GetSelectedActors() const;
        int GetSelectionChangeNotifications() const; ///< how often NoteSelectionChange was called
        std::string GetMapName() const;
        bool IsEditorWorldAvailable() const;

        // The panels around the level. The editor tells the selection handlers on NoteSelectionChange and
        // the asset-selection handlers on every Content Browser selection, as the engine's events do.
        void SetContentBrowserSelection(std::vector<FOrvAssetData> Assets);
        std::vector<FOrvAssetData> GetContentBrowserSelection() const;
        void SetKeyboardFocus(EOrvMemoryFocus Focus);
        EOrvMemoryFocus GetKeyboardFocus() const;
        std::uint64_t AddSelectionChangedHandler(std::function<void()> Handler);
        void RemoveSelectionChangedHandler(std::uint64_t Handle);
        std::uint64_t
        AddAssetSelectionChangedHandler(std::function<void(std::vector<FOrvAssetData>)> Handler);
        void RemoveAssetSelectionChangedHandler(std::uint64_t Handle);

        // Undo buffer.
        bool Undo();                                                ///< false when there is nothing to undo
        bool Redo();                                                ///< false when there is nothing to redo
        std::vector<FOrvMemoryHistoryEntry> GetUndoHistory() const; ///< oldest first
        std::vector<FOrvMemoryHistoryEntry> GetRedoHistory() const; ///< next redo last
        bool IsDirty() const;                                       ///< changed since MarkClean
        void MarkClean();

        // The ports.
        IOrvEditorWorld& World();
        IOrvLevelEvents& LevelEvents();
        IOrvActorEditing& Editing();
        IOrvEditorSelection& Selection();
        IOrvTransactions& Transactions();
        IOrvAssetRegistry& Assets();
        IOrvStaticMeshes& Meshes();
        IOrvViewport& Viewport();
        IOrvContentBrowser& ContentBrowser();
        IOrvWidgetFocus& WidgetFocus();

        /** The ports the AI tools use, this editor's together with the given encoder, game thread and log. */
        FOrvMcpPorts McpPorts(IOrvImageWrapperModule& Images, IOrvGameThread& GameThread, IOrvLog& Log);

    private:
        struct FState;
        std::unique_ptr<FState> State;
    };
} // namespace OrvWebBridge
