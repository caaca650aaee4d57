#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvAssetRegistry.h"

namespace OrvWebBridge
{
    class FOrvUnrealHandles;

    /** @brief IOrvStaticMeshes over loaded UStaticMesh objects and their product tag. */
    class FOrvUnrealStaticMeshes final : public IOrvStaticMeshes
    {
    public:
        explicit FOrvUnrealStaticMeshes(FOrvUnrealHandles& InHandles) : Handles(InHandles) {}

        virtual bool IsMeshAlive(FOrvMeshRef Mesh) const override;
        virtual std::string GetMeshName(FOrvMeshRef Mesh) const override;
        virtual std::string GetMeshPathName(FOrvMeshRef Mesh) const override;
        virtual FOrvBox GetBoundingBox(FOrvMeshRef Mesh) const override;
        virtual std::optional<FOrvProductTag> GetProductTag(FOrvMeshRef Mesh) const override;
        virtual std::optional<std::vector<FOrvAssetUserData>>
        GetAssetUserData(FOrvMeshRef Mesh) const override;

    private:
        FOrvUnrealHandles& Handles;
    };
} // namespace OrvWebBridge
