#pragma once

#include "Core/Mcp/OrvMcpPorts.h"
#include "Tests/Support/OrvManualGameThread.h"
#include "Tests/Support/OrvRecordingLog.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

/**
 * @brief An editor with nothing open: no world, no assets, no viewport, no JPEG encoder. Every port
 * answers "none" and changes nothing. For tests of the MCP plumbing that must not depend on what the
 * tools find; the game thread is pumped by hand and the log records every line.
 */
class FOrvNullEditorPorts
{
public:
    FOrvNullEditorPorts() = default;
    FOrvNullEditorPorts(const FOrvNullEditorPorts&) = delete;
    FOrvNullEditorPorts& operator=(const FOrvNullEditorPorts&) = delete;

    FOrvMcpPorts Ports()
    {
        return {World, Editing, Transactions, Assets, Meshes, Viewport, Images, GameThread, Log};
    }

    FOrvManualGameThread GameThread;
    FOrvRecordingLog Log;

private:
    class FNullWorld : public IOrvEditorWorld
    {
    public:
        bool HasEditorWorld() const override { return false; }
        std::vector<FOrvActorRef> GetActors() const override { return {}; }
        bool IsActorAlive(FOrvActorRef) const override { return false; }
        std::string GetActorName(FOrvActorRef) const override { return {}; }
        std::string GetActorLabel(FOrvActorRef) const override { return {}; }
        FOrvTransform GetActorTransform(FOrvActorRef) const override { return {}; }
        std::vector<FOrvMeshRef> GetStaticMeshComponents(FOrvActorRef) const override { return {}; }
        std::string GetMapName() const override { return {}; }
    };

    class FNullEditing : public IOrvActorEditing
    {
    public:
        FOrvActorRef SpawnStaticMeshActor(const FOrvVector&, const FOrvRotator&) override { return {}; }
        void ModifyActor(FOrvActorRef) override {}
        void SetStaticMesh(FOrvActorRef, FOrvMeshRef) override {}
        void SetActorLabel(FOrvActorRef, std::string_view) override {}
        void SetActorTransform(FOrvActorRef, const std::optional<FOrvVector>&,
                               const std::optional<FOrvRotator>&) override
        {
        }
        std::optional<FOrvTransform> GetRootComponentTransform(FOrvActorRef) const override { return {}; }
        bool EditorDestroyActor(FOrvActorRef) override { return false; }
        void SetTemporarilyHidden(FOrvActorRef, bool) override {}
    };

    class FNullTransactions : public IOrvTransactions
    {
    public:
        void BeginTransaction(std::string_view) override {}
        void EndTransaction() override {}
    };

    class FNullAssets : public IOrvAssetRegistry
    {
    public:
        std::vector<FOrvAssetData> GetAssetsByPath(std::string_view, bool) const override { return {}; }
        FOrvMeshRef LoadStaticMesh(std::string_view) override { return {}; }
        FOrvMeshRef LoadStaticMeshAsset(const FOrvAssetData&) override { return {}; }
    };

    class FNullMeshes : public IOrvStaticMeshes
    {
    public:
        bool IsMeshAlive(FOrvMeshRef) const override { return false; }
        std::string GetMeshName(FOrvMeshRef) const override { return {}; }
        std::string GetMeshPathName(FOrvMeshRef) const override { return {}; }
        FOrvBox GetBoundingBox(FOrvMeshRef) const override { return {}; }
        std::optional<FOrvProductTag> GetProductTag(FOrvMeshRef) const override { return {}; }
    };

    class FNullViewport : public IOrvViewport
    {
    public:
        bool HasActiveViewport() const override { return false; }
        std::optional<FOrvViewInfo> GetLevelViewportView() const override { return {}; }
        bool HasClientViewport() const override { return false; }
        FOrvIntPoint GetViewportSize() const override { return {}; }
        bool ReadPixels(std::vector<FOrvColor>&) override { return false; }
    };

    class FNullImages : public IOrvImageWrapperModule
    {
    public:
        std::unique_ptr<IOrvImageWrapper> CreateJpegWrapper() override { return nullptr; }
    };

    FNullWorld World;
    FNullEditing Editing;
    FNullTransactions Transactions;
    FNullAssets Assets;
    FNullMeshes Meshes;
    FNullViewport Viewport;
    FNullImages Images;
};
