#include "Host/Editor/OrvMemoryEditorPorts.h"

namespace OrvWebBridge
{
    std::vector<FOrvAssetData> FOrvMemoryAssetRegistryPort::GetAssetsByPath(std::string_view PackagePath,
                                                                            bool bRecursive) const
    {
        return Context.Assets.GetAssetsByPath(PackagePath, bRecursive);
    }

    FOrvMeshRef FOrvMemoryAssetRegistryPort::LoadStaticMesh(std::string_view ObjectPath)
    {
        return Context.Assets.FindMeshByObjectPath(ObjectPath);
    }

    FOrvMeshRef FOrvMemoryAssetRegistryPort::LoadStaticMeshAsset(const FOrvAssetData& Asset)
    {
        return Context.Assets.FindMeshByAsset(Asset);
    }

    std::optional<std::string>
    FOrvMemoryAssetRegistryPort::LoadMaterialInstanceMetaData(const FOrvAssetData& Asset,
                                                              std::string_view Key)
    {
        return Context.Assets.FindMaterialInstanceMetaData(Asset, Key);
    }
} // namespace OrvWebBridge
