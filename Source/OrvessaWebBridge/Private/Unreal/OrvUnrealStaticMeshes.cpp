#include "Unreal/OrvUnrealStaticMeshes.h"

#include "Unreal/Closed/OrvClosedProductTag.h"
#include "Unreal/OrvUnrealConversions.h"
#include "Unreal/OrvUnrealHandles.h"

#include "Engine/AssetUserData.h"
#include "Engine/StaticMesh.h"

namespace OrvWebBridge
{
    bool FOrvUnrealStaticMeshes::IsMeshAlive(FOrvMeshRef Mesh) const
    {
        return Handles.ResolveMesh(Mesh) != nullptr;
    }

    std::string FOrvUnrealStaticMeshes::GetMeshName(FOrvMeshRef Mesh) const
    {
        const UStaticMesh* Resolved = Handles.ResolveMesh(Mesh);
        return Resolved ? FOrvUnrealConversions::ToUtf8(Resolved->GetName()) : std::string();
    }

    std::string FOrvUnrealStaticMeshes::GetMeshPathName(FOrvMeshRef Mesh) const
    {
        const UStaticMesh* Resolved = Handles.ResolveMesh(Mesh);
        return Resolved ? FOrvUnrealConversions::ToUtf8(Resolved->GetPathName()) : std::string();
    }

    FOrvBox FOrvUnrealStaticMeshes::GetBoundingBox(FOrvMeshRef Mesh) const
    {
        // The engine's box includes the mesh's bounds-extension settings.
        const UStaticMesh* Resolved = Handles.ResolveMesh(Mesh);
        return Resolved ? FOrvUnrealConversions::ToOrvBox(Resolved->GetBoundingBox()) : FOrvBox();
    }

    std::optional<FOrvProductTag> FOrvUnrealStaticMeshes::GetProductTag(FOrvMeshRef Mesh) const
    {
        // The tag is the maker's import module's; without that module, no mesh has one.
        UStaticMesh* Resolved = Handles.ResolveMesh(Mesh);
        return Resolved ? ReadClosedProductTag(*Resolved) : std::nullopt;
    }

    std::optional<std::vector<FOrvAssetUserData>>
    FOrvUnrealStaticMeshes::GetAssetUserData(FOrvMeshRef Mesh) const
    {
        const UStaticMesh* Resolved = Handles.ResolveMesh(Mesh);
        const TArray<UAssetUserData*>* UserData = Resolved ? Resolved->GetAssetUserDataArray() : nullptr;
        if (!UserData)
        {
            return std::nullopt;
        }
        // The array may hold null entries (a removed user data class): they have no class to name.
        std::vector<FOrvAssetUserData> Entries;
        Entries.reserve(static_cast<size_t>(UserData->Num()));
        for (UAssetUserData* Entry : *UserData)
        {
            FOrvAssetUserData Converted;
            Converted.ClassName =
                Entry ? FOrvUnrealConversions::ToUtf8(Entry->GetClass()->GetName()) : "None";
            Converted.ProductData = ReadClosedProductTag(Entry);
            Entries.push_back(std::move(Converted));
        }
        return Entries;
    }
} // namespace OrvWebBridge
