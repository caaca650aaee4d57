#pragma once

#include "Core/Ports/IOrvActorEditing.h"
#include "Core/Ports/IOrvAssetRegistry.h"
#include "Core/Ports/IOrvEditorSelection.h"
#include "Core/Ports/IOrvEditorWorld.h"
#include "Core/Ports/IOrvViewport.h"
#include "Host/Editor/OrvMemoryAssetStore.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvMemoryLevel.h"
#include "Host/Editor/OrvMemoryUndoBuffer.h"
#include "Host/Editor/OrvSoftwareRenderer.h"

#include <optional>

namespace OrvWebBridge
{
    /** @brief Everything the in-memory editor holds; the port adapters below share it. */
    struct FOrvMemoryEditorContext
    {
        FOrvMemoryLevel Level;
        FOrvMemoryAssetStore Assets;
        FOrvMemoryUndoBuffer UndoBuffer{Level};
        std::optional<FOrvMemoryViewportDesc> Viewport;
        FOrvMemoryEditorUi Ui;
    };

    // One adapter per port, each implemented in its own file (OrvMemory<Port>Port.cpp).

    class FOrvMemoryWorldPort : public IOrvEditorWorld
    {
    public:
        explicit FOrvMemoryWorldPort(const FOrvMemoryEditorContext& InContext) : Context(InContext) {}

        bool HasEditorWorld() const override;
        std::vector<FOrvActorRef> GetActors() const override;
        bool IsActorAlive(FOrvActorRef Actor) const override;
        std::string GetActorName(FOrvActorRef Actor) const override;
        std::string GetActorLabel(FOrvActorRef Actor) const override;
        FOrvTransform GetActorTransform(FOrvActorRef Actor) const override;
        std::vector<FOrvMeshRef> GetStaticMeshComponents(FOrvActorRef Actor) const override;
        std::string GetMapName() const override;

    private:
        const FOrvMemoryActor* Find(FOrvActorRef Actor) const;

        const FOrvMemoryEditorContext& Context;
    };

    class FOrvMemoryLevelEventsPort : public IOrvLevelEvents
    {
    public:
        explicit FOrvMemoryLevelEventsPort(FOrvMemoryEditorContext& InContext) : Context(InContext) {}

        FOrvActorEventsHandle AddActorHandlers(FOrvActorEvent OnSpawned, FOrvActorEvent OnDestroyed) override;
        void RemoveActorHandlers(FOrvActorEventsHandle Handle) override;

    private:
        FOrvMemoryEditorContext& Context;
    };

    class FOrvMemoryActorEditingPort : public IOrvActorEditing
    {
    public:
        explicit FOrvMemoryActorEditingPort(FOrvMemoryEditorContext& InContext) : Context(InContext) {}

        FOrvActorRef SpawnStaticMeshActor(const FOrvVector& Location, const FOrvRotator& Rotation) override;
        void ModifyActor(FOrvActorRef Actor) override;
        void SetStaticMesh(FOrvActorRef Actor, FOrvMeshRef Mesh) override;
        void SetActorLabel(FOrvActorRef Actor, std::string_view Label) override;
        void SetActorTransform(FOrvActorRef Actor, const std::optional<FOrvVector>& Location,
                               const std::optional<FOrvRotator>& Rotation) override;
        std::optional<FOrvTransform> GetRootComponentTransform(FOrvActorRef Actor) const override;
        bool EditorDestroyActor(FOrvActorRef Actor) override;
        void SetTemporarilyHidden(FOrvActorRef Actor, bool bHidden) override;

    private:
        const FOrvMemoryActor* Find(FOrvActorRef Actor) const;
        FOrvMemoryActor* Edit(FOrvActorRef Actor);
        void Commit(const FOrvMemoryActor& Before, const FOrvMemoryActor& After);

        FOrvMemoryEditorContext& Context;
    };

    class FOrvMemorySelectionPort : public IOrvEditorSelection
    {
    public:
        explicit FOrvMemorySelectionPort(FOrvMemoryEditorContext& InContext) : Context(InContext) {}

