#pragma once

#include "CoreMinimal.h"

#include "Core/Ports/IOrvAssetRegistry.h"

namespace OrvWebBridge
{
    class FOrvUnrealHandles;

    /** @brief IOrvAssetRegistry over the AssetRegistry module and the object loader. */
    class FOrvUnrealAssetRegistry final : public IOrvAssetRegistry
    {
    public:
        explicit FOrvUnrealAssetRegistry(FOrvUnrealHandles& InHandles) : Handles(InHandles) {}

        virtual std::vector<FOrvAssetData> GetAssetsByPath(std::string_view PackagePath,
                                                           bool bRecursive) const override;
        virtual FOrvMeshRef LoadStaticMesh(std::string_view ObjectPath) override;
        virtual FOrvMeshRef LoadStaticMeshAsset(const FOrvAssetData& Asset) override;
        virtual std::optional<std::string> LoadMaterialInstanceMetaData(const FOrvAssetData& Asset,
                                                                        std::string_view Key) override;

    private:
        FOrvUnrealHandles& Handles;
    };
} // namespace OrvWebBridge
