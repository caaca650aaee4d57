#pragma once

#include "Core/Common/OrvTypes.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief One entry of a mesh's asset user data array. */
    struct FOrvAssetUserData
    {
        std::string ClassName;                     ///< the entry's class name, "None" for a null entry
        std::optional<FOrvProductTag> ProductData; ///< set when the entry is a UOrvProductData
    };

    /** @brief The asset registry and the object loader. Game thread only. */
    class IOrvAssetRegistry
    {
    public:
        virtual ~IOrvAssetRegistry() = default;

        /** GetAssetsByPath(PackagePath, bRecursive): every asset under the path, in registry order. */
        virtual std::vector<FOrvAssetData> GetAssetsByPath(std::string_view PackagePath,
                                                           bool bRecursive) const = 0;

        /** StaticLoadObject(UStaticMesh, no outer, ObjectPath) without warnings; null when it loads nothing.
         */
        virtual FOrvMeshRef LoadStaticMesh(std::string_view ObjectPath) = 0;

        /** Loads the asset (FAssetData::GetAsset); null unless it is a UStaticMesh. */
        virtual FOrvMeshRef LoadStaticMeshAsset(const FOrvAssetData& Asset) = 0;

        /** Loads the asset as a UMaterialInstanceConstant and reads its package metadata value under Key:
         *  nothing when it does not load as one, "" when it has no such value. */
        virtual std::optional<std::string> LoadMaterialInstanceMetaData(const FOrvAssetData& Asset,
                                                                        std::string_view Key) = 0;
    };

    /** @brief Queries on loaded static meshes (UStaticMesh). Game thread only. */
    class IOrvStaticMeshes
    {
    public:
        virtual ~IOrvStaticMeshes() = default;

        /** Whether the referenced mesh is still loaded. */
        virtual bool IsMeshAlive(FOrvMeshRef Mesh) const = 0;

        /** The mesh's object name, e.g. "SM_Chair". */
        virtual std::string GetMeshName(FOrvMeshRef Mesh) const = 0;

        /** The mesh's full path name, e.g. "/Game/ORVESSA/Brand/Meshes/SM_Chair.SM_Chair". */
        virtual std::string GetMeshPathName(FOrvMeshRef Mesh) const = 0;

        /** GetBoundingBox(): the local box in centimetres, pivot at the origin. */
        virtual FOrvBox GetBoundingBox(FOrvMeshRef Mesh) const = 0;

        /** GetAssetUserDataOfClass(UOrvProductData): the product tag, or nothing when the mesh has none. */
        virtual std::optional<FOrvProductTag> GetProductTag(FOrvMeshRef Mesh) const = 0;

        /** GetAssetUserDataArray(): every entry in order; nothing when the mesh is gone or has no array. */
        virtual std::optional<std::vector<FOrvAssetUserData>> GetAssetUserData(FOrvMeshRef Mesh) const = 0;
    };
} // namespace OrvWebBridge
