#include "Host/Editor/OrvMemoryEditorPorts.h"

#include "Host/Editor/OrvObjectNames.h"

namespace OrvWebBridge
{
    bool FOrvMemoryStaticMeshesPort::IsMeshAlive(FOrvMeshRef Mesh) const
    {
        return Context.Assets.FindMesh(Mesh) != nullptr;
    }

    std::string FOrvMemoryStaticMeshesPort::GetMeshName(FOrvMeshRef Mesh) const
    {
        const FOrvMemoryMeshDesc* Found = Context.Assets.FindMesh(Mesh);
        return Found ? std::string(FOrvObjectNames::ShortPackageName(Found->PackageName)) : std::string();
    }

    std::string FOrvMemoryStaticMeshesPort::GetMeshPathName(FOrvMeshRef Mesh) const
    {
        const FOrvMemoryMeshDesc* Found = Context.Assets.FindMesh(Mesh);
        if (!Found)
        {
            return {};
        }
        return Found->PackageName + "." + std::string(FOrvObjectNames::ShortPackageName(Found->PackageName));
    }

    FOrvBox FOrvMemoryStaticMeshesPort::GetBoundingBox(FOrvMeshRef Mesh) const
    {
        const FOrvMemoryMeshDesc* Found = Context.Assets.FindMesh(Mesh);
        return Found ? Found->Bounds : FOrvBox{};
    }

    std::optional<FOrvProductTag> FOrvMemoryStaticMeshesPort::GetProductTag(FOrvMeshRef Mesh) const
    {
        const FOrvMemoryMeshDesc* Found = Context.Assets.FindMesh(Mesh);
        return Found ? Found->Tag : std::nullopt;
    }

    std::optional<std::vector<FOrvAssetUserData>>
    FOrvMemoryStaticMeshesPort::GetAssetUserData(FOrvMeshRef Mesh) const
    {
        // A static mesh always has its user data array; the import module's tag is its only entry here.
        const FOrvMemoryMeshDesc* Found = Context.Assets.FindMesh(Mesh);
        if (!Found)
        {
            return std::nullopt;
        }
        std::vector<FOrvAssetUserData> Entries;
        if (Found->Tag)
        {
            Entries.push_back({"OrvProductData", Found->Tag});
        }
        return Entries;
    }
} // namespace OrvWebBridge
