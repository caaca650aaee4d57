#include "Host/Editor/OrvMemoryAssetStore.h"

#include "Core/Common/OrvStrings.h"
#include "Host/Editor/OrvObjectNames.h"

namespace OrvWebBridge
{
    FOrvMeshRef FOrvMemoryAssetStore::AddStaticMesh(const FOrvMemoryMeshDesc& Mesh)
    {
        FOrvAssetData Asset;
        Asset.PackageName = Mesh.PackageName;
        Asset.PackagePath = std::string(FOrvObjectNames::PackagePath(Mesh.PackageName));
        Asset.AssetName = std::string(FOrvObjectNames::ShortPackageName(Mesh.PackageName));
        Asset.ClassPath = std::string(StaticMeshClassPath);
        if (Asset.AssetName.empty() || !Register(Asset))
        {
            return {};
        }
        Meshes.push_back(Mesh);
        const FOrvMeshRef Ref{Meshes.size()};
        MeshByPackage.emplace(FOrvObjectNames::Key(Mesh.PackageName), Ref);
        return Ref;
    }

    bool FOrvMemoryAssetStore::AddAsset(const FOrvAssetData& Asset, FOrvMemoryMetaData MetaData)
    {
        if (Asset.PackageName.empty() || !Register(Asset))
        {
            return false;
        }
        if (!MetaData.empty())
        {
            MetaDataByPackage.emplace(FOrvObjectNames::Key(Asset.PackageName), std::move(MetaData));
        }
        return true;
    }

    const FOrvAssetData* FOrvMemoryAssetStore::FindAsset(std::string_view PackageName) const
    {
        const auto It = RegistryByPackage.find(FOrvObjectNames::Key(PackageName));
        return It == RegistryByPackage.end() ? nullptr : &Registry[It->second];
    }

    const FOrvMemoryMetaData& FOrvMemoryAssetStore::GetMetaData(std::string_view PackageName) const
    {
        static const FOrvMemoryMetaData None;
        const auto It = MetaDataByPackage.find(FOrvObjectNames::Key(PackageName));
        return It == MetaDataByPackage.end() ? None : It->second;
    }

    std::optional<std::string> FOrvMemoryAssetStore::FindMaterialInstanceMetaData(const FOrvAssetData& Asset,
                                                                                  std::string_view Key) const
    {
        // Loading goes by object path "Package.Asset", so both parts must name the registered asset.
        const FOrvAssetData* Found = FindAsset(Asset.PackageName);
        if (!Found || !FOrvStrings::EqualsIgnoreCase(Found->AssetName, Asset.AssetName) ||
            !FOrvStrings::EqualsIgnoreCase(Found->ClassPath, MaterialInstanceClassPath))
        {
            return std::nullopt;
        }
        for (const auto& [Name, Value] : GetMetaData(Asset.PackageName))
        {
            if (FOrvStrings::EqualsIgnoreCase(Name, Key))
            {
                return Value;
            }
        }
        return std::string();
    }

    bool FOrvMemoryAssetStore::Register(const FOrvAssetData& Asset)
    {
        const auto [It, bInserted] =
            RegistryByPackage.emplace(FOrvObjectNames::Key(Asset.PackageName), Registry.size());
        if (bInserted)
        {
            Registry.push_back(Asset);
        }
        return bInserted;
    }

    std::vector<FOrvAssetData> FOrvMemoryAssetStore::GetAssetsByPath(std::string_view PackagePath,
                                                                     bool bRecursive) const
    {
        // Paths are FNames: compared without case, and a recursive query covers whole sub-folders only
        // ("/Game/ORV" does not cover "/Game/ORVESSA").
        std::vector<FOrvAssetData> Result;
        for (const FOrvAssetData& Asset : Registry)
        {
            const std::string_view Path = Asset.PackagePath;
            const bool bSameFolder = FOrvStrings::EqualsIgnoreCase(Path, PackagePath);
            const bool bBelow = bRecursive && !PackagePath.empty() && Path.size() > PackagePath.size() &&
                                Path[PackagePath.size()] == '/' &&
                                FOrvStrings::StartsWithIgnoreCase(Path, PackagePath);
            if (bSameFolder || bBelow)
            {
                Result.push_back(Asset);
            }
        }
        return Result;
    }

    FOrvMeshRef FOrvMemoryAssetStore::FindMeshByObjectPath(std::string_view ObjectPath) const
    {
        std::string_view Package;
        std::string_view AssetName;
        FOrvObjectNames::SplitObjectPath(ObjectPath, Package, AssetName);
        if (Package.empty() || Package.front() != '/')
        {
            return {};
        }
        const auto It = MeshByPackage.find(FOrvObjectNames::Key(Package));
        if (It == MeshByPackage.end())
        {
            return {};
        }
        // A package path alone names the package's main asset, as StaticLoadObject assumes; anything
        // after the dot must be that asset's own name (sub-objects are not meshes).
        const FOrvMemoryMeshDesc& Mesh = Meshes[It->second.Value - 1];
        if (!AssetName.empty() &&
            !FOrvStrings::EqualsIgnoreCase(AssetName, FOrvObjectNames::ShortPackageName(Mesh.PackageName)))
        {
            return {};
        }
        return It->second;
    }

    FOrvMeshRef FOrvMemoryAssetStore::FindMeshByAsset(const FOrvAssetData& Asset) const
    {
        if (!FOrvStrings::EqualsIgnoreCase(Asset.ClassPath, StaticMeshClassPath))
        {
            return {};
        }
        return FindMeshByObjectPath(Asset.PackageName + "." + Asset.AssetName);
    }

    const FOrvMemoryMeshDesc* FOrvMemoryAssetStore::FindMesh(FOrvMeshRef Mesh) const
    {
        if (Mesh.Value == 0 || Mesh.Value > Meshes.size())
        {
            return nullptr;
        }
        return &Meshes[Mesh.Value - 1];
    }

    std::vector<FOrvMemoryMeshDesc> FOrvMemoryAssetStore::GetMeshes() const
    {
        return {Meshes.begin(), Meshes.end()};
    }

    std::vector<FOrvAssetData> FOrvMemoryAssetStore::GetNonMeshAssets() const
    {
        std::vector<FOrvAssetData> Result;
        for (const FOrvAssetData& Asset : Registry)
        {
            if (!MeshByPackage.contains(FOrvObjectNames::Key(Asset.PackageName)))
            {
                Result.push_back(Asset);
            }
        }
        return Result;
    }
} // namespace OrvWebBridge
