#include "Unreal/OrvUnrealAssetRegistry.h"

#include "Unreal/OrvUnrealConversions.h"
#include "Unreal/OrvUnrealHandles.h"

#include "AssetRegistry/AssetData.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "Engine/StaticMesh.h"
#include "Materials/MaterialInstanceConstant.h"
#include "Modules/ModuleManager.h"
#include "Templates/Casts.h"
#include "UObject/MetaData.h"
#include "UObject/Package.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/UObjectGlobals.h"

namespace OrvWebBridge
{
    std::vector<FOrvAssetData> FOrvUnrealAssetRegistry::GetAssetsByPath(std::string_view PackagePath,
                                                                        bool bRecursive) const
    {
        // While the editor is still scanning, the registry answers with what it has found so far.
        IAssetRegistry& Registry =
            FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry")).Get();
        TArray<FAssetData> Found;
        Registry.GetAssetsByPath(FName(*FOrvUnrealConversions::ToFString(PackagePath)), Found, bRecursive);

        std::vector<FOrvAssetData> Assets;
        Assets.reserve(static_cast<size_t>(Found.Num()));
        for (const FAssetData& Data : Found)
        {
            Assets.push_back(FOrvUnrealConversions::ToOrvAssetData(Data));
        }
        return Assets;
    }

    FOrvMeshRef FOrvUnrealAssetRegistry::LoadStaticMesh(std::string_view ObjectPath)
    {
        // A miss is expected (the tools try bare names first), so it must not warn.
        const FString Path = FOrvUnrealConversions::ToFString(ObjectPath);
        UObject* Loaded =
            StaticLoadObject(UStaticMesh::StaticClass(), nullptr, *Path, nullptr, LOAD_NoWarn | LOAD_Quiet);
        return Handles.ToMeshRef(Cast<UStaticMesh>(Loaded));
    }

    FOrvMeshRef FOrvUnrealAssetRegistry::LoadStaticMeshAsset(const FOrvAssetData& Asset)
    {
        // What FAssetData::GetAsset does: load the object path "Package.Asset".
        const FSoftObjectPath ObjectPath(
            FOrvUnrealConversions::ToFString(Asset.PackageName + "." + Asset.AssetName));
        return Handles.ToMeshRef(Cast<UStaticMesh>(ObjectPath.TryLoad()));
    }

    std::optional<std::string>
    FOrvUnrealAssetRegistry::LoadMaterialInstanceMetaData(const FOrvAssetData& Asset, std::string_view Key)
    {
        const FSoftObjectPath ObjectPath(
            FOrvUnrealConversions::ToFString(Asset.PackageName + "." + Asset.AssetName));
        const UMaterialInstanceConstant* Material = Cast<UMaterialInstanceConstant>(ObjectPath.TryLoad());
        if (!Material)
        {
            return std::nullopt;
        }
#if WITH_METADATA
        // Since 5.6 a package's metadata is an FMetaData held by reference. The value may be stored for
        // the material itself or for its package as a whole; the material's own value wins.
        FMetaData& MetaData = Material->GetPackage()->GetMetaData();
        const FName KeyName(*FOrvUnrealConversions::ToFString(Key));
        const FString* Value = MetaData.FindValue(Material, KeyName);
        if (!Value)
        {
            Value = MetaData.RootMetaDataMap.Find(KeyName);
        }
        return Value ? FOrvUnrealConversions::ToUtf8(*Value) : std::string();
#else
        return std::string();
#endif
    }
} // namespace OrvWebBridge
