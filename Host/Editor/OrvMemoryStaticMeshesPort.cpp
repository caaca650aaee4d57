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
} // namespace OrvWebBridge