        void SelectNone() override;
        void SelectActor(FOrvActorRef Actor) override;
        void NoteSelectionChange() override;
        std::optional<std::vector<FOrvActorRef>> GetSelectedActors() const override;

    private:
        FOrvMemoryEditorContext& Context;
    };

    class FOrvMemoryAssetRegistryPort : public IOrvAssetRegistry
    {
    public:
        explicit FOrvMemoryAssetRegistryPort(const FOrvMemoryEditorContext& InContext) : Context(InContext) {}

        std::vector<FOrvAssetData> GetAssetsByPath(std::string_view PackagePath,
                                                   bool bRecursive) const override;
        FOrvMeshRef LoadStaticMesh(std::string_view ObjectPath) override;
        FOrvMeshRef LoadStaticMeshAsset(const FOrvAssetData& Asset) override;
        std::optional<std::string> LoadMaterialInstanceMetaData(const FOrvAssetData& Asset,
                                                                std::string_view Key) override;

    private:
        const FOrvMemoryEditorContext& Context;
    };

    class FOrvMemoryStaticMeshesPort : public IOrvStaticMeshes
    {
    public:
        explicit FOrvMemoryStaticMeshesPort(const FOrvMemoryEditorContext& InContext) : Context(InContext) {}

        bool IsMeshAlive(FOrvMeshRef Mesh) const override;
        std::string GetMeshName(FOrvMeshRef Mesh) const override;
        std::string GetMeshPathName(FOrvMeshRef Mesh) const override;
        FOrvBox GetBoundingBox(FOrvMeshRef Mesh) const override;
        std::optional<FOrvProductTag> GetProductTag(FOrvMeshRef Mesh) const override;
        std::optional<std::vector<FOrvAssetUserData>> GetAssetUserData(FOrvMeshRef Mesh) const override;

    private:
        const FOrvMemoryEditorContext& Context;
    };

    class FOrvMemoryContentBrowserPort : public IOrvContentBrowser
    {
    public:
        explicit FOrvMemoryContentBrowserPort(const FOrvMemoryEditorContext& InContext) : Context(InContext)
        {
        }

        std::vector<FOrvAssetData> GetSelectedAssets() const override
        {
            return Context.Ui.ContentBrowserSelection;
        }

    private:
        const FOrvMemoryEditorContext& Context;
    };

    class FOrvMemoryWidgetFocusPort : public IOrvWidgetFocus
    {
    public:
        explicit FOrvMemoryWidgetFocusPort(const FOrvMemoryEditorContext& InContext) : Context(InContext) {}

        std::vector<std::string> GetFocusedWidgetTypes() const override;

    private:
        const FOrvMemoryEditorContext& Context;
    };

    class FOrvMemoryViewportPort : public IOrvViewport
    {
    public:
        explicit FOrvMemoryViewportPort(const FOrvMemoryEditorContext& InContext) : Context(InContext) {}

        bool HasActiveViewport() const override;
        std::optional<FOrvViewInfo> GetLevelViewportView() const override;
        bool HasClientViewport() const override;
        FOrvIntPoint GetViewportSize() const override;
        bool ReadPixels(std::vector<FOrvColor>& Out) override;

    private:
        bool IsFrameCurrent(const FOrvRenderCamera& Camera) const;
        void RenderFrame(const FOrvRenderCamera& Camera);

        const FOrvMemoryEditorContext& Context;
        FOrvSoftwareRenderer Renderer;
        std::vector<FOrvRenderBox> Boxes; ///< kept between captures to avoid reallocating

        // The last picture, reused while neither the level nor the camera changed: like the engine's
        // viewport, ReadPixels copies out the frame it shows rather than drawing a new one.
        std::vector<FOrvColor> Frame;
        FOrvRenderCamera FrameCamera;
        std::uint64_t FrameRevision = 0;
        bool bFrameWorldAvailable = false;
        bool bHasFrame = false;
    };
} // namespace OrvWebBridge
